// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "palettes/PaletteListLayout.h"
#include "WindowFixture.h"
#include "support/QtPrinters.h"

#include <gmock/gmock.h>

namespace dropshade {
namespace {

class ListLayout : public PalettesWindowModel {
protected:
    static ListMeasures wide() { return {560.0, 30.0, false, 20.0}; }
    static ListMeasures compact() { return {260.0, 26.0, true, 20.0}; }
    PaletteListLayout layout(const ListMeasures& measures = wide()) {
        return PaletteListLayout(m_model, measures);
    }
    /// Kind and height of each row, with the gap before it where there is one.
    static QString shape(const PaletteListLayout& layout) {
        QString text;
        double bottom = 0.0;
        for (const ListRow& row : layout.rows()) {
            if (row.top > bottom)
                text += QStringLiteral("~%1 ").arg(row.top - bottom);
            text += QStringLiteral("%1%2 ").arg(QLatin1Char("HSA"[int(row.kind)])).arg(row.height);
            bottom = row.top + row.height;
        }
        return text + QStringLiteral("~%1").arg(layout.height() - bottom);
    }
};

TEST_F(ListLayout, AClosedPaletteIsItsHeaderAndALine) {
    m_model.collapseAll();
    EXPECT_EQ(shape(layout()), QStringLiteral("H40 ~1 H40 ~1"));
}

TEST_F(ListLayout, AnOpenPaletteShowsItsScales) {
    EXPECT_EQ(shape(layout()), QStringLiteral("H40 S38 S38 ~13 H40 S38 ~13"));
}

TEST_F(ListLayout, AnOpenPaletteWithoutScalesOffersToAddOne) {
    store().setPalettes({makePalette("Empty")});
    EXPECT_EQ(shape(layout()), QStringLiteral("H40 A40 ~13"));
}

TEST_F(ListLayout, ANameStandsAboveTheSwatchesInACompactWindow) {
    EXPECT_EQ(compact().flowOrigin(), QPointF(12.0, 28.0));
    EXPECT_EQ(shape(layout(compact())), QStringLiteral("H40 S58 S58 ~13 H40 S58 ~13"));
}

TEST_F(ListLayout, ElevenSwatchesTheButtonAndAGapShareALineOfTheUsualWindow) {
    EXPECT_EQ(wide().flowOrigin(), QPointF(123.0, 4.0));
    EXPECT_EQ(PaletteListLayout::flowHeight(wide(), 13), 30.0);
    EXPECT_EQ(PaletteListLayout::flowHeight(wide(), 14), 63.0);
}

TEST_F(ListLayout, EveryHeightIsThatOfTheFlowItself) {
    for (int width = 160; width <= 1200; width += 7) {
        for (int size = 0; size < swatchSizeCount; ++size) {
            const ListMeasures measures{double(width), double(swatchPoints(SwatchSize(size))),
                                        width <= 300, 20.0};
            for (const qsizetype slots : {1, 2, 12, 40}) {
                auto cache = FlowLayout::makeCache();
                const QSizeF side(measures.swatchSide, measures.swatchSide);
                const QSizeF flow =
                    FlowLayout(swatchSpacing)
                        .sizeThatFits(measures.flowWidth(), {slots, [side](auto) { return side; }},
                                      cache);
                ASSERT_EQ(PaletteListLayout::flowHeight(measures, slots), flow.height())
                    << width << " " << size << " " << slots;
            }
        }
    }
}

TEST_F(ListLayout, FindsRowsByHeight) {
    const PaletteListLayout list = layout();
    EXPECT_EQ(list.rowAt(0.0), 0);
    EXPECT_EQ(list.rowAt(39.9), 0);
    EXPECT_EQ(list.rowAt(40.0), 1);
    EXPECT_EQ(list.rowAt(115.9), 2);
    EXPECT_FALSE(list.rowAt(116.0)) << "the end of the group is no row";
    EXPECT_FALSE(list.rowAt(-1.0));
    EXPECT_FALSE(list.rowAt(5000.0));
    EXPECT_EQ(list.rowsBetween(50.0, 130.0).first, 1);
    EXPECT_EQ(list.rowsBetween(50.0, 130.0).end, 4);
    EXPECT_EQ(list.rowOf(landId()), 3);
    EXPECT_EQ(list.rowOf(scaleId(1)), 2);
    EXPECT_FALSE(list.rowOf(QUuid::createUuid()));
}

TEST_F(ListLayout, TheFramesForADragAreThoseOfTheRows) {
    const PaletteListLayout list = layout();
    EXPECT_EQ(list.headerFrames().value(landId()), QRectF(0.0, 129.0, 560.0, 40.0));
    EXPECT_EQ(list.scaleFrames().value(scaleId(1)), QRectF(0.0, 78.0, 560.0, 38.0));
    const auto swatches = list.swatchFrames(m_model, seaId());
    EXPECT_EQ(swatches.size(), 4);
    EXPECT_EQ(swatches.value(swatchId(0, 1)), QRectF(156.0, 44.0, 30.0, 30.0));
}

TEST_F(ListLayout, AGapOpensWhereASwatchWouldDrop) {
    const auto frames = [this] {
        m_model.drag().setScaleFrames(layout().scaleFrames());
        m_model.drag().setSwatchFrames(layout().swatchFrames(m_model, seaId()));
    };
    frames();
    const QRectF from = m_model.drag().swatchFrames().value(swatchId(0, 0));
    const QRectF to = m_model.drag().swatchFrames().value(swatchId(1, 0));
    m_model.drag().swatchDragChanged(seaId(), scaleId(0), swatchId(0, 0),
                                     DragValue{from.center(), to.center() - QPointF(1.0, 0.0)});
    const PaletteScale shore = m_sea.scales().at(1);
    EXPECT_EQ(PaletteListLayout::phantomIndex(m_model, shore), 0);
    EXPECT_EQ(PaletteListLayout::slotCount(m_model, shore), 3);
    EXPECT_EQ(layout().swatchFrames(m_model, seaId()).value(swatchId(1, 0)),
              to.translated(33.0, 0.0));
    EXPECT_FALSE(PaletteListLayout::phantomIndex(m_model, m_sea.scales().at(0)));
}

TEST_F(ListLayout, ALibraryOfAnySizeIsArrangedAtOnce) {
    QList<Palette> palettes;
    for (int index = 0; index < 100; ++index) {
        QList<PaletteScale> scales;
        for (int scale = 0; scale < 26; ++scale)
            scales.append(makeScale("Scale", {"red", "green", "blue"}));
        palettes.append(makePalette("Palette", scales));
    }
    store().setPalettes(palettes);
    const PaletteListLayout list = layout();
    EXPECT_EQ(list.rows().size(), 2700);
    EXPECT_EQ(list.height(), 100 * (40 + 26 * 38 + 13));
}

} // namespace
} // namespace dropshade
