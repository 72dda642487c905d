// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

/// Where values lie on the selectors, and which value lies where. Values are 0 to 1, places and
/// sizes logical pixels within the track, from its left and its top.
namespace dropshade::selector {

/// The value at `place` on a bar of `length`; beyond an end it is that end's.
[[nodiscard]] double barValue(double place, double length);

/// Where the middle of the thumb goes along the bar: at the value, but never so near to an end that
/// the thumb would stick out.
[[nodiscard]] double barThumb(double value, double length, double thumb);

struct SquareValue {
    double saturation = 0.0;
    double brightness = 0.0;

    friend constexpr bool operator==(const SquareValue&, const SquareValue&) = default;
};

/// Saturation grows to the right and brightness to the top.
[[nodiscard]] SquareValue squareValue(double x, double y, double width, double height);

struct Place {
    double x = 0.0;
    double y = 0.0;

    friend constexpr bool operator==(const Place&, const Place&) = default;
};

/// The middle of the square's thumb, which may stick out.
[[nodiscard]] Place squareThumb(const SquareValue& value, double width, double height);

/// What an arrow key adds, and with Shift.
inline constexpr double step = 0.01;
inline constexpr double largeStep = 0.1;

/// `value` with `change` added, within 0 to 1, and on a whole hundredth: a value between two goes
/// to the next one in that direction, or steps would keep an odd start for ever.
[[nodiscard]] double stepped(double value, double change);

} // namespace dropshade::selector
