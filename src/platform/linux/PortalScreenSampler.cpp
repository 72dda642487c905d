// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/linux/PortalScreenSampler.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QTimer>
#include <QUuid>

#include <array>
#include <cmath>
#include <utility>

namespace dropshade {

namespace {

const QString portalService = QStringLiteral("org.freedesktop.portal.Desktop");
const QString portalPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString requestInterface = QStringLiteral("org.freedesktop.portal.Request");

/// Where the portal will answer, so that no answer is missed between the call and its return.
QString requestPath(const QDBusConnection& bus, const QString& token) {
    const QString sender = bus.baseService().mid(1).replace(u'.', u'_');
    return QStringLiteral("%1/request/%2/%3").arg(portalPath, sender, token);
}

/// The portal takes its numbers from 8 bits, by one or the other conversion; back they are exact.
double component(double value) {
    return std::round(value * 255) / 255;
}

std::optional<SRGBColor> color(const QVariantMap& results) {
    const QVariant value = results.value(QStringLiteral("color"));
    if (value.metaType() != QMetaType::fromType<QDBusArgument>())
        return std::nullopt;
    const auto argument = value.value<QDBusArgument>();
    if (argument.currentSignature() != QStringLiteral("(ddd)"))
        return std::nullopt;
    std::array<double, 3> numbers{};
    argument.beginStructure();
    for (double& number : numbers) {
        argument >> number;
        if (!std::isfinite(number))
            return std::nullopt;
    }
    argument.endStructure();
    return SRGBColor(component(numbers[0]), component(numbers[1]), component(numbers[2]));
}

} // namespace

PortalScreenSampler::PortalScreenSampler()
    : m_portalWatch(portalService, QDBusConnection::sessionBus(),
                    QDBusServiceWatcher::WatchForUnregistration) {
    // A portal that ends forgets who waits for it.
    connect(&m_portalWatch, &QDBusServiceWatcher::serviceUnregistered, this,
            [this] { finish(std::nullopt); });
}

void PortalScreenSampler::sample(Describe, Completion completion) {
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (m_completion || !bus.isConnected()) {
        QTimer::singleShot(0, this, [waiting = std::move(completion)] { waiting(std::nullopt); });
        return;
    }
    m_completion = std::move(completion);
    const QString token = QStringLiteral("dropshade_") + QUuid::createUuid().toString(QUuid::Id128);
    listenTo(requestPath(bus, token));
    QDBusMessage question = QDBusMessage::createMethodCall(
        portalService, portalPath, QStringLiteral("org.freedesktop.portal.Screenshot"),
        QStringLiteral("PickColor"));
    question << QString() << QVariantMap{{QStringLiteral("handle_token"), token}};
    auto* call = new QDBusPendingCallWatcher(bus.asyncCall(question), this);
    connect(call, &QDBusPendingCallWatcher::finished, this, [this, call, request = m_request] {
        const QDBusPendingReply<QDBusObjectPath> reply = *call;
        call->deleteLater();
        if (request != m_request)
            return; // Answered already.
        if (!reply.isValid())
            finish(std::nullopt);
        else if (reply.value().path() != m_request)
            listenTo(reply.value().path()); // Portals of old choose the path themselves.
    });
}

void PortalScreenSampler::listenTo(const QString& request) {
    QDBusConnection bus = QDBusConnection::sessionBus();
    const auto response = QStringLiteral("Response");
    if (!m_request.isEmpty())
        bus.disconnect(portalService, m_request, requestInterface, response, this,
                       SLOT(response(QDBusMessage)));
    m_request = request;
    if (!m_request.isEmpty())
        bus.connect(portalService, m_request, requestInterface, response, this,
                    SLOT(response(QDBusMessage)));
}

void PortalScreenSampler::response(const QDBusMessage& message) {
    if (message.path() != m_request)
        return;
    const QVariantList arguments = message.arguments();
    const bool isPicked =
        message.signature() == QStringLiteral("ua{sv}") && arguments.at(0).toUInt() == 0;
    finish(isPicked ? color(qdbus_cast<QVariantMap>(arguments.at(1))) : std::nullopt);
}

void PortalScreenSampler::finish(const std::optional<SRGBColor>& color) {
    listenTo(QString());
    if (const Completion completion = std::exchange(m_completion, nullptr))
        completion(color);
}

} // namespace dropshade
