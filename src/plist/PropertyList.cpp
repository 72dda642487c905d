// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "plist/PropertyList.h"

#include "plist/PropertyListGuard.h"

#include <plist/plist.h>

#include <cstdlib>
#include <memory>
#include <type_traits>

namespace dropshade {
namespace {

struct FreeNode {
    void operator()(plist_t node) const { plist_free(node); }
};
struct FreeMemory {
    void operator()(void* memory) const { std::free(memory); }
};
using Node = std::unique_ptr<std::remove_pointer_t<plist_t>, FreeNode>;
template <typename Item>
using Memory = std::unique_ptr<Item, FreeMemory>;

Node parsed(const QByteArray& bytes) {
    plist_t node = nullptr;
    const auto size = static_cast<uint32_t>(bytes.size());
    if (isBinaryPropertyList(bytes))
        plist_from_bin(bytes.constData(), size, &node);
    else
        plist_from_xml(bytes.constData(), size, &node);
    return Node(node);
}

QString stringIn(plist_t node) {
    uint64_t length = 0;
    const char* text = plist_get_string_ptr(node, &length);
    return text ? QString::fromUtf8(text, static_cast<qsizetype>(length)) : QString();
}

QByteArray dataIn(plist_t node) {
    uint64_t length = 0;
    const char* data = plist_get_data_ptr(node, &length);
    return data ? QByteArray(data, static_cast<qsizetype>(length)) : QByteArray("");
}

std::optional<DefaultsValue> stringListIn(plist_t node) {
    QStringList list;
    for (uint32_t index = 0; index < plist_array_get_size(node); ++index) {
        const plist_t item = plist_array_get_item(node, index);
        if (plist_get_node_type(item) != PLIST_STRING)
            return std::nullopt;
        list.append(stringIn(item));
    }
    return list;
}

std::optional<DefaultsValue> valueIn(plist_t node) {
    uint8_t boolean = 0;
    uint64_t integer = 0;
    double real = 0.0;
    switch (plist_get_node_type(node)) {
    case PLIST_BOOLEAN:
        plist_get_bool_val(node, &boolean);
        return boolean != 0;
    case PLIST_UINT:
        // Named unsigned, but it carries the bits of negative integers as well.
        plist_get_uint_val(node, &integer);
        return static_cast<qint64>(integer);
    case PLIST_REAL:
        plist_get_real_val(node, &real);
        return real;
    case PLIST_STRING:
        return stringIn(node);
    case PLIST_DATA:
        return dataIn(node);
    case PLIST_ARRAY:
        return stringListIn(node);
    default:
        return std::nullopt;
    }
}

} // namespace

std::optional<std::map<QString, DefaultsValue>> propertyListDictionary(const QByteArray& bytes) {
    const Node root = isReasonablePropertyList(bytes) ? parsed(bytes) : Node();
    if (!root || plist_get_node_type(root.get()) != PLIST_DICT)
        return std::nullopt;
    plist_dict_iter started = nullptr;
    plist_dict_new_iter(root.get(), &started);
    const Memory<void> iterator(started);
    std::map<QString, DefaultsValue> entries;
    for (;;) {
        char* key = nullptr;
        plist_t node = nullptr;
        plist_dict_next_item(root.get(), iterator.get(), &key, &node);
        const Memory<char> keyOwner(key);
        if (!node)
            return entries;
        if (const auto value = key ? valueIn(node) : std::nullopt)
            entries.insert_or_assign(QString::fromUtf8(key), *value);
    }
}

} // namespace dropshade
