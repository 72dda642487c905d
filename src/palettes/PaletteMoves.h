// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "palettes/PalettesModel.h"

#include <QObject>

namespace dropshade {

/// What dragging does, by one key stroke a step, and told in words. Each step is one write; a step
/// beyond an end does nothing.
class PaletteMoves : public QObject {
    Q_OBJECT

public:
    enum class Direction { Backward, Forward };

    explicit PaletteMoves(PalettesModel& model) : m_model(model) {}

    bool movePalette(QUuid id, Direction direction);
    bool moveScale(QUuid paletteId, QUuid scaleId, Direction direction);
    /// Within its scale.
    bool moveSwatch(const SwatchPath& path, Direction direction);
    /// To the scale above or below, to the same place there or the last; the new path, or nothing
    /// where there is no such scale.
    std::optional<SwatchPath> moveSwatchToScale(const SwatchPath& path, Direction direction);

Q_SIGNALS:
    /// What has been done, for people who don't see it.
    void announced(const QString& text);

private:
    PalettesModel& m_model;
};

} // namespace dropshade
