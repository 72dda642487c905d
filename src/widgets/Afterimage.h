// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QPixmap>
#include <QWidget>

#include <chrono>

namespace dropshade {

/// What is seen of a window after it has closed: its picture, which fades in its place while the
/// window itself has gone. It takes neither clicks nor keys.
class Afterimage : public QWidget {
    Q_OBJECT

public:
    /// Of a window that is about to show. A new window takes the desktop a moment, in which nothing
    /// would be seen, so this one is there from now on, under the other and transparent. It goes
    /// with the other, unless that fades.
    explicit Afterimage(QWidget& window);

    /// The window closes now. After `time`, or when its parent hides, this deletes itself.
    void fade(std::chrono::milliseconds time);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QWidget& m_window;
    QPixmap m_picture;
};

} // namespace dropshade
