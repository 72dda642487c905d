// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "palettes/UserPaletteStore.h"

#include <QHash>
#include <QObject>
#include <QPointF>
#include <QRectF>

#include <optional>
#include <variant>

namespace dropshade {

/// Where a drag began and where it is, in the coordinates of the list's content.
struct DragValue {
    QPointF startLocation;
    QPointF location;
};

/// The order and the place of palettes, scales and swatches, arranged by dragging. A drag changes
/// working copies, which the list shows, and writes to the store once, at its end; a drag that is
/// cancelled ends like one that is finished. What a step can't find, it leaves alone.
///
/// All rectangles and points are in the coordinates of the list's content, in points.
class PaletteDragController : public QObject {
    Q_OBJECT

public:
    struct PaletteItem {
        QUuid paletteId;
        friend bool operator==(const PaletteItem&, const PaletteItem&) = default;
    };
    struct ScaleItem {
        QUuid paletteId;
        QUuid scaleId;
        friend bool operator==(const ScaleItem&, const ScaleItem&) = default;
    };
    struct SwatchItem {
        QUuid paletteId;
        QUuid scaleId;
        QUuid swatchId;
        friend bool operator==(const SwatchItem&, const SwatchItem&) = default;
    };
    using Item = std::variant<PaletteItem, ScaleItem, SwatchItem>;
    using Frames = QHash<QUuid, QRectF>;

    explicit PaletteDragController(UserPaletteStore& store);
    ~PaletteDragController() override;

    // What is being dragged

    const std::optional<Item>& dragging() const { return m_dragging; }
    [[nodiscard]] bool isDragging() const { return m_dragging.has_value(); }
    QPointF cursor() const { return m_cursor; }
    /// The pointer at the start of the drag, from the centre of what it grabbed.
    QPointF grabOffset() const { return m_grabOffset; }
    /// The scale that a swatch would go to, for a mark on its row.
    const std::optional<QUuid>& dropHighlightScaleId() const { return m_dropHighlightScaleId; }
    /// Where a swatch of another scale would go, and the gap to open there.
    const std::optional<QUuid>& intendedDropScaleId() const { return m_intendedDropScaleId; }
    qsizetype intendedDropIndex() const { return m_intendedDropIndex; }

    // The working copies

    /// The palettes in their present arrangement, during a palette's drag.
    const std::optional<QList<Palette>>& localPalettes() const { return m_localPalettes; }
    /// The palette whose scales are arranged, and they, during a scale's or a swatch's drag.
    const std::optional<QUuid>& activeScalesPaletteId() const { return m_activeScalesPaletteId; }
    const QList<PaletteScale>& activeLocalScales() const { return m_activeLocalScales; }

    // Where things are, kept up to date by the list

    const Frames& paletteFrames() const { return m_paletteFrames; }
    const Frames& scaleFrames() const { return m_scaleFrames; }
    const Frames& swatchFrames() const { return m_swatchFrames; }
    /// These keep what is equal as it is.
    void setPaletteFrames(const Frames& headers);
    void setScaleFrames(const Frames& rows);
    void setSwatchFrames(const Frames& swatches);

    // The gestures

    void paletteDragChanged(const DragValue& value, QUuid id);
    void paletteDragEnded();
    void scaleDragChanged(QUuid paletteId, QUuid scaleId, const DragValue& value);
    void scaleDragEnded(QUuid paletteId);
    void swatchDragChanged(QUuid paletteId, QUuid scaleId, QUuid swatchId, const DragValue& value);
    void swatchDragEnded(QUuid paletteId);
    /// Ends whatever is being dragged.
    void end();

    /// Drops what has been arranged, without a write: the drag goes on outside the list.
    void abandon();

    /// Back to idle, without a word; the working copies stay.
    void reset();

    /// The centre of the dragged item's image over a list with these bounds, and its natural size;
    /// nothing where it isn't known where the item is.
    struct Floating {
        QPointF center;
        QSizeF size;
    };
    [[nodiscard]] std::optional<Floating> floating(const QRectF& bounds) const;

    /// Where a swatch at `point` would go in the scale: the line decides first, then the centres of
    /// the swatches of that line; past the last, or in no line, means the end. `excluded` doesn't
    /// count, but its place does.
    [[nodiscard]] qsizetype insertionIndex(const QPointF& point, const PaletteScale& scale,
                                           const std::optional<QUuid>& excluded) const;

Q_SIGNALS:
    /// A drag has begun, or has ended and is written.
    void draggingDidChange();
    void cursorDidChange();
    /// A working copy, the intended place or the marked scale is another one.
    void arrangementDidChange();
    /// A palette has been put down, and all palettes should be collapsed.
    void paletteDragDidEnd();

private:
    struct Place {
        qsizetype scale = 0;
        qsizetype swatch = 0;
    };

    void start(const Item& item);
    void setCursor(const QPointF& location);
    void captureGrabOffset(const QPointF& offset);
    bool beginScales(QUuid paletteId, const Item& item);
    [[nodiscard]] std::optional<Palette> storedPalette(QUuid id) const;
    [[nodiscard]] std::optional<Place> placeOf(QUuid swatchId) const;
    [[nodiscard]] qsizetype scaleIndexAt(const QPointF& point,
                                         const std::optional<QUuid>& excluded) const;
    void intend(const std::optional<QUuid>& scaleId, qsizetype index);
    void reorderWithin(const Place& source, const QPointF& location);
    void commitSwatch(QUuid paletteId, QUuid swatchId, const Place& place);
    void clearScales();

    UserPaletteStore& m_store;
    std::optional<Item> m_dragging;
    QPointF m_cursor;
    QPointF m_grabOffset;
    bool m_isGrabOffsetCaptured = false;
    Frames m_paletteFrames;
    Frames m_scaleFrames;
    Frames m_swatchFrames;
    std::optional<QUuid> m_dropHighlightScaleId;
    std::optional<QList<Palette>> m_localPalettes;
    std::optional<QUuid> m_activeScalesPaletteId;
    QList<PaletteScale> m_activeLocalScales;
    std::optional<QUuid> m_intendedDropScaleId;
    qsizetype m_intendedDropIndex = 0;
};

} // namespace dropshade
