// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/linux/PortalShortcuts.h"

#include "platform/linux/Portal.h"
#include "platform/linux/PortalShortcut.h"
#include "platform/linux/PortalTrigger.h"

#include <QDBusConnection>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QGuiApplication>
#include <QUuid>

#include <utility>

namespace dropshade {

namespace {

const QString shortcutsInterface = QStringLiteral("org.freedesktop.portal.GlobalShortcuts");
const QString sessionInterface = QStringLiteral("org.freedesktop.portal.Session");
const QString shortcutsSignature = QStringLiteral("a(sa{sv})");

/// From this version on the portal can be asked to show where keys are changed.
constexpr uint versionWithConfiguration = 2;

/// More than any key takes; a menu is as wide as its widest row.
constexpr qsizetype longestTrigger = 40;

QDBusMessage call(const QString& path, const QString& interface, const QString& method) {
    return QDBusMessage::createMethodCall(portal::service, path, interface, method);
}

QList<PortalShortcut> asked(const QList<DesktopShortcuts::Wish>& wishes) {
    QList<PortalShortcut> shortcuts;
    for (const DesktopShortcuts::Wish& wish : wishes) {
        PortalShortcut shortcut{wish.id, {{QStringLiteral("description"), wish.description}}};
        if (const QString trigger = portalTrigger(wish.preferredKey); !trigger.isEmpty())
            shortcut.details.insert(QStringLiteral("preferred_trigger"), trigger);
        shortcuts.append(shortcut);
    }
    return shortcuts;
}

} // namespace

PortalShortcuts::PortalShortcuts()
    : m_portalWatch(portal::service, QDBusConnection::sessionBus(),
                    QDBusServiceWatcher::WatchForRegistration |
                        QDBusServiceWatcher::WatchForUnregistration) {
    qDBusRegisterMetaType<PortalShortcut>();
    qDBusRegisterMetaType<QList<PortalShortcut>>();
    connect(&m_portalWatch, &QDBusServiceWatcher::serviceRegistered, this,
            &PortalShortcuts::askVersion);
    connect(&m_portalWatch, &QDBusServiceWatcher::serviceUnregistered, this,
            &PortalShortcuts::portalVanished);
    QDBusConnection bus = QDBusConnection::sessionBus();
    const auto listen = [&](const char* signal, const char* slot) {
        bus.connect(portal::service, portal::path, shortcutsInterface, QLatin1String(signal), this,
                    slot);
    };
    listen("Activated", SLOT(activated(QDBusMessage)));
    listen("Deactivated", SLOT(deactivated(QDBusMessage)));
    listen("ShortcutsChanged", SLOT(shortcutsChanged(QDBusMessage)));
    askVersion();
}

PortalShortcuts::~PortalShortcuts() {
    closeSession();
}

bool PortalShortcuts::canConfigure() const {
    return m_state == State::Bound && m_version >= versionWithConfiguration;
}

/// Portals leave out what no part of the desktop can do, so the answer tells that somebody can.
void PortalShortcuts::askVersion() {
    QDBusMessage question = call(portal::path, QStringLiteral("org.freedesktop.DBus.Properties"),
                                 QStringLiteral("Get"));
    question << shortcutsInterface << QStringLiteral("version");
    auto* reply =
        new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(question), this);
    connect(reply, &QDBusPendingCallWatcher::finished, this, [this, reply] {
        const QDBusPendingReply<QDBusVariant> version = *reply;
        reply->deleteLater();
        if (!version.isValid())
            return;
        m_version = version.value().variant().toUInt();
        // One that has just been started knows nothing of what its predecessor held.
        if (m_state == State::Unavailable && !m_wishes.isEmpty())
            createSession();
        else
            give(m_state == State::Unavailable ? State::Unbound : m_state);
    });
}

void PortalShortcuts::portalVanished() {
    const bool wasBound = m_state == State::Bound;
    forgetSession();
    // One that ends over the question waits for somebody else to start it, or the two would go on
    // for ever.
    if (wasBound)
        createSession();
    else if (m_state != State::Asking)
        give(State::Unavailable);
}

void PortalShortcuts::bind(const QList<Wish>& wishes) {
    if (m_state == State::Asking)
        return;
    m_wishes = wishes;
    closeSession();
    createSession();
}

void PortalShortcuts::createSession() {
    const QString token = QStringLiteral("dropshade_") + QUuid::createUuid().toString(QUuid::Id128);
    const PortalRequest::Question question{shortcutsInterface,
                                           QStringLiteral("CreateSession"),
                                           {},
                                           {{QStringLiteral("session_handle_token"), token}}};
    m_request = std::make_unique<PortalRequest>(
        question, [this](PortalRequest::Outcome outcome, const QVariantMap& results) {
            m_request.reset();
            // A string, though it is a path.
            const QString session = results.value(QStringLiteral("session_handle")).toString();
            if (outcome != PortalRequest::Outcome::Done || !session.startsWith(u'/')) {
                give(State::Unavailable);
                return;
            }
            listenToSession(session);
            bindShortcuts();
        });
    give(State::Asking);
}

void PortalShortcuts::bindShortcuts() {
    const PortalRequest::Question question{shortcutsInterface,
                                           QStringLiteral("BindShortcuts"),
                                           {QVariant::fromValue(QDBusObjectPath(m_session)),
                                            QVariant::fromValue(asked(m_wishes)), QString()}};
    m_request = std::make_unique<PortalRequest>(
        question, [this](PortalRequest::Outcome outcome, const QVariantMap& results) {
            m_request.reset();
            if (outcome == PortalRequest::Outcome::Done) {
                readTriggers(results.value(QStringLiteral("shortcuts")));
                give(State::Bound);
                return;
            }
            closeSession();
            if (outcome == PortalRequest::Outcome::Failed) {
                give(State::Unavailable);
                return;
            }
            m_wishes.clear();
            give(State::Unbound);
            Q_EMIT refused();
        });
}

void PortalShortcuts::configure() {
    if (!canConfigure())
        return;
    QDBusMessage question =
        call(portal::path, shortcutsInterface, QStringLiteral("ConfigureShortcuts"));
    question << QVariant::fromValue(QDBusObjectPath(m_session)) << QString() << QVariantMap();
    auto* reply =
        new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(question), this);
    connect(reply, &QDBusPendingCallWatcher::finished, this, [this, reply] {
        reply->deleteLater();
        if (!reply->isError())
            return;
        // The desktop behind the portal can't do what the portal can.
        m_version = versionWithConfiguration - 1;
        Q_EMIT didChange();
    });
}

void PortalShortcuts::closeSession() {
    if (!m_session.isEmpty())
        QDBusConnection::sessionBus().asyncCall(
            call(m_session, sessionInterface, QStringLiteral("Close")));
    forgetSession();
}

void PortalShortcuts::forgetSession() {
    listenToSession(QString());
    m_triggers.clear();
    m_down.clear();
}

void PortalShortcuts::listenToSession(const QString& session) {
    QDBusConnection bus = QDBusConnection::sessionBus();
    const auto closed = QStringLiteral("Closed");
    if (!m_session.isEmpty())
        bus.disconnect(portal::service, m_session, sessionInterface, closed, this,
                       SLOT(sessionClosed()));
    m_session = session;
    if (!m_session.isEmpty())
        bus.connect(portal::service, m_session, sessionInterface, closed, this,
                    SLOT(sessionClosed()));
}

void PortalShortcuts::sessionClosed() {
    m_request.reset();
    forgetSession();
    m_wishes.clear();
    give(State::Unbound);
}

void PortalShortcuts::readTriggers(const QVariant& shortcuts) {
    m_triggers.clear();
    if (shortcuts.metaType() != QMetaType::fromType<QDBusArgument>())
        return;
    // Only what is constant can be read.
    const auto argument = shortcuts.value<QDBusArgument>();
    if (argument.currentSignature() != shortcutsSignature)
        return;
    for (const auto& shortcut : qdbus_cast<QList<PortalShortcut>>(argument)) {
        const auto trigger = shortcut.details.value(QStringLiteral("trigger_description"));
        m_triggers.insert(shortcut.id, trigger.toString().simplified().left(longestTrigger));
    }
}

void PortalShortcuts::give(State state) {
    m_state = state;
    Q_EMIT didChange();
}

/// Portals of old tell every program of every session.
QString PortalShortcuts::actionOf(const QDBusMessage& message) const {
    const QVariantList arguments = message.arguments();
    if (m_session.isEmpty() || !message.signature().startsWith(QStringLiteral("os")))
        return {};
    const bool isOurs = arguments.at(0).value<QDBusObjectPath>().path() == m_session;
    return isOurs ? arguments.at(1).toString() : QString();
}

void PortalShortcuts::activated(const QDBusMessage& message) {
    const QString id = actionOf(message);
    if (id.isEmpty() || m_down.contains(id))
        return;
    m_down.insert(id);
    Q_EMIT pressed(id);
}

void PortalShortcuts::deactivated(const QDBusMessage& message) {
    const QString id = actionOf(message);
    if (m_down.remove(id))
        Q_EMIT released(id);
}

void PortalShortcuts::shortcutsChanged(const QDBusMessage& message) {
    const QVariantList arguments = message.arguments();
    const bool isOurs = message.signature() == u'o' + shortcutsSignature &&
                        arguments.at(0).value<QDBusObjectPath>().path() == m_session;
    if (!isOurs || m_session.isEmpty())
        return;
    readTriggers(arguments.at(1));
    Q_EMIT didChange();
}

void introduceToPortal() {
    QDBusMessage introduction =
        call(portal::path, QStringLiteral("org.freedesktop.host.portal.Registry"),
             QStringLiteral("Register"));
    introduction << QGuiApplication::desktopFileName() << QVariantMap();
    QDBusConnection::sessionBus().asyncCall(introduction);
}

} // namespace dropshade
