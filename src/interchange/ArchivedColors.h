// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "archive/KeyedArchive.h"
#include "color/SRGBColor.h"
#include "interchange/ColorConverter.h"
#include "interchange/ColorTransform.h"

#include <array>
#include <span>
#include <vector>

namespace dropshade {

/// The colours of one keyed archive, brought to sRGB.
class ArchivedColors {
public:
    using Node = KeyedArchive::Node;

    explicit ArchivedColors(const KeyedArchive& archive) : m_archive(archive) {}

    /// Nothing for an object that is no colour, and for a pattern.
    [[nodiscard]] std::optional<SRGBColor> color(Node object) { return color(object, 0); }

private:
    struct Numbers {
        std::array<double, 5> values = {};
        std::size_t count = 0;

        [[nodiscard]] std::span<const double> all() const { return std::span(values).first(count); }
    };

    struct KnownProfile {
        Node space;
        std::unique_ptr<ColorTransform> transform;
    };

    std::optional<SRGBColor> color(Node object, int depth);
    std::optional<SRGBColor> legacyColorOf(Node object, int depth);
    std::optional<SRGBColor> customColor(Node object);
    std::optional<SRGBColor> colorIn(Node space, std::span<const double> components);
    std::optional<SRGBColor> colorByProfile(Node space, std::span<const double> components);
    const ColorTransform* transformOf(Node space);

    [[nodiscard]] std::optional<Numbers> numbers(Node object, std::string_view key) const;

    const KeyedArchive& m_archive;
    ColorConverter m_converter;
    std::vector<KnownProfile> m_profiles;
};

} // namespace dropshade
