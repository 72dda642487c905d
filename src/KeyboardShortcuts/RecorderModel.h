// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "KeyboardShortcuts/KeyboardShortcuts.h"
#include "KeyboardShortcuts/MenuKeys.h"
#include "platform/Alerts.h"

#include <functional>

namespace dropshade {

/// A key that went down in the recorder's window.
struct RecorderKey {
    /// Nothing for a key that shortcuts have no number for.
    std::optional<std::uint32_t> keyCode;
    /// Lock keys and the keypad make no difference.
    Qt::KeyboardModifiers modifiers;
    /// Control, Shift and their like, by themselves.
    bool isModifier = false;
};

/// The control in which the user presses a combination to bind it to a name, without its window. At
/// rest it shows the name's shortcut; while it records, every key comes here and no shortcut fires.
/// The first combination that passes all checks is stored. A refusal is a beep or an alert, and
/// changes nothing.
class RecorderModel : public QObject {
    Q_OBJECT

public:
    struct Surroundings {
        KeyboardShortcuts& shortcuts;
        Alerts& alerts;
        /// What the program's own menus use.
        std::function<QList<MenuKeys>()> menuKeys = editMenuKeys;
        std::function<void()> beep;
    };

    enum class Answer { PassOn, Swallow };

    RecorderModel(Surroundings surroundings, ShortcutName name);
    ~RecorderModel() override;

    [[nodiscard]] const ShortcutName& name() const { return m_name; }
    void setName(const ShortcutName& name);

    [[nodiscard]] bool isRecording() const { return m_isRecording; }
    /// The name's shortcut, or empty.
    [[nodiscard]] QString text() const;
    /// The same as a screen reader says it.
    [[nodiscard]] QString spokenText() const;
    /// What stands where there is no text.
    [[nodiscard]] QString placeholder() const;
    [[nodiscard]] bool hasShortcut() const;

    /// The window has the keyboard; before it ever had, nothing is recorded, so that a recorder
    /// does not begin by itself when its window opens.
    void windowDidBecomeKey() { m_canBecomeKey = true; }
    void windowDidResignKey() { endRecording(); }

    /// False where it is refused.
    bool beginRecording();
    void endRecording();

    /// These are for a recorder that records.
    Answer keyDown(const RecorderKey& key);
    void mouseUpOutside() { endRecording(); }

    /// Removes the shortcut, as the user's own change.
    void clear();

Q_SIGNALS:
    /// Anything that is shown.
    void didChange();
    /// After a change by the user.
    void onChange(const std::optional<dropshade::Shortcut>& shortcut);
    /// After an alert: the control takes the keyboard again.
    void wantsFocus();

private:
    void consider(const Shortcut& shortcut);
    void accept(const Shortcut& shortcut);
    /// `forced` is what the second button does; without it the alert has one.
    void refuse(const QString& title, const QString& text = QString(),
                std::function<void()> forced = nullptr);
    void beep() const;

    Surroundings m_with;
    ShortcutName m_name;
    bool m_canBecomeKey = false;
    bool m_isRecording = false;
};

} // namespace dropshade
