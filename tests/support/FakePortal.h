// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusVirtualObject>

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

/// A desktop portal on the session bus whose user answers when the test says so.
class FakePortal : public QDBusVirtualObject {
public:
    FakePortal() {
        qDBusRegisterMetaType<PortalColor>();
        m_bus.registerVirtualObject(QStringLiteral("/org/freedesktop/portal/desktop"), this);
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

    void answer(uint code, const QVariantMap& results) {
        QDBusMessage response = QDBusMessage::createSignal(
            std::exchange(m_request, QString()), QStringLiteral("org.freedesktop.portal.Request"),
            QStringLiteral("Response"));
        m_bus.send(response << code << results);
    }
    void pick(const PortalColor& color) {
        answer(0, {{QStringLiteral("color"), QVariant::fromValue(color)}});
    }

    QString introspect(const QString&) const override { return QString(); }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override {
        if (message.member() != QStringLiteral("PickColor"))
            return false;
        if (m_refuses)
            return bus.send(message.createErrorReply(QDBusError::UnknownMethod, QString()));
        const auto options = qdbus_cast<QVariantMap>(message.arguments().value(1));
        const QString token = m_choosesPaths
                                  ? QStringLiteral("of_its_own")
                                  : options.value(QStringLiteral("handle_token")).toString();
        m_request = QStringLiteral("/org/freedesktop/portal/desktop/request/%1/%2")
                        .arg(message.service().mid(1).replace(u'.', u'_'), token);
        return bus.send(message.createReply(QVariant::fromValue(QDBusObjectPath(m_request))));
    }

private:
    const QString m_name = QStringLiteral("org.freedesktop.portal.Desktop");
    QDBusConnection m_bus =
        QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("portal"));
    QString m_request;
    bool m_refuses = false;
    bool m_choosesPaths = false;
};

} // namespace dropshade
