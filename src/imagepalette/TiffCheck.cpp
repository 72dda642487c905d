// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "bytes/ByteReader.h"
#include "imagepalette/ImageFileCheck.h"

#include <algorithm>
#include <map>
#include <span>

namespace dropshade {

namespace {

enum Tag : std::uint16_t {
    imageWidth = 256,
    imageLength = 257,
    bitsPerSample = 258,
    compression = 259,
    stripOffsets = 273,
    samplesPerPixel = 277,
    rowsPerStrip = 278,
    stripByteCounts = 279,
    planarConfiguration = 284,
    tileWidth = 322,
    tileLength = 323,
    tileOffsets = 324,
    tileByteCounts = 325,
};

constexpr std::uint64_t uncompressed = 1;
constexpr std::uint64_t separatePlanes = 2;
constexpr std::uint64_t mostSamples = 8;
constexpr std::uint64_t mostBits = 64;
constexpr std::uint64_t mostSide = 1024 * 1024;
// How many pixels of padding the tiles may add, besides as many as the image has.
constexpr std::uint64_t mostPadding = 1024 * 1024;

constexpr std::uint16_t byteType = 1;
constexpr std::uint16_t shortType = 3;
constexpr std::uint16_t longType = 4;

/// In bytes; 0 for a type that no reader knows.
std::uint64_t typeSize(std::uint16_t type) {
    constexpr std::uint8_t sizes[] = {0, 1, 1, 2, 4, 8, 1, 1, 2, 4, 8, 4, 8, 4};
    return type < std::size(sizes) ? sizes[type] : 0;
}

std::uint64_t quotient(std::uint64_t dividend, std::uint64_t divisor) {
    return (dividend + divisor - 1) / divisor;
}

/// Whole numbers in a row, read where they lie.
class Numbers {
public:
    Numbers(const ByteReader& reader, std::uint16_t type, std::uint64_t count)
        : m_reader(reader), m_type(type), m_count(count) {}

    std::uint64_t count() const { return m_count; }

    /// Called no more often than there are numbers.
    std::uint64_t next() {
        return m_type == byteType    ? m_reader.u8()
               : m_type == shortType ? m_reader.u16()
                                     : m_reader.u32();
    }

private:
    ByteReader m_reader;
    std::uint16_t m_type;
    std::uint64_t m_count;
};

/// The first directory of a TIFF file.
class Directory {
public:
    explicit Directory(std::span<const std::uint8_t> file)
        : m_reader(file, !file.empty() && file.front() == 'I' ? ByteReader::Endian::little
                                                              : ByteReader::Endian::big) {
        m_reader.seek(4);
        m_reader.seek(m_reader.u32());
        const int entries = m_reader.u16();
        for (int at = 0; at < entries && !m_reader.failed(); ++at)
            readEntry();
        // The offset of the next directory, so that this one is known to be complete.
        m_reader.skip(4);
    }

    /// Whether the directory, and every value that it points to, lies within the file.
    bool isWhole() const { return m_isWhole && !m_reader.failed(); }

    /// Those under a tag; none where it is absent or holds something else.
    Numbers numbers(Tag tag) const {
        const auto found = m_entries.find(tag);
        const Entry entry = found == m_entries.end() ? Entry() : found->second;
        const bool isWholeNumbers =
            entry.type == byteType || entry.type == shortType || entry.type == longType;
        ByteReader reader = m_reader;
        reader.seek(entry.offset);
        return Numbers(reader, entry.type, isWholeNumbers ? entry.count : 0);
    }

    std::uint64_t value(Tag tag, std::uint64_t fallback) const {
        Numbers all = numbers(tag);
        return all.count() == 0 ? fallback : all.next();
    }

    bool contains(std::uint64_t offset, std::uint64_t count) const {
        return m_reader.contains(offset, count);
    }

private:
    struct Entry {
        std::uint16_t type = 0;
        std::uint64_t count = 0;
        std::uint64_t offset = 0;
    };

    void readEntry() {
        const std::uint16_t tag = m_reader.u16();
        const std::uint16_t type = m_reader.u16();
        const std::uint64_t count = m_reader.u32();
        const std::uint64_t size = count * typeSize(type);
        // Up to four bytes of value stand in the entry itself.
        const std::uint64_t inlineOffset = m_reader.position();
        const std::uint64_t offset = m_reader.u32();
        const Entry entry{type, count, size <= 4 ? inlineOffset : offset};
        m_isWhole &= m_reader.contains(entry.offset, size);
        m_entries.emplace(tag, entry);
    }

    ByteReader m_reader;
    std::map<std::uint16_t, Entry> m_entries;
    bool m_isWhole = true;
};

/// The image's size and how it is cut up.
struct Layout {
    std::uint64_t width;
    std::uint64_t height;
    std::uint64_t samples;
    std::uint64_t bits;
    /// Strips are as wide as the image.
    std::uint64_t pieceWidth;
    std::uint64_t pieceHeight;
    bool hasSeparatePlanes;
    bool isTiled;

    explicit Layout(const Directory& directory)
        : width(directory.value(imageWidth, 0)), height(directory.value(imageLength, 0)),
          samples(directory.value(samplesPerPixel, 1)), bits(directory.value(bitsPerSample, 1)),
          pieceWidth(directory.value(tileWidth, width)),
          pieceHeight(directory.value(tileLength,
                                      // Commonly 2^32 − 1 where there is but one.
                                      std::min(height, directory.value(rowsPerStrip, height)))),
          hasSeparatePlanes(directory.value(planarConfiguration, 1) == separatePlanes),
          isTiled(directory.numbers(tileWidth).count() > 0) {}

    std::uint64_t piecesAcross() const { return quotient(width, pieceWidth); }
    std::uint64_t piecesDown() const { return quotient(height, pieceHeight); }

    std::uint64_t pieces() const {
        return piecesAcross() * piecesDown() * (hasSeparatePlanes ? samples : 1);
    }

    bool makesSense() const {
        if (width == 0 || height == 0 || pieceWidth == 0 || pieceHeight == 0)
            return false;
        if (width > mostSide || height > mostSide || pieceWidth > mostSide ||
            pieceHeight > mostSide)
            return false;
        if (samples == 0 || samples > mostSamples || bits == 0 || bits > mostBits)
            return false;
        return !isTiled || piecesAcross() * pieceWidth * piecesDown() * pieceHeight <=
                               2 * width * height + mostPadding;
    }

    /// The least bytes that the pieces hold together where nothing is compressed.
    std::uint64_t rawBytes() const { return quotient(width * samples * bits, 8) * height; }
};

} // namespace

bool isWholeTiff(std::span<const std::uint8_t> file) {
    const Directory directory(file);
    if (!directory.isWhole())
        return false;
    const Layout layout(directory);
    if (!layout.makesSense())
        return false;
    Numbers offsets = directory.numbers(layout.isTiled ? tileOffsets : stripOffsets);
    Numbers counts = directory.numbers(layout.isTiled ? tileByteCounts : stripByteCounts);
    if (offsets.count() != counts.count() || offsets.count() < layout.pieces())
        return false;
    std::uint64_t bytes = 0;
    for (std::uint64_t left = counts.count(); left > 0; --left) {
        const std::uint64_t count = counts.next();
        if (count == 0 || !directory.contains(offsets.next(), count))
            return false;
        bytes += count;
    }
    return directory.value(compression, uncompressed) != uncompressed || bytes >= layout.rawBytes();
}

} // namespace dropshade
