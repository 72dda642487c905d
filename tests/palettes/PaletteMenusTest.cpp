// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "palettes/PaletteMenus.h"
#include "WindowFixture.h"
#include "support/QtPrinters.h"

#include <gmock/gmock.h>

namespace dropshade {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Menus : public PalettesWindowModel {
protected:
    /// Titles, "-" for a divider, "!" before what destroys, ">" before a submenu.
    static QStringList shape(const QList<MenuRow>& rows) {
        QStringList titles;
        for (const MenuRow& row : rows) {
            const QString mark = row.kind == MenuRow::Kind::Submenu   ? QStringLiteral(">")
                                 : row.kind == MenuRow::Kind::Section ? QStringLiteral("=")
                                 : row.isDestructive                  ? QStringLiteral("!")
                                                                      : QString();
            titles.append(row.kind == MenuRow::Kind::Divider ? QStringLiteral("-")
                                                             : mark + row.title);
        }
        return titles;
    }
    static MenuRow row(const QList<MenuRow>& rows, const char* title) {
        for (const MenuRow& row : rows) {
            if (row.title == QString::fromUtf8(title))
                return row;
        }
        ADD_FAILURE() << "no row " << title;
        return MenuRow::divider();
    }
    static void choose(const QList<MenuRow>& rows, const char* title,
                       MenuRow::Confirmation confirmation = MenuRow::Confirmation::Asked) {
        row(rows, title).run(confirmation);
    }
    QList<MenuRow> paletteMenu() { return m_menus.paletteMenu(seaId()); }
    QList<MenuRow> scaleMenu() { return m_menus.scaleMenu(seaId(), scaleId(0)); }
    QList<MenuRow> swatchMenu() { return m_menus.swatchMenu(path(0, 1)); }

    PaletteMenus m_menus{m_model};
};

TEST_F(Menus, TheAddMenuHasItsRowsInOrder) {
    EXPECT_THAT(shape(m_menus.addMenu()),
                ElementsAre(QStringLiteral("Create from scratch"), QStringLiteral("-"),
                            QStringLiteral("Create from image…"),
                            QStringLiteral("Create from file… (.ase, .clr, .json)"),
                            QStringLiteral("Create from preset…")));
}

TEST_F(Menus, TheAddMenuDoesWhatItSays) {
    const SignalCount pickers(m_model, &PalettesModel::presetPickerRequested);
    choose(m_menus.addMenu(), "Create from scratch");
    choose(m_menus.addMenu(), "Create from image…");
    choose(m_menus.addMenu(), "Create from file… (.ase, .clr, .json)");
    choose(m_menus.addMenu(), "Create from preset…");
    EXPECT_EQ(store().palettes().size(), 3);
    EXPECT_EQ(m_commands.imageQuestions, 1);
    EXPECT_EQ(m_commands.fileQuestions, 1);
    EXPECT_EQ(pickers.count(), 1);
}

TEST_F(Menus, APalettesMenuHasItsRowsInOrder) {
    EXPECT_THAT(shape(paletteMenu()),
                ElementsAre(QStringLiteral("Rename Palette"), QStringLiteral("Duplicate Palette"),
                            QStringLiteral(">Export Palette"), QStringLiteral("-"),
                            QStringLiteral("Add Scale"), QStringLiteral("-"),
                            QStringLiteral("!Delete Palette")));
}

TEST_F(Menus, TheExportFormatsAreInTheOrderOfTheirNames) {
    EXPECT_THAT(shape(row(paletteMenu(), "Export Palette").rows),
                ElementsAre(QStringLiteral("Adobe Swatch Exchange (.ase)"),
                            QStringLiteral("Apple Color List (.clr)"),
                            QStringLiteral("CSS Stylesheet (.css)"),
                            QStringLiteral("HTML Document (.html)"), QStringLiteral("JSON (.json)"),
                            QStringLiteral("PDF Document (.pdf)"),
                            QStringLiteral("Plain Text (.txt)"),
                            QStringLiteral("PNG Image (.png)")));
}

TEST_F(Menus, AnExportHandsOverThePaletteAndTheFormat) {
    choose(row(paletteMenu(), "Export Palette").rows, "PDF Document (.pdf)");
    ASSERT_EQ(m_commands.exports.size(), 1);
    EXPECT_EQ(m_commands.exports.first().first, QStringLiteral("Sea"));
    EXPECT_EQ(m_commands.exports.first().second, PaletteExportFormat::pdf);
}

TEST_F(Menus, APalettesMenuDoesWhatItSays) {
    const SignalCount renames(m_menus, &PaletteMenus::paletteRenameRequested);
    choose(paletteMenu(), "Rename Palette");
    EXPECT_EQ(renames.count(), 1);
    choose(paletteMenu(), "Duplicate Palette");
    EXPECT_EQ(names(), QStringLiteral("Sea Sea copy Land"));
    choose(paletteMenu(), "Add Scale");
    EXPECT_EQ(scaleNames(), QStringLiteral("Deep Shore Untitled"));
}

TEST_F(Menus, AScalesMenuHasItsRowsInOrder) {
    EXPECT_THAT(shape(scaleMenu()),
                ElementsAre(QStringLiteral("Rename Scale"), QStringLiteral("Duplicate Scale"),
                            QStringLiteral("-"), QStringLiteral("Sort Light to Dark"),
                            QStringLiteral("Sort Dark to Light"), QStringLiteral("-"),
                            QStringLiteral("!Delete Scale")));
}

TEST_F(Menus, AScalesMenuDoesWhatItSays) {
    const SignalCount renames(m_menus, &PaletteMenus::scaleRenameRequested);
    choose(scaleMenu(), "Rename Scale");
    EXPECT_EQ(renames.count(), 1);
    choose(scaleMenu(), "Sort Light to Dark");
    EXPECT_EQ(values(0), QStringLiteral("aqua blue navy"));
    choose(scaleMenu(), "Sort Dark to Light");
    EXPECT_EQ(values(0), QStringLiteral("navy blue aqua"));
    choose(scaleMenu(), "Duplicate Scale");
    EXPECT_EQ(scaleNames(), QStringLiteral("Deep Deep copy Shore"));
}

TEST_F(Menus, ASwatchsMenuHasItsRowsInOrder) {
    EXPECT_THAT(shape(swatchMenu()),
                ElementsAre(QStringLiteral("Edit Color"), QStringLiteral("-"),
                            QStringLiteral("Add to Favorites"), QStringLiteral("-"),
                            QStringLiteral("Copy"), QStringLiteral(">Copy As"), QStringLiteral("-"),
                            QStringLiteral("!Delete Color")));
}

TEST_F(Menus, AFavoriteOffersItsRemoval) {
    choose(swatchMenu(), "Add to Favorites");
    EXPECT_TRUE(m_model.isFavorite(swatchId(0, 1)));
    choose(swatchMenu(), "Remove from Favorites");
    EXPECT_FALSE(m_model.isFavorite(swatchId(0, 1)));
}

TEST_F(Menus, CopyAsHasEveryFormatOnceByItsName) {
    QStringList names;
    for (const MenuRow& row : row(swatchMenu(), "Copy As").rows) {
        if (row.kind == MenuRow::Kind::Item)
            names.append(row.title);
    }
    EXPECT_EQ(names.size(), qsizetype(colorFormatCount));
    EXPECT_EQ(names.first(), QString::fromStdString(std::string(displayName(ColorFormat::hex))));
}

TEST_F(Menus, CopyingHandsOverTheChosenFormat) {
    choose(swatchMenu(), "Copy");
    const std::string name(displayName(ColorFormat::cssHSL));
    choose(row(swatchMenu(), "Copy As").rows, name.c_str());
    ASSERT_EQ(m_commands.copies.size(), 2);
    EXPECT_FALSE(m_commands.copies.first().second);
    EXPECT_EQ(m_commands.copies.last().second, ColorFormat::cssHSL);
}

TEST_F(Menus, WhatDestroysAsksFirst) {
    choose(paletteMenu(), "Delete Palette");
    choose(scaleMenu(), "Delete Scale");
    choose(swatchMenu(), "Delete Color");
    EXPECT_EQ(m_questions.size(), 3);
    expectUntouched();
}

TEST_F(Menus, WhatDestroysDoesSoAtOnceWithShift) {
    choose(swatchMenu(), "Delete Color", MenuRow::Confirmation::Skipped);
    EXPECT_EQ(values(0), QStringLiteral("navy aqua"));
    choose(scaleMenu(), "Delete Scale", MenuRow::Confirmation::Skipped);
    EXPECT_EQ(scaleNames(), QStringLiteral("Shore"));
    choose(paletteMenu(), "Delete Palette", MenuRow::Confirmation::Skipped);
    EXPECT_EQ(names(), QStringLiteral("Land"));
    EXPECT_THAT(m_questions, IsEmpty());
}

TEST_F(Menus, AMenuThatOutlivesItsPaletteDoesNothing) {
    const auto palette = paletteMenu();
    const auto swatch = swatchMenu();
    store().setPalettes({m_land});
    m_changes = 0;
    choose(row(palette, "Export Palette").rows, "JSON (.json)");
    choose(palette, "Add Scale");
    choose(palette, "Delete Palette");
    choose(swatch, "Add to Favorites");
    choose(swatch, "Copy");
    choose(swatch, "Delete Color", MenuRow::Confirmation::Skipped);
    EXPECT_THAT(m_commands.exports, IsEmpty());
    EXPECT_THAT(m_commands.copies, IsEmpty());
    EXPECT_EQ(m_changes, 0);
}

TEST_F(Menus, WhatIsGoneHasNoMenu) {
    const QUuid gone = QUuid::createUuid();
    EXPECT_THAT(m_menus.paletteMenu(gone), IsEmpty());
    EXPECT_THAT(m_menus.scaleMenu(seaId(), gone), IsEmpty());
    EXPECT_THAT(m_menus.swatchMenu({seaId(), scaleId(0), gone}), IsEmpty());
}

} // namespace
} // namespace dropshade
