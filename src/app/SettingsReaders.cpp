// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "app/SettingsReaders.h"

#include "app/SoundNames.h"

#include <algorithm>
#include <array>
#include <utility>

namespace dropshade {

namespace {

constexpr int fewestDecimalPlaces = 2;
constexpr int mostDecimalPlaces = 4;

constexpr std::array<std::pair<const char*, ColorFormat>, 4> formerFormats{{
    {"rgb", ColorFormat::cssRGB},
    {"hsl", ColorFormat::cssHSL},
    {"hsb", ColorFormat::nsColorHSB},
    {"cmyk", ColorFormat::hex},
}};

} // namespace

ColorFormat colorFormat(const UserDefaults& defaults) {
    const QString stored = defaults.read<QString>(keys::colorFormat).value_or(QString());
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
    return defaults.read<bool>(keys::useLowercase).value_or(false);
}

int decimalPlaces(const UserDefaults& defaults) {
    const qint64 stored = defaults.read<qint64>(keys::decimalPlaces).value_or(fewestDecimalPlaces);
    const bool isLegal = stored >= fewestDecimalPlaces && stored <= mostDecimalPlaces;
    return isLegal ? static_cast<int>(stored) : fewestDecimalPlaces;
}

FormatOptions formatOptions(const UserDefaults& defaults) {
    return {useHashPrefix(defaults), useLowercase(defaults), decimalPlaces(defaults)};
}

MenuBarIconStyle menuBarIconStyle(const UserDefaults& defaults) {
    const QString stored = defaults.read<QString>(keys::menuBarIconStyle).value_or(QString());
    if (stored == QLatin1String("swatch"))
        return MenuBarIconStyle::Swatch;
    if (stored == QLatin1String("palette"))
        return MenuBarIconStyle::Palette;
    return MenuBarIconStyle::Picker;
}

QString copySound(const UserDefaults& defaults) {
    const QString stored = defaults.read<QString>(keys::copySound).value_or(QString());
    const bool isLegal = stored == noSound || std::find(soundNames.begin(), soundNames.end(),
                                                        stored) != soundNames.end();
    return isLegal ? stored : QString(defaultSound);
}

} // namespace dropshade
