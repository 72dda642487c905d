// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "imagepalette/HeifCheck.h"

#include "bytes/ByteReader.h"
#include "imagepalette/HevcHeaders.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <utility>
#include <vector>

namespace dropshade {

namespace {

using Bytes = std::span<const std::uint8_t>;
using ItemId = std::uint32_t;
using PixelCount = std::optional<std::uint64_t>;

// No image is derived from derived images in more steps.
constexpr int deepestDerivation = 4;
// Above every limit that a caller may have.
constexpr std::uint64_t endlessPixels = std::uint64_t{1} << 48;
// Boxes in a row; and items with their pieces, properties and references. A camera's file has
// hundreds.
constexpr std::size_t mostParts = 50'000;

consteval std::uint32_t code(const char (&name)[5]) {
    std::uint32_t result = 0;
    for (int at = 0; at < 4; ++at)
        result = result << 8 | static_cast<std::uint8_t>(name[at]);
    return result;
}

struct Box {
    std::uint32_t type = 0;
    Bytes body;
};

/// Boxes that follow each other.
struct Boxes {
    std::vector<Box> all;
    /// False where the bytes go on after the last of them.
    bool areWhole = true;
};

/// The boxes up to the first one that is cut short or one too many.
Boxes leadingBoxes(Bytes bytes) {
    Boxes boxes;
    while (!bytes.empty()) {
        boxes.areWhole = boxes.all.size() < mostParts;
        if (!boxes.areWhole)
            break;
        ByteReader reader(bytes);
        std::uint64_t size = reader.u32();
        const std::uint32_t type = reader.u32();
        if (size == 1)
            size = reader.u64();
        else if (size == 0)
            size = bytes.size();
        boxes.areWhole = !reader.failed() && size >= reader.position() && size <= bytes.size();
        if (!boxes.areWhole)
            break;
        const auto end = static_cast<std::size_t>(size);
        boxes.all.push_back({type, bytes.subspan(reader.position(), end - reader.position())});
        bytes = bytes.subspan(end);
    }
    return boxes;
}

std::optional<std::vector<Box>> boxesIn(Bytes bytes) {
    Boxes boxes = leadingBoxes(bytes);
    return boxes.areWhole ? std::optional(std::move(boxes.all)) : std::nullopt;
}

/// The one box of a type; empty bytes where there is none, nothing where there are several.
std::optional<Bytes> onlyBox(const std::vector<Box>& boxes, std::uint32_t type) {
    Bytes found;
    int count = 0;
    for (const Box& box : boxes) {
        if (box.type == type) {
            found = box.body;
            ++count;
        }
    }
    return count <= 1 ? std::optional(found) : std::nullopt;
}

/// A box's version; its flags are skipped.
int versionOf(ByteReader& reader) {
    const int version = reader.u8();
    reader.skip(3);
    return version;
}

ItemId readId(ByteReader& reader, bool isLong) {
    return isLong ? reader.u32() : reader.u16();
}

/// Those of the largest picture that the sequence headers in a decoder configuration tell of.
PixelCount configuredPixels(Bytes configuration) {
    constexpr std::uint64_t fixedSize = 22;
    std::uint64_t most = 0;
    ByteReader reader(configuration);
    reader.skip(fixedSize);
    const int arrays = reader.u8();
    for (int array = 0; array < arrays; ++array) {
        reader.skip(1);
        const int units = reader.u16();
        for (int unit = 0; unit < units && !reader.failed(); ++unit) {
            const Bytes header = reader.take(reader.u16());
            if (reader.failed() || !isHevcSequenceHeader(header))
                continue;
            const PixelCount pixels = hevcPicturePixels(header);
            if (!pixels)
                return std::nullopt;
            most = std::max(most, *pixels);
        }
    }
    return reader.failed() ? std::nullopt : PixelCount(most);
}

PixelCount announcedPixels(Bytes sides) {
    ByteReader reader(sides);
    versionOf(reader);
    const std::uint64_t width = reader.u32();
    const std::uint64_t height = reader.u32();
    return reader.failed() ? std::nullopt : PixelCount(std::min(width * height, endlessPixels));
}

/// What an item may have.
struct Property {
    std::uint32_t type = 0;
    /// None where they are cut short; 0 of a property that has none.
    PixelCount pixels = 0;
};

Property propertyOf(const Box& box) {
    if (box.type == code("hvcC"))
        return {box.type, configuredPixels(box.body)};
    if (box.type == code("ispe"))
        return {box.type, announcedPixels(box.body)};
    return {box.type};
}

/// The items of a file, as far as the primary image needs them.
class Items {
public:
    /// False where something is missing, cut short or told twice.
    bool read(Bytes file) {
        m_file = file;
        // Cameras hang bytes of their own on the end; the locations tell whether anything is
        // missing.
        const auto meta = onlyBox(leadingBoxes(file).all, code("meta"));
        const auto parts = meta && meta->size() > 4 ? boxesIn(meta->subspan(4)) : std::nullopt;
        if (!parts)
            return false;
        const auto body = [&parts](std::uint32_t type) {
            return onlyBox(*parts, type).value_or(Bytes());
        };
        m_data = body(code("idat"));
        return readPrimary(body(code("pitm"))) && readTypes(body(code("iinf"))) &&
               readLocations(body(code("iloc"))) && readProperties(body(code("iprp"))) &&
               readReferences(body(code("iref")));
    }

    PixelCount primaryPixels() { return pixelsOf(m_primary, 0); }

private:
    /// False once they are too many to be read.
    bool addPart() { return ++m_parts <= mostParts; }

    struct Extent {
        std::uint64_t offset = 0;
        std::uint64_t length = 0;
    };

    struct Item {
        std::uint32_t type = 0;
        bool isInDataBox = false;
        std::vector<Extent> extents;
        std::vector<std::size_t> properties;
        /// What it is put together from.
        std::vector<ItemId> sources;
        /// Its alpha channel, its depths and the like.
        std::vector<ItemId> auxiliaries;
    };

    bool readPrimary(Bytes box);
    bool readTypes(Bytes box);
    bool readLocations(Bytes box);
    bool readProperties(Bytes box);
    bool readAssociations(Bytes box);
    bool readReferences(Bytes box);

    PixelCount pixelsOf(ItemId id, int depth);
    PixelCount pixelsOf(const std::vector<ItemId>& ids, int depth);
    PixelCount derivedPixels(const Item& item, int depth);
    PixelCount codedPixels(const Item& item);
    PixelCount mostPixels(const Item& item, std::uint32_t propertyType) const;
    bool isOnePicture(const std::vector<std::uint8_t>& data) const;
    std::optional<std::vector<std::uint8_t>> dataOf(const Item& item);

    Bytes m_file;
    Bytes m_data;
    ItemId m_primary = 0;
    std::map<ItemId, Item> m_items;
    std::vector<Property> m_properties;
    std::size_t m_parts = 0;
    std::map<ItemId, PixelCount> m_known;
    /// Pieces that overlap would make a small file a long read.
    std::uint64_t m_bytesRead = 0;
};

bool Items::readPrimary(Bytes box) {
    ByteReader reader(box);
    m_primary = readId(reader, versionOf(reader) > 0);
    return !reader.failed();
}

bool Items::readTypes(Bytes box) {
    ByteReader reader(box);
    static_cast<void>(readId(reader, versionOf(reader) > 0));
    const auto entries = reader.failed() ? std::nullopt : boxesIn(box.subspan(reader.position()));
    if (!entries)
        return false;
    for (const Box& entry : *entries) {
        ByteReader fields(entry.body);
        const int version = versionOf(fields);
        const ItemId id = readId(fields, version > 2);
        fields.skip(2);
        const std::uint32_t type = fields.u32();
        if (entry.type != code("infe") || version < 2 || fields.failed() || m_items.contains(id))
            return false;
        m_items[id].type = type;
    }
    return true;
}

bool Items::readLocations(Bytes box) {
    ByteReader reader(box);
    const int version = versionOf(reader);
    const std::uint8_t sizes = reader.u8();
    const std::uint8_t moreSizes = reader.u8();
    const auto sized = [&reader](int size) -> std::uint64_t {
        return size == 8 ? reader.u64() : size == 4 ? reader.u32() : 0;
    };
    const int indexSize = version > 0 ? moreSizes & 0x0F : 0;
    const std::uint32_t count = readId(reader, version > 1);
    for (std::uint32_t at = 0; at < count && !reader.failed(); ++at) {
        Item& item = m_items[readId(reader, version > 1)];
        if (!addPart() || !item.extents.empty())
            return false;
        const int method = version > 0 ? reader.u16() & 0x0F : 0;
        item.isInDataBox = method == 1;
        const bool isElsewhere = reader.u16() != 0 || method > 1;
        const std::uint64_t base = sized(moreSizes >> 4);
        const int extents = reader.u16();
        for (int extent = 0; extent < extents && !reader.failed(); ++extent) {
            sized(indexSize);
            const std::uint64_t offset = base + sized(sizes >> 4);
            const std::uint64_t length = sized(sizes & 0x0F);
            if (!addPart())
                return false;
            if (!isElsewhere)
                item.extents.push_back({offset, length});
        }
    }
    return !reader.failed();
}

bool Items::readProperties(Bytes box) {
    const auto parts = boxesIn(box);
    const auto container = parts ? onlyBox(*parts, code("ipco")) : std::nullopt;
    const auto properties = container ? boxesIn(*container) : std::nullopt;
    if (!properties)
        return false;
    std::transform(properties->begin(), properties->end(), std::back_inserter(m_properties),
                   propertyOf);
    return std::all_of(parts->begin(), parts->end(), [this](const Box& part) {
        return part.type != code("ipma") || readAssociations(part.body);
    });
}

bool Items::readAssociations(Bytes box) {
    ByteReader reader(box);
    const bool hasLongIds = reader.u8() > 0;
    reader.skip(2);
    const bool hasLongIndices = (reader.u8() & 1) != 0;
    const std::uint32_t count = reader.u32();
    for (std::uint32_t at = 0; at < count && !reader.failed(); ++at) {
        Item& item = m_items[readId(reader, hasLongIds)];
        const int indices = reader.u8();
        for (int index = 0; index < indices; ++index) {
            if (!addPart())
                return false;
            item.properties.push_back(hasLongIndices ? reader.u16() & 0x7FFFu
                                                     : reader.u8() & 0x7Fu);
        }
    }
    return !reader.failed();
}

bool Items::readReferences(Bytes box) {
    if (box.empty())
        return true;
    ByteReader header(box);
    const bool hasLongIds = versionOf(header) > 0;
    const auto references =
        header.failed() ? std::nullopt : boxesIn(box.subspan(header.position()));
    if (!references)
        return false;
    for (const Box& reference : *references) {
        ByteReader reader(reference.body);
        const ItemId from = readId(reader, hasLongIds);
        const int count = reader.u16();
        for (int at = 0; at < count; ++at) {
            if (!addPart())
                return false;
            const ItemId to = readId(reader, hasLongIds);
            if (reference.type == code("dimg"))
                m_items[from].sources.push_back(to);
            else if (reference.type == code("auxl"))
                m_items[to].auxiliaries.push_back(from);
        }
        if (reader.failed())
            return false;
    }
    return true;
}

PixelCount Items::pixelsOf(ItemId id, int depth) {
    if (const auto known = m_known.find(id); known != m_known.end())
        return known->second;
    const auto found = m_items.find(id);
    if (found == m_items.end() || depth > deepestDerivation)
        return std::nullopt;
    const Item& item = found->second;
    const bool isCoded = item.type == code("hvc1");
    const PixelCount own = isCoded ? codedPixels(item) : derivedPixels(item, depth);
    const PixelCount announced = mostPixels(item, code("ispe"));
    const PixelCount auxiliary = pixelsOf(item.auxiliaries, depth);
    PixelCount result;
    if (own && announced && auxiliary)
        result = std::max(*own, *announced) + *auxiliary;
    m_known.emplace(id, result);
    return result;
}

/// Of a grid, an overlay, or an image that is another one turned.
PixelCount Items::derivedPixels(const Item& item, int depth) {
    const bool isGrid = item.type == code("grid");
    const bool isOverlay = item.type == code("iovl");
    if (!isGrid && !isOverlay && item.type != code("iden"))
        return std::nullopt;
    std::uint64_t total = 0;
    if (isGrid || isOverlay) {
        const auto data = dataOf(item);
        if (!data)
            return std::nullopt;
        ByteReader reader(*data);
        reader.skip(1);
        const bool isLong = (reader.u8() & 1) != 0;
        // Rows and columns, or the four channels of the background.
        reader.skip(isGrid ? 2 : 8);
        const std::uint64_t width = readId(reader, isLong);
        const std::uint64_t height = readId(reader, isLong);
        if (reader.failed())
            return std::nullopt;
        total = std::min(width * height, endlessPixels);
    }
    const PixelCount sources = pixelsOf(item.sources, depth);
    return sources ? PixelCount(total + *sources) : std::nullopt;
}

/// All of them together, as often as each is named; they are one step further from the primary
/// image.
PixelCount Items::pixelsOf(const std::vector<ItemId>& ids, int depth) {
    std::uint64_t total = 0;
    for (const ItemId id : ids) {
        const PixelCount pixels = pixelsOf(id, depth + 1);
        if (!pixels)
            return std::nullopt;
        total = std::min(total + *pixels, endlessPixels);
    }
    return total;
}

/// By the sequence headers among the item's properties, the only place where they may stand.
PixelCount Items::codedPixels(const Item& item) {
    const PixelCount pixels = mostPixels(item, code("hvcC"));
    const auto data = pixels && *pixels > 0 ? dataOf(item) : std::nullopt;
    return data && isOnePicture(*data) ? pixels : std::nullopt;
}

PixelCount Items::mostPixels(const Item& item, std::uint32_t propertyType) const {
    std::uint64_t most = 0;
    for (const std::size_t number : item.properties) {
        if (number == 0 || number > m_properties.size())
            continue;
        const Property& property = m_properties[number - 1];
        if (property.type != propertyType)
            continue;
        if (!property.pixels)
            return std::nullopt;
        most = std::max(most, *property.pixels);
    }
    return most;
}

bool Items::isOnePicture(const std::vector<std::uint8_t>& data) const {
    ByteReader reader(data);
    int pictures = 0;
    while (reader.position() < data.size()) {
        const std::uint32_t length = reader.u32();
        const std::size_t start = reader.position();
        reader.skip(length);
        if (reader.failed())
            return false;
        const Bytes unit = Bytes(data).subspan(start, length);
        if (isHevcSequenceHeader(unit))
            return false;
        pictures += startsHevcPicture(unit) ? 1 : 0;
    }
    return pictures == 1;
}

std::optional<std::vector<std::uint8_t>> Items::dataOf(const Item& item) {
    const Bytes source = item.isInDataBox ? m_data : m_file;
    const ByteReader bounds(source);
    std::vector<std::uint8_t> data;
    for (const Extent& extent : item.extents) {
        if (!bounds.contains(extent.offset, extent.length))
            return std::nullopt;
        m_bytesRead += extent.length;
        if (m_bytesRead > m_file.size())
            return std::nullopt;
        const Bytes piece = source.subspan(static_cast<std::size_t>(extent.offset),
                                           static_cast<std::size_t>(extent.length));
        data.insert(data.end(), piece.begin(), piece.end());
    }
    return data;
}

} // namespace

std::optional<std::uint64_t> heifDecodingPixels(std::span<const std::uint8_t> file) {
    Items items;
    return items.read(file) ? items.primaryPixels() : std::nullopt;
}

} // namespace dropshade
