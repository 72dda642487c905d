// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "archive/PropertyListObjects.h"

#include <algorithm>
#include <array>

namespace dropshade {
namespace {

constexpr std::array<std::uint8_t, 8> magic = {'b', 'p', 'l', 'i', 's', 't', '0', '0'};
constexpr std::size_t trailerSize = 32;

bool isWidth(std::uint64_t size) {
    return size >= 1 && size <= 8;
}

} // namespace

bool PropertyListObjects::isBinary(std::span<const std::uint8_t> bytes) {
    return bytes.size() >= magic.size() && std::ranges::equal(bytes.first(magic.size()), magic);
}

std::optional<PropertyListObjects> PropertyListObjects::of(std::span<const std::uint8_t> bytes) {
    if (bytes.size() < magic.size() + trailerSize)
        return std::nullopt;
    PropertyListObjects objects(bytes);
    const std::size_t trailer = bytes.size() - trailerSize;
    objects.m_offsetSize = objects.number(trailer + 6, 1);
    objects.m_referenceSize = objects.number(trailer + 7, 1);
    objects.m_count = objects.number(trailer + 8, 8);
    objects.m_root = objects.number(trailer + 16, 8);
    objects.m_offsets = objects.number(trailer + 24, 8);
    const bool isSound = isWidth(objects.m_offsetSize) && isWidth(objects.m_referenceSize) &&
                         objects.m_offsets <= trailer &&
                         objects.m_count <= (trailer - objects.m_offsets) / objects.m_offsetSize;
    return isSound ? std::optional(objects) : std::nullopt;
}

std::optional<PropertyListObjects::Head> PropertyListObjects::head(std::uint64_t object) const {
    if (object >= m_count)
        return std::nullopt;
    const std::uint64_t offset = number(m_offsets + object * m_offsetSize, m_offsetSize);
    if (offset >= m_bytes.size())
        return std::nullopt;
    auto at = std::size_t(offset);
    const unsigned marker = m_bytes[at++];
    Head head = {marker >> 4U, marker & 0xFU, 0};
    const bool hasCount = head.kind >= data && head.kind != uid;
    if (hasCount && head.count == 0xF && !takeLongCount(at, head.count))
        return std::nullopt;
    head.content = at;
    return head;
}

/// A count above 14 stands behind the marker as an integer of 1, 2, 4 or 8 bytes.
bool PropertyListObjects::takeLongCount(std::size_t& at, std::uint64_t& count) const {
    if (at >= m_bytes.size())
        return false;
    const unsigned marker = m_bytes[at++];
    const std::uint64_t size = std::uint64_t(1) << (marker & 0xFU);
    if (marker >> 4U != integer || size > 8 || size > m_bytes.size() - at)
        return false;
    count = number(at, size);
    at += std::size_t(size);
    return true;
}

std::optional<std::span<const std::uint8_t>> PropertyListObjects::bytes(std::size_t at,
                                                                        std::uint64_t count) const {
    if (at > m_bytes.size() || count > m_bytes.size() - at)
        return std::nullopt;
    return m_bytes.subspan(at, std::size_t(count));
}

std::uint64_t PropertyListObjects::number(std::uint64_t at, std::uint64_t size) const {
    std::uint64_t value = 0;
    for (const std::uint8_t byte : m_bytes.subspan(std::size_t(at), std::size_t(size)))
        value = value << 8U | byte;
    return value;
}

} // namespace dropshade
