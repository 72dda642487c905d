// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "ColorSelector/SelectorPanel.h"
#include "PalettesWindowFixture.h"
#include "palettes/PalettesEmptyState.h"
#include "palettes/PalettesStatusBar.h"
#include "palettes/PresetList.h"
#include "palettes/SwatchPopover.h"
#include "support/QtPrinters.h"
#include "widgets/ColorWell.h"

#include <QAbstractButton>
#include <QLineEdit>
#include <QMenu>
#include <QScrollArea>
#include <QScrollBar>

namespace dropshade {
namespace {

/// More palettes than there are lines in view, and each has more scales; the first is open.
class TallWindow : public Window {
protected:
    TallWindow() {
        for (int number = 0; number < 30; ++number) {
            QList<PaletteScale> scales;
            for (int index = 0; index < 30; ++index)
                scales.append(makeScale("Scale", {"red", "green"}));
            m_tall.append(makePalette("Tall", scales));
        }
        store().setPalettes(m_tall);
        model().collapseAll();
        model().toggleExpanded(m_tall.first().id());
        scheduler().advance(0);
        QApplication::processEvents();
    }

    [[nodiscard]] ListElement headerOf(qsizetype index) const {
        return header(m_tall.at(index).id());
    }
    int headerInView(qsizetype index) {
        return list().areaOf(headerOf(index)).toRect().top() - list().view().top();
    }
    QString status() { return window().findChild<PalettesStatusBar*>()->accessibleName(); }

    QList<Palette> m_tall;
};

TEST_F(TallWindow, TheHeaderThatOpensStaysWhereItWasThoughAnotherClosesAboveIt) {
    list().scrollBy(headerInView(1) - 10);
    const int before = headerInView(1);
    ASSERT_EQ(before, 10);
    click(headerOf(1));
    scheduler().advance(0);
    QApplication::processEvents();
    EXPECT_TRUE(model().isExpanded(m_tall.at(1).id()));
    EXPECT_FALSE(model().isExpanded(m_tall.at(0).id()));
    EXPECT_EQ(headerInView(1), before);
}

TEST_F(TallWindow, TheStatusBarForgetsASwatchThatHasScrolledAway) {
    const PaletteScale& scale = m_tall.first().scales().first();
    hover(center({ListElement::Part::Swatch, m_tall.first().id(), scale.id(),
                  scale.swatches().first().id()}));
    ASSERT_EQ(status(), QStringLiteral("red"));
    list().scrollBy(30 * 60);
    scheduler().advance(150);
    EXPECT_NE(status(), QStringLiteral("red"));
}

TEST_F(TallWindow, WhatScrollsUnderTheRestingPointerIsPointedAt) {
    const PaletteScale& first = m_tall.first().scales().first();
    const PaletteScale& second = m_tall.first().scales().at(1);
    const ListElement upper{ListElement::Part::Swatch, m_tall.first().id(), first.id(),
                            first.swatches().first().id()};
    const ListElement lower{ListElement::Part::Swatch, m_tall.first().id(), second.id(),
                            second.swatches().first().id()};
    hover(center(upper));
    list().scrollBy(center(lower).y() - center(upper).y());
    EXPECT_EQ(list().marks().hovered, lower);
}

TEST_F(Window, WhatAMenuIsAboutKeepsItsMarkUntilTheMenuGoes) {
    hover(center(swatch(0, 1)));
    openMenu(swatch(0, 1));
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&list(), &leave);
    scheduler().advance(150);
    EXPECT_EQ(list().marks().hovered, swatch(0, 1));
    EXPECT_EQ(window().findChild<PalettesStatusBar*>()->accessibleName(), QStringLiteral("blue"));
    shown<QMenu>()->close();
    scheduler().advance(150);
    EXPECT_TRUE(list().marks().hovered.isNone());
    EXPECT_EQ(window().findChild<PalettesStatusBar*>()->accessibleName(), QString());
}

TEST_F(Window, WhatAPopoverIsAboutKeepsItsMark) {
    openMenu(swatch(0, 1));
    choose("Edit Color");
    scheduler().advance(150);
    EXPECT_EQ(list().marks().hovered, swatch(0, 1));
    shown<SwatchPopover>()->close();
    EXPECT_TRUE(list().marks().hovered.isNone());
}

TEST_F(Window, ANameThatDoesNotFitShowsWhileItIsPointedAt) {
    const QString name = QStringLiteral("long ").repeated(60).trimmed();
    hover(center(header(seaId())));
    EXPECT_EQ(list().toolTip(), QString());
    store().renamePalette(seaId(), name);
    store().renameScale(seaId(), scaleId(0), name);
    hover(center(header(landId())));
    hover(center(header(seaId())));
    EXPECT_EQ(list().toolTip(), name);
    hover(center(label(0)));
    EXPECT_EQ(list().toolTip(), name);
    hover(center(addButton(0)));
    EXPECT_EQ(list().toolTip(), QStringLiteral("Add color"));
}

TEST_F(Window, ThePopoverOfAColorLinesUpAndKeepsItsWidthWhenTheSelectorsOpen) {
    click(addButton(1));
    auto* popover = shown<SwatchPopover>();
    ASSERT_TRUE(popover);
    const auto leftOf = [popover](const QWidget* part) {
        return part->mapTo(popover->content(), QPoint(0, 0)).x();
    };
    const QList<QLineEdit*> fields = popover->findChildren<QLineEdit*>();
    auto* well = popover->findChild<ColorWell*>();
    const int wellInset = (well->width() - 32) / 2;
    EXPECT_EQ(leftOf(well) + wellInset, leftOf(fields.last()));
    EXPECT_EQ(leftOf(fields.first()) + fields.first()->width(),
              leftOf(fields.last()) + fields.last()->width());
    const int width = popover->surfaceGeometry().width();
    well->click();
    QApplication::processEvents();
    auto* square = popover->findChild<SelectorPanel*>()->findChild<Saturation*>();
    EXPECT_EQ(popover->surfaceGeometry().width(), width);
    EXPECT_EQ(leftOf(square) + square->reach(), leftOf(fields.last()));
    EXPECT_EQ(square->width() - 2 * square->reach(), fields.last()->width());
    popover->close();
}

TEST_F(Window, TheButtonsOfANarrowWindowWithoutPalettesHaveTwoLines) {
    store().setPalettes({});
    QApplication::processEvents();
    const auto buttons = window().findChild<PalettesEmptyState*>()->findChildren<QPushButton*>();
    ASSERT_EQ(buttons.size(), 2);
    const int usual = buttons.first()->height();
    window().resize(160, 560);
    QApplication::processEvents();
    for (const QPushButton* button : buttons) {
        EXPECT_LE(button->width(), 160);
        EXPECT_GT(button->height(), usual);
        EXPECT_GE(button->height(), 2 * QFontMetrics(button->font()).height());
    }
}

TEST_F(Window, EveryPresetCanBeScrolledToAndChosen) {
    m_controller.requests().requestPresetPicker();
    QApplication::processEvents();
    auto* presets = window().findChild<PresetList*>();
    ASSERT_TRUE(presets);
    ASSERT_GT(presets->rows().size(), 7);
    const auto* area = presets->findChild<QScrollArea*>();
    EXPECT_GT(area->verticalScrollBar()->maximum(), 0);
    QAbstractButton* last = presets->rows().last();
    EXPECT_TRUE(last->visibleRegion().isEmpty());
    presets->rows().first()->setFocus(Qt::TabFocusReason);
    QTest::keyClick(presets->rows().first(), Qt::Key_End);
    QApplication::processEvents();
    EXPECT_EQ(last->visibleRegion().boundingRect(), last->rect());
    EXPECT_TRUE(last->isChecked());
    QTest::keyClick(last, Qt::Key_Return);
    EXPECT_EQ(store().palettes().last().name(), last->accessibleName());
}

} // namespace
} // namespace dropshade
