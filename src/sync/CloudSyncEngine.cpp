// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "sync/CloudSyncEngine.h"

#include "sync/ConflictRules.h"
#include "sync/PaletteMerge.h"
#include "sync/SizeBudget.h"
#include "sync/SyncValueCodec.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace dropshade {
namespace {

constexpr std::chrono::milliseconds prefsPushDelay{1000};
constexpr std::chrono::milliseconds palettePushDelay{500};

/// The value as a number, for those that are numbers to whoever compares them.
std::optional<double> numberOf(const DefaultsValue& value) {
    if (const bool* boolean = std::get_if<bool>(&value))
        return *boolean ? 1.0 : 0.0;
    if (const qint64* integer = std::get_if<qint64>(&value))
        return double(*integer);
    if (const double* real = std::get_if<double>(&value))
        return *real;
    return std::nullopt;
}

/// Numbers are equal by what they count, whatever their type; two that are no numbers are alike.
bool areEqual(const std::optional<DefaultsValue>& a, const std::optional<DefaultsValue>& b) {
    if (a == b || !a || !b)
        return a == b;
    // Two integers may differ where their doubles don't.
    if (std::holds_alternative<qint64>(*a) && std::holds_alternative<qint64>(*b))
        return false;
    const auto first = numberOf(*a);
    const auto second = numberOf(*b);
    return first && second && (*first == *second || (std::isnan(*first) && std::isnan(*second)));
}

QList<PaletteStamp> stampsOf(const QList<Palette>& palettes) {
    QList<PaletteStamp> stamps;
    stamps.reserve(palettes.size());
    for (const Palette& palette : palettes)
        stamps.append({palette.id(), palette.lastModified()});
    return stamps;
}

qsizetype swatchCountOf(const QList<Palette>& palettes) {
    qsizetype count = 0;
    for (const Palette& palette : palettes) {
        for (const PaletteScale& scale : palette.scales())
            count += scale.swatches().size();
    }
    return count;
}

} // namespace

CloudSyncEngine::CloudSyncEngine(const Surroundings& surroundings)
    : m_kvs(surroundings.kvs), m_defaults(surroundings.defaults),
      m_scheduler(surroundings.scheduler), m_settings(surroundings.settings),
      m_palettes(surroundings.palettes), m_backgroundQueue(surroundings.backgroundQueue),
      m_cloudPalettes(m_kvs, m_scheduler) {}

CloudSyncEngine::~CloudSyncEngine() {
    for (const auto& observer : m_observers)
        disconnect(observer);
}

void CloudSyncEngine::start() {
    if (std::exchange(m_isStarted, true))
        return;
    setStatus({Status::Kind::Syncing, {}});
    observe();
    m_kvs.open([this](const CloudConflict& conflict) {
        return resolvedConflict(conflict, m_cloudPalettes.loadTombstones(), m_scheduler.now());
    });
    m_kvs.synchronize();
    pullAll();
    pushPrefs();
    beginPalettePush();
    checkSizeBudget();
    becomeIdle();
}

void CloudSyncEngine::stop() {
    if (!std::exchange(m_isStarted, false))
        return;
    for (const auto& observer : m_observers)
        disconnect(observer);
    m_observers.clear();
    m_pendingPrefsPush.reset();
    m_pendingPalettePush.reset();
    m_preparation.reset();
    m_lastBaseline.clear();
    m_kvs.close();
    setStatus({Status::Kind::Off, {}});
    if (std::exchange(m_sizeBudgetWarning, false))
        Q_EMIT sizeBudgetWarningDidChange();
}

void CloudSyncEngine::flushPendingPushes() {
    if (!m_isStarted)
        return;
    if (m_pendingPrefsPush)
        pushPrefs();
    if (m_pendingPalettePush || m_preparation)
        pushPalettes();
    m_kvs.synchronize();
}

void CloudSyncEngine::observe() {
    m_observers = {
        connect(&m_kvs, &CloudKeyValueStore::didChangeExternally, this,
                &CloudSyncEngine::handleRemoteChange),
        connect(&m_kvs, &CloudKeyValueStore::troubleDidChange, this,
                &CloudSyncEngine::followTrouble),
        connect(&m_defaults, &UserDefaults::didChange, this, &CloudSyncEngine::schedulePrefsPush),
        connect(&m_palettes, &UserPaletteStore::didChange, this,
                &CloudSyncEngine::schedulePalettePush),
    };
}

void CloudSyncEngine::schedulePrefsPush() {
    m_pendingPrefsPush = m_scheduler.after(prefsPushDelay, [this] { pushPrefs(); });
}

void CloudSyncEngine::schedulePalettePush() {
    m_pendingPalettePush = m_scheduler.after(palettePushDelay, [this] { beginPalettePush(); });
}

void CloudSyncEngine::pullAll() {
    bool hasChanged = false;
    for (const SyncedKey& row : syncedKeys())
        hasChanged |= applyRemoteValue(row);
    pullPalettes();
    if (hasChanged)
        announceAppliedSettings();
}

void CloudSyncEngine::pushPrefs() {
    m_pendingPrefsPush.reset();
    for (const SyncedKey& row : syncedKeys())
        pushValue(row);
    m_kvs.synchronize();
    checkSizeBudget();
    becomeIdle();
}

void CloudSyncEngine::pushValue(const SyncedKey& row) {
    if (row.kind == SyncedValueKind::Raw) {
        const auto local = m_defaults.value(row.defaultsKey);
        if (local && !areEqual(m_kvs.value(row.kvsKey), local))
            m_kvs.setValue(row.kvsKey, *local);
        return;
    }
    const auto local = m_defaults.read<QByteArray>(row.defaultsKey);
    if (!local)
        return;
    const QByteArray compressed = sharedValue(*local);
    if (m_kvs.read<QByteArray>(row.kvsKey) != compressed)
        m_kvs.setValue(row.kvsKey, compressed);
}

bool CloudSyncEngine::applyRemoteValue(const SyncedKey& row) {
    if (row.kind == SyncedValueKind::Raw) {
        const auto remote = m_kvs.value(row.kvsKey);
        if (!remote || areEqual(m_defaults.value(row.defaultsKey), remote))
            return false;
        m_defaults.setValue(row.defaultsKey, *remote);
        return true;
    }
    const auto stored = m_kvs.read<QByteArray>(row.kvsKey);
    const auto remote = stored ? decompressedValue(*stored) : std::nullopt;
    if (!remote || m_defaults.read<QByteArray>(row.defaultsKey) == remote)
        return false;
    m_defaults.setValue(row.defaultsKey, *remote);
    return true;
}

void CloudSyncEngine::announceAppliedSettings() {
    m_settings.reloadFromDefaults();
    Q_EMIT didApplyRemoteChange();
}

void CloudSyncEngine::handleRemoteChange(const QStringList& keys) {
    if (!m_isStarted)
        return;
    if (keys.isEmpty()) {
        pullAll();
        return;
    }
    bool haveSettingsChanged = false;
    bool havePalettesChanged = false;
    for (const QString& key : keys) {
        if (const SyncedKey* row = syncedKey(key))
            haveSettingsChanged |= applyRemoteValue(*row);
        else if (key.startsWith(cloudKeys::palettePrefix))
            havePalettesChanged = true;
    }
    if (havePalettesChanged)
        pullPalettes();
    if (haveSettingsChanged)
        announceAppliedSettings();
    becomeIdle();
}

/// The push itself is one turn of the main thread, with the palettes as they are then: what has
/// changed since it began to be prepared is encoded in it.
void CloudSyncEngine::beginPalettePush() {
    if (m_preparation)
        return;
    const QList<Palette> lacking = m_cloudPalettes.lacking(m_palettes.palettes());
    if (swatchCountOf(lacking) <= mostSwatchesAtOnce) {
        pushPalettes();
        return;
    }
    m_pendingPalettePush.reset();
    if (m_status.kind != Status::Kind::Error)
        setStatus({Status::Kind::Syncing, {}});
    m_preparation = m_backgroundQueue.run(
        [this, lacking](const std::stop_token& token) -> BackgroundQueue::Landing {
            return [this, prepared = CloudPalettes::prepared(lacking, token)] {
                m_cloudPalettes.setPrepared(prepared);
                pushPalettes();
            };
        });
}

void CloudSyncEngine::pushPalettes() {
    m_pendingPalettePush.reset();
    m_preparation.reset();
    const QList<Palette> palettes = m_palettes.palettes();
    buryDeleted(palettes);
    QList<QUuid> order;
    for (const Palette& palette : palettes) {
        const auto remote = m_cloudPalettes.stamp(palette.id());
        if (!remote || *remote < palette.lastModified())
            m_cloudPalettes.save(palette);
        order.append(palette.id());
    }
    m_cloudPalettes.forgetDecoded();
    m_cloudPalettes.saveOrder(order);
    setBaseline(palettes);
    m_kvs.synchronize();
    checkSizeBudget();
    becomeIdle();
}

/// Takes the palettes that were deleted here out of the cloud, and says so to the others.
void CloudSyncEngine::buryDeleted(const QList<Palette>& palettes) {
    QSet<QUuid> present;
    for (const Palette& palette : palettes)
        present.insert(palette.id());
    QList<Tombstone> tombstones = m_cloudPalettes.loadTombstones();
    for (auto known = m_lastBaseline.cbegin(); known != m_lastBaseline.cend(); ++known) {
        if (present.contains(known.key()))
            continue;
        // No earlier than what it deletes, or a palette of a clock that is ahead would come back.
        const ReferenceTime deletedAt = std::max(m_scheduler.now(), known.value());
        const auto buried =
            std::find_if(tombstones.begin(), tombstones.end(),
                         [&](const Tombstone& tombstone) { return tombstone.id == known.key(); });
        if (buried == tombstones.end())
            tombstones.append({known.key(), deletedAt});
        else if (buried->deletedAt < known.value())
            // An edit elsewhere had outlived that deletion; this one is made in view of it.
            buried->deletedAt = deletedAt;
        m_cloudPalettes.remove(known.key());
    }
    m_cloudPalettes.saveTombstones(tombstones);
}

void CloudSyncEngine::pullPalettes() {
    const QList<Palette> local = m_palettes.palettes();
    QHash<QUuid, Palette> localById;
    for (const Palette& palette : local)
        localById.insert(palette.id(), palette);
    PaletteSides sides;
    sides.local = stampsOf(local);
    sides.remote = m_cloudPalettes.stamps();
    sides.deletions = deletionMoments(m_cloudPalettes.loadTombstones());
    sides.remoteOrder = m_cloudPalettes.loadRemoteOrder();
    sides.remoteOrderMoment = m_cloudPalettes.orderUpdatedAt();

    QList<Palette> merged;
    for (const MergedPalette& entry : mergedPalettes(sides)) {
        const auto ours = localById.constFind(entry.stamp.id);
        const auto theirs = entry.side == PaletteSide::Remote
                                ? m_cloudPalettes.palette(entry.stamp.id)
                                : std::nullopt;
        // A disk that fails now and then must not cost the copy that is here.
        if (theirs)
            merged.append(*theirs);
        else if (ours != localById.cend())
            merged.append(*ours);
    }
    m_cloudPalettes.forgetDecoded();
    if (stampsOf(merged) != sides.local) {
        m_palettes.setPalettes(merged);
        m_palettes.flushPendingSave(UserPaletteStore::PinValidation::Wanted);
    }
    setBaseline(merged);
}

void CloudSyncEngine::setBaseline(const QList<Palette>& palettes) {
    m_lastBaseline.clear();
    for (const Palette& palette : palettes) {
        if (m_lastBaseline.contains(palette.id()))
            endOnDuplicate(palette.id());
        m_lastBaseline.insert(palette.id(), palette.lastModified());
    }
}

void CloudSyncEngine::checkSizeBudget() {
    const bool warns = exceedsSizeBudget(m_kvs.dictionaryRepresentation());
    if (std::exchange(m_sizeBudgetWarning, warns) != warns)
        Q_EMIT sizeBudgetWarningDidChange();
}

void CloudSyncEngine::setStatus(const Status& status) {
    if (std::exchange(m_status, status) != status)
        Q_EMIT statusDidChange();
}

void CloudSyncEngine::becomeIdle() {
    if (m_status.kind == Status::Kind::Error || m_preparation)
        return;
    setStatus({Status::Kind::Idle, {}});
    m_lastSyncDate = m_scheduler.now();
    Q_EMIT lastSyncDateDidChange();
}

/// The store alone knows what stands between the machines; work on the replica goes on meanwhile.
void CloudSyncEngine::followTrouble() {
    const QString trouble = m_kvs.trouble();
    if (!trouble.isEmpty())
        setStatus({Status::Kind::Error, trouble});
    else if (m_status.kind == Status::Kind::Error)
        setStatus({m_preparation ? Status::Kind::Syncing : Status::Kind::Idle, {}});
}

} // namespace dropshade
