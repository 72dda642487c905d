// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "interchange/ASECoder.h"

#include "interchange/ASEFormat.h"

#include <QtEndian>

#include <algorithm>
#include <bit>
#include <cstring>
#include <limits>

namespace dropshade {
namespace {

constexpr qsizetype mostUnits = std::numeric_limits<std::uint16_t>::max();
constexpr char rgbModel[] = {'R', 'G', 'B', ' '};

const QString& nameOf(const PaletteSwatch& swatch) {
    return swatch.label() ? *swatch.label() : swatch.value();
}

/// With its terminator.
bool fits(const QString& name) {
    return name.size() + 1 <= mostUnits;
}

/// A file in the making. All that counts is known before it is written, so there is one buffer.
class Encoder {
public:
    QByteArray file(const Palette& palette) {
        append(ase::magic.data(), ase::magic.size());
        append(ase::version);
        append(blockCount(palette));
        for (const PaletteScale& scale : palette.scales())
            append(scale);
        return m_bytes;
    }

private:
    static std::uint32_t blockCount(const Palette& palette) {
        std::uint32_t count = 0;
        for (const PaletteScale& scale : palette.scales())
            count += 2 + std::uint32_t(scale.swatches().size());
        return count;
    }

    /// Of a name with its count and its terminator.
    static std::uint32_t sizeOf(const QString& name) {
        if (!fits(name))
            qFatal("a name of %lld units doesn't fit a swatch-exchange file",
                   static_cast<long long>(name.size()));
        return 2U * std::uint32_t(1 + name.size() + 1);
    }

    void append(const PaletteScale& scale) {
        append(ase::groupStart);
        append(sizeOf(scale.name()));
        append(scale.name());
        for (const PaletteSwatch& swatch : scale.swatches())
            append(swatch);
        append(ase::groupEnd);
        append(std::uint32_t(0));
    }

    void append(const PaletteSwatch& swatch) {
        const QString& name = nameOf(swatch);
        append(ase::colorEntry);
        append(std::uint32_t(sizeOf(name) + sizeof rgbModel + 3 * sizeof(float) +
                             sizeof ase::writtenColorType));
        append(name);
        append(rgbModel, sizeof rgbModel);
        const SRGBColor& color = swatch.color();
        for (const double component : {color.red(), color.green(), color.blue()})
            append(std::bit_cast<std::uint32_t>(static_cast<float>(component)));
        append(ase::writtenColorType);
    }

    void append(const QString& name) {
        append(static_cast<std::uint16_t>(name.size() + 1));
        const qsizetype start = m_bytes.size();
        m_bytes.resize(start + 2 * name.size());
        qToBigEndian<char16_t>(name.utf16(), name.size(), m_bytes.data() + start);
        append(std::uint16_t(0));
    }

    template <typename Number>
    void append(Number number) {
        const Number ordered = qToBigEndian(number);
        append(&ordered, sizeof ordered);
    }

    void append(const void* bytes, std::size_t count) {
        m_bytes.append(static_cast<const char*>(bytes), qsizetype(count));
    }

    QByteArray m_bytes;
};

} // namespace

bool ASECoder::fits(const Palette& palette) {
    const QList<PaletteScale>& scales = palette.scales();
    return std::all_of(scales.begin(), scales.end(), [](const PaletteScale& scale) {
        const QList<PaletteSwatch>& swatches = scale.swatches();
        return dropshade::fits(scale.name()) &&
               std::all_of(swatches.begin(), swatches.end(), [](const PaletteSwatch& swatch) {
                   return dropshade::fits(nameOf(swatch));
               });
    });
}

QByteArray ASECoder::encode(const Palette& palette) {
    return Encoder().file(palette);
}

} // namespace dropshade
