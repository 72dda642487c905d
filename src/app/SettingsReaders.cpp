// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "app/SettingsReaders.h"

#include "app/CopySound.h"
#include "app/LooseValue.h"

#include <algorithm>
#include <array>
#include <utility>

namespace dropshade {

namespace {

constexpr int fewestDecimalPlaces = 2;
constexpr int mostDecimalPlaces = 4;
constexpr int defaultRecentColors = 8;
constexpr SwatchSize defaultSwatchSize = SwatchSize::s4;

constexpr std::array<std::pair<const char*, ColorFormat>, 4> formerFormats{{
    {"rgb", ColorFormat::cssRGB},
    {"hsl", ColorFormat::cssHSL},
    {"hsb", ColorFormat::nsColorHSB},
    {"cmyk", ColorFormat::hex},
}};

constexpr std::array<std::pair<const char*, SwatchSize>, 5> formerSwatchSizes{{
    {"xs", SwatchSize::s2},
    {"sm", SwatchSize::s3},
    {"md", SwatchSize::s4},
    {"lg", SwatchSize::s6},
    {"xl", SwatchSize::s8},
}};

QLatin1String latin(std::string_view text) {
    return QLatin1String(text.data(), static_cast<qsizetype>(text.size()));
}

QString storedString(const UserDefaults& defaults, const QString& key) {
    return defaults.read<QString>(key).value_or(QString());
}

/// The row whose raw value is stored under `key`, or the first.
template <typename Row, std::size_t count>
const Row& storedRow(const UserDefaults& defaults, const QString& key,
                     const std::array<Row, count>& rows) {
    const QString stored = storedString(defaults, key);
    const auto found = std::find_if(rows.begin(), rows.end(), [&stored](const Row& row) {
        return stored == latin(row.rawValue);
    });
    return found == rows.end() ? rows.front() : *found;
}

} // namespace

ColorFormat colorFormat(const UserDefaults& defaults) {
    const QString stored = storedString(defaults, keys::colorFormat);
    if (const auto format = colorFormatFromRawValue(stored.toStdString()))
        return *format;
    for (const auto& [name, format] : formerFormats) {
        if (stored == QLatin1String(name))
            return format;
    }
    return ColorFormat::hex;
}

bool useHashPrefix(const UserDefaults& defaults) {
    return defaults.read<bool>(keys::useHashPrefix).value_or(true);
}

bool useLowercase(const UserDefaults& defaults) {
    return looseBool(defaults.value(keys::useLowercase));
}

int decimalPlaces(const UserDefaults& defaults) {
    const qint64 stored = defaults.read<qint64>(keys::decimalPlaces).value_or(fewestDecimalPlaces);
    const bool isLegal = stored >= fewestDecimalPlaces && stored <= mostDecimalPlaces;
    return isLegal ? static_cast<int>(stored) : fewestDecimalPlaces;
}

FormatOptions formatOptions(const UserDefaults& defaults) {
    return {useHashPrefix(defaults), useLowercase(defaults), decimalPlaces(defaults)};
}

bool showRecentColors(const UserDefaults& defaults) {
    return defaults.read<bool>(keys::showRecentColors).value_or(true);
}

int recentColorsLimit(const UserDefaults& defaults) {
    const qint64 stored =
        defaults.read<qint64>(keys::recentColorsLimit).value_or(defaultRecentColors);
    return static_cast<int>(std::clamp<qint64>(stored, 0, mostRecentColors));
}

QString copySound(const UserDefaults& defaults) {
    const QString stored = storedString(defaults, keys::copySound);
    const bool isKnown = stored == noCopySound || std::find(copySounds.begin(), copySounds.end(),
                                                            stored) != copySounds.end();
    return isKnown ? stored : QString(defaultCopySound);
}

SwatchSize swatchSize(const UserDefaults& defaults) {
    const qint64 index = looseInteger(defaults.value(keys::swatchSizeIndex));
    if (index >= 1 && index <= swatchSizeCount)
        return static_cast<SwatchSize>(index - 1);
    const QString former = storedString(defaults, keys::formerSwatchSize);
    for (const auto& [name, size] : formerSwatchSizes) {
        if (former == QLatin1String(name))
            return size;
    }
    return defaultSwatchSize;
}

bool closePaletteDialogOnCopy(const UserDefaults& defaults) {
    return looseBool(defaults.value(keys::closePaletteDialogOnCopy));
}

bool closeConvertDialogOnCopy(const UserDefaults& defaults) {
    return defaults.read<bool>(keys::closeConvertDialogOnCopy).value_or(true);
}

ContrastAlgorithm contrastAlgorithm(const UserDefaults& defaults) {
    return storedRow(defaults, keys::contrastAlgorithm, contrastAlgorithms).algorithm;
}

QString rawSetting(ContrastAlgorithm algorithm) {
    return latin(contrastAlgorithms.at(std::size_t(algorithm)).rawValue);
}

MenuBarIconStyle menuBarIconStyle(const UserDefaults& defaults) {
    return storedRow(defaults, keys::menuBarIconStyle, menuBarIconStyles).style;
}

QString rawSetting(MenuBarIconStyle style) {
    return latin(menuBarIconStyles.at(std::size_t(style)).rawValue);
}

bool iCloudSyncEnabled(const UserDefaults& defaults) {
    return looseBool(defaults.value(keys::iCloudSyncEnabled));
}

} // namespace dropshade
