// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "Require.h"

#include "color/ColorConversions.h"
#include "color/ColorFormat.h"
#include "color/ColorParser.h"
#include "color/NumberToken.h"

#include <cctype>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

namespace dropshade {
namespace {

bool isInRange(double component) {
    return component >= 0.0 && component <= 1.0;
}

void requireSoundColor(const SRGBColor& color) {
    require(isInRange(color.red()) && isInRange(color.green()) && isInRange(color.blue()) &&
                isInRange(color.alpha()),
            "every component is a number from 0 to 1");
}

void requireEveryFormatToBeWritten(const SRGBColor& color) {
    for (std::size_t format = 0; format < colorFormatCount; ++format)
        require(!formatted(color, static_cast<ColorFormat>(format), {}).empty(),
                "every format has a text");
    const auto read = parseColor(formatted(color, ColorFormat::hexa, {}));
    require(read && rgba255(*read) == rgba255(color), "hexa keeps the bytes");
}

// The C library is the judge, in the "C" locale in which a harness runs.
void requireStrtodToAgree(std::string_view text) {
    if (text.find('\0') != std::string_view::npos)
        return;
    const std::string token(text);
    char* rest = nullptr;
    const double value = std::strtod(token.c_str(), &rest);
    const bool isNumber = !token.empty() && !std::isspace(static_cast<unsigned char>(token[0])) &&
                          rest == token.c_str() + token.size() && !std::isnan(value);
    require(numberFromToken(text) == (isNumber ? std::optional(value) : std::nullopt),
            "a token is the number that strtod makes of it");
}

} // namespace
} // namespace dropshade

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace dropshade;
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const auto color = parseColor(text);
    require(parseColor(" \u3000" + std::string(text) + "\n\u2009") == color,
            "white space at the ends changes nothing");
    if (color) {
        requireSoundColor(*color);
        requireEveryFormatToBeWritten(*color);
    }
    requireStrtodToAgree(text);
    return 0;
}
