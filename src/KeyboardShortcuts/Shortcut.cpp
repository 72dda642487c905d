// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "KeyboardShortcuts/Shortcut.h"

#include "platform/ModifierKeys.h"
#include "json/JsonReader.h"
#include "json/JsonWriter.h"

#include <cmath>
#include <limits>

namespace dropshade {

namespace {

std::optional<std::uint32_t> readInteger(JsonReader& json) {
    const double number = json.number();
    const bool isLegal = number >= 0 && number <= std::numeric_limits<std::uint32_t>::max() &&
                         number == std::trunc(number);
    return isLegal ? std::optional(static_cast<std::uint32_t>(number)) : std::nullopt;
}

} // namespace

Shortcut Shortcut::ofEvent(std::uint32_t keyCode, std::uint32_t cocoaFlags) {
    return {keyCode, dropshade::carbonModifiers(cocoaFlags) & ~functionKey};
}

std::optional<Shortcut> Shortcut::fromJson(const QString& text) {
    std::optional<std::uint32_t> keyCode;
    std::optional<std::uint32_t> modifiers;
    try {
        JsonReader json(text.toUtf8());
        json.object([&](std::string_view key) {
            if (key == "carbonKeyCode")
                keyCode = readInteger(json);
            else if (key == "carbonModifiers")
                modifiers = readInteger(json);
            else
                json.skip();
        });
        json.end();
    } catch (const JsonError&) {
        return std::nullopt;
    }
    if (!keyCode || !modifiers)
        return std::nullopt;
    return Shortcut{*keyCode, *modifiers};
}

QString Shortcut::toJson() const {
    JsonWriter json;
    json.beginObject();
    json.key("carbonKeyCode");
    json.number(carbonKeyCode);
    json.key("carbonModifiers");
    json.number(carbonModifiers);
    json.endObject();
    return QString::fromUtf8(json.text());
}

} // namespace dropshade
