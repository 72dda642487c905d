// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "color/SRGBColor.h"

#include <QByteArray>

#include <memory>
#include <span>

namespace dropshade {

struct LittleCms;

/// From one kind of colour to sRGB by LittleCMS, relative colorimetric.
class ColorTransform {
public:
    /// What the functions below give in place of a transform that can't be had.
    ColorTransform() = default;
    ~ColorTransform();
    ColorTransform(const ColorTransform&) = delete;
    ColorTransform& operator=(const ColorTransform&) = delete;

    /// From inks in percent, by this profile of ink, with black point compensation.
    [[nodiscard]] static std::unique_ptr<ColorTransform> fromInk(const QByteArray& profile);
    /// From CIE L*a*b* under D50.
    [[nodiscard]] static std::unique_ptr<ColorTransform> fromLab();
    /// From fractions in the space of this profile, if it is one of three primaries or of grey and
    /// defined by curves alone; profiles with tables can ask for any amount of memory.
    [[nodiscard]] static std::unique_ptr<ColorTransform> fromProfile(const QByteArray& profile);

    [[nodiscard]] bool works() const { return m_transform != nullptr; }
    /// How many numbers a colour has; 0 where it doesn't work.
    [[nodiscard]] std::size_t channels() const { return m_channels; }
    /// So many finite numbers.
    [[nodiscard]] SRGBColor operator()(std::span<const double> numbers) const;

private:
    const LittleCms* m_lcms = nullptr;
    void* m_transform = nullptr;
    std::size_t m_channels = 0;

    class Builder;
};

} // namespace dropshade
