// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "sync/CloudPalettes.h"

#include "palettes/PaletteJson.h"
#include "sync/SyncValueCodec.h"
#include "json/JsonDocument.h"
#include "json/UuidText.h"

#include <QCryptographicHash>
#include <QSet>

namespace dropshade {
namespace {

struct ToDouble {
    double operator()(bool value) const { return value ? 1.0 : 0.0; }
    double operator()(qint64 value) const { return double(value); }
    double operator()(double value) const { return value; }
    double operator()(const QString&) const { return 0.0; }
    double operator()(const QByteArray&) const { return 0.0; }
    double operator()(const QStringList&) const { return 0.0; }
};

QByteArray digestOf(const QByteArray& value) {
    return QCryptographicHash::hash(value, QCryptographicHash::Sha1);
}

/// Whether it is one and the same, without a look at what is in it.
bool isSame(const Palette& a, const Palette& b) {
    return a.id() == b.id() && a.lastModified() == b.lastModified() && a.name() == b.name() &&
           a.scales().constData() == b.scales().constData();
}

CloudPalettes::Prepared preparedOf(const Palette& palette) {
    if (const auto json = encodedPalette(palette)) {
        const QByteArray value = sharedValue(*json);
        if (value.size() < palettesTooLarge)
            return {palette, value, digestOf(value)};
    }
    return {palette, std::nullopt, QByteArray()};
}

} // namespace

QString cloudKeys::palette(const QUuid& id) {
    return palettePrefix + uuidText(id);
}

std::optional<QUuid> cloudKeys::paletteId(const QString& key) {
    if (!key.startsWith(palettePrefix))
        return std::nullopt;
    return uuidFromText(key.mid(palettePrefix.size()));
}

CloudPalettes::CloudPalettes(CloudKeyValueStore& store, Scheduler& scheduler)
    : m_store(store), m_scheduler(scheduler) {}

std::optional<QByteArray> CloudPalettes::text(const std::optional<CloudValue>& value) {
    const QByteArray* data = value ? std::get_if<QByteArray>(&*value) : nullptr;
    return data ? decompressedValue(*data) : std::nullopt;
}

QHash<QUuid, ReferenceTime> CloudPalettes::stamps() {
    QHash<QUuid, ReferenceTime> found;
    QSet<QUuid> present;
    for (const auto& [key, value] : m_store.dictionaryRepresentation()) {
        const auto id = cloudKeys::paletteId(key);
        if (id)
            present.insert(*id);
        const auto lastModified = id ? glanceAt(*id, value) : std::nullopt;
        if (lastModified)
            found.insert(*id, *lastModified);
    }
    m_glances.removeIf([&present](const auto& glance) { return !present.contains(glance.key()); });
    return found;
}

std::optional<ReferenceTime> CloudPalettes::stamp(const QUuid& id) {
    const auto value = m_store.value(cloudKeys::palette(id));
    return value ? glanceAt(id, *value) : std::nullopt;
}

std::optional<Palette> CloudPalettes::palette(const QUuid& id) {
    const auto known = m_decoded.constFind(id);
    if (known != m_decoded.cend())
        return *known;
    const auto value = m_store.value(cloudKeys::palette(id));
    return value ? decoded(id, *value, m_scheduler.now()) : std::nullopt;
}

std::optional<Palette> CloudPalettes::decoded(const QUuid& id, const CloudValue& value,
                                              ReferenceTime now) const {
    const auto json = text(value);
    auto palette = json ? decodedPalette(*json, now) : std::nullopt;
    return palette && palette->id() == id ? palette : std::nullopt;
}

std::optional<ReferenceTime> CloudPalettes::glanceAt(const QUuid& id, const CloudValue& value) {
    const QByteArray* data = std::get_if<QByteArray>(&value);
    if (data == nullptr)
        return std::nullopt;
    const QByteArray digest = digestOf(*data);
    const auto known = m_glances.constFind(id);
    if (known != m_glances.cend() && known->digest == digest)
        return known->lastModified;
    const ReferenceTime now = m_scheduler.now();
    const auto palette = decoded(id, value, now);
    const auto lastModified = palette ? std::optional(palette->lastModified()) : std::nullopt;
    m_decoded.remove(id);
    if (palette)
        m_decoded.insert(id, *palette);
    // One that lacks its moment is modified anew at each reading.
    if (lastModified == now)
        m_glances.remove(id);
    else
        m_glances.insert(id, {digest, lastModified});
    return lastModified;
}

QList<Palette> CloudPalettes::lacking(const QList<Palette>& palettes) const {
    QList<Palette> lacking;
    for (const Palette& palette : palettes) {
        const auto known = m_glances.constFind(palette.id());
        if (known == m_glances.cend() || !known->lastModified ||
            *known->lastModified < palette.lastModified())
            lacking.append(palette);
    }
    return lacking;
}

QList<CloudPalettes::Prepared> CloudPalettes::prepared(const QList<Palette>& palettes,
                                                       const std::stop_token& token) {
    QList<Prepared> all;
    for (const Palette& palette : palettes) {
        if (token.stop_requested())
            break;
        all.append(preparedOf(palette));
    }
    return all;
}

void CloudPalettes::setPrepared(const QList<Prepared>& prepared) {
    for (const Prepared& one : prepared)
        m_prepared.insert(one.palette.id(), one);
}

void CloudPalettes::save(const Palette& palette) {
    const auto known = m_prepared.constFind(palette.id());
    const bool isPrepared = known != m_prepared.cend() && isSame(known->palette, palette);
    const Prepared own = isPrepared ? *known : preparedOf(palette);
    if (!own.value)
        return;
    m_store.setValue(cloudKeys::palette(palette.id()), *own.value);
    m_glances.insert(palette.id(), {own.digest, palette.lastModified()});
}

void CloudPalettes::forgetDecoded() {
    m_decoded.clear();
    m_prepared.clear();
}

void CloudPalettes::remove(const QUuid& id) {
    m_store.remove(cloudKeys::palette(id));
}

QList<Tombstone> CloudPalettes::loadTombstones() const {
    const auto json = text(m_store.value(cloudKeys::tombstones));
    const auto all = json ? decodedTombstones(*json) : std::nullopt;
    return livingTombstones(all.value_or(QList<Tombstone>()), m_scheduler.now());
}

void CloudPalettes::saveTombstones(const QList<Tombstone>& tombstones) {
    if (const auto json = encodedTombstones(tombstones))
        m_store.setValue(cloudKeys::tombstones, compressedValue(*json));
}

QList<QUuid> CloudPalettes::loadRemoteOrder() const {
    const auto json = text(m_store.value(cloudKeys::order));
    const auto ids = json ? decodedJsonList(*json, [](JsonReader& reader) { return reader.uuid(); })
                          : std::nullopt;
    return ids.value_or(QList<QUuid>());
}

double CloudPalettes::orderUpdatedAt() const {
    const auto value = m_store.value(cloudKeys::orderUpdatedAt);
    return value ? std::visit(ToDouble{}, *value) : 0.0;
}

void CloudPalettes::saveOrder(const QList<QUuid>& ids) {
    const auto json =
        encodedJsonList(ids, [](JsonWriter& writer, const QUuid& id) { writer.uuid(id); });
    if (!json)
        return;
    m_store.setValue(cloudKeys::order, compressedValue(*json));
    m_store.setValue(cloudKeys::orderUpdatedAt, m_scheduler.now().seconds + unixSecondsOfReference);
}

} // namespace dropshade
