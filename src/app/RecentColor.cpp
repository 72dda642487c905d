// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "app/RecentColor.h"

#include "app/SettingsReaders.h"
#include "json/JsonDocument.h"

#include <algorithm>

namespace dropshade {
namespace {

RecentColor readRecentColor(JsonReader& json) {
    std::optional<QUuid> id;
    std::optional<double> red;
    std::optional<double> green;
    std::optional<double> blue;
    std::optional<double> alpha;
    json.object([&](std::string_view key) {
        if (key == "id")
            id = json.uuid();
        else if (key == "red")
            red = json.number();
        else if (key == "green")
            green = json.number();
        else if (key == "blue")
            blue = json.number();
        else if (key == "alpha")
            alpha = json.number();
        else
            json.skip();
    });
    return {required(id), required(red), required(green), required(blue), required(alpha)};
}

void write(JsonWriter& json, const RecentColor& color) {
    json.beginObject();
    json.key("id");
    json.uuid(color.id);
    json.key("red");
    json.number(color.red);
    json.key("green");
    json.number(color.green);
    json.key("blue");
    json.number(color.blue);
    json.key("alpha");
    json.number(color.alpha);
    json.endObject();
}

} // namespace

QList<RecentColor> loadRecentColors(const UserDefaults& defaults) {
    const auto json = defaults.read<QByteArray>(keys::recentColors);
    return json ? decodedJsonList(*json, readRecentColor).value_or(QList<RecentColor>())
                : QList<RecentColor>();
}

void saveRecentColors(UserDefaults& defaults, const QList<RecentColor>& colors) {
    const QList<RecentColor> kept =
        colors.first(std::min(colors.size(), qsizetype(recentColorsLimit(defaults))));
    if (const auto json = encodedJsonList(
            kept, [](JsonWriter& writer, const RecentColor& color) { write(writer, color); }))
        defaults.setValue(keys::recentColors, *json);
}

void recordRecentColor(UserDefaults& defaults, const SRGBColor& color) {
    QList<RecentColor> colors = loadRecentColors(defaults);
    colors.prepend({QUuid::createUuid(), color.red(), color.green(), color.blue(), color.alpha()});
    saveRecentColors(defaults, colors);
}

void setRecentColorsLimit(UserDefaults& defaults, int limit) {
    defaults.setValue(keys::recentColorsLimit, qint64(std::clamp(limit, 0, mostRecentColors)));
    saveRecentColors(defaults, loadRecentColors(defaults));
}

} // namespace dropshade
