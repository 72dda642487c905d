// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "KeyboardShortcuts/KeyboardShortcuts.h"

#include <QScopedValueRollback>

#include <utility>

namespace dropshade {

KeyboardShortcuts::KeyboardShortcuts(UserDefaults& defaults, HotKeyRegistrar& registrar,
                                     const KeyboardLayout& layout)
    : m_defaults(defaults), m_layout(layout), m_carbon(registrar, layout) {
    connect(&defaults, &UserDefaults::didChange, this, &KeyboardShortcuts::storeDidChange);
}

KeyboardShortcuts::~KeyboardShortcuts() = default;

void KeyboardShortcuts::declare(const ShortcutName& name) {
    if (name.defaultShortcut && !m_defaults.contains(storageKey(name)))
        setShortcut(name.defaultShortcut, name);
}

std::optional<Shortcut> KeyboardShortcuts::getShortcut(const ShortcutName& name) const {
    const auto stored = m_defaults.read<QString>(storageKey(name));
    return stored ? Shortcut::fromJson(*stored) : std::nullopt;
}

void KeyboardShortcuts::setShortcut(const std::optional<Shortcut>& shortcut,
                                    const ShortcutName& name) {
    const auto before = getShortcut(name);
    if (!shortcut && !before)
        return;
    if (before)
        m_carbon.unregister(*before);
    if (shortcut)
        registerShortcut(*shortcut);
    {
        const QScopedValueRollback writing(m_isWriting, true);
        if (shortcut)
            m_defaults.setValue(storageKey(name), shortcut->toJson());
        else if (name.defaultShortcut)
            m_defaults.setValue(storageKey(name), false);
        else
            m_defaults.remove(storageKey(name));
    }
    Q_EMIT shortcutByNameDidChange(name);
}

void KeyboardShortcuts::onKeyDown(const ShortcutName& name, Action action) {
    m_keyDownActions[name].append(std::move(action));
    registerStored(name);
}

void KeyboardShortcuts::onKeyUp(const ShortcutName& name, Action action) {
    m_keyUpActions[name].append(std::move(action));
    registerStored(name);
}

void KeyboardShortcuts::removeHandler(const ShortcutName& name) {
    m_keyDownActions.remove(name);
    m_keyUpActions.remove(name);
    unregisterUnneeded(getShortcut(name));
}

std::unique_ptr<ShortcutEvents> KeyboardShortcuts::events(const ShortcutName& name) {
    std::unique_ptr<ShortcutEvents> events(new ShortcutEvents(*this, name));
    m_streams[name].append(events.get());
    registerStored(name);
    return events;
}

void KeyboardShortcuts::setRecorderActive(bool isActive) {
    m_isPaused = isActive;
    Q_EMIT recorderActiveStatusDidChange(isActive);
}

HotKeyRegistrar::Status KeyboardShortcuts::statusOf(const Shortcut& shortcut) {
    return m_carbon.statusOf(shortcut);
}

void KeyboardShortcuts::registerStored(const ShortcutName& name) {
    if (const auto shortcut = getShortcut(name))
        registerShortcut(*shortcut);
}

void KeyboardShortcuts::registerShortcut(const Shortcut& shortcut) {
    if (m_carbon.shortcuts().contains(shortcut))
        return;
    m_carbon.registerShortcut(
        shortcut, [this](const Shortcut& pressed) { dispatch(KeyEventType::KeyDown, pressed); },
        [this](const Shortcut& pressed) { dispatch(KeyEventType::KeyUp, pressed); });
}

void KeyboardShortcuts::unregisterUnneeded(const std::optional<Shortcut>& shortcut) {
    if (shortcut && !neededShortcuts().contains(*shortcut))
        m_carbon.unregister(*shortcut);
}

QSet<Shortcut> KeyboardShortcuts::neededShortcuts() const {
    QSet<Shortcut> needed;
    const auto add = [&](const ShortcutName& name) {
        if (const auto shortcut = getShortcut(name))
            needed.insert(*shortcut);
    };
    for (auto entry = m_keyDownActions.keyBegin(); entry != m_keyDownActions.keyEnd(); ++entry)
        add(*entry);
    for (auto entry = m_keyUpActions.keyBegin(); entry != m_keyUpActions.keyEnd(); ++entry)
        add(*entry);
    for (auto entry = m_streams.keyBegin(); entry != m_streams.keyEnd(); ++entry)
        add(*entry);
    return needed;
}

void KeyboardShortcuts::dispatch(KeyEventType type, const Shortcut& shortcut) {
    // A release belongs to its press: what was pressed for a recorder stays without effect.
    if (type == KeyEventType::KeyUp && m_pressedForRecorder.remove(shortcut))
        return;
    if (type == KeyEventType::KeyDown)
        m_pressedForRecorder.remove(shortcut);
    if (m_isPaused) {
        if (type == KeyEventType::KeyDown) {
            m_pressedForRecorder.insert(shortcut);
            Q_EMIT pressedForRecorder(shortcut);
        }
        return;
    }
    run(type, [&](const ShortcutName& name) { return getShortcut(name) == shortcut; });
}

void KeyboardShortcuts::perform(KeyEventType type, const ShortcutName& name) {
    if (isEnabled())
        run(type, [&](const ShortcutName& each) { return each.rawValue == name.rawValue; });
}

void KeyboardShortcuts::run(KeyEventType type,
                            const std::function<bool(const ShortcutName&)>& isMeant) {
    // Copies: an action may add or remove actions.
    const Actions actions = type == KeyEventType::KeyDown ? m_keyDownActions : m_keyUpActions;
    for (auto entry = actions.begin(); entry != actions.end(); ++entry) {
        if (!isMeant(entry.key()))
            continue;
        for (const Action& action : entry.value())
            action();
    }
    const Streams streams = m_streams;
    for (auto entry = streams.begin(); entry != streams.end(); ++entry) {
        if (!isMeant(entry.key()))
            continue;
        for (const QPointer<ShortcutEvents>& events : entry.value()) {
            if (events)
                events->yield(type);
        }
    }
}

void KeyboardShortcuts::endStream(const ShortcutName& name) {
    auto& streams = m_streams[name];
    streams.removeIf([](const QPointer<ShortcutEvents>& events) { return events.isNull(); });
    if (streams.isEmpty())
        m_streams.remove(name);
    unregisterUnneeded(getShortcut(name));
}

void KeyboardShortcuts::storeDidChange(const QString& key) {
    // Somebody else has written, such as the settings of another machine coming in.
    if (m_isWriting || !key.startsWith(storageKey({})))
        return;
    const QSet<Shortcut> needed = neededShortcuts();
    for (const Shortcut& shortcut : m_carbon.shortcuts() - needed)
        m_carbon.unregister(shortcut);
    for (const Shortcut& shortcut : needed)
        registerShortcut(shortcut);
    Q_EMIT shortcutByNameDidChange({key.mid(storageKey({}).size())});
}

ShortcutEvents::ShortcutEvents(KeyboardShortcuts& shortcuts, ShortcutName name)
    : m_shortcuts(&shortcuts), m_name(std::move(name)) {}

ShortcutEvents::~ShortcutEvents() {
    // Later, for it may end in the middle of a dispatch.
    if (KeyboardShortcuts* shortcuts = m_shortcuts)
        QMetaObject::invokeMethod(
            shortcuts, [shortcuts, name = m_name] { shortcuts->endStream(name); },
            Qt::QueuedConnection);
}

std::optional<KeyEventType> ShortcutEvents::take() {
    return m_queue.isEmpty() ? std::nullopt : std::optional(m_queue.dequeue());
}

void ShortcutEvents::yield(KeyEventType type) {
    m_queue.enqueue(type);
    Q_EMIT available();
}

} // namespace dropshade
