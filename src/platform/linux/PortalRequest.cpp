// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/linux/PortalRequest.h"

#include "platform/linux/Portal.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QUuid>

#include <utility>

namespace dropshade {

namespace {

const QString requestInterface = QStringLiteral("org.freedesktop.portal.Request");

/// Where the portal will answer, so that no answer is missed between the call and its return.
QString requestPath(const QDBusConnection& bus, const QString& token) {
    const QString sender = bus.baseService().mid(1).replace(u'.', u'_');
    return QStringLiteral("%1/request/%2/%3").arg(portal::path, sender, token);
}

} // namespace

PortalRequest::PortalRequest(const Question& question, Answer answer)
    : m_answer(std::move(answer)), m_portalWatch(portal::service, QDBusConnection::sessionBus(),
                                                 QDBusServiceWatcher::WatchForUnregistration) {
    // A portal that ends forgets who waits for it.
    connect(&m_portalWatch, &QDBusServiceWatcher::serviceUnregistered, this,
            [this] { finish(Outcome::Failed); });
    const QDBusConnection bus = QDBusConnection::sessionBus();
    const QString token = QStringLiteral("dropshade_") + QUuid::createUuid().toString(QUuid::Id128);
    listenTo(requestPath(bus, token));
    QVariantMap options = question.options;
    options.insert(QStringLiteral("handle_token"), token);
    QDBusMessage message = QDBusMessage::createMethodCall(portal::service, portal::path,
                                                          question.interface, question.method);
    message.setArguments(question.arguments + QVariantList{options});
    auto* call = new QDBusPendingCallWatcher(bus.asyncCall(message), this);
    connect(call, &QDBusPendingCallWatcher::finished, this, [this, call] {
        const QDBusPendingReply<QDBusObjectPath> reply = *call;
        call->deleteLater();
        if (!m_answer)
            return; // Answered already.
        if (!reply.isValid())
            finish(Outcome::Failed);
        else if (reply.value().path() != m_request)
            listenTo(reply.value().path()); // Portals of old choose the path themselves.
    });
}

void PortalRequest::listenTo(const QString& request) {
    QDBusConnection bus = QDBusConnection::sessionBus();
    const auto response = QStringLiteral("Response");
    if (!m_request.isEmpty())
        bus.disconnect(portal::service, m_request, requestInterface, response, this,
                       SLOT(response(QDBusMessage)));
    m_request = request;
    if (!m_request.isEmpty())
        bus.connect(portal::service, m_request, requestInterface, response, this,
                    SLOT(response(QDBusMessage)));
}

void PortalRequest::response(const QDBusMessage& message) {
    if (message.path() != m_request)
        return;
    if (message.signature() != QStringLiteral("ua{sv}")) {
        finish(Outcome::Failed);
        return;
    }
    // A user who changes their mind comes as 1 from one desktop and as 2 from another.
    const bool isDone = message.arguments().at(0).toUInt() == 0;
    finish(isDone ? Outcome::Done : Outcome::Refused,
           qdbus_cast<QVariantMap>(message.arguments().at(1)));
}

void PortalRequest::finish(Outcome outcome, const QVariantMap& results) {
    listenTo(QString());
    if (const Answer answer = std::exchange(m_answer, nullptr))
        answer(outcome, results);
}

} // namespace dropshade
