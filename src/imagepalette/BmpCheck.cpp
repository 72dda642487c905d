// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "bytes/ByteReader.h"
#include "imagepalette/ImageFileCheck.h"

#include <algorithm>
#include <cstdlib>

namespace dropshade {

namespace {

enum Compression : std::uint32_t { none = 0, runs8 = 1, runs4 = 2, bitFields = 3, alphaFields = 6 };

struct Header {
    std::uint64_t dataOffset = 0;
    std::uint64_t width = 0;
    std::uint64_t height = 0;
    std::uint64_t bitsPerPixel = 0;
    std::uint32_t compression = none;
};

std::uint64_t magnitude(std::uint32_t value) {
    return static_cast<std::uint64_t>(
        std::abs(static_cast<std::int64_t>(static_cast<std::int32_t>(value))));
}

Header readHeader(ByteReader& reader) {
    constexpr std::uint32_t coreHeaderSize = 12;
    Header header;
    reader.skip(10);
    header.dataOffset = reader.u32();
    const bool isCore = reader.u32() == coreHeaderSize;
    header.width = isCore ? reader.u16() : magnitude(reader.u32());
    header.height = isCore ? reader.u16() : magnitude(reader.u32());
    reader.skip(2);
    header.bitsPerPixel = reader.u16();
    if (!isCore)
        header.compression = reader.u32();
    return header;
}

/// Whether the runs reach their end mark, or the last row, before the file ends.
bool areWholeRuns(ByteReader& reader, const Header& header) {
    enum Escape : std::uint8_t { endOfLine = 0, endOfBitmap = 1, delta = 2 };
    std::uint64_t rows = 0;
    while (!reader.failed() && rows < header.height) {
        const std::uint8_t count = reader.u8();
        const std::uint8_t value = reader.u8();
        if (count != 0)
            continue;
        if (value == endOfBitmap)
            return !reader.failed();
        if (value == endOfLine) {
            ++rows;
        } else if (value == delta) {
            reader.skip(1);
            rows += reader.u8();
        } else {
            // Literal pixels, padded to a whole number of 16-bit words.
            const std::uint64_t bytes = header.compression == runs8 ? value : (value + 1u) / 2;
            reader.skip((bytes + 1) / 2 * 2);
        }
    }
    return !reader.failed();
}

} // namespace

bool isWholeBmp(std::span<const std::uint8_t> file) {
    ByteReader reader(file, ByteReader::Endian::little);
    const Header header = readHeader(reader);
    if (reader.failed())
        return false;
    switch (header.compression) {
    case none:
    case bitFields:
    case alphaFields: {
        const std::uint64_t rowBytes = (header.width * header.bitsPerPixel + 31) / 32 * 4;
        return header.bitsPerPixel <= 32 &&
               reader.contains(header.dataOffset, rowBytes * header.height);
    }
    case runs8:
    case runs4:
        reader.seek(header.dataOffset);
        return areWholeRuns(reader, header);
    default:
        return false;
    }
}

} // namespace dropshade
