// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/UserDefaults.h"
#include "widgets/Look.h"

#include <QTimer>
#include <QWidget>

#include <optional>

namespace dropshade {

/// A window of the program: it floats above others, remembers its frame, closes on Escape and on
/// Ctrl+W, and takes the keyboard when it is summoned.
class FloatingWindow : public QWidget {
    Q_OBJECT

public:
    /// Puts the frame back that was stored under `name` and stores it there from now on; without
    /// one the window is centred with `size` for its content.
    void rememberFrame(UserDefaults& defaults, const QString& name, const QSize& size);

    /// Brings the window to the front, shown or hidden before, and gives it the keyboard.
    void present();

Q_SIGNALS:
    /// The user closed the window; not when it merely hides.
    void closed();

protected:
    explicit FloatingWindow(const Look& look);

    [[nodiscard]] const Look& look() const { return m_look; }

    /// Escape, or the keys that close a window.
    virtual void dismiss();

    /// From now on, a press of any button that the window has ends the typing in its fields first:
    /// buttons leave the focus where it is at a click, and what was typed counts when the field is
    /// left.
    void endTypingAtPresses();

    void closeEvent(QCloseEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void storeFrame();

    const Look& m_look;
    UserDefaults* m_defaults = nullptr;
    QString m_frameName;
    QPoint m_placedAt;
    QTimer m_frameSettles;
    std::optional<QPoint> m_hiddenAt;
};

} // namespace dropshade
