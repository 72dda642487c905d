// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "sync/Tombstone.h"

#include "json/JsonDocument.h"
#include "json/UuidText.h"

#include <algorithm>

namespace dropshade {
namespace {

Tombstone readTombstone(JsonReader& json) {
    std::optional<QUuid> id;
    std::optional<double> deletedAt;
    json.object([&](std::string_view key) {
        if (key == "id")
            id = json.uuid();
        else if (key == "deletedAt")
            deletedAt = json.number();
        else
            json.skip();
    });
    return {required(id), ReferenceTime{required(deletedAt)}};
}

} // namespace

std::optional<QByteArray> encodedTombstones(const QList<Tombstone>& tombstones) {
    return encodedJsonList(tombstones, [](JsonWriter& json, const Tombstone& tombstone) {
        json.beginObject();
        json.key("id");
        json.uuid(tombstone.id);
        json.key("deletedAt");
        json.number(tombstone.deletedAt.seconds);
        json.endObject();
    });
}

std::optional<QList<Tombstone>> decodedTombstones(const QByteArray& json) {
    return decodedJsonList(json, readTombstone);
}

QList<Tombstone> livingTombstones(const QList<Tombstone>& tombstones, ReferenceTime now) {
    QList<Tombstone> living;
    for (const Tombstone& tombstone : tombstones) {
        if (tombstone.deletedAt.seconds > now.seconds - tombstoneLifetime)
            living.append(tombstone);
    }
    return living;
}

QList<Tombstone> unitedTombstones(const QList<Tombstone>& ours, const QList<Tombstone>& theirs) {
    QList<Tombstone> united;
    QHash<QUuid, qsizetype> places;
    for (const Tombstone& tombstone : ours + theirs) {
        const auto place = places.constFind(tombstone.id);
        if (place == places.cend()) {
            places.insert(tombstone.id, united.size());
            united.append(tombstone);
        } else {
            united[*place].deletedAt = std::max(united.at(*place).deletedAt, tombstone.deletedAt);
        }
    }
    return united;
}

void endOnDuplicate(const QUuid& id) {
    qFatal("Duplicate values for key: '%s'", qPrintable(uuidText(id)));
}

QHash<QUuid, ReferenceTime> deletionMoments(const QList<Tombstone>& tombstones) {
    QHash<QUuid, ReferenceTime> moments;
    for (const Tombstone& tombstone : tombstones) {
        if (moments.contains(tombstone.id))
            endOnDuplicate(tombstone.id);
        moments.insert(tombstone.id, tombstone.deletedAt);
    }
    return moments;
}

} // namespace dropshade
