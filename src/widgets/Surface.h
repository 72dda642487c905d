// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/Look.h"

#include <QPointer>
#include <QWidget>

namespace dropshade {

class Afterimage;

/// A window that is a raised surface with round corners, an edge and a shadow: what popovers and
/// alerts are made of. Where windows can't be translucent it has no shadow.
class Surface : public QWidget {
    Q_OBJECT

public:
    /// Where the content goes; the surface's size is that of its layout.
    [[nodiscard]] QWidget* content() const { return m_content; }

    /// The surface without its shadow, in the coordinates of the screen.
    [[nodiscard]] QRect surfaceGeometry() const;

protected:
    Surface(const Look& look, QWidget* parent, Qt::WindowFlags type);

    [[nodiscard]] const Look& look() const { return m_look; }

    /// The window's size for its content.
    void fit();

    /// Puts the surface, not its shadow, at `corner`.
    void moveSurface(const QPoint& corner);

    /// Shows the window, which fades in, as what is left of it fades out when it closes.
    void fadeIn();

    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    /// None where windows can't be blended, or not over one another.
    [[nodiscard]] std::chrono::milliseconds fadeTime(std::chrono::milliseconds time) const;

    const Look& m_look;
    int m_reach;
    QWidget* m_content;
    QPointer<Afterimage> m_afterimage;
};

} // namespace dropshade
