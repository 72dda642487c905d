// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "palettes/ColorText.h"

#include "color/ColorParser.h"

#include <QByteArray>

#include <string_view>

namespace dropshade {

SRGBColor parsedColorOrBlack(const QString& text) {
    const QByteArray encoded = text.toUtf8();
    return parseColor(std::string_view(encoded.constData(), std::size_t(encoded.size())))
        .value_or(SRGBColor());
}

} // namespace dropshade
