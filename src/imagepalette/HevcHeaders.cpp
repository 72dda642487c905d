// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "imagepalette/HevcHeaders.h"

#include <cstddef>

namespace dropshade {

namespace {

constexpr std::size_t headerSize = 2;
constexpr int sequenceHeaderType = 33;
constexpr int firstTypeWithoutPicture = 32;
constexpr std::uint32_t separatePlanesFormat = 3;

int typeOf(std::span<const std::uint8_t> unit) {
    return unit.size() > headerSize ? unit[0] >> 1 & 0x3F : -1;
}

/// The bits of a unit's body, without the bytes that keep it free of start codes.
class BitReader {
public:
    explicit BitReader(std::span<const std::uint8_t> body) : m_body(body) {}

    bool failed() const { return m_failed; }

    std::uint32_t bits(int count) {
        std::uint32_t value = 0;
        for (int at = 0; at < count; ++at)
            value = value << 1 | bit();
        return value;
    }

    void skip(int count) {
        for (int at = 0; at < count; ++at)
            bit();
    }

    /// An unsigned Exp-Golomb code of at most 32 bits.
    std::uint32_t code() {
        int zeros = 0;
        while (!m_failed && bit() == 0) {
            if (++zeros == 32)
                m_failed = true;
        }
        return m_failed ? 0 : (1u << zeros) - 1 + bits(zeros);
    }

private:
    std::uint32_t bit() {
        if (m_left == 0 && !nextByte())
            return 0;
        return m_current >> --m_left & 1u;
    }

    bool nextByte() {
        if (m_zeros >= 2 && m_at < m_body.size() && m_body[m_at] == 3) {
            ++m_at;
            m_zeros = 0;
        }
        if (m_at >= m_body.size()) {
            m_failed = true;
            return false;
        }
        m_current = m_body[m_at++];
        m_zeros = m_current == 0 ? m_zeros + 1 : 0;
        m_left = 8;
        return true;
    }

    std::span<const std::uint8_t> m_body;
    std::size_t m_at = 0;
    std::uint32_t m_current = 0;
    int m_left = 0;
    int m_zeros = 0;
    bool m_failed = false;
};

/// Section 7.3.3.
void skipProfile(BitReader& reader, int subLayers) {
    constexpr int profileBits = 88;
    constexpr int levelBits = 8;
    constexpr int mostSubLayers = 8;
    reader.skip(profileBits + levelBits);
    std::uint32_t hasProfile = 0;
    std::uint32_t hasLevel = 0;
    for (int layer = 0; layer < subLayers; ++layer) {
        hasProfile |= reader.bits(1) << layer;
        hasLevel |= reader.bits(1) << layer;
    }
    if (subLayers > 0)
        reader.skip(2 * (mostSubLayers - subLayers));
    for (int layer = 0; layer < subLayers; ++layer)
        reader.skip((hasProfile >> layer & 1 ? profileBits : 0) +
                    (hasLevel >> layer & 1 ? levelBits : 0));
}

} // namespace

bool isHevcSequenceHeader(std::span<const std::uint8_t> unit) {
    return typeOf(unit) == sequenceHeaderType;
}

bool startsHevcPicture(std::span<const std::uint8_t> unit) {
    const int type = typeOf(unit);
    return type >= 0 && type < firstTypeWithoutPicture && (unit[headerSize] & 0x80) != 0;
}

std::optional<std::uint64_t> hevcPicturePixels(std::span<const std::uint8_t> sequenceHeader) {
    if (sequenceHeader.size() <= headerSize)
        return std::nullopt;
    BitReader reader(sequenceHeader.subspan(headerSize));
    reader.skip(4);
    const auto subLayers = static_cast<int>(reader.bits(3));
    reader.skip(1);
    skipProfile(reader, subLayers);
    reader.code();
    if (reader.code() == separatePlanesFormat)
        reader.skip(1);
    const std::uint64_t width = reader.code();
    const std::uint64_t height = reader.code();
    return reader.failed() ? std::nullopt : std::optional(width * height);
}

} // namespace dropshade
