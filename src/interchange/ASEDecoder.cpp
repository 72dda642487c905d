// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "interchange/ASECoder.h"

#include "bytes/ByteReader.h"
#include "bytes/BytesOf.h"
#include "interchange/ASEFormat.h"
#include "interchange/ColorConverter.h"
#include "interchange/HexText.h"
#include "interchange/ImportedNames.h"

#include <QTextBoundaryFinder>

#include <algorithm>
#include <array>
#include <optional>
#include <string>

namespace dropshade {
namespace {

using Bytes = std::span<const std::uint8_t>;
using Case = ASECoderError::Case;

constexpr int mostCharacters = 200;
/// How much of each name is read in a file whose names add up to more than the file.
constexpr std::size_t leastUnits = 32;

bool isDropped(char16_t unit) {
    return (unit < 0x20 && unit != u'\t') || (unit >= 0x7F && unit <= 0x9F) ||
           (unit >= 0x202A && unit <= 0x202E) || (unit >= 0x2066 && unit <= 0x2069);
}

/// The first so many characters that a user sees.
QStringView shortened(QStringView text) {
    if (text.size() <= mostCharacters)
        return text;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text.data(), text.size());
    qsizetype end = 0;
    for (int count = 0; count < mostCharacters && end >= 0; ++count)
        end = finder.toNextBoundary();
    return end < 0 ? text : text.first(end);
}

/// One pass over a file.
class Decoder {
public:
    explicit Decoder(Bytes file) : m_reader(file), m_unitsLeft(file.size()) {}

    QList<PaletteScale> scales() {
        const Bytes start = m_reader.take(ase::magic.size());
        m_reader.skip(sizeof ase::version);
        const std::uint32_t blockCount = m_reader.u32();
        throwIfCut();
        if (!std::ranges::equal(start, ase::magic))
            throw ASECoderError(Case::notAnASEFile);
        for (std::uint32_t index = 0; index < blockCount; ++index)
            readBlock();
        closeGroup();
        if (!m_loose.isEmpty())
            m_scales.prepend(PaletteScale(ImportedNames::scaleOfLooseColors(), m_loose));
        return m_scales;
    }

private:
    void throwIfCut() const {
        if (m_reader.failed())
            throw ASECoderError(Case::truncated);
    }

    void readBlock() {
        const std::uint16_t type = m_reader.u16();
        const std::uint32_t bodyLength = m_reader.u32();
        // What a body holds is checked against the file, not against this length: some programs
        // declare too little. It says where the next block begins all the same.
        ByteReader behind = m_reader;
        behind.skip(bodyLength);
        if (behind.failed())
            throw ASECoderError(Case::truncated);
        if (type == ase::colorEntry) {
            (m_group ? m_swatches : m_loose).append(readColor());
        } else if (type == ase::groupStart) {
            const QString name = readName();
            closeGroup();
            m_group = name;
        } else if (type == ase::groupEnd) {
            closeGroup();
        }
        m_reader = behind;
    }

    void closeGroup() {
        if (m_group)
            m_scales.append(PaletteScale(*m_group, m_swatches));
        m_group.reset();
        m_swatches = QList<PaletteSwatch>();
    }

    QString readName() {
        const std::uint16_t declared = m_reader.u16();
        const Bytes bytes = m_reader.take(2U * declared);
        throwIfCut();
        // Blocks that overlap can read the same long name over and over.
        const std::size_t count =
            std::min<std::size_t>(declared, std::max(m_unitsLeft, leastUnits));
        m_unitsLeft -= std::min(count, m_unitsLeft);
        return cleaned(bytes.first(2 * count));
    }

    QString cleaned(Bytes bytes) {
        ByteReader units(bytes);
        std::size_t count = bytes.size() / 2;
        if (count > 0 && bytes[bytes.size() - 1] == 0 && bytes[bytes.size() - 2] == 0)
            --count;
        m_text.clear();
        bool isHalf = false;
        for (; count > 0; --count) {
            char16_t unit = units.u16();
            if (isHalf && !QChar::isLowSurrogate(unit))
                m_text.back() = QChar::ReplacementCharacter;
            else if (!isHalf && QChar::isLowSurrogate(unit))
                unit = QChar::ReplacementCharacter;
            isHalf = QChar::isHighSurrogate(unit);
            if (!isDropped(unit))
                m_text.push_back(unit);
        }
        if (isHalf)
            m_text.back() = QChar::ReplacementCharacter;
        return shortened(QStringView(m_text).trimmed()).toString();
    }

    PaletteSwatch readColor() {
        const QString name = readName();
        const SRGBColor color = readComponents();
        m_reader.skip(sizeof ase::writtenColorType);
        throwIfCut();
        return PaletteSwatch(hexText(color), name.isEmpty() ? std::nullopt : std::optional(name));
    }

    QString readModel() {
        const Bytes bytes = m_reader.take(4);
        throwIfCut();
        if (std::ranges::any_of(bytes, [](std::uint8_t byte) { return byte > 0x7F; }))
            return QString();
        std::string_view text(reinterpret_cast<const char*>(bytes.data()), bytes.size());
        const std::size_t first = std::min(text.find_first_not_of(" \t"), text.size());
        text.remove_prefix(first);
        text = text.substr(0, text.find_last_not_of(" \t") + 1);
        return QString::fromLatin1(text.data(), qsizetype(text.size()));
    }

    SRGBColor readComponents() {
        const QString model = readModel();
        if (model == QLatin1String("RGB")) {
            const auto [red, green, blue] = readFloats<3>();
            return SRGBColor(red, green, blue);
        }
        if (model == QLatin1String("CMYK")) {
            const auto [cyan, magenta, yellow, black] = readFloats<4>();
            return m_converter.fromCmyk(cyan, magenta, yellow, black);
        }
        if (model == QLatin1String("LAB")) {
            const auto [lightness, a, b] = readFloats<3>();
            return m_converter.fromLab(lightness, a, b);
        }
        if (model == QLatin1String("Gray") || model == QLatin1String("GRAY")) {
            const auto [white] = readFloats<1>();
            return SRGBColor(white, white, white);
        }
        throw ASECoderError(Case::unknownColorModel, model);
    }

    template <std::size_t count>
    std::array<double, count> readFloats() {
        std::array<double, count> numbers = {};
        for (double& number : numbers)
            number = double(m_reader.f32());
        throwIfCut();
        return numbers;
    }

    ByteReader m_reader;
    ColorConverter m_converter;
    std::size_t m_unitsLeft;
    std::u16string m_text;
    QList<PaletteSwatch> m_loose;
    QList<PaletteScale> m_scales;
    /// The open group's name; absent outside groups.
    std::optional<QString> m_group;
    QList<PaletteSwatch> m_swatches;
};

} // namespace

const char* ASECoderError::what() const noexcept {
    switch (m_case) {
    case Case::unknownColorModel:
        return "unknown colour model";
    case Case::notAnASEFile:
        return "not a swatch-exchange file";
    case Case::truncated:
        break;
    }
    return "the file is cut";
}

Palette ASECoder::decode(const QByteArray& data, ReferenceTime now) {
    return Palette(ImportedNames::palette(), Decoder(bytesOf(data)).scales(), now);
}

} // namespace dropshade
