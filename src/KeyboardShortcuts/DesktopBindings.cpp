// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "KeyboardShortcuts/DesktopBindings.h"

#include "KeyboardShortcuts/ShortcutDescription.h"

#include <utility>

namespace dropshade {

namespace {

/// Set while the user has keys of the desktop. It belongs to this machine.
const QString isBoundKey = QStringLiteral("hasDesktopShortcuts");

} // namespace

DesktopBindings::DesktopBindings(const Surroundings& surroundings, QList<ShortcutAction> actions)
    : m_with(surroundings), m_actions(std::move(actions)) {
    const DesktopShortcuts* desktop = &m_with.desktop;
    connect(desktop, &DesktopShortcuts::didChange, this, [this] {
        if (state() == DesktopShortcuts::State::Bound &&
            !m_with.defaults.read<bool>(isBoundKey).value_or(false))
            m_with.defaults.setValue(isBoundKey, true);
        Q_EMIT didChange();
    });
    connect(desktop, &DesktopShortcuts::refused, this,
            [this] { m_with.defaults.remove(isBoundKey); });
    connect(desktop, &DesktopShortcuts::pressed, this,
            [this](const QString& id) { perform(KeyEventType::KeyDown, id); });
    connect(desktop, &DesktopShortcuts::released, this,
            [this](const QString& id) { perform(KeyEventType::KeyUp, id); });
}

void DesktopBindings::start() {
    if (m_with.defaults.read<bool>(isBoundKey).value_or(false))
        bind();
}

QString DesktopBindings::trigger(const ShortcutName& name) const {
    return m_with.desktop.trigger(name.rawValue);
}

bool DesktopBindings::canChange() const {
    return state() == DesktopShortcuts::State::Unbound ||
           (state() == DesktopShortcuts::State::Bound && m_with.desktop.canConfigure());
}

void DesktopBindings::change() {
    if (state() == DesktopShortcuts::State::Bound)
        m_with.desktop.configure();
    else
        bind();
}

void DesktopBindings::bind() {
    QList<DesktopShortcuts::Wish> wishes;
    for (const ShortcutAction& action : m_actions) {
        const auto recorded = m_with.shortcuts.getShortcut(action.name);
        wishes.append(
            {action.name.rawValue, action.title,
             recorded ? keyEquivalent(*recorded, m_with.shortcuts.layout()) : QKeySequence()});
    }
    m_with.desktop.bind(wishes);
}

void DesktopBindings::perform(KeyEventType type, const QString& id) {
    m_with.shortcuts.perform(type, {id});
}

} // namespace dropshade
