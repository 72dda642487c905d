// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/linux/PortalAppearance.h"

#include "platform/linux/Portal.h"

#include <QDBusConnection>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QGuiApplication>
#include <QPalette>

#include <tuple>
#include <utility>

namespace dropshade {

namespace {

const QString settingsInterface = QStringLiteral("org.freedesktop.portal.Settings");

/// Older portals wrap the answer in one more variant.
QVariant unwrapped(const QVariant& value) {
    const bool isWrapped = value.metaType() == QMetaType::fromType<QDBusVariant>();
    return isWrapped ? value.value<QDBusVariant>().variant() : value;
}

/// The portal counts 0 for no preference, and `yes` for the one asked about.
std::optional<bool> preference(uint value, uint yes) {
    return value == 0 ? std::nullopt : std::optional<bool>(value == yes);
}

} // namespace

struct PortalAppearance::Row {
    Setting setting;
    QLatin1String group;
    QLatin1String key;
};

const PortalAppearance::Row PortalAppearance::rows[] = {
    {Setting::ColorScheme, QLatin1String("org.freedesktop.appearance"),
     QLatin1String("color-scheme")},
    {Setting::Contrast, QLatin1String("org.freedesktop.appearance"), QLatin1String("contrast")},
    {Setting::ReducedMotion, QLatin1String("org.freedesktop.appearance"),
     QLatin1String("reduced-motion")},
    {Setting::GnomeContrast, QLatin1String("org.gnome.desktop.a11y.interface"),
     QLatin1String("high-contrast")},
    {Setting::GnomeAnimations, QLatin1String("org.gnome.desktop.interface"),
     QLatin1String("enable-animations")},
};

PortalAppearance::PortalAppearance(std::function<bool()> blendsWindows, bool programsPlaceWindows)
    : m_blendsWindows(std::move(blendsWindows)), m_programsPlaceWindows(programsPlaceWindows) {
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    bus.connect(portal::service, portal::path, settingsInterface, QStringLiteral("SettingChanged"),
                this, SLOT(settingChanged(QDBusMessage)));
    for (const Row& row : rows)
        ask(row);
}

bool PortalAppearance::isDark() const {
    if (m_prefersDark)
        return *m_prefersDark;
    const QPalette palette = QGuiApplication::palette();
    return palette.color(QPalette::Window).lightness() <
           palette.color(QPalette::WindowText).lightness();
}

bool PortalAppearance::isHighContrast() const {
    return m_wantsContrast.value_or(m_gnomeWantsContrast);
}

bool PortalAppearance::reducesMotion() const {
    return m_wantsStillness.value_or(!m_gnomeAnimates);
}

void PortalAppearance::ask(const Row& row) {
    QDBusMessage question = QDBusMessage::createMethodCall(
        portal::service, portal::path, settingsInterface, QStringLiteral("Read"));
    question << QString(row.group) << QString(row.key);
    auto* call =
        new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(question), this);
    connect(call, &QDBusPendingCallWatcher::finished, this, [this, call, setting = row.setting] {
        const QDBusPendingReply<QDBusVariant> reply = *call;
        call->deleteLater();
        if (reply.isValid())
            set(setting, reply.value().variant());
    });
}

void PortalAppearance::settingChanged(const QDBusMessage& message) {
    const QVariantList arguments = message.arguments();
    if (arguments.size() != 3)
        return;
    for (const Row& row : rows) {
        if (arguments[0] == QString(row.group) && arguments[1] == QString(row.key))
            set(row.setting, arguments[2]);
    }
}

void PortalAppearance::set(Setting setting, const QVariant& value) {
    const auto look = [this] { return std::tuple(isDark(), isHighContrast(), reducesMotion()); };
    const auto before = look();
    const QVariant inner = unwrapped(value);
    switch (setting) {
    case Setting::ColorScheme:
        // 1 prefers dark, 2 light.
        m_prefersDark = inner.toUInt() > 2 ? std::nullopt : preference(inner.toUInt(), 1);
        break;
    case Setting::Contrast:
        m_wantsContrast = preference(inner.toUInt(), 1);
        break;
    case Setting::ReducedMotion:
        m_wantsStillness = preference(inner.toUInt(), 1);
        break;
    case Setting::GnomeContrast:
        m_gnomeWantsContrast = inner.toBool();
        break;
    case Setting::GnomeAnimations:
        m_gnomeAnimates = inner.toBool();
        break;
    }
    if (look() != before)
        Q_EMIT didChange();
}

} // namespace dropshade
