// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "palettes/HoverState.h"
#include "palettes/ListRowWidget.h"
#include "palettes/SpringMotion.h"

#include <QHash>

namespace dropshade {

/// A scale: its name, its swatches, and the button that adds one. The arrangement is computed once
/// for a width and a number of swatches; swatches that get another place move there by springs.
class ScaleRowWidget : public ListRowWidget {
    Q_OBJECT

public:
    ScaleRowWidget(const Look& look, PalettesModel& model, QWidget* list);
    ~ScaleRowWidget() override;

    enum class Motion { Jumps, Springs };

    void display(QUuid paletteId, const PaletteScale& scale, const ListMeasures& measures,
                 Motion motion);

    /// The row is where the dragged swatch would go.
    void setDropTarget(bool isTarget);

    /// The one hover handler of the row.
    void pointerMoved(const QPointF& local);
    void pointerLeft();

    [[nodiscard]] ListElement elementAt(const QPointF& local) const override;
    [[nodiscard]] QRectF areaOf(const ListElement& element) const override;
    [[nodiscard]] QList<ListElement> elements() const override;
    [[nodiscard]] QString elidedNameOf(const ListElement& element) const override;
    bool advance(std::chrono::duration<double> time) override;

    const PaletteScale& scale() const { return m_scale; }

    /// How many swatches have been painted so far, for measuring.
    [[nodiscard]] qint64 paintedSwatches() const { return m_paintedSwatches; }

protected:
    void paint(QPainter& painter, const QRegion& region) override;
    [[nodiscard]] QRectF repaintAreaOf(const ListElement& element) const override;

private:
    struct Place {
        SpringMotion x;
        SpringMotion y;
    };

    void layOut(Motion motion);
    void place(const QUuid& id, const QPointF& corner, Motion motion);
    [[nodiscard]] QRectF slotArea(const QUuid& id) const;
    [[nodiscard]] QRectF pillArea() const;
    [[nodiscard]] QRectF gripArea() const;
    [[nodiscard]] bool isDraggedAway(QUuid swatchId) const;
    void paintLabel(QPainter& painter) const;
    void paintSwatch(QPainter& painter, const PaletteSwatch& swatch);
    void paintAddButton(QPainter& painter) const;

    PalettesModel& m_model;
    RowHover m_hover;
    QUuid m_paletteId;
    PaletteScale m_scale;
    ListMeasures m_measures;
    std::optional<qsizetype> m_phantom;
    bool m_isDropTarget = false;
    FlowLayout::Cache m_cache = FlowLayout::makeCache();
    QHash<QUuid, Place> m_places;
    qint64 m_paintedSwatches = 0;
};

} // namespace dropshade
