// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "json/JsonReader.h"
#include "json/JsonWriter.h"

#include <QList>

#include <optional>
#include <type_traits>
#include <utility>

namespace dropshade {

/// The document that `write(writer)` writes, or nothing where a value has no form in JSON.
template <typename Write>
[[nodiscard]] std::optional<QByteArray> encodedJson(Write write) {
    try {
        JsonWriter writer;
        write(writer);
        return writer.text();
    } catch (const JsonError&) {
        return std::nullopt;
    }
}

/// What `read(reader)` makes of the document, or nothing where it isn't what is expected.
template <typename Read>
[[nodiscard]] auto decodedJson(const QByteArray& json, Read read)
    -> std::optional<std::invoke_result_t<Read, JsonReader&>> {
    try {
        JsonReader reader(json);
        auto value = read(reader);
        reader.end();
        return value;
    } catch (const JsonError&) {
        return std::nullopt;
    }
}

/// The array of what `write(writer, item)` writes for each item, or nothing.
template <typename Item, typename Write>
[[nodiscard]] std::optional<QByteArray> encodedJsonList(const QList<Item>& items, Write write) {
    return encodedJson([&](JsonWriter& writer) {
        writer.beginArray();
        for (const Item& item : items)
            write(writer, item);
        writer.endArray();
    });
}

/// What `read(reader)` makes of each item of an array. One bad item makes it nothing as a whole.
template <typename Read>
[[nodiscard]] auto decodedJsonList(const QByteArray& json, Read read)
    -> std::optional<QList<std::invoke_result_t<Read, JsonReader&>>> {
    return decodedJson(json, [&read](JsonReader& reader) {
        QList<std::invoke_result_t<Read, JsonReader&>> items;
        reader.array([&] { items.append(read(reader)); });
        return items;
    });
}

/// The value of a key that an object must have.
template <typename Value>
[[nodiscard]] const Value& required(const std::optional<Value>& value) {
    if (!value)
        throw JsonError("a key is missing");
    return *value;
}
template <typename Value>
[[nodiscard]] Value required(std::optional<Value>&& value) {
    if (!value)
        throw JsonError("a key is missing");
    return *std::move(value);
}

} // namespace dropshade
