// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "palettes/PaletteDragController.h"
#include "palettes/PalettesModel.h"

#include <QList>
#include <QRectF>

#include <optional>

namespace dropshade {

/// What the arrangement of the list depends on besides the palettes. All in points.
struct ListMeasures {
    double width = 0.0;
    double swatchSide = 30.0;
    bool isCompact = false;
    /// Of a name; grows with the desktop's font.
    double textLine = 20.0;

    friend bool operator==(const ListMeasures&, const ListMeasures&) = default;

    [[nodiscard]] double margin() const { return isCompact ? 12.0 : 16.0; }
    [[nodiscard]] double rightMargin() const { return isCompact ? 12.0 : 8.0; }
    [[nodiscard]] double headerHeight() const { return 20.0 + textLine; }
    /// Top left corner of the swatches in the row of a scale.
    [[nodiscard]] QPointF flowOrigin() const;
    [[nodiscard]] double flowWidth() const;
    /// Where the scale's name is written, in its row.
    [[nodiscard]] QRectF labelArea() const;
};

/// The gap between swatches, and between their lines.
inline constexpr double swatchSpacing = 3.0;

/// A row of the list: a palette's header, one of its scales, or the button that adds the first.
struct ListRow {
    enum class Kind { Header, Scale, AddScale };

    Kind kind = Kind::Header;
    QUuid paletteId;
    QUuid scaleId; ///< Of a scale only.
    qsizetype paletteIndex = 0;
    qsizetype scaleIndex = 0;
    double top = 0.0;
    double height = 0.0;

    /// What stays the same wherever the row goes.
    [[nodiscard]] const QUuid& id() const { return kind == Kind::Scale ? scaleId : paletteId; }
};

/// Where each row of the list is, from the top. It costs a few numbers a row, so that a library of
/// any size is arranged at once, and only the rows in view need anything more.
class PaletteListLayout {
public:
    PaletteListLayout() = default;
    PaletteListLayout(const PalettesModel& model, const ListMeasures& measures);

    const ListMeasures& measures() const { return m_measures; }
    const QList<ListRow>& rows() const { return m_rows; }
    double height() const { return m_height; }

    /// The rows that lie at least partly between two heights, as places in `rows`.
    struct Range {
        qsizetype first = 0;
        qsizetype end = 0;
    };
    [[nodiscard]] Range rowsBetween(double top, double bottom) const;
    /// The row at that height; nothing between the groups and below the last.
    [[nodiscard]] std::optional<qsizetype> rowAt(double y) const;
    /// The header of a palette or the row of a scale.
    [[nodiscard]] std::optional<qsizetype> rowOf(QUuid id) const;

    /// For the drag: headers and rows, and the swatches of one palette.
    [[nodiscard]] PaletteDragController::Frames headerFrames() const;
    [[nodiscard]] PaletteDragController::Frames scaleFrames() const;
    [[nodiscard]] PaletteDragController::Frames swatchFrames(const PalettesModel& model,
                                                             QUuid paletteId) const;

    /// How many slots the row of a scale has: swatches, perhaps a gap for one more, the button.
    [[nodiscard]] static qsizetype slotCount(const PalettesModel& model, const PaletteScale& scale);
    /// Where the gap for a dragged swatch is among the slots, if there is one.
    [[nodiscard]] static std::optional<qsizetype> phantomIndex(const PalettesModel& model,
                                                               const PaletteScale& scale);
    /// The height that so many slots need.
    [[nodiscard]] static double flowHeight(const ListMeasures& measures, qsizetype slots);

private:
    void addGroup(const PalettesModel& model, const Palette& palette, qsizetype index);
    void append(ListRow row, double height);

    ListMeasures m_measures;
    QList<ListRow> m_rows;
    double m_height = 0.0;
};

} // namespace dropshade
