// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "interchange/HexText.h"

#include "color/ColorConversions.h"

#include <array>

namespace dropshade {

QString hexText(const SRGBColor& color) {
    constexpr char16_t digits[] = u"0123456789abcdef";
    const RGBA8 bytes = rgba255(color);
    std::array<QChar, 7> text = {u'#'};
    std::size_t at = 1;
    for (const std::int64_t byte : {bytes.red, bytes.green, bytes.blue}) {
        text[at++] = digits[byte >> 4];
        text[at++] = digits[byte & 0xF];
    }
    return QString(text.data(), qsizetype(text.size()));
}

} // namespace dropshade
