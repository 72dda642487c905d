// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "color/ColorParser.h"

#include "color/ColorConversions.h"
#include "color/CssNamedColors.h"
#include "color/NumberToken.h"
#include "color/WhiteSpace.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <string>

namespace dropshade {

namespace {

constexpr std::size_t fewestArguments = 3;
constexpr std::size_t mostArguments = 4;

// The Kelvin sign is the one character outside ASCII whose lower case is a letter of a name.
constexpr std::string_view kelvinSign = "\u212A";

struct ColorArguments {
    std::array<std::string_view, mostArguments> tokens;
    /// How many there were; one above `mostArguments` stands for all the higher counts.
    std::size_t count = 0;

    bool isFull() const { return count > mostArguments; }
    void add(std::string_view token) {
        if (count < mostArguments)
            tokens[count] = token;
        ++count;
    }
};

constexpr char lowerCase(char character) {
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a')
                                                : character;
}

constexpr std::array<std::int8_t, 256> hexDigitValues() {
    std::array<std::int8_t, 256> values{};
    values.fill(-1);
    for (std::int8_t value = 0; value < 10; ++value)
        values[static_cast<std::size_t>('0' + value)] = value;
    for (std::int8_t value = 10; value < 16; ++value) {
        values[static_cast<std::size_t>('a' + value - 10)] = value;
        values[static_cast<std::size_t>('A' + value - 10)] = value;
    }
    return values;
}

constexpr std::array<std::int8_t, 256> hexDigits = hexDigitValues();

std::optional<SRGBColor> parseHex(std::string_view text) {
    if (text.starts_with('#'))
        text.remove_prefix(1);
    // Only ASCII can pass the test of the digits, so bytes count as characters.
    const std::size_t length = text.size();
    if (length != 3 && length != 4 && length != 6 && length != 8)
        return std::nullopt;

    const bool isShort = length <= 4;
    std::uint32_t number = 0;
    for (const char character : text) {
        const int digit = hexDigits[static_cast<unsigned char>(character)];
        if (digit < 0)
            return std::nullopt;
        number = isShort ? number << 8 | static_cast<std::uint32_t>(digit * 0x11)
                         : number << 4 | static_cast<std::uint32_t>(digit);
    }
    if (length == 3 || length == 6)
        number = number << 8 | 0xFF;
    const auto component = [number](unsigned shift) { return (number >> shift & 0xFF) / 255.0; };
    return SRGBColor(component(24), component(16), component(8), component(0));
}

std::optional<SRGBColor> parseName(std::string_view input) {
    std::array<char, longestCssColorName> name;
    std::size_t length = 0;
    while (!input.empty()) {
        char letter = lowerCase(input.front());
        if (letter < 'a' || letter > 'z') {
            if (!input.starts_with(kelvinSign))
                return std::nullopt;
            letter = 'k';
            input.remove_prefix(kelvinSign.size() - 1);
        }
        if (length == name.size())
            return std::nullopt;
        name[length++] = letter;
        input.remove_prefix(1);
    }
    const auto hex = cssNamedColorHex(std::string_view(name.data(), length));
    return hex ? parseHex(*hex) : std::nullopt;
}

bool startsWithFunction(std::string_view input, std::string_view name) {
    const auto takeLetters = [&input](std::string_view letters) {
        const bool found =
            std::ranges::equal(input.substr(0, letters.size()), letters, {}, lowerCase);
        if (found)
            input.remove_prefix(letters.size());
        return found;
    };
    if (!takeLetters(name))
        return false;
    takeLetters("a");
    return input.starts_with('(');
}

std::string_view insideBrackets(std::string_view input) {
    const std::size_t open = input.find('(');
    const std::size_t close = input.rfind(')');
    if (open == std::string_view::npos || close == std::string_view::npos || close < open)
        return {};
    return input.substr(open + 1, close - open - 1);
}

ColorArguments splitAtCommas(std::string_view inner) {
    constexpr std::string_view blanks = " \t/";
    ColorArguments arguments;
    while (!inner.empty() && !arguments.isFull()) {
        const std::size_t length = std::min(inner.find(','), inner.size());
        // A piece of blanks alone is a token, an empty one, where no piece at all is none.
        if (length > 0) {
            std::string_view piece = inner.substr(0, length);
            piece.remove_prefix(std::min(piece.find_first_not_of(blanks), piece.size()));
            piece = piece.substr(0, piece.find_last_not_of(blanks) + 1);
            arguments.add(piece);
        }
        inner.remove_prefix(std::min(length + 1, inner.size()));
    }
    return arguments;
}

std::size_t separatorLength(std::string_view text) {
    return text.starts_with('/') ? 1 : whiteSpaceLength(text);
}

ColorArguments splitAtWhiteSpace(std::string_view inner) {
    ColorArguments arguments;
    while (!inner.empty() && !arguments.isFull()) {
        if (const std::size_t separator = separatorLength(inner)) {
            inner.remove_prefix(separator);
            continue;
        }
        std::size_t length = 1;
        while (length < inner.size() && separatorLength(inner.substr(length)) == 0)
            ++length;
        arguments.add(inner.substr(0, length));
        inner.remove_prefix(length);
    }
    return arguments;
}

// A slash counts as a blank, which spares a copy of the text with its slashes replaced: no number
// has either inside.
ColorArguments splitColorArguments(std::string_view inner) {
    return inner.find(',') != std::string_view::npos ? splitAtCommas(inner)
                                                     : splitAtWhiteSpace(inner);
}

std::optional<ColorArguments> functionArguments(std::string_view input, std::string_view name) {
    if (!startsWithFunction(input, name))
        return std::nullopt;
    const ColorArguments arguments = splitColorArguments(insideBrackets(input));
    if (arguments.count < fewestArguments || arguments.count > mostArguments)
        return std::nullopt;
    return arguments;
}

std::optional<double> numberIgnoringPercentSigns(std::string_view token) {
    while (token.ends_with('%'))
        token.remove_suffix(1);
    if (token.find('%') == std::string_view::npos)
        return numberFromToken(token);
    std::string digits(token);
    std::erase(digits, '%');
    return numberFromToken(digits);
}

double alphaOf(const ColorArguments& arguments) {
    if (arguments.count < mostArguments)
        return 1.0;
    return numberIgnoringPercentSigns(arguments.tokens.back()).value_or(1.0);
}

std::optional<SRGBColor> parseRGB(std::string_view input) {
    const auto arguments = functionArguments(input, "rgb");
    if (!arguments)
        return std::nullopt;
    std::array<double, 3> components{};
    for (std::size_t index = 0; index < components.size(); ++index) {
        const auto value = numberFromToken(arguments->tokens[index]);
        if (!value)
            return std::nullopt;
        components[index] = *value <= 0.0 ? 0.0 : std::min(*value, 255.0) / 255.0;
    }
    return SRGBColor(components[0], components[1], components[2], alphaOf(*arguments));
}

std::optional<SRGBColor> parseHSL(std::string_view input) {
    const auto arguments = functionArguments(input, "hsl");
    if (!arguments)
        return std::nullopt;
    const auto hue = numberIgnoringPercentSigns(arguments->tokens[0]);
    const auto saturation = numberIgnoringPercentSigns(arguments->tokens[1]);
    const auto lightness = numberIgnoringPercentSigns(arguments->tokens[2]);
    if (!hue || !saturation || !lightness)
        return std::nullopt;
    const RGBChannels channels = hslChannels(*hue / 360.0, *saturation / 100.0, *lightness / 100.0);
    if (std::isnan(channels.red) || std::isnan(channels.green) || std::isnan(channels.blue))
        return std::nullopt;
    return SRGBColor(channels.red, channels.green, channels.blue, alphaOf(*arguments));
}

} // namespace

std::optional<SRGBColor> parseColor(std::string_view text) {
    const std::string_view input = trimmedWhiteSpace(text);
    if (const auto color = parseName(input))
        return color;
    if (const auto color = parseHex(input))
        return color;
    if (const auto color = parseRGB(input))
        return color;
    return parseHSL(input);
}

} // namespace dropshade
