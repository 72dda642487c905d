// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "palettes/PaletteSwatch.h"

#include "color/ColorConversions.h"
#include "contrast/ContrastMetrics.h"
#include "palettes/ColorText.h"

#include <algorithm>
#include <memory>
#include <utility>

namespace dropshade {
namespace {

/// From this saturation on a tint has the swatch's hue. The margin is for colours such as #fae6e6,
/// whose saturation is 0.08 and whose binary quotient is a hair below.
constexpr double leastHuedSaturation = 0.08 - 1e-12;

SRGBColor pinTintOver(const SRGBColor& color, bool prefersLightText) {
    const HSBComponents own = hsbComponents(color);
    if (own.saturation < leastHuedSaturation)
        return prefersLightText ? SRGBColor(1.0, 1.0, 1.0) : SRGBColor();
    if (prefersLightText)
        return hsbToSRGB(own.hue, std::min(own.saturation * 0.22, 0.14), 0.97, 1.0);
    return hsbToSRGB(own.hue, std::clamp(own.saturation, 0.55, 0.85), 0.22, 1.0);
}

} // namespace

PaletteSwatch::PaletteSwatch(QString value, std::optional<QString> label)
    : PaletteSwatch(QUuid::createUuid(), std::move(value), std::move(label)) {}

PaletteSwatch::PaletteSwatch(const QUuid& id, QString value, std::optional<QString> label) {
    auto data = std::make_unique<Data>();
    data->id = id;
    data->value = std::move(value);
    data->label = std::move(label);
    data->color = parsedColorOrBlack(data->value);
    data->prefersLightText = prefersLightInk(data->color);
    data->pinTint = pinTintOver(data->color, data->prefersLightText);
    d = QExplicitlySharedDataPointer<const Data>(data.release());
}

PaletteSwatch PaletteSwatch::freshCopy() const {
    // The derived fields come from the value alone, so they are copied with it.
    auto data = std::make_unique<Data>(*d);
    data->id = QUuid::createUuid();
    PaletteSwatch copy(*this);
    copy.d = QExplicitlySharedDataPointer<const Data>(data.release());
    return copy;
}

} // namespace dropshade
