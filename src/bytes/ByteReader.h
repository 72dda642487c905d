// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace dropshade {

/// Reads numbers from bytes that may end anywhere. Past the end every read gives 0 and `failed`
/// turns true for good, so that a caller may read a whole header and ask once.
class ByteReader {
public:
    enum class Endian { big, little };

    explicit ByteReader(std::span<const std::uint8_t> bytes, Endian endian = Endian::big)
        : m_bytes(bytes), m_endian(endian) {}

    [[nodiscard]] bool failed() const { return m_failed; }
    [[nodiscard]] std::size_t position() const { return m_position; }
    [[nodiscard]] std::size_t size() const { return m_bytes.size(); }
    /// 0 once a read has failed.
    [[nodiscard]] std::size_t remaining() const {
        return m_failed ? 0 : m_bytes.size() - m_position;
    }

    /// Whether `count` bytes from `offset` on lie within the data.
    [[nodiscard]] bool contains(std::uint64_t offset, std::uint64_t count) const {
        return offset <= m_bytes.size() && count <= m_bytes.size() - offset;
    }

    void seek(std::uint64_t position) {
        m_failed |= !contains(position, 0);
        m_position = m_failed ? m_bytes.size() : static_cast<std::size_t>(position);
    }

    void skip(std::uint64_t count) {
        m_failed |= !contains(m_position, count);
        m_position = m_failed ? m_bytes.size() : m_position + static_cast<std::size_t>(count);
    }

    /// The next `count` bytes where they lie, and on behind them; none where there are fewer.
    std::span<const std::uint8_t> take(std::uint64_t count);

    std::uint8_t u8() {
        if (m_failed || m_position >= m_bytes.size()) {
            m_failed = true;
            return 0;
        }
        return m_bytes.data()[m_position++];
    }

    std::uint16_t u16() {
        const std::uint16_t first = u8();
        const std::uint16_t second = u8();
        return static_cast<std::uint16_t>(m_endian == Endian::big ? first << 8 | second
                                                                  : second << 8 | first);
    }

    std::uint32_t u32() {
        const std::uint32_t first = u16();
        const std::uint32_t second = u16();
        return m_endian == Endian::big ? first << 16 | second : second << 16 | first;
    }

    std::uint64_t u64() {
        const std::uint64_t first = u32();
        const std::uint64_t second = u32();
        return m_endian == Endian::big ? first << 32 | second : second << 32 | first;
    }

    /// An IEEE 754 single; it may be infinite or not a number.
    float f32();

private:
    std::span<const std::uint8_t> m_bytes;
    Endian m_endian;
    std::size_t m_position = 0;
    bool m_failed = false;
};

} // namespace dropshade
