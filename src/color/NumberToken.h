// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string_view>

namespace dropshade {

/// The number that the whole token spells by the rules of `strtod` (C17, section 7.22.1.3) in the
/// "C" locale, whatever the process's locale is: an optional sign, then decimal digits with an
/// optional fraction and exponent, or the same in hexadecimal after "0x", or "inf" or "infinity" in
/// any case. Nothing for any other token, so also for an empty one and for one with white space in
/// it. Too large a number is infinite, too small a one is 0.
///
/// "nan" is nothing too, where `strtod` would take it: what is not a number has no use in a colour.
[[nodiscard]] std::optional<double> numberFromToken(std::string_view token);

} // namespace dropshade
