// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "KeyboardShortcuts/KeyField.h"
#include "KeyboardShortcuts/RecorderModel.h"

namespace dropshade {

class IconButton;

/// The field in which a shortcut is recorded: a click, or the keyboard's coming to it, makes it
/// listen; the button at its end clears it. See `RecorderModel`.
class RecorderCocoa : public KeyField {
    Q_OBJECT

public:
    struct Surroundings {
        KeyboardShortcuts& shortcuts;
        Alerts& alerts;
    };

    /// `label` is what the shortcut is for, for screen readers.
    RecorderCocoa(const Look& look, const Surroundings& surroundings, const ShortcutName& name,
                  const QString& label, QWidget* parent = nullptr);
    ~RecorderCocoa() override;

    [[nodiscard]] RecorderModel& model() { return m_model; }

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    [[nodiscard]] bool takesKey(const QKeyEvent& event);
    void takeFocus();
    void adopt();

    const KeyboardLayout& m_layout;
    RecorderModel m_model;
    IconButton* m_cancelButton;
};

} // namespace dropshade
