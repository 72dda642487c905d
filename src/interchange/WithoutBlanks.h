// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <algorithm>
#include <iterator>

namespace dropshade {

/// The text without the blanks and tabs at both its ends; line ends stay.
[[nodiscard]] inline QString withoutBlanks(const QString& text) {
    const auto isBlank = [](QChar character) { return character == u' ' || character == u'\t'; };
    const auto begin = std::find_if_not(text.begin(), text.end(), isBlank);
    const auto end = std::find_if_not(text.rbegin(), std::reverse_iterator(begin), isBlank).base();
    return QString(begin, end - begin);
}

} // namespace dropshade
