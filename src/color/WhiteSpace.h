// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string_view>

namespace dropshade {

/// How many bytes the white space character at the front of this UTF-8 text takes, 0 if there is
/// none. White space is what has the property White_Space in Unicode 15, line ends included; bytes
/// that aren't UTF-8 are none.
[[nodiscard]] constexpr std::size_t whiteSpaceLength(std::string_view text) {
    const auto byteAt = [text](std::size_t index) -> unsigned {
        return index < text.size() ? static_cast<unsigned char>(text[index]) : 0u;
    };
    const unsigned first = byteAt(0);
    if (first < 0x80)
        return first == 0x20 || (first >= 0x09 && first <= 0x0D) ? 1 : 0;

    const unsigned second = byteAt(1);
    if (first == 0xC2) // U+0085 and U+00A0
        return second == 0x85 || second == 0xA0 ? 2 : 0;

    const unsigned third = byteAt(2);
    bool isWhiteSpace = false;
    if (first == 0xE1) // U+1680
        isWhiteSpace = second == 0x9A && third == 0x80;
    else if (first == 0xE2 && second == 0x80) // U+2000 to U+200A, U+2028, U+2029, U+202F
        isWhiteSpace =
            (third >= 0x80 && third <= 0x8A) || third == 0xA8 || third == 0xA9 || third == 0xAF;
    else if (first == 0xE2) // U+205F
        isWhiteSpace = second == 0x81 && third == 0x9F;
    else if (first == 0xE3) // U+3000
        isWhiteSpace = second == 0x80 && third == 0x80;
    return isWhiteSpace ? 3 : 0;
}

/// The text without the white space at both its ends.
[[nodiscard]] constexpr std::string_view trimmedWhiteSpace(std::string_view text) {
    while (const std::size_t length = whiteSpaceLength(text))
        text.remove_prefix(length);
    for (std::size_t length = 1; length <= 3 && length <= text.size();) {
        if (whiteSpaceLength(text.substr(text.size() - length)) == length) {
            text.remove_suffix(length);
            length = 1;
        } else {
            ++length;
        }
    }
    return text;
}

} // namespace dropshade
