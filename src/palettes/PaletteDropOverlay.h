// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "palettes/PaletteDrop.h"
#include "widgets/Look.h"

#include <QWidget>

namespace dropshade {

/// Covers the window while something that could be dropped is over it, and says what would happen.
class PaletteDropOverlay : public QWidget {
    Q_OBJECT

public:
    PaletteDropOverlay(const Look& look, QWidget* parent);

    /// Nothing hides it.
    void setKind(const std::optional<PaletteDropKind>& kind);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    const Look& m_look;
    std::optional<PaletteDropKind> m_kind;
};

} // namespace dropshade
