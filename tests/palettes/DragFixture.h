// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "StoreFixture.h"
#include "palettes/PaletteDragController.h"
#include "support/SignalCount.h"

namespace dropshade {

/// A list of three palettes, "A" with the scales "One" and "Two", "B" and "C". Headers are 40 high,
/// one under the other; below lie the rows of "A" and at their end its swatches, five and two, 30
/// wide and high with gaps of 3.
class Drag : public testing::Test {
protected:
    Drag() {
        m_machine.store().setPalettes({m_a, m_b, m_c});
        m_machine.scheduler().advance(1000);
        QObject::connect(&store(), &UserPaletteStore::palettesDidChange, [this] { ++m_writes; });
        placeHeaders({m_a, m_b, m_c});
        placeRows(m_a.scales());
    }

    UserPaletteStore& store() { return m_machine.store(); }
    Palette stored(qsizetype index) { return store().palettes().at(index); }
    QUuid scaleId(qsizetype scale) const { return m_a.scales().at(scale).id(); }
    QUuid swatchId(qsizetype scale, qsizetype swatch) const {
        return m_a.scales().at(scale).swatches().at(swatch).id();
    }

    void placeHeaders(const QList<Palette>& palettes) {
        PaletteDragController::Frames frames;
        for (qsizetype index = 0; index < palettes.size(); ++index)
            frames.insert(palettes.at(index).id(), QRectF(0.0, 40.0 * double(index), 500.0, 40.0));
        m_drag.setPaletteFrames(frames);
    }
    /// Rows from 200 on, 38 high with gaps of 2 between them; swatches from 100 on, 4 below.
    void placeRows(const QList<PaletteScale>& scales) {
        PaletteDragController::Frames rows;
        PaletteDragController::Frames swatches;
        for (qsizetype row = 0; row < scales.size(); ++row) {
            const double top = 200.0 + 40.0 * double(row);
            rows.insert(scales.at(row).id(), QRectF(0.0, top, 500.0, 38.0));
            for (qsizetype index = 0; index < scales.at(row).swatches().size(); ++index)
                swatches.insert(scales.at(row).swatches().at(index).id(),
                                QRectF(100.0 + 33.0 * double(index), top + 4.0, 30.0, 30.0));
        }
        m_drag.setScaleFrames(rows);
        m_drag.setSwatchFrames(swatches);
    }
    /// The centre of a place in a row.
    static QPointF slot(qsizetype row, double index) {
        return {115.0 + 33.0 * index, 219.0 + 40.0 * double(row)};
    }
    static QPointF header(qsizetype index) { return {250.0, 20.0 + 40.0 * double(index)}; }

    void dragPalette(const Palette& palette, const QPointF& from, const QPointF& to) {
        m_drag.paletteDragChanged(DragValue{from, to}, palette.id());
    }
    void dragScale(qsizetype scale, const QPointF& from, const QPointF& to) {
        m_drag.scaleDragChanged(m_a.id(), scaleId(scale), DragValue{from, to});
    }
    void dragSwatch(qsizetype scale, qsizetype swatch, const QPointF& to) {
        m_drag.swatchDragChanged(m_a.id(), scaleId(scale), swatchId(scale, swatch),
                                 DragValue{slot(scale, double(swatch)), to});
    }

    template <typename Item>
    static QString namesOf(const QList<Item>& items) {
        QString names;
        for (const Item& item : items)
            names += item.name();
        return names;
    }
    static QString valuesOf(const PaletteScale& scale) {
        QString values;
        for (const PaletteSwatch& swatch : scale.swatches())
            values += swatch.value();
        return values;
    }

    Palette m_a =
        makePalette("A", {makeScale("1", {"a", "b", "c", "d", "e"}), makeScale("2", {"x", "y"})});
    Palette m_b = makePalette("B", {makeScale("3", {"z"})});
    Palette m_c = makePalette("C");
    Machine m_machine;
    PaletteDragController m_drag{m_machine.store()};
    int m_writes = 0;
};

} // namespace dropshade
