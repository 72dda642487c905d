// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "app/MenuColors.h"

#include "app/SettingsReaders.h"
#include "support/MemoryDefaults.h"
#include "support/Palettes.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

namespace dropshade {
namespace {

const SRGBColor third(1.0 / 3.0, 0.5, 1.0);

/// A pin of a swatch that the palette has.
PinnedColor pinOf(const Palette& palette, qsizetype scale, qsizetype swatch, double seconds) {
    const PaletteScale& s = palette.scales()[scale];
    const PaletteSwatch& w = s.swatches()[swatch];
    return PinnedColor({QUuid::createUuid(), palette.id(), palette.name(), s.id(), s.name(), w.id(),
                        w.value(), w.label(), ReferenceTime{seconds}});
}

QStringList titles(const FavoriteGroup& group) {
    QStringList all;
    for (const FavoriteRow& row : group.rows)
        all.append(row.title);
    return all;
}

class MenuColors : public testing::Test {
protected:
    [[nodiscard]] QString titleOf(const std::optional<QString>& label) const {
        PinRecord record;
        record.value = QStringLiteral("#112233");
        record.label = label;
        return favoriteGroups({PinnedColor(record)}, {}, defaults).first().rows.first().title;
    }

    MemoryDefaults defaults;
    const Palette web = makePalette("Web", {makeScale("red", {"#100000", "#200000", "#300000"}),
                                            makeScale("blue", {"#000010", "#000020"})});
    const Palette print = makePalette("Print", {makeScale("green", {"#001000"})});
};

TEST_F(MenuColors, ShowsRecentsNewestFirstWithTwoDecimalsWhateverTheSettingsSay) {
    defaults.setValue(keys::colorFormat, QStringLiteral("uiColorRGB"));
    defaults.setValue(keys::decimalPlaces, qint64(4));
    recordRecentColor(defaults, SRGBColor(0, 0, 0));
    recordRecentColor(defaults, third);
    const auto rows = recentRows(defaults);
    ASSERT_EQ(rows.size(), 2);
    EXPECT_TRUE(rows.first().title.contains(QStringLiteral("0.33,")))
        << rows.first().title.toStdString();
    EXPECT_EQ(rows.first().color.color(), third);
}

TEST_F(MenuColors, ShowsAFavouriteWithoutALabelInAllTheDecimalsOfTheSettings) {
    defaults.setValue(keys::colorFormat, QStringLiteral("uiColorRGB"));
    defaults.setValue(keys::decimalPlaces, qint64(4));
    EXPECT_TRUE(titleOf(std::nullopt).contains(QStringLiteral("0.0667")))
        << titleOf(std::nullopt).toStdString();
    EXPECT_EQ(titleOf(QString()), titleOf(std::nullopt)) << "an empty label is none";
    EXPECT_EQ(titleOf(QStringLiteral("Tide")), QStringLiteral("Tide"));
}

TEST_F(MenuColors, ShowsNoMoreRecentsThanTheLimitAndAllOfThemWhenRecordingIsOff) {
    for (int count = 0; count < 5; ++count)
        recordRecentColor(defaults, third);
    defaults.setFromAnotherProcess(keys::recentColorsLimit, qint64(3));
    EXPECT_EQ(recentRows(defaults).size(), 3);
    defaults.setFromAnotherProcess(keys::showRecentColors, false);
    EXPECT_EQ(recentRows(defaults).size(), 3);
    defaults.setFromAnotherProcess(keys::recentColorsLimit, qint64(0));
    EXPECT_TRUE(recentRows(defaults).isEmpty());
}

TEST_F(MenuColors, GroupsFavouritesInTheOrderOfEachPalettesFirstPin) {
    const auto groups = favoriteGroups(
        {pinOf(web, 0, 0, 1), pinOf(print, 0, 0, 2), pinOf(web, 0, 1, 3)}, {print, web}, defaults);
    ASSERT_EQ(groups.size(), 2);
    EXPECT_EQ(groups[0].title, QStringLiteral("Web"));
    EXPECT_EQ(titles(groups[0]),
              (QStringList{QStringLiteral("#100000"), QStringLiteral("#200000")}));
    EXPECT_EQ(groups[1].title, QStringLiteral("Print"));
}

TEST_F(MenuColors, SortsAGroupByThePalettesOwnOrderWhateverTheDates) {
    const auto groups = favoriteGroups(
        {pinOf(web, 1, 1, 1), pinOf(web, 1, 0, 2), pinOf(web, 0, 2, 3)}, {web}, defaults);
    EXPECT_EQ(titles(groups.first()),
              (QStringList{QStringLiteral("#300000"), QStringLiteral("#000010"),
                           QStringLiteral("#000020")}));
}

TEST_F(MenuColors, PutsWhatThePaletteNoLongerHasLastAndThereByAge) {
    const Palette before = makePalette("Web", {makeScale("gone", {"#0A0000", "#0B0000"})});
    PinRecord late = pinOf(before, 0, 0, 9).record();
    PinRecord early = pinOf(before, 0, 1, 2).record();
    PinRecord lostSwatch = late;
    late.paletteId = early.paletteId = lostSwatch.paletteId = web.id();
    lostSwatch.scaleId = web.scales()[0].id();
    lostSwatch.value = QStringLiteral("#0C0000");
    const auto groups = favoriteGroups(
        {PinnedColor(late), PinnedColor(early), PinnedColor(lostSwatch), pinOf(web, 0, 0, 100)},
        {web}, defaults);
    EXPECT_EQ(titles(groups.first()),
              (QStringList{QStringLiteral("#100000"), QStringLiteral("#0C0000"),
                           QStringLiteral("#0B0000"), QStringLiteral("#0A0000")}));
}

TEST_F(MenuColors, CallsAGroupByThePalettesPresentName) {
    const PinnedColor pin = pinOf(web, 0, 0, 1);
    Palette renamed(web.id(), QStringLiteral("Site"), web.scales(), web.lastModified());
    EXPECT_EQ(favoriteGroups({pin}, {renamed}, defaults).first().title, QStringLiteral("Site"));
    EXPECT_EQ(favoriteGroups({pin}, {}, defaults).first().title, QStringLiteral("Web"));
}

TEST_F(MenuColors, CutsATitleOfMoreThan48Characters) {
    const QString exact(48, u'x');
    EXPECT_EQ(titleOf(exact), exact);
    EXPECT_EQ(titleOf(exact + u'y'), QString(47, u'x') + u'…');
    EXPECT_EQ(cutTitle(QString()), QString());
}

TEST_F(MenuColors, CountsTheCharactersThatAReaderSees) {
    const QString family = QStringLiteral("👩‍👩‍👧");
    EXPECT_EQ(cutTitle(family.repeated(48)), family.repeated(48));
    EXPECT_EQ(cutTitle(family.repeated(49)), family.repeated(47) + u'…');
    EXPECT_EQ(cutTitle(QStringLiteral("e\u0301").repeated(49)),
              QStringLiteral("e\u0301").repeated(47) + u'…');
}

} // namespace
} // namespace dropshade
