// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/DesktopShortcuts.h"

#include <QHash>
#include <QSet>

#include <utility>

namespace dropshade {

/// A desktop whose user answers when the test says so. It has no keys until it offers some.
class FakeDesktopShortcuts : public DesktopShortcuts {
public:
    [[nodiscard]] State state() const override { return m_state; }
    void bind(const QList<Wish>& wishes) override {
        if (m_state == State::Asking)
            return;
        m_wishes = wishes;
        give(State::Asking);
    }
    [[nodiscard]] QString trigger(const QString& id) const override { return m_triggers.value(id); }
    [[nodiscard]] bool canConfigure() const override {
        return m_state == State::Bound && m_canConfigure;
    }
    void configure() override { ++m_configurations; }

    void offer() { give(State::Unbound); }
    void setCanConfigure(bool canConfigure) { m_canConfigure = canConfigure; }
    /// The user gives these keys, by action; also later, in the settings of the desktop.
    void answer(const QHash<QString, QString>& triggers) {
        m_triggers = triggers;
        give(State::Bound);
    }
    void refuse() {
        give(State::Unbound);
        Q_EMIT refused();
    }
    void vanish() {
        m_triggers.clear();
        m_down.clear();
        give(State::Unavailable);
    }

    void press(const QString& id) {
        if (!m_triggers.value(id).isEmpty() && !m_down.contains(id)) {
            m_down.insert(id);
            Q_EMIT pressed(id);
        }
    }
    void release(const QString& id) {
        if (m_down.remove(id))
            Q_EMIT released(id);
    }

    [[nodiscard]] const QList<Wish>& wishes() const { return m_wishes; }
    [[nodiscard]] int configurations() const { return m_configurations; }

private:
    void give(State state) {
        m_state = state;
        Q_EMIT didChange();
    }

    State m_state = State::Unavailable;
    QList<Wish> m_wishes;
    QHash<QString, QString> m_triggers;
    QSet<QString> m_down;
    bool m_canConfigure = false;
    int m_configurations = 0;
};

} // namespace dropshade
