// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "palettes/ColorText.h"

#include "color/ColorParser.h"

#include <QByteArray>

#include <array>
#include <string_view>

namespace dropshade {

SRGBColor parsedColorOrBlack(const QString& text) {
    // Asked for every swatch of a library: the usual text needs no memory of its own to become
    // UTF-8.
    std::array<char, 32> ascii;
    if (std::size_t(text.size()) <= ascii.size()) {
        char16_t allBits = 0;
        for (qsizetype index = 0; index < text.size(); ++index) {
            const char16_t unit = text.at(index).unicode();
            allBits |= unit;
            ascii[std::size_t(index)] = static_cast<char>(unit);
        }
        if (allBits < 0x80)
            return parseColor(std::string_view(ascii.data(), std::size_t(text.size())))
                .value_or(SRGBColor());
    }
    const QByteArray encoded = text.toUtf8();
    return parseColor(std::string_view(encoded.constData(), std::size_t(encoded.size())))
        .value_or(SRGBColor());
}

} // namespace dropshade
