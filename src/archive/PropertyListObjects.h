// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

namespace dropshade {

/// The objects of a binary property list, read where they lie. Nothing is copied and nothing is
/// followed, so objects may be shared, nested or refer to themselves in any way at no cost. The
/// bytes must outlive this.
class PropertyListObjects {
public:
    /// The high half of an object's first byte.
    enum Kind : unsigned {
        integer = 0x1,
        real = 0x2,
        data = 0x4,
        asciiString = 0x5,
        utf16String = 0x6,
        uid = 0x8,
        array = 0xA,
        set = 0xC,
        dictionary = 0xD,
    };

    struct Head {
        unsigned kind = 0;
        /// Of bytes, UTF-16 units or entries. For the other kinds the low half of the first byte.
        std::uint64_t count = 0;
        /// Where the content begins, within the file or at its end; how much of it there is has not
        /// been checked.
        std::size_t content = 0;
    };

    [[nodiscard]] static bool isBinary(std::span<const std::uint8_t> bytes);

    /// Nothing where the trailer points out of the file.
    [[nodiscard]] static std::optional<PropertyListObjects> of(std::span<const std::uint8_t> bytes);

    [[nodiscard]] std::uint64_t root() const { return m_root; }
    [[nodiscard]] std::size_t size() const { return m_bytes.size(); }

    /// Nothing for an object that isn't in the file.
    [[nodiscard]] std::optional<Head> head(std::uint64_t object) const;

    /// How many references the content of this container can hold before the file ends.
    [[nodiscard]] std::uint64_t mostReferences(const Head& container) const {
        return (m_bytes.size() - container.content) / m_referenceSize;
    }
    /// The reference in this place, which must be below `mostReferences`. The keys of a dictionary
    /// come before its values.
    [[nodiscard]] std::uint64_t reference(const Head& container, std::uint64_t place) const {
        return number(container.content + place * m_referenceSize, m_referenceSize);
    }

    /// The bytes from here on; nothing where the file ends before.
    [[nodiscard]] std::optional<std::span<const std::uint8_t>> bytes(std::size_t at,
                                                                     std::uint64_t count) const;

    /// An unsigned number, most significant byte first, that must lie within the file.
    [[nodiscard]] std::uint64_t number(std::uint64_t at, std::uint64_t size) const;

private:
    explicit PropertyListObjects(std::span<const std::uint8_t> bytes) : m_bytes(bytes) {}

    bool takeLongCount(std::size_t& at, std::uint64_t& count) const;

    std::span<const std::uint8_t> m_bytes;
    std::uint64_t m_offsetSize = 0;
    std::uint64_t m_referenceSize = 0;
    std::uint64_t m_count = 0;
    std::uint64_t m_root = 0;
    std::uint64_t m_offsets = 0;
};

} // namespace dropshade
