// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "interchange/ArchivedColors.h"

#include "interchange/ColorSpaces.h"
#include "interchange/LegacyColor.h"

#include <charconv>
#include <cmath>

namespace dropshade {
namespace {

/// Five numbers of ten digits with sign and exponent, twice over.
constexpr qsizetype mostNumberBytes = 256;
constexpr qsizetype mostProfileBytes = 1024 * 1024;
/// Each profile costs some milliseconds. Real lists have one or two.
constexpr std::size_t mostProfiles = 8;
/// A named colour holds a plain one.
constexpr int mostDepth = 4;

/// By the numbers that archives give to colour spaces.
enum SpaceId : std::int64_t {
    genericRGB = 1,
    genericGray = 2,
    genericCMYK = 3,
    deviceRGB = 4,
    deviceGray = 5,
    deviceCMYK = 6,
    sRGB = 7,
    adobeRGB = 8,
    grayWithCurveOfSRGB = 9,
    displayP3 = 12,
    extendedSRGB = 14,
    extendedGray = 15,
    linearSRGB = 16,
    extendedLinearSRGB = 17,
};

/// What a space without a number that is known says of itself instead.
enum Model : std::int64_t { grayModel = 0, cmykModel = 2, labModel = 3 };

std::optional<RgbSpace> rgbSpace(std::int64_t id) {
    switch (id) {
    case genericRGB:
        return RgbSpace::genericRGB;
    case deviceRGB:
    case sRGB:
    case extendedSRGB:
        return RgbSpace::sRGB;
    case adobeRGB:
        return RgbSpace::adobeRGB;
    case displayP3:
        return RgbSpace::displayP3;
    case linearSRGB:
    case extendedLinearSRGB:
        return RgbSpace::linearSRGB;
    default:
        return std::nullopt;
    }
}

std::optional<double> grayAsSRGB(std::int64_t id, double white) {
    switch (id) {
    case genericGray:
        return sRGBFromGenericGray(white);
    case deviceGray:
    case grayWithCurveOfSRGB:
    case extendedGray:
        return white;
    default:
        return std::nullopt;
    }
}

SRGBColor withAlpha(const SRGBColor& color, double alpha) {
    return SRGBColor(color.red(), color.green(), color.blue(), alpha);
}

} // namespace

std::optional<SRGBColor> ArchivedColors::color(Node object, int depth) {
    // Where a colour names its own space, the other numbers are what is left of it in an older one.
    const auto custom = customColor(object);
    return custom ? custom : legacyColorOf(object, depth);
}

std::optional<SRGBColor> ArchivedColors::legacyColorOf(Node object, int depth) {
    const auto space = m_archive.integer(object, "NSColorSpace");
    if (!space)
        return std::nullopt;
    if (static_cast<LegacySpace>(*space) == LegacySpace::named) {
        const auto plain = m_archive.value(object, "NSColor");
        return plain && depth < mostDepth ? color(*plain, depth + 1) : std::nullopt;
    }
    // One of these, by the space; the last in another writer's spelling.
    for (const std::string_view key : {"NSRGB", "NSWhite", "NSCMYK", "NSCYMK"}) {
        if (const auto found = numbers(object, key))
            return legacyColor(*space, found->all(), m_converter);
    }
    return std::nullopt;
}

std::optional<SRGBColor> ArchivedColors::customColor(Node object) {
    const auto space = m_archive.value(object, "NSCustomColorSpace");
    const auto found = space ? numbers(object, "NSComponents") : std::nullopt;
    if (!found || found->count < 2)
        return std::nullopt;
    const auto opaque = colorIn(*space, found->all().first(found->count - 1));
    return opaque ? std::optional(withAlpha(*opaque, found->values[found->count - 1]))
                  : std::nullopt;
}

std::optional<SRGBColor> ArchivedColors::colorIn(Node space, std::span<const double> components) {
    for (const std::string_view key : {"NSID", "NSSpaceID"}) {
        const std::int64_t id = m_archive.integer(space, key).value_or(0);
        if (const auto rgb = rgbSpace(id); rgb && components.size() == 3) {
            const RGBChannels color = sRGBFrom(*rgb, {components[0], components[1], components[2]});
            return SRGBColor(color.red, color.green, color.blue);
        }
        if (components.size() == 1) {
            if (const auto gray = grayAsSRGB(id, components[0]))
                return SRGBColor(*gray, *gray, *gray);
        }
        if ((id == genericCMYK || id == deviceCMYK) && components.size() == 4)
            return m_converter.fromCmyk(components[0], components[1], components[2], components[3]);
    }
    return colorByProfile(space, components);
}

std::optional<SRGBColor> ArchivedColors::colorByProfile(Node space,
                                                        std::span<const double> components) {
    const std::int64_t model = m_archive.integer(space, "NSModel").value_or(-1);
    if (model == cmykModel && components.size() == 4)
        return m_converter.fromCmyk(components[0], components[1], components[2], components[3]);
    if (model == labModel && components.size() == 3)
        return m_converter.fromLab(components[0], components[1], components[2]);
    const ColorTransform* const transform = transformOf(space);
    if (transform && transform->channels() == components.size())
        return (*transform)(components);
    if (model == grayModel && components.size() == 1)
        return SRGBColor(components[0], components[0], components[0]);
    return std::nullopt;
}

const ColorTransform* ArchivedColors::transformOf(Node space) {
    for (const KnownProfile& known : m_profiles) {
        if (known.space == space)
            return known.transform.get();
    }
    if (m_profiles.size() >= mostProfiles)
        return nullptr;
    const auto profile = m_archive.data(space, "NSICC", mostProfileBytes);
    m_profiles.push_back({space, profile ? ColorTransform::fromProfile(*profile)
                                         : std::make_unique<ColorTransform>()});
    return m_profiles.back().transform.get();
}

/// Decimal numbers with blanks between them, with or without a NUL behind them.
std::optional<ArchivedColors::Numbers> ArchivedColors::numbers(Node object,
                                                               std::string_view key) const {
    const auto bytes = m_archive.data(object, key, mostNumberBytes);
    if (!bytes)
        return std::nullopt;
    Numbers found;
    const char* at = bytes->constData();
    const char* const end = at + bytes->size();
    for (;;) {
        while (at != end && (*at == ' ' || *at == '\0'))
            ++at;
        if (at == end)
            break;
        if (found.count == found.values.size())
            return std::nullopt;
        double& value = found.values[found.count];
        const auto result = std::from_chars(at, end, value);
        if (result.ec != std::errc() || !std::isfinite(value))
            return std::nullopt;
        at = result.ptr;
        ++found.count;
    }
    return found.count > 0 ? std::optional(found) : std::nullopt;
}

} // namespace dropshade
