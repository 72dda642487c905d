// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/linux/TrayHostWatch.h"

#include "platform/linux/XcbConnection.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QGuiApplication>

namespace dropshade {

namespace {

const QString watcherService = QStringLiteral("org.kde.StatusNotifierWatcher");
const QString watcherPath = QStringLiteral("/StatusNotifierWatcher");

} // namespace

TrayHostWatch::TrayHostWatch() = default;

TrayHostWatch::~TrayHostWatch() {
    qGuiApp->removeNativeEventFilter(this);
}

void TrayHostWatch::start() {
    if (xcb_connection_t* connection = guiConnection()) {
        m_managerAtom = internAtom(connection, "MANAGER");
        m_traySelection = internAtom(connection, "_NET_SYSTEM_TRAY_S0");
        qGuiApp->installNativeEventFilter(this);
    }
    if (hasEmbeddingHost()) {
        report();
        return;
    }
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    m_watcherName.setConnection(bus);
    m_watcherName.setWatchMode(QDBusServiceWatcher::WatchForRegistration);
    m_watcherName.addWatchedService(watcherService);
    connect(&m_watcherName, &QDBusServiceWatcher::serviceRegistered, this,
            &TrayHostWatch::askWatcher);
    bus.connect(watcherService, watcherPath, watcherService,
                QStringLiteral("StatusNotifierHostRegistered"), this, SLOT(report()));
    askWatcher();
}

bool TrayHostWatch::hasEmbeddingHost() const {
    xcb_connection_t* connection = guiConnection();
    if (!connection)
        return false;
    const XcbReply<xcb_get_selection_owner_reply_t> reply(xcb_get_selection_owner_reply(
        connection, xcb_get_selection_owner(connection, m_traySelection), nullptr));
    return reply && reply->owner != XCB_NONE;
}

void TrayHostWatch::askWatcher() {
    QDBusMessage question = QDBusMessage::createMethodCall(
        watcherService, watcherPath, QStringLiteral("org.freedesktop.DBus.Properties"),
        QStringLiteral("Get"));
    question << watcherService << QStringLiteral("IsStatusNotifierHostRegistered");
    auto* call =
        new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(question), this);
    connect(call, &QDBusPendingCallWatcher::finished, this, [this, call] {
        const QDBusPendingReply<QDBusVariant> reply = *call;
        call->deleteLater();
        if (reply.isValid() && reply.value().variant().toBool())
            report();
    });
}

bool TrayHostWatch::nativeEventFilter(const QByteArray& eventType, void* message, qintptr*) {
    if (eventType != "xcb_generic_event_t")
        return false;
    constexpr int eventTypeMask = 0x7F;
    const auto* event = static_cast<const xcb_generic_event_t*>(message);
    if ((event->response_type & eventTypeMask) != XCB_CLIENT_MESSAGE)
        return false;
    const auto* announcement = reinterpret_cast<const xcb_client_message_event_t*>(event);
    if (announcement->type == m_managerAtom && announcement->data.data32[1] == m_traySelection)
        report();
    return false;
}

void TrayHostWatch::report() {
    if (m_isReported)
        return;
    m_isReported = true;
    Q_EMIT found();
}

} // namespace dropshade
