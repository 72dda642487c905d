// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/linux/PortalAppearance.h"

#include <QDBusConnection>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QGuiApplication>
#include <QPalette>

namespace dropshade {

namespace {

const QString portalService = QStringLiteral("org.freedesktop.portal.Desktop");
const QString portalPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString settingsInterface = QStringLiteral("org.freedesktop.portal.Settings");
const QString appearanceGroup = QStringLiteral("org.freedesktop.appearance");
const QString colorSchemeKey = QStringLiteral("color-scheme");

} // namespace

PortalAppearance::PortalAppearance() {
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    bus.connect(portalService, portalPath, settingsInterface, QStringLiteral("SettingChanged"),
                this, SLOT(settingChanged(QDBusMessage)));
    ask();
}

bool PortalAppearance::isDark() const {
    if (m_preference != Preference::None)
        return m_preference == Preference::Dark;
    const QPalette palette = QGuiApplication::palette();
    return palette.color(QPalette::Window).lightness() <
           palette.color(QPalette::WindowText).lightness();
}

void PortalAppearance::ask() {
    QDBusMessage question = QDBusMessage::createMethodCall(
        portalService, portalPath, settingsInterface, QStringLiteral("Read"));
    question << appearanceGroup << colorSchemeKey;
    auto* call =
        new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(question), this);
    connect(call, &QDBusPendingCallWatcher::finished, this, [this, call] {
        const QDBusPendingReply<QDBusVariant> reply = *call;
        call->deleteLater();
        if (reply.isValid())
            setPreference(reply.value().variant());
    });
}

void PortalAppearance::settingChanged(const QDBusMessage& message) {
    const QVariantList arguments = message.arguments();
    if (arguments.size() == 3 && arguments[0] == appearanceGroup && arguments[1] == colorSchemeKey)
        setPreference(arguments[2]);
}

void PortalAppearance::setPreference(const QVariant& colorScheme) {
    // Older portals wrap the answer in one more variant.
    const bool isWrapped = colorScheme.metaType() == QMetaType::fromType<QDBusVariant>();
    const QVariant inner = isWrapped ? colorScheme.value<QDBusVariant>().variant() : colorScheme;
    constexpr uint preferDark = 1;
    constexpr uint preferLight = 2;
    const bool wasDark = isDark();
    const uint scheme = inner.toUInt();
    m_preference = scheme == preferDark    ? Preference::Dark
                   : scheme == preferLight ? Preference::Light
                                           : Preference::None;
    if (isDark() != wasDark)
        Q_EMIT didChange();
}

} // namespace dropshade
