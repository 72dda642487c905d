// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "bytes/ByteReader.h"
#include "imagepalette/ImageFileCheck.h"

#include <array>
#include <vector>

namespace dropshade {

namespace {

constexpr std::uint8_t imageSeparator = 0x2C;
constexpr std::uint8_t extensionIntroducer = 0x21;

/// The length of a colour table by the flags of the block that announces it.
std::uint64_t colorTableSize(std::uint8_t flags) {
    return flags & 0x80 ? std::uint64_t{3} << ((flags & 0x07) + 1) : 0;
}

void skipSubBlocks(ByteReader& reader) {
    while (const std::uint8_t length = reader.u8())
        reader.skip(length);
}

std::vector<std::uint8_t> readSubBlocks(ByteReader& reader) {
    std::vector<std::uint8_t> bytes;
    while (const std::uint8_t length = reader.u8()) {
        for (int at = 0; at < length; ++at)
            bytes.push_back(reader.u8());
    }
    return bytes;
}

/// Counts what GIF's LZW codes stand for, without what that is.
class CodeLengths {
public:
    explicit CodeLengths(int rootBits)
        : m_rootBits(rootBits), m_clear(1u << rootBits), m_end(m_clear + 1) {
        reset();
    }

    /// Whether the codes stand for at least `wanted` pixels.
    bool cover(std::uint64_t wanted, const std::vector<std::uint8_t>& bytes) {
        std::uint64_t pixels = 0;
        std::uint32_t bits = 0;
        int bitCount = 0;
        for (const std::uint8_t byte : bytes) {
            bits |= std::uint32_t{byte} << bitCount;
            bitCount += 8;
            while (bitCount >= m_codeBits) {
                const std::uint32_t code = bits & ((1u << m_codeBits) - 1);
                bits >>= m_codeBits;
                bitCount -= m_codeBits;
                if (code == m_end)
                    return pixels >= wanted;
                if (!take(code))
                    return false;
                pixels += m_previousLength;
                if (pixels >= wanted)
                    return true;
            }
        }
        return pixels >= wanted;
    }

private:
    static constexpr std::uint32_t tableSize = 4096;
    static constexpr int mostBits = 12;

    void reset() {
        m_codeBits = m_rootBits + 1;
        m_next = m_end + 1;
        m_previousLength = 0;
    }

    bool take(std::uint32_t code) {
        if (code == m_clear) {
            reset();
            return true;
        }
        const std::uint32_t before = m_previousLength;
        if (code < m_clear)
            m_previousLength = 1;
        else if (before != 0 && code < m_next)
            m_previousLength = m_lengths[code];
        else if (before != 0 && code == m_next)
            m_previousLength = before + 1;
        else
            return false;
        if (before != 0 && m_next < tableSize) {
            m_lengths[m_next++] = before + 1;
            if (m_next == 1u << m_codeBits && m_codeBits < mostBits)
                ++m_codeBits;
        }
        return true;
    }

    int m_rootBits;
    std::uint32_t m_clear;
    std::uint32_t m_end;
    int m_codeBits = 0;
    std::uint32_t m_next = 0;
    std::uint32_t m_previousLength = 0;
    std::array<std::uint32_t, tableSize> m_lengths{};
};

bool isWholeFrame(ByteReader& reader) {
    reader.skip(4);
    const std::uint64_t width = reader.u16();
    const std::uint64_t height = reader.u16();
    reader.skip(colorTableSize(reader.u8()));
    const int rootBits = reader.u8();
    if (reader.failed() || rootBits < 1 || rootBits > 8)
        return false;
    const std::vector<std::uint8_t> codes = readSubBlocks(reader);
    return !reader.failed() && CodeLengths(rootBits).cover(width * height, codes);
}

} // namespace

bool isWholeGif(std::span<const std::uint8_t> file) {
    ByteReader reader(file, ByteReader::Endian::little);
    reader.skip(10);
    const std::uint8_t flags = reader.u8();
    reader.skip(2 + colorTableSize(flags));
    while (!reader.failed()) {
        const std::uint8_t block = reader.u8();
        if (block == imageSeparator)
            return isWholeFrame(reader);
        if (block != extensionIntroducer)
            return false;
        reader.skip(1);
        skipSubBlocks(reader);
    }
    return false;
}

} // namespace dropshade
