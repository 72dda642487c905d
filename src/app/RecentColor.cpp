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

QList<RecentColor> decodedColors(const std::optional<DefaultsValue>& stored) {
    const QByteArray* json = stored ? std::get_if<QByteArray>(&*stored) : nullptr;
    return json ? decodedJsonList(*json, readRecentColor).value_or(QList<RecentColor>())
                : QList<RecentColor>();
}

/// The front of the list, nothing where that has no form.
std::optional<QByteArray> encodedColors(const QList<RecentColor>& colors, qsizetype most) {
    return encodedJsonList(
        colors.first(std::min(colors.size(), most)),
        [](JsonWriter& writer, const RecentColor& color) { write(writer, color); });
}

/// A limit that can't be read cuts nothing: the next colour does.
qsizetype knownLimit(const UserDefaults& defaults) {
    const int refusedBefore = defaults.refusedReads();
    const int limit = recentColorsLimit(defaults);
    return defaults.refusedReads() == refusedBefore ? limit : mostRecentColors;
}

/// Puts `added` in front of what is stored, once that can be read, and cuts it all to the limit.
void amendRecentColors(UserDefaults& defaults, const QList<RecentColor>& added) {
    const auto amended = [added, most = knownLimit(defaults)](const auto& stored) {
        const auto json = encodedColors(added + decodedColors(stored), most);
        return json ? DefaultsValue(*json) : stored.value_or(QByteArray("[]"));
    };
    defaults.amend(keys::recentColors, amended);
}

} // namespace

QList<RecentColor> loadRecentColors(const UserDefaults& defaults) {
    return decodedColors(defaults.value(keys::recentColors));
}

void saveRecentColors(UserDefaults& defaults, const QList<RecentColor>& colors) {
    if (const auto json = encodedColors(colors, recentColorsLimit(defaults)))
        defaults.setValue(keys::recentColors, *json);
}

void recordRecentColor(UserDefaults& defaults, const SRGBColor& color) {
    amendRecentColors(
        defaults, {{QUuid::createUuid(), color.red(), color.green(), color.blue(), color.alpha()}});
}

void setRecentColorsLimit(UserDefaults& defaults, int limit) {
    defaults.setValue(keys::recentColorsLimit, qint64(std::clamp(limit, 0, mostRecentColors)));
    amendRecentColors(defaults, {});
}

} // namespace dropshade
