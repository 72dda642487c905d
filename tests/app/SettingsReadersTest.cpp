// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "app/SettingsReaders.h"

#include "app/CopySound.h"
#include "support/MemoryDefaults.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

#include <limits>
#include <vector>

namespace dropshade {
namespace {

class SettingsReaders : public testing::Test {
protected:
    /// The reading of the setting after `value` was stored under its key.
    template <typename Read>
    auto stored(const QString& key, const DefaultsValue& value, Read read) {
        m_defaults.setValue(key, value);
        return read(m_defaults);
    }

    MemoryDefaults m_defaults;
};

/// A value of each type that no setting takes, but for those of the setting's own type.
const std::vector<DefaultsValue> junk = {
    QStringLiteral("junk"),
    QByteArray("\xff"),
    QStringList{QStringLiteral("1")},
    std::nan(""),
};

TEST_F(SettingsReaders, HaveTheKeysOfEarlierVersionsAndOtherMachines) {
    const std::pair<QString, const char*> names[] = {
        {keys::colorFormat, "colorFormat"},
        {keys::useHashPrefix, "useHashPrefix"},
        {keys::useLowercase, "useLowercase"},
        {keys::decimalPlaces, "decimalPlaces"},
        {keys::contrastAlgorithm, "contrastAlgorithm"},
        {keys::swatchSizeIndex, "swatchSizeIndex"},
        {keys::formerSwatchSize, "swatchSize"},
        {keys::closePaletteDialogOnCopy, "closePaletteDialogOnCopy"},
        {keys::closeConvertDialogOnCopy, "closeConvertDialogOnCopy"},
        {keys::copySound, "copySound"},
        {keys::appLanguage, "appLanguage"},
        {keys::showRecentColors, "showRecentColors"},
        {keys::menuBarIconStyle, "menuBarIconStyle"},
        {keys::recentColorsLimit, "recentColorsLimit"},
        {keys::pinnedColors, "pinnedColors"},
        {keys::recentColors, "recentColors"},
        {keys::userPalettes, "userPalettes"},
        {keys::collapsedPaletteIds, "collapsedPaletteIds"},
        {keys::iCloudSyncEnabled, "iCloudSyncEnabled"},
        {keys::totalChecksCount, "totalChecksCount"},
        {keys::didImportLegacyContainerPrefs, "didImportLegacyContainerPrefs"}};
    for (const auto& [key, name] : names)
        EXPECT_EQ(key, QLatin1String(name));
}

TEST_F(SettingsReaders, GiveTheDefaultsWhereNothingIsSet) {
    EXPECT_EQ(colorFormat(m_defaults), ColorFormat::hex);
    EXPECT_TRUE(useHashPrefix(m_defaults));
    EXPECT_FALSE(useLowercase(m_defaults));
    EXPECT_EQ(decimalPlaces(m_defaults), 2);
    EXPECT_TRUE(showRecentColors(m_defaults));
    EXPECT_EQ(recentColorsLimit(m_defaults), 8);
    EXPECT_EQ(copySound(m_defaults), QStringLiteral("drop"));
    EXPECT_EQ(swatchSize(m_defaults), SwatchSize::s4);
    EXPECT_FALSE(closePaletteDialogOnCopy(m_defaults));
    EXPECT_TRUE(closeConvertDialogOnCopy(m_defaults));
    EXPECT_EQ(contrastAlgorithm(m_defaults), ContrastAlgorithm::wcag);
    EXPECT_EQ(menuBarIconStyle(m_defaults), MenuBarIconStyle::Picker);
    EXPECT_FALSE(iCloudSyncEnabled(m_defaults));
}

TEST_F(SettingsReaders, GiveTheDefaultsWhateverJunkIsStoredAndLeaveItThere) {
    const MemoryDefaults nothing;
    for (const DefaultsValue& value : junk) {
        for (const QString& key :
             {keys::colorFormat, keys::useHashPrefix, keys::decimalPlaces, keys::showRecentColors,
              keys::recentColorsLimit, keys::copySound, keys::swatchSizeIndex,
              keys::formerSwatchSize, keys::closeConvertDialogOnCopy, keys::contrastAlgorithm,
              keys::menuBarIconStyle})
            m_defaults.setValue(key, value);
        EXPECT_EQ(colorFormat(m_defaults), colorFormat(nothing));
        EXPECT_EQ(formatOptions(m_defaults), formatOptions(nothing));
        EXPECT_TRUE(showRecentColors(m_defaults));
        EXPECT_EQ(recentColorsLimit(m_defaults), 8);
        EXPECT_EQ(copySound(m_defaults), QStringLiteral("drop"));
        EXPECT_EQ(swatchSize(m_defaults), SwatchSize::s4);
        EXPECT_TRUE(closeConvertDialogOnCopy(m_defaults));
        EXPECT_EQ(contrastAlgorithm(m_defaults), ContrastAlgorithm::wcag);
        EXPECT_EQ(menuBarIconStyle(m_defaults), MenuBarIconStyle::Picker);
        EXPECT_EQ(m_defaults.value(keys::copySound).has_value(), true);
    }
}

TEST_F(SettingsReaders, TellABooleanFromANumberWhereTheDefaultIsTrue) {
    for (const QString& key : {keys::useHashPrefix, keys::showRecentColors})
        m_defaults.setValue(key, qint64(0));
    EXPECT_TRUE(useHashPrefix(m_defaults));
    EXPECT_TRUE(showRecentColors(m_defaults));
    m_defaults.setValue(keys::showRecentColors, false);
    EXPECT_FALSE(showRecentColors(m_defaults));
}

TEST_F(SettingsReaders, ReadTheBooleansThatDefaultToFalseLoosely) {
    for (const QString& key :
         {keys::useLowercase, keys::closePaletteDialogOnCopy, keys::iCloudSyncEnabled})
        m_defaults.setValue(key, QStringLiteral("YES"));
    EXPECT_TRUE(useLowercase(m_defaults));
    EXPECT_TRUE(closePaletteDialogOnCopy(m_defaults));
    EXPECT_TRUE(iCloudSyncEnabled(m_defaults));
}

TEST_F(SettingsReaders, TakeEveryFormatAndTheNamesOfAnEarlierVersion) {
    for (std::size_t index = 0; index < colorFormatCount; ++index) {
        const auto format = static_cast<ColorFormat>(index);
        const std::string_view raw = rawValue(format);
        const QString text = QString::fromUtf8(raw.data(), qsizetype(raw.size()));
        EXPECT_EQ(stored(keys::colorFormat, text, colorFormat), format);
    }
    const std::pair<const char*, ColorFormat> former[] = {{"rgb", ColorFormat::cssRGB},
                                                          {"hsl", ColorFormat::cssHSL},
                                                          {"hsb", ColorFormat::nsColorHSB},
                                                          {"cmyk", ColorFormat::hex}};
    for (const auto& [name, format] : former) {
        EXPECT_EQ(stored(keys::colorFormat, QString::fromLatin1(name), colorFormat), format);
        EXPECT_EQ(m_defaults.read<QString>(keys::colorFormat), QString::fromLatin1(name));
    }
    EXPECT_EQ(stored(keys::colorFormat, QStringLiteral("RGB"), colorFormat), ColorFormat::hex);
}

TEST_F(SettingsReaders, TakeTwoToFourDecimalPlaces) {
    const std::pair<qint64, int> readings[] = {
        {2, 2}, {3, 3},  {4, 4}, {5, 2},
        {1, 2}, {-1, 2}, {0, 2}, {std::numeric_limits<qint64>::max(), 2}};
    for (const auto& [value, places] : readings)
        EXPECT_EQ(stored(keys::decimalPlaces, value, decimalPlaces), places) << value;
}

TEST_F(SettingsReaders, PinTheRecentColorsLimitIntoZeroToFifty) {
    const std::pair<qint64, int> readings[] = {{0, 0},   {1, 1},  {50, 50},
                                               {80, 50}, {-3, 0}, {1LL << 40, 50}};
    for (const auto& [value, limit] : readings)
        EXPECT_EQ(stored(keys::recentColorsLimit, value, recentColorsLimit), limit) << value;
    EXPECT_EQ(stored(keys::recentColorsLimit, 3.0, recentColorsLimit), 8);
}

TEST_F(SettingsReaders, TakeTheNineSoundsAndNone) {
    for (const QLatin1StringView name : copySounds)
        EXPECT_EQ(stored(keys::copySound, QString(name), copySound), name);
    EXPECT_EQ(stored(keys::copySound, QStringLiteral("none"), copySound), QStringLiteral("none"));
    for (const char* other : {"bell", "Drop", "", "drop "})
        EXPECT_EQ(stored(keys::copySound, QString::fromLatin1(other), copySound),
                  QStringLiteral("drop"));
}

TEST_F(SettingsReaders, TakeTheSwatchSizeFromItsIndexPlusOne) {
    for (int index = 0; index < swatchSizeCount; ++index)
        EXPECT_EQ(stored(keys::swatchSizeIndex, qint64(index + 1), swatchSize),
                  static_cast<SwatchSize>(index));
    EXPECT_EQ(stored(keys::swatchSizeIndex, QStringLiteral("9"), swatchSize), SwatchSize::s9);
}

TEST_F(SettingsReaders, FallBackFromABadSwatchSizeIndexToTheFormerKeyAndThenToTheFourth) {
    for (const qint64 index : {0, 10, -1}) {
        m_defaults.setValue(keys::swatchSizeIndex, index);
        m_defaults.remove(keys::formerSwatchSize);
        EXPECT_EQ(swatchSize(m_defaults), SwatchSize::s4);
        m_defaults.setValue(keys::formerSwatchSize, QStringLiteral("xl"));
        EXPECT_EQ(swatchSize(m_defaults), SwatchSize::s8);
    }
}

TEST_F(SettingsReaders, UnderstandTheFormerSwatchSizes) {
    const std::pair<const char*, SwatchSize> former[] = {
        {"xs", SwatchSize::s2}, {"sm", SwatchSize::s3}, {"md", SwatchSize::s4},
        {"lg", SwatchSize::s6}, {"xl", SwatchSize::s8}, {"XL", SwatchSize::s4}};
    for (const auto& [name, size] : former)
        EXPECT_EQ(stored(keys::formerSwatchSize, QString::fromLatin1(name), swatchSize), size);
}

TEST_F(SettingsReaders, TakeEveryRawValueOfTheirTables) {
    for (const auto& row : menuBarIconStyles)
        EXPECT_EQ(stored(keys::menuBarIconStyle, rawSetting(row.style), menuBarIconStyle),
                  row.style);
    for (const auto& row : contrastAlgorithms)
        EXPECT_EQ(stored(keys::contrastAlgorithm, rawSetting(row.algorithm), contrastAlgorithm),
                  row.algorithm);
    EXPECT_EQ(rawSetting(MenuBarIconStyle::Swatch), QStringLiteral("swatch"));
    EXPECT_EQ(rawSetting(ContrastAlgorithm::apca), QStringLiteral("apca"));
}

TEST_F(SettingsReaders, CacheNothing) {
    EXPECT_EQ(recentColorsLimit(m_defaults), 8);
    m_defaults.setFromAnotherProcess(keys::recentColorsLimit, qint64(3));
    EXPECT_EQ(recentColorsLimit(m_defaults), 3);
}

TEST(SwatchSize, GrowsByFourPointsFromEighteenToFifty) {
    EXPECT_EQ(swatchPoints(SwatchSize::s1), 18);
    EXPECT_EQ(swatchPoints(SwatchSize::s4), 30);
    EXPECT_EQ(swatchPoints(SwatchSize::s9), 50);
    EXPECT_EQ(swatchSizeLabel(SwatchSize::s4), QStringLiteral("30 pt"));
}

TEST(MenuBarIconStyles, AreThreeInTheOrderOfTheirEnumeration) {
    EXPECT_EQ(menuBarIconStyles[0].displayName, "Default");
    EXPECT_EQ(menuBarIconStyles[0].rawValue, "picker");
    EXPECT_EQ(menuBarIconStyles[1].displayName, "Swatch");
    EXPECT_EQ(menuBarIconStyles[1].rawValue, "swatch");
    EXPECT_EQ(menuBarIconStyles[2].displayName, "Palette");
    EXPECT_EQ(menuBarIconStyles[2].rawValue, "palette");
    for (std::size_t index = 0; index < menuBarIconStyles.size(); ++index)
        EXPECT_EQ(menuBarIconStyles.at(index).style, static_cast<MenuBarIconStyle>(index));
}

TEST(CopySounds, AreNineInTheirOrderWithoutSilence) {
    QStringList names;
    for (const QLatin1StringView name : copySounds)
        names.append(name);
    EXPECT_EQ(names.join(u' '),
              QStringLiteral("coin collect drop ding fart plink pop retro whoosh"));
    EXPECT_EQ(noCopySound, QLatin1StringView("none"));
    EXPECT_EQ(defaultCopySound, QLatin1StringView("drop"));
}

} // namespace
} // namespace dropshade
