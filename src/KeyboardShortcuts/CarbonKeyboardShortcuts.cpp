// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "KeyboardShortcuts/CarbonKeyboardShortcuts.h"

#include "KeyboardShortcuts/ShortcutDescription.h"
#include "platform/ModifierKeys.h"

#include <algorithm>
#include <cstdio>
#include <utility>

namespace dropshade {

namespace {

const char* statusText(HotKeyRegistrar::Status status) {
    return status == HotKeyRegistrar::Status::Taken ? "another program has it"
                                                    : "this desktop can't deliver it";
}

/// Only the modifiers of the table count.
Shortcut normalized(const Shortcut& shortcut) {
    return {shortcut.carbonKeyCode, carbonModifiers(cocoaFlags(shortcut.carbonModifiers))};
}

} // namespace

CarbonKeyboardShortcuts::CarbonKeyboardShortcuts(HotKeyRegistrar& registrar,
                                                 const KeyboardLayout& layout)
    : m_registrar(registrar), m_layout(layout) {
    connect(&registrar, &HotKeyRegistrar::pressed, this,
            [this](quint32 id) { handleHotKeyEvent(KeyEventType::KeyDown, id); });
    connect(&registrar, &HotKeyRegistrar::released, this,
            [this](quint32 id) { handleHotKeyEvent(KeyEventType::KeyUp, id); });
}

CarbonKeyboardShortcuts::~CarbonKeyboardShortcuts() {
    unregisterAll();
}

void CarbonKeyboardShortcuts::registerShortcut(const Shortcut& shortcut, Action onKeyDown,
                                               Action onKeyUp) {
    const quint32 id = ++m_lastId;
    HotKey hotKey{shortcut, std::move(onKeyDown), std::move(onKeyUp)};
    // Even where it is to wait, whether the desktop has it to give shows only now.
    if (!registerHotKey(id, hotKey))
        return;
    m_hotKeys.emplace(id, std::move(hotKey));
    if (!m_monitor)
        installEventHandler();
    updateEventHandler();
}

void CarbonKeyboardShortcuts::unregister(const Shortcut& shortcut) {
    for (auto entry = m_hotKeys.begin(); entry != m_hotKeys.end();) {
        auto& [id, hotKey] = *entry;
        if (hotKey.shortcut != shortcut) {
            ++entry;
            continue;
        }
        if (hotKey.isRegistered)
            m_registrar.unregisterHotKey(id);
        entry = m_hotKeys.erase(entry);
    }
}

QSet<Shortcut> CarbonKeyboardShortcuts::shortcuts() const {
    QSet<Shortcut> all;
    for (const auto& [id, hotKey] : m_hotKeys)
        all.insert(hotKey.shortcut);
    return all;
}

HotKeyRegistrar::Status CarbonKeyboardShortcuts::statusOf(const Shortcut& shortcut) {
    if (shortcuts().contains(shortcut))
        return HotKeyRegistrar::Status::Registered;
    const quint32 id = ++m_lastId;
    const auto status =
        m_registrar.registerHotKey(id, shortcut.carbonKeyCode, shortcut.carbonModifiers);
    if (status == HotKeyRegistrar::Status::Registered)
        m_registrar.unregisterHotKey(id);
    return status;
}

bool CarbonKeyboardShortcuts::registerHotKey(quint32 id, HotKey& hotKey) {
    const auto status = m_registrar.registerHotKey(id, hotKey.shortcut.carbonKeyCode,
                                                   hotKey.shortcut.carbonModifiers);
    hotKey.isRegistered = status == HotKeyRegistrar::Status::Registered;
    if (!hotKey.isRegistered) {
        std::printf("Error registering hotkey %s: %s\n",
                    qPrintable(description(hotKey.shortcut, m_layout)), statusText(status));
        std::fflush(stdout);
    }
    return hotKey.isRegistered;
}

void CarbonKeyboardShortcuts::installEventHandler() {
    m_monitor = std::make_unique<LocalEventMonitor>(
        m_layout, [this](KeyEventType type, const Shortcut& shortcut) {
            return handleRawKeyEvent(type, shortcut);
        });
    connect(m_monitor.get(), &LocalEventMonitor::menuDidBeginTracking, this,
            &CarbonKeyboardShortcuts::menuDidBeginTracking);
    connect(m_monitor.get(), &LocalEventMonitor::menuDidEndTracking, this,
            &CarbonKeyboardShortcuts::menuDidEndTracking);
    m_isMenuOpen = m_monitor->isMenuOpen();
}

void CarbonKeyboardShortcuts::setEnabled(bool enabled) {
    if (enabled == m_isEnabled)
        return;
    m_isEnabled = enabled;
    updateEventHandler();
}

void CarbonKeyboardShortcuts::setMenuOpen(bool isOpen) {
    if (isOpen == m_isMenuOpen)
        return;
    m_isMenuOpen = isOpen;
    updateEventHandler();
}

void CarbonKeyboardShortcuts::updateEventHandler() {
    if (!m_monitor)
        return;
    if (m_isEnabled && !m_isMenuOpen)
        registerAll();
    else
        unregisterAll();
    if (m_isEnabled && m_isMenuOpen)
        m_monitor->start();
    else
        m_monitor->stop();
}

void CarbonKeyboardShortcuts::registerAll() {
    for (auto entry = m_hotKeys.begin(); entry != m_hotKeys.end();) {
        auto& [id, hotKey] = *entry;
        const bool isHeld = hotKey.isRegistered || registerHotKey(id, hotKey);
        entry = isHeld ? std::next(entry) : m_hotKeys.erase(entry);
    }
}

void CarbonKeyboardShortcuts::unregisterAll() {
    for (auto& [id, hotKey] : m_hotKeys) {
        if (std::exchange(hotKey.isRegistered, false))
            m_registrar.unregisterHotKey(id);
    }
}

void CarbonKeyboardShortcuts::handleHotKeyEvent(KeyEventType type, quint32 id) {
    const auto found = m_hotKeys.find(id);
    if (found == m_hotKeys.end())
        return;
    // A copy: what it calls may unregister it.
    const HotKey hotKey = found->second;
    (type == KeyEventType::KeyDown ? hotKey.onKeyDown : hotKey.onKeyUp)(hotKey.shortcut);
}

bool CarbonKeyboardShortcuts::handleRawKeyEvent(KeyEventType type, const Shortcut& shortcut) {
    const Shortcut wanted = normalized(shortcut);
    const auto found = std::find_if(m_hotKeys.begin(), m_hotKeys.end(), [&wanted](const auto& e) {
        return e.second.shortcut == wanted;
    });
    if (found == m_hotKeys.end())
        return false;
    handleHotKeyEvent(type, found->first);
    return true;
}

} // namespace dropshade
