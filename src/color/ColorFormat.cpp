// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "color/ColorFormat.h"

#include "color/ColorConversions.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <utility>

namespace dropshade {

namespace {

struct FormatRow {
    ColorFormat format;
    std::string_view rawValue;
    std::string_view displayName;
    std::string_view group;
    /// Text in which "%" and a letter stand for a value:
    ///
    /// - `#` the hash of the hex forms, if it is wanted
    /// - `X` and one of `RGBA`: that byte as two hexadecimal digits
    /// - `R` `G` `B` `A`: a byte in decimal
    /// - `r` `g` `b` `a`: a component as a fraction
    /// - `h` `s` `v`: hue, saturation and brightness as fractions
    /// - `H` `S` `L`: hue in whole degrees, saturation and lightness in percent
    /// - `o`: the alpha as CSS writes it
    std::string_view pattern;
};

// clang-format off
constexpr std::array<FormatRow, colorFormatCount> formatRows = {{
    {ColorFormat::hex, "hex", "HEX", "Web", "%#%XR%XG%XB"},
    {ColorFormat::hexa, "hexa", "HEXA", "Web", "%#%XR%XG%XB%XA"},
    {ColorFormat::cssRGB, "cssRGB", "CSS RGB", "Web", "rgb(%R %G %B)"},
    {ColorFormat::cssRGBA, "cssRGBA", "CSS RGBA", "Web", "rgb(%R %G %B / %o)"},
    {ColorFormat::cssHSL, "cssHSL", "CSS HSL", "Web", "hsl(%H %S %L)"},
    {ColorFormat::cssHSLA, "cssHSLA", "CSS HSLA", "Web", "hsl(%H %S %L / %o)"},
    {ColorFormat::nsColorRGB, "nsColorRGB", "NSColor RGB", "NSColor",
     "NSColor(calibratedRed: %r, green: %g, blue: %b, alpha: %a)"},
    {ColorFormat::nsColorHSB, "nsColorHSB", "NSColor HSB", "NSColor",
     "NSColor(calibratedHue: %h, saturation: %s, brightness: %v, alpha: %a)"},
    {ColorFormat::uiColorRGB, "uiColorRGB", "UIColor RGB", "UIColor",
     "UIColor(red: %r, green: %g, blue: %b, alpha: %a)"},
    {ColorFormat::uiColorHSB, "uiColorHSB", "UIColor HSB", "UIColor",
     "UIColor(hue: %h, saturation: %s, brightness: %v, alpha: %a)"},
    {ColorFormat::swiftUIColorRGB, "swiftUIColorRGB", "SwiftUI Color RGB", "SwiftUI",
     "Color(red: %r, green: %g, blue: %b, opacity: %a)"},
    {ColorFormat::swiftUIColorHSB, "swiftUIColorHSB", "SwiftUI Color HSB", "SwiftUI",
     "Color(hue: %h, saturation: %s, brightness: %v, opacity: %a)"},
    {ColorFormat::colorLiteral, "colorLiteral", "Swift Color Literal", "SwiftUI",
     "#colorLiteral(red: %r, green: %g, blue: %b, alpha: %a)"},
    {ColorFormat::objcNSColorRGB, "objcNSColorRGB", "Obj-C NSColor RGB", "Objective-C",
     "[NSColor colorWithCalibratedRed:%r green:%g blue:%b alpha:%a]"},
    {ColorFormat::objcUIColorRGB, "objcUIColorRGB", "Obj-C UIColor RGB", "Objective-C",
     "[UIColor colorWithRed:%r green:%g blue:%b alpha:%a]"},
    {ColorFormat::dotNetRGB, "dotNetRGB", ".NET RGB", ".NET", "Color.FromArgb(%R, %G, %B)"},
    {ColorFormat::dotNetARGB, "dotNetARGB", ".NET ARGB", ".NET", "Color.FromArgb(%A, %R, %G, %B)"},
    {ColorFormat::javaRGB, "javaRGB", "Java RGB", "Java", "new Color(%R, %G, %B)"},
    {ColorFormat::javaRGBA, "javaRGBA", "Java RGBA", "Java", "new Color(%R, %G, %B, %A)"},
    {ColorFormat::androidRGB, "androidRGB", "Android RGB", "Android", "Color.rgb(%R, %G, %B)"},
    {ColorFormat::androidARGB, "androidARGB", "Android ARGB", "Android",
     "Color.argb(%A, %R, %G, %B)"},
}};
// clang-format on

constexpr bool rowsAreInCaseOrder() {
    for (std::size_t index = 0; index < formatRows.size(); ++index) {
        if (formatRows[index].format != static_cast<ColorFormat>(index))
            return false;
    }
    return true;
}
static_assert(rowsAreInCaseOrder());

constexpr std::array<ColorFormat, colorFormatCount> casesInOrder() {
    std::array<ColorFormat, colorFormatCount> cases{};
    std::ranges::transform(formatRows, cases.begin(), &FormatRow::format);
    return cases;
}

constexpr std::array<ColorFormat, colorFormatCount> cases = casesInOrder();

constexpr std::size_t groupCount = 8;

constexpr std::array<ColorFormatGroup, groupCount> groupsOfRows() {
    std::array<ColorFormatGroup, groupCount> groups{};
    std::size_t group = 0;
    for (std::size_t start = 0; start < formatRows.size(); ++group) {
        const std::string_view title = formatRows[start].group;
        std::size_t end = start;
        while (end < formatRows.size() && formatRows[end].group == title)
            ++end;
        groups.at(group) = {title, std::span(cases).subspan(start, end - start)};
        start = end;
    }
    return groups;
}

constexpr std::array<ColorFormatGroup, groupCount> groups = groupsOfRows();
static_assert(!groups.back().formats.empty());

const FormatRow& rowOf(ColorFormat format) {
    return formatRows[static_cast<std::size_t>(format)];
}

constexpr int mostDecimalPlaces = std::numeric_limits<double>::max_digits10;

void appendInteger(std::string& text, std::int64_t value) {
    std::array<char, std::numeric_limits<std::int64_t>::digits10 + 2> buffer;
    const auto written = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value);
    text.append(buffer.data(), written.ptr);
}

void appendFixedExactly(std::string& text, double value, int decimalPlaces) {
    // A sign, the digits of the largest double, the point and the decimals.
    std::array<char, std::numeric_limits<double>::max_exponent10 + 3 + mostDecimalPlaces> buffer;
    const auto written = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                       std::chars_format::fixed, decimalPlaces);
    text.append(buffer.data(), written.ptr);
}

// The fractions of a colour in whole numbers, which is several times as fast as std::to_chars. The
// product below errs by less than 1e-8, so unless it is about to be a tie the nearest whole number
// is that of the exact value.
void appendFixed(std::string& text, double value, int decimalPlaces) {
    constexpr std::array<std::uint32_t, 5> scales = {1, 10, 100, 1000, 10000};
    constexpr double largest = 1000.0;
    constexpr double tieMargin = 1e-6;
    const auto places = static_cast<std::size_t>(decimalPlaces);
    if (places >= scales.size() || !(value >= 0.0 && value <= largest)) {
        appendFixedExactly(text, value, decimalPlaces);
        return;
    }
    const double scaled = value * scales[places];
    const auto floor = static_cast<std::uint32_t>(scaled);
    const double remainder = scaled - floor;
    if (std::abs(remainder - 0.5) < tieMargin) {
        appendFixedExactly(text, value, decimalPlaces);
        return;
    }
    std::uint32_t units = remainder > 0.5 ? floor + 1 : floor;
    std::array<char, std::numeric_limits<std::uint32_t>::digits10 + 2> buffer;
    char* const end = buffer.data() + buffer.size();
    char* start = end;
    const auto writeLastDigit = [&start, &units] {
        *--start = static_cast<char>('0' + units % 10);
        units /= 10;
    };
    for (std::size_t place = 0; place < places; ++place)
        writeLastDigit();
    if (places > 0)
        *--start = '.';
    do
        writeLastDigit();
    while (units > 0);
    text.append(start, end);
}

class PatternWriter {
public:
    PatternWriter(const SRGBColor& color, const FormatOptions& options)
        : m_color(color), m_options(options), m_bytes(rgba255(color)) {}

    std::string write(std::string_view pattern) {
        m_text.reserve(pattern.size() + 32);
        for (std::size_t mark = pattern.find('%'); mark != std::string_view::npos;
             mark = pattern.find('%')) {
            m_text.append(pattern.substr(0, mark));
            if (pattern[mark + 1] == 'X') {
                appendHex(byteNamed(pattern[mark + 2]));
                pattern.remove_prefix(mark + 3);
            } else {
                appendValue(pattern[mark + 1]);
                pattern.remove_prefix(mark + 2);
            }
        }
        m_text.append(pattern);
        return std::move(m_text);
    }

private:
    void appendValue(char name) {
        switch (name) {
        case '#':
            m_text.append(m_options.useHashPrefix ? "#" : "");
            break;
        case 'R':
        case 'G':
        case 'B':
        case 'A':
            appendInteger(m_text, byteNamed(name));
            break;
        case 'H':
        case 'S':
        case 'L':
        case 'o':
            appendCss(name);
            break;
        default:
            appendFixed(m_text, fractionNamed(name),
                        std::clamp(m_options.decimalPlaces, 0, mostDecimalPlaces));
        }
    }

    void appendHex(std::int64_t byte) {
        const std::string_view digits =
            m_options.useLowercase ? "0123456789abcdef" : "0123456789ABCDEF";
        m_text += digits[static_cast<std::size_t>(byte >> 4)];
        m_text += digits[static_cast<std::size_t>(byte & 0xF)];
    }

    void appendCss(char name) {
        if (name == 'H')
            appendInteger(m_text, static_cast<std::int64_t>(std::round(hsl().hue)));
        else if (name == 'S')
            m_text.append(percentText(hsl().saturation));
        else if (name == 'L')
            m_text.append(percentText(hsl().lightness));
        else
            m_text.append(alphaText(m_color.alpha()));
    }

    std::int64_t byteNamed(char name) const {
        switch (name) {
        case 'R':
            return m_bytes.red;
        case 'G':
            return m_bytes.green;
        case 'B':
            return m_bytes.blue;
        default:
            return m_bytes.alpha;
        }
    }

    double fractionNamed(char name) {
        switch (name) {
        case 'r':
            return m_color.red();
        case 'g':
            return m_color.green();
        case 'b':
            return m_color.blue();
        case 'h':
            return hsb().hue;
        case 's':
            return hsb().saturation;
        case 'v':
            return hsb().brightness;
        default:
            return m_color.alpha();
        }
    }

    // Few formats want these, and those that do ask for them three times.
    const HSLComponents& hsl() {
        if (!m_hsl)
            m_hsl = hslComponents(m_color.red(), m_color.green(), m_color.blue());
        return *m_hsl;
    }
    const HSBComponents& hsb() {
        if (!m_hsb)
            m_hsb = hsbComponents(m_color);
        return *m_hsb;
    }

    SRGBColor m_color;
    FormatOptions m_options;
    RGBA8 m_bytes;
    std::optional<HSLComponents> m_hsl;
    std::optional<HSBComponents> m_hsb;
    std::string m_text;
};

} // namespace

std::string_view rawValue(ColorFormat format) {
    return rowOf(format).rawValue;
}

std::optional<ColorFormat> colorFormatFromRawValue(std::string_view rawValue) {
    const auto row = std::ranges::find(formatRows, rawValue, &FormatRow::rawValue);
    return row == formatRows.end() ? std::nullopt : std::optional(row->format);
}

std::string_view displayName(ColorFormat format) {
    return rowOf(format).displayName;
}

std::span<const ColorFormatGroup> formatGroups() {
    return groups;
}

std::string formatted(const SRGBColor& color, ColorFormat format, const FormatOptions& options) {
    return PatternWriter(color, options).write(rowOf(format).pattern);
}

std::string alphaText(double alpha) {
    if (alpha == 1.0)
        return "1";
    if (alpha == 0.0)
        return "0";
    std::string text;
    appendFixed(text, alpha, 2);
    if (text.ends_with('0'))
        text.pop_back();
    return text;
}

std::string percentText(double fraction) {
    const double percent = std::round(fraction * 1000.0) / 10.0;
    std::string text;
    appendFixed(text, percent, percent == std::round(percent) ? 0 : 1);
    text += '%';
    return text;
}

} // namespace dropshade
