// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

namespace dropshade {

/// A colour in gamma-encoded sRGB (IEC 61966-2-1) with straight alpha. Each component is pinned
/// into 0 to 1 when the value is built; a component that is not a number becomes 0, so that no
/// colour ever holds one. A reader of foreign numbers rejects them before it builds a colour.
class SRGBColor {
public:
    /// Opaque black.
    constexpr SRGBColor() = default;
    constexpr SRGBColor(double red, double green, double blue, double alpha = 1.0)
        : m_red(pinned(red)), m_green(pinned(green)), m_blue(pinned(blue)), m_alpha(pinned(alpha)) {
    }

    constexpr double red() const { return m_red; }
    constexpr double green() const { return m_green; }
    constexpr double blue() const { return m_blue; }
    constexpr double alpha() const { return m_alpha; }

    /// By component, with no tolerance.
    friend constexpr bool operator==(const SRGBColor&, const SRGBColor&) = default;

private:
    static constexpr double pinned(double component) {
        // Written so that not-a-number falls to 0: every comparison with it is false.
        return component > 0.0 ? (component < 1.0 ? component : 1.0) : 0.0;
    }

    double m_red = 0.0;
    double m_green = 0.0;
    double m_blue = 0.0;
    double m_alpha = 1.0;
};

} // namespace dropshade
