// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "KeyboardShortcuts/RecorderModel.h"

#include "KeyboardShortcuts/ShortcutDescription.h"
#include "KeyboardShortcuts/ShortcutTexts.h"
#include "KeyboardShortcuts/SpecialKey.h"
#include "platform/ModifierKeys.h"

#include <QPointer>

#include <utility>

namespace dropshade {
namespace {

bool isKey(std::uint32_t keyCode, SpecialKey key) {
    const SpecialKeyRow* row = specialKey(keyCode);
    return row && row->key == key;
}

bool isFunctionKey(std::uint32_t keyCode) {
    const SpecialKeyRow* row = specialKey(keyCode);
    return row && row->key >= SpecialKey::F1 && row->key <= SpecialKey::F20;
}

} // namespace

RecorderModel::RecorderModel(Surroundings surroundings, ShortcutName name)
    : m_with(std::move(surroundings)), m_name(std::move(name)) {
    connect(&m_with.shortcuts, &KeyboardShortcuts::shortcutByNameDidChange, this,
            [this](const ShortcutName& changed) {
                if (changed.rawValue == m_name.rawValue)
                    Q_EMIT didChange();
            });
    connect(&m_with.shortcuts, &KeyboardShortcuts::pressedForRecorder, this,
            [this](const Shortcut& shortcut) {
                if (m_isRecording)
                    consider(shortcut);
            });
}

RecorderModel::~RecorderModel() {
    endRecording();
}

void RecorderModel::setName(const ShortcutName& name) {
    endRecording();
    m_name = name;
    Q_EMIT didChange();
}

QString RecorderModel::text() const {
    const auto shortcut = m_with.shortcuts.getShortcut(m_name);
    return shortcut ? description(*shortcut, m_with.shortcuts.layout()) : QString();
}

QString RecorderModel::spokenText() const {
    const auto shortcut = m_with.shortcuts.getShortcut(m_name);
    if (!shortcut)
        return {};
    return keyEquivalent(*shortcut, m_with.shortcuts.layout()).toString(QKeySequence::NativeText);
}

QString RecorderModel::placeholder() const {
    return m_isRecording ? shortcutTexts::pressShortcut() : shortcutTexts::recordShortcut();
}

bool RecorderModel::hasShortcut() const {
    return m_with.shortcuts.getShortcut(m_name).has_value();
}

bool RecorderModel::beginRecording() {
    if (!m_canBecomeKey)
        return false;
    if (!std::exchange(m_isRecording, true)) {
        m_with.shortcuts.setRecorderActive(true);
        Q_EMIT didChange();
    }
    return true;
}

void RecorderModel::endRecording() {
    if (!std::exchange(m_isRecording, false))
        return;
    m_with.shortcuts.setRecorderActive(false);
    Q_EMIT didChange();
}

RecorderModel::Answer RecorderModel::keyDown(const RecorderKey& key) {
    if (key.isModifier)
        return Answer::Swallow;
    const std::uint32_t flags = cocoaFlags(key.modifiers);
    if (flags == 0 && key.keyCode) {
        if (isKey(*key.keyCode, SpecialKey::Tab)) {
            endRecording();
            return Answer::PassOn;
        }
        if (isKey(*key.keyCode, SpecialKey::Escape)) {
            endRecording();
            return Answer::Swallow;
        }
        if (isKey(*key.keyCode, SpecialKey::Delete) ||
            isKey(*key.keyCode, SpecialKey::DeleteForward)) {
            clear();
            return Answer::Swallow;
        }
    }
    if (key.keyCode)
        consider(Shortcut::ofEvent(*key.keyCode, flags));
    else
        beep();
    return Answer::Swallow;
}

void RecorderModel::consider(const Shortcut& shortcut) {
    const std::uint32_t strong = shortcut.carbonModifiers & ~(shiftKey | functionKey);
    if (strong == 0 && !isFunctionKey(shortcut.carbonKeyCode)) {
        beep();
        return;
    }
    const QList<MenuKeys> items = m_with.menuKeys();
    if (const MenuKeys* item = menuItemOf(shortcut, m_with.shortcuts.layout(), items)) {
        refuse(shortcutTexts::usedByMenuItem(item->title));
        return;
    }
    const bool isBareF12 =
        shortcut.carbonModifiers == 0 && isKey(shortcut.carbonKeyCode, SpecialKey::F12);
    switch (m_with.shortcuts.statusOf(shortcut)) {
    case HotKeyRegistrar::Status::Unavailable:
        refuse(shortcutTexts::disallowed());
        return;
    case HotKeyRegistrar::Status::Taken:
        if (isBareF12)
            break;
        refuse(shortcutTexts::usedBySystem(), shortcutTexts::canBeChanged(),
               [this, shortcut] { accept(shortcut); });
        return;
    case HotKeyRegistrar::Status::Registered:
        break;
    }
    accept(shortcut);
}

void RecorderModel::accept(const Shortcut& shortcut) {
    m_with.shortcuts.setShortcut(shortcut, m_name);
    Q_EMIT onChange(shortcut);
    endRecording();
}

void RecorderModel::clear() {
    m_with.shortcuts.setShortcut(std::nullopt, m_name);
    Q_EMIT onChange(std::nullopt);
    endRecording();
}

void RecorderModel::refuse(const QString& title, const QString& text,
                           std::function<void()> forced) {
    endRecording();
    Alert alert{title, text, {{shortcutTexts::ok(), Alert::Role::Cancel}}};
    if (forced)
        alert.buttons.append({shortcutTexts::forceUse(), Alert::Role::Plain});
    m_with.alerts.show(alert,
                       [self = QPointer(this), forced = std::move(forced)](qsizetype button) {
                           if (!self)
                               return;
                           Q_EMIT self->wantsFocus();
                           self->beginRecording();
                           if (button == 1 && forced)
                               forced();
                       });
}

void RecorderModel::beep() const {
    if (m_with.beep)
        m_with.beep();
}

} // namespace dropshade
