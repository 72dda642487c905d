// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "app/SettingsReaders.h"
#include "palettes/PaletteJson.h"
#include "support/Machine.h"
#include "support/ManualBackgroundQueue.h"
#include "support/MemoryCloudStore.h"
#include "support/Palettes.h"
#include "support/QtPrinters.h"
#include "support/SignalCount.h"
#include "sync/CloudSyncEngine.h"
#include "sync/SyncValueCodec.h"
#include "json/UuidText.h"

#include <gtest/gtest.h>

namespace dropshade {

inline QUuid numberedId(int number) {
    return QUuid(uint(number), 0, 0x4000, 0x80, 0, 0, 0, 0, 0, 0, 1);
}

inline Palette numberedPalette(int number, double lastModified, const char* name = "Palette") {
    return Palette(numberedId(number), QString::fromUtf8(name), {makeScale("Scale", {"#102030"})},
                   ReferenceTime{lastModified});
}

/// How a palette lies in the cloud.
inline QByteArray cloudValueOf(const Palette& palette) {
    return compressedValue(*encodedPalette(palette));
}

/// A machine whose engine is not started, with an empty library, before a cloud that is empty.
class SyncFixture : public testing::Test {
protected:
    static constexpr double start = 789012345.5;

    SyncFixture() {
        defaults().setValue(keys::userPalettes, QByteArray("[]"));
        defaults().setValue(keys::collapsedPaletteIds, QStringList());
        scheduler().setNow(ReferenceTime{start});
    }

    MemoryDefaults& defaults() { return m_machine.defaults(); }
    ManualScheduler& scheduler() { return m_machine.scheduler(); }
    UserPaletteStore& store() { return m_machine.store(); }
    AppSettings& settings() { return m_machine.settings(); }
    CloudSyncEngine& engine() {
        if (!m_engine)
            m_engine = std::make_unique<CloudSyncEngine>(CloudSyncEngine::Surroundings{
                m_cloud, defaults(), scheduler(), settings(), store(), m_queue});
        return *m_engine;
    }

    void setLocal(const QList<Palette>& palettes) { store().setPalettes(palettes); }
    /// As the user's edit does it, with the save that follows.
    void save(const QList<Palette>& palettes) {
        store().setPalettes(palettes);
        store().flushPendingSave();
    }
    void putRemote(const Palette& palette) {
        m_cloud.values[cloudKeys::palette(palette.id())] = cloudValueOf(palette);
    }
    void putOrder(const QList<int>& numbers, bool isDated = true) {
        QStringList ids;
        for (const int number : numbers)
            ids.append(QLatin1Char('"') + uuidText(numberedId(number)) + QLatin1Char('"'));
        m_cloud.values[cloudKeys::order] =
            compressedValue("[" + ids.join(QLatin1Char(',')).toUtf8() + "]");
        if (isDated)
            m_cloud.values[cloudKeys::orderUpdatedAt] = 1.5;
    }
    void putTombstones(const QList<Tombstone>& tombstones) {
        m_cloud.values[cloudKeys::tombstones] = compressedValue(*encodedTombstones(tombstones));
    }
    [[nodiscard]] QList<Tombstone> tombstones() const {
        const auto value = m_cloud.read<QByteArray>(cloudKeys::tombstones);
        return value ? *decodedTombstones(*decompressedValue(*value)) : QList<Tombstone>();
    }
    [[nodiscard]] std::optional<Palette> remote(int number) const {
        const auto value = m_cloud.read<QByteArray>(cloudKeys::palette(numberedId(number)));
        return value ? decodedPalette(*decompressedValue(*value), ReferenceTime{}) : std::nullopt;
    }
    /// The numbers of the palettes of this machine, in order.
    [[nodiscard]] QList<int> local() {
        QList<int> numbers;
        for (const Palette& palette : store().palettes())
            numbers.append(int(palette.id().data1));
        return numbers;
    }
    /// Another machine has changed palettes.
    void announcePalettes() { Q_EMIT m_cloud.didChangeExternally({cloudKeys::order}); }

    Machine m_machine;
    MemoryCloudStore m_cloud;
    ManualBackgroundQueue m_queue;
    std::unique_ptr<CloudSyncEngine> m_engine;
};

} // namespace dropshade
