// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/linux/DBusApplicationInstance.h"

#include <QDBusAbstractAdaptor>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QVariantMap>

#include <array>
#include <utility>

namespace dropshade {

namespace {

const QString service = QStringLiteral("org.dropshade.Dropshade");
const QString objectPath = QStringLiteral("/org/dropshade/Dropshade");
const QString interfaceName = QStringLiteral("org.freedesktop.Application");

/// The names of the actions, as the desktop entry has them.
constexpr std::array<std::pair<const char*, ApplicationAction>, 4> actions{{
    {"quick-pick", ApplicationAction::QuickPick},
    {"convert", ApplicationAction::Convert},
    {"palettes", ApplicationAction::Palettes},
    {"contrast", ApplicationAction::Contrast},
}};

/// The first process may be busy, but a start must not hang on it.
constexpr int handoverTimeoutMilliseconds = 2000;

/// Qt exports the slots of an adaptor under the names that they have.
class ApplicationAdaptor : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    explicit ApplicationAdaptor(DBusApplicationInstance* instance)
        : QDBusAbstractAdaptor(instance), m_instance(*instance) {}

public Q_SLOTS:
    void Activate(const QVariantMap&) { Q_EMIT m_instance.activated(); }

    void ActivateAction(const QString& name, const QVariantList&, const QVariantMap&,
                        const QDBusMessage& call) {
        for (const auto& [known, action] : actions) {
            if (name == QLatin1String(known)) {
                Q_EMIT m_instance.actionActivated(action);
                return;
            }
        }
        call.setDelayedReply(true);
        QDBusConnection::sessionBus().send(call.createErrorReply(
            QDBusError::InvalidArgs, QStringLiteral("There is no action of this name")));
    }

private:
    DBusApplicationInstance& m_instance;
};

} // namespace

DBusApplicationInstance::DBusApplicationInstance() {
    new ApplicationAdaptor(this);
}

ApplicationInstance::Role DBusApplicationInstance::claim() {
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return Role::First;
    // The object comes first, so that nobody can find the name without it.
    bus.registerObject(objectPath, this);
    if (bus.registerService(service))
        return Role::First;
    QDBusMessage activate = QDBusMessage::createMethodCall(service, objectPath, interfaceName,
                                                           QStringLiteral("Activate"));
    activate << QVariantMap();
    bus.call(activate, QDBus::Block, handoverTimeoutMilliseconds);
    return Role::HandedOver;
}

QString DBusApplicationInstance::commandFor(ApplicationAction action) const {
    for (const auto& [name, known] : actions) {
        if (known == action)
            return QStringLiteral("gdbus call --session --dest %1 --object-path %2 --method "
                                  "%3.ActivateAction %4 [] {}")
                .arg(service, objectPath, interfaceName, QLatin1String(name));
    }
    return {};
}

} // namespace dropshade

#include "DBusApplicationInstance.moc"
