// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/linux/PortalShortcut.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QHash>

namespace dropshade {

/// A colour as the portal sends it.
struct PortalColor {
    double red = 0;
    double green = 0;
    double blue = 0;
};

inline QDBusArgument& operator<<(QDBusArgument& argument, const PortalColor& color) {
    argument.beginStructure();
    argument << color.red << color.green << color.blue;
    argument.endStructure();
    return argument;
}

inline const QDBusArgument& operator>>(const QDBusArgument& argument, PortalColor& color) {
    argument.beginStructure();
    argument >> color.red >> color.green >> color.blue;
    argument.endStructure();
    return argument;
}

} // namespace dropshade

Q_DECLARE_METATYPE(dropshade::PortalColor)

namespace dropshade {

/// A desktop portal on the session bus whose user answers when the test says so. Sessions it makes
/// at once.
class FakePortal : public QDBusVirtualObject {
public:
    FakePortal() {
        qDBusRegisterMetaType<PortalColor>();
        qDBusRegisterMetaType<PortalShortcut>();
        qDBusRegisterMetaType<QList<PortalShortcut>>();
        m_bus.registerVirtualObject(path, this, QDBusConnection::SubPath);
        m_bus.registerService(m_name);
    }
    ~FakePortal() override {
        vanish();
        QDBusConnection::disconnectFromBus(m_bus.name());
    }

    static bool canBe() { return QDBusConnection::sessionBus().isConnected(); }

    [[nodiscard]] bool isAsked() const { return !m_request.isEmpty(); }
    void refuseCalls() { m_refuses = true; }
    void chooseOwnPaths() { m_choosesPaths = true; }
    void vanish() { m_bus.unregisterService(m_name); }
    void comeBack() { m_bus.registerService(m_name); }

    void answer(uint code, const QVariantMap& results) {
        send(std::exchange(m_request, QString()), QStringLiteral("org.freedesktop.portal.Request"),
             "Response", {code, results});
    }
    void pick(const PortalColor& color) {
        answer(0, {{QStringLiteral("color"), QVariant::fromValue(color)}});
    }

    // GlobalShortcuts

    /// The desktop has keys to give, by this version of the portal.
    void offerShortcuts(uint version) { m_shortcutsVersion = version; }
    void refuseConfiguration() { m_refusesConfiguration = true; }
    void answerNoSessions() { m_answersSessions = false; }
    /// What the program wants keys for now, and by which session; empty before it asked.
    [[nodiscard]] const QList<PortalShortcut>& wishes() const { return m_wishes; }
    [[nodiscard]] const QString& session() const { return m_session; }
    [[nodiscard]] const QStringList& closedSessions() const { return m_closedSessions; }
    [[nodiscard]] int bindings() const { return m_bindings; }
    [[nodiscard]] int configurations() const { return m_configurations; }
    [[nodiscard]] const QStringList& introductions() const { return m_introductions; }

    /// The desktop's user is asked no more, and has given these keys, by action.
    void giveKeys(const QHash<QString, QString>& triggers) {
        answer(0, {{QStringLiteral("shortcuts"), QVariant::fromValue(withTriggers(triggers))}});
    }
    void changeKeys(const QHash<QString, QString>& triggers) {
        send(path, shortcutsInterface, "ShortcutsChanged",
             {QVariant::fromValue(QDBusObjectPath(m_session)),
              QVariant::fromValue(withTriggers(triggers))});
    }
    void press(const QString& session, const QString& id) { key("Activated", session, id); }
    void release(const QString& session, const QString& id) { key("Deactivated", session, id); }
    void closeSession() {
        send(m_session, QStringLiteral("org.freedesktop.portal.Session"), "Closed", {});
    }

    QString introspect(const QString&) const override { return QString(); }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override {
        const QString method = message.member();
        if (method == QStringLiteral("Close")) {
            m_closedSessions.append(message.path());
            return bus.send(message.createReply());
        }
        if (method == QStringLiteral("Register")) {
            m_introductions.append(message.arguments().value(0).toString());
            return bus.send(message.createReply());
        }
        const bool isOffered = method == QStringLiteral("PickColor") || m_shortcutsVersion > 0;
        if (m_refuses || !isOffered)
            return bus.send(message.createErrorReply(QDBusError::UnknownMethod, QString()));
        if (method == QStringLiteral("Get"))
            return bus.send(message.createReply(
                QVariant::fromValue(QDBusVariant(QVariant(m_shortcutsVersion)))));
        if (method == QStringLiteral("ConfigureShortcuts"))
            return configure(message, bus);
        return ask(message, bus);
    }

private:
    const QString path = QStringLiteral("/org/freedesktop/portal/desktop");
    const QString shortcutsInterface = QStringLiteral("org.freedesktop.portal.GlobalShortcuts");

    bool ask(const QDBusMessage& message, const QDBusConnection& bus) {
        const QVariantList arguments = message.arguments();
        const auto options = qdbus_cast<QVariantMap>(arguments.last());
        const auto text = [&](const char* name) {
            return options.value(QLatin1String(name)).toString();
        };
        const QString sender = message.service().mid(1).replace(u'.', u'_');
        m_request = QStringLiteral("%1/request/%2/%3")
                        .arg(path, sender,
                             m_choosesPaths ? QStringLiteral("of_its_own") : text("handle_token"));
        const bool isSent =
            bus.send(message.createReply(QVariant::fromValue(QDBusObjectPath(m_request))));
        if (message.member() == QStringLiteral("CreateSession")) {
            m_session =
                QStringLiteral("%1/session/%2/%3").arg(path, sender, text("session_handle_token"));
            if (m_answersSessions)
                answer(0, {{QStringLiteral("session_handle"), m_session}});
        } else if (message.member() == QStringLiteral("BindShortcuts")) {
            ++m_bindings;
            m_wishes = qdbus_cast<QList<PortalShortcut>>(arguments.at(1));
        }
        return isSent;
    }

    bool configure(const QDBusMessage& message, const QDBusConnection& bus) {
        if (m_refusesConfiguration)
            return bus.send(message.createErrorReply(QDBusError::NotSupported, QString()));
        ++m_configurations;
        return bus.send(message.createReply());
    }

    static QList<PortalShortcut> withTriggers(const QHash<QString, QString>& triggers) {
        QList<PortalShortcut> shortcuts;
        for (auto key = triggers.begin(); key != triggers.end(); ++key)
            shortcuts.append({key.key(), {{QStringLiteral("trigger_description"), key.value()}}});
        return shortcuts;
    }

    void key(const char* signal, const QString& session, const QString& id) {
        send(path, shortcutsInterface, signal,
             {QVariant::fromValue(QDBusObjectPath(session)), id, qulonglong(0), QVariantMap()});
    }

    void send(const QString& object, const QString& interface, const char* signal,
              const QVariantList& arguments) {
        QDBusMessage message = QDBusMessage::createSignal(object, interface, QLatin1String(signal));
        message.setArguments(arguments);
        m_bus.send(message);
    }

    const QString m_name = QStringLiteral("org.freedesktop.portal.Desktop");
    QDBusConnection m_bus =
        QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("portal"));
    QString m_request;
    bool m_refuses = false;
    bool m_choosesPaths = false;
    uint m_shortcutsVersion = 0;
    bool m_refusesConfiguration = false;
    bool m_answersSessions = true;
    QList<PortalShortcut> m_wishes;
    QString m_session;
    QStringList m_closedSessions;
    QStringList m_introductions;
    int m_bindings = 0;
    int m_configurations = 0;
};

} // namespace dropshade
