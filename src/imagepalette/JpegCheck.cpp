// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "bytes/ByteReader.h"
#include "imagepalette/ImageFileCheck.h"

#include <algorithm>

namespace dropshade {

namespace {

// A camera writes about ten passes; each costs the decoder a walk over the whole image.
constexpr int mostScans = 64;
// A decoder that needs several passes keeps two bytes for each of a block's 64 coefficients.
constexpr std::uint64_t mostBufferedBlocks = 160u * 1024 * 1024 / 128;

constexpr std::uint8_t endOfImage = 0xD9;
constexpr std::uint8_t startOfScan = 0xDA;

bool isStandalone(std::uint8_t marker) {
    return marker == 0x01 || (marker >= 0xD0 && marker <= 0xD8);
}

bool isStartOfFrame(std::uint8_t marker) {
    return marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
}

struct Frame {
    std::uint64_t blocks = 0;
    bool isProgressive = false;
    bool isArithmetic = false;
};

/// Reads the body of a frame header. No blocks where it makes no sense.
Frame readFrame(ByteReader reader, std::uint8_t marker) {
    reader.skip(1);
    const std::uint64_t height = reader.u16();
    const std::uint64_t width = reader.u16();
    const int components = reader.u8();
    std::uint64_t blocksPerUnit = 0;
    std::uint64_t unitWidth = 0;
    std::uint64_t unitHeight = 0;
    for (int component = 0; component < components; ++component) {
        reader.skip(1);
        const std::uint8_t sampling = reader.u8();
        reader.skip(1);
        const std::uint64_t across = sampling >> 4;
        const std::uint64_t down = sampling & 0x0F;
        blocksPerUnit += across * down;
        unitWidth = std::max(unitWidth, across * 8);
        unitHeight = std::max(unitHeight, down * 8);
    }
    if (reader.failed() || unitWidth == 0 || unitHeight == 0)
        return {};
    const std::uint64_t units =
        ((width + unitWidth - 1) / unitWidth) * ((height + unitHeight - 1) / unitHeight);
    // A single component is stored block by block, whatever its sampling says.
    const std::uint64_t blocks =
        components == 1 ? ((width + 7) / 8) * ((height + 7) / 8) : units * blocksPerUnit;
    return {blocks, (marker & 0x03) == 0x02, marker >= 0xC9};
}

/// Stray bytes between two segments are passed over, as every decoder does.
std::uint8_t nextMarker(ByteReader& reader) {
    std::uint8_t byte = reader.u8();
    while (byte != 0xFF && !reader.failed())
        byte = reader.u8();
    while (byte == 0xFF)
        byte = reader.u8();
    return byte;
}

/// Steps over the coded data of a scan to the marker that ends it.
void skipScanData(ByteReader& reader, std::span<const std::uint8_t> file) {
    auto at = file.begin() + static_cast<std::ptrdiff_t>(reader.position());
    for (;;) {
        at = std::find(at, file.end(), std::uint8_t{0xFF});
        if (at == file.end() || at + 1 == file.end())
            break;
        const std::uint8_t next = at[1];
        const bool isData = next == 0 || (next >= 0xD0 && next <= 0xD7);
        if (!isData && next != 0xFF) {
            reader.seek(static_cast<std::uint64_t>(at - file.begin()));
            return;
        }
        ++at;
    }
    reader.seek(file.size());
}

} // namespace

bool isWholeJpeg(std::span<const std::uint8_t> file) {
    ByteReader reader(file);
    reader.skip(2);
    Frame frame;
    int scans = 0;
    std::uint64_t codedBytes = 0;
    for (;;) {
        const std::uint8_t marker = nextMarker(reader);
        if (marker == endOfImage)
            break;
        if (isStandalone(marker))
            continue;
        if (reader.failed())
            return false;
        const ByteReader atLength = reader;
        const std::uint16_t length = reader.u16();
        if (length < 2)
            return false;
        if (isStartOfFrame(marker)) {
            if (frame.blocks != 0)
                return false;
            frame = readFrame(reader, marker);
        }
        reader = atLength;
        reader.skip(length);
        if (marker == startOfScan) {
            const std::size_t start = reader.position();
            skipScanData(reader, file);
            codedBytes += reader.position() - start;
            ++scans;
        }
        if (reader.failed() || scans > mostScans)
            return false;
    }
    if (frame.blocks == 0 || scans == 0)
        return false;
    if ((scans > 1 || frame.isProgressive) && frame.blocks > mostBufferedBlocks)
        return false;
    // Every block has at least one bit of its own, but in arithmetic coding.
    return frame.isArithmetic || codedBytes * 8 >= frame.blocks;
}

} // namespace dropshade
