// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/DesktopShortcuts.h"
#include "platform/linux/PortalRequest.h"

#include <QHash>
#include <QSet>

#include <memory>

namespace dropshade {

/// The keys of a desktop with the portal's GlobalShortcuts. A session takes one binding, so each
/// `bind` has a session of its own. A portal that ends over a binding is started again by the next
/// question, and asked for the same once more.
class PortalShortcuts : public DesktopShortcuts {
    Q_OBJECT

public:
    PortalShortcuts();
    ~PortalShortcuts() override;

    [[nodiscard]] State state() const override { return m_state; }
    void bind(const QList<Wish>& wishes) override;
    [[nodiscard]] QString trigger(const QString& id) const override { return m_triggers.value(id); }
    [[nodiscard]] bool canConfigure() const override;
    void configure() override;

private Q_SLOTS:
    void activated(const QDBusMessage& message);
    void deactivated(const QDBusMessage& message);
    void shortcutsChanged(const QDBusMessage& message);
    void sessionClosed();

private:
    void askVersion();
    void portalVanished();
    void createSession();
    void bindShortcuts();
    void closeSession();
    void forgetSession();
    void listenToSession(const QString& session);
    void readTriggers(const QVariant& shortcuts);
    void give(State state);
    /// The action that a signal of the session is about; empty for a signal of another one.
    [[nodiscard]] QString actionOf(const QDBusMessage& message) const;

    State m_state = State::Unavailable;
    uint m_version = 0;
    /// What is wanted; nothing after a refusal.
    QList<Wish> m_wishes;
    QString m_session;
    QHash<QString, QString> m_triggers;
    QSet<QString> m_down;
    std::unique_ptr<PortalRequest> m_request;
    QDBusServiceWatcher m_portalWatch;
};

/// Tells the desktop portal which program this is, where nothing else shows it: a program that was
/// started from a terminal, say. Before any other question to the portal, which otherwise makes up
/// its mind. Portals of old neither know nor need it.
void introduceToPortal();

} // namespace dropshade
