// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT

// A push of so much that it is encoded beside the main thread first. What it comes to is what the
// same push in one piece would have come to.

#include "SyncFixture.h"

#include "json/JsonDocument.h"

namespace dropshade {
namespace {

using Kind = CloudSyncEngine::Status::Kind;

/// Of so many swatches that two are too many for one turn.
Palette largePalette(int number, double lastModified, const char* name = "Large") {
    QList<PaletteSwatch> swatches;
    for (int place = 0; place <= CloudSyncEngine::mostSwatchesAtOnce / 2; ++place)
        swatches.append(
            PaletteSwatch(QStringLiteral("#%1").arg(place * 7919, 6, 16, QLatin1Char('0'))));
    return Palette(numberedId(number), QString::fromUtf8(name),
                   {PaletteScale(QStringLiteral("Scale"), swatches)}, ReferenceTime{lastModified});
}

class CloudSyncLargePush : public SyncFixture {
protected:
    /// Sync is on, and the encoding of palettes 1 and 2 has been handed over.
    void SetUp() override {
        setLocal({m_first, m_second});
        engine().start();
        ASSERT_EQ(m_queue.waiting(), 1);
    }
    [[nodiscard]] QList<QUuid> remoteOrder() const {
        const auto json = CloudPalettes::text(m_cloud.value(cloudKeys::order));
        return json ? *decodedJsonList(*json, [](JsonReader& reader) { return reader.uuid(); })
                    : QList<QUuid>();
    }

    const Palette m_first = largePalette(1, 100);
    const Palette m_second = largePalette(2, 200);
};

TEST_F(CloudSyncLargePush, GoesInOnePieceOnceItIsEncoded) {
    EXPECT_EQ(engine().status().kind, Kind::Syncing);
    EXPECT_FALSE(remote(1) || remote(2));
    EXPECT_FALSE(m_cloud.value(cloudKeys::order));
    const int synchronized = m_cloud.synchronizeCount;
    m_queue.work();
    EXPECT_FALSE(remote(1) || remote(2));
    m_queue.land();
    EXPECT_EQ(m_cloud.synchronizeCount, synchronized + 1);
    EXPECT_EQ(remote(1)->lastModified(), ReferenceTime{100});
    EXPECT_TRUE(isSame(*remote(2), m_second));
    EXPECT_EQ(remoteOrder(), QList<QUuid>({numberedId(1), numberedId(2)}));
    EXPECT_EQ(engine().status().kind, Kind::Idle);
}

TEST_F(CloudSyncLargePush, GivesTheSameBytesAsAPushInOneTurn) {
    m_queue.workAndLand();
    for (const Palette& palette : {m_first, m_second})
        EXPECT_EQ(m_cloud.read<QByteArray>(cloudKeys::palette(palette.id())),
                  cloudValueOf(palette));
}

TEST_F(CloudSyncLargePush, GivesAnEditThatWasMadeMeanwhile) {
    m_queue.work();
    Palette edited = m_first;
    edited.setName(QStringLiteral("Edited"));
    edited.setLastModified(ReferenceTime{300});
    save({edited, m_second});
    m_queue.land();
    EXPECT_EQ(remote(1)->name(), QStringLiteral("Edited"));
    EXPECT_EQ(remote(2)->lastModified(), ReferenceTime{200});
}

TEST_F(CloudSyncLargePush, GivesAnEditOfTheSameMomentToo) {
    m_queue.work();
    Palette edited = m_first;
    edited.setName(QStringLiteral("Edited"));
    save({edited, m_second});
    m_queue.land();
    EXPECT_EQ(remote(1)->name(), QStringLiteral("Edited"));
}

TEST_F(CloudSyncLargePush, GivesNothingOfAPaletteThatWasDeletedMeanwhile) {
    m_queue.work();
    save({m_second});
    m_queue.land();
    EXPECT_FALSE(remote(1));
    ASSERT_EQ(tombstones().size(), 1);
    EXPECT_EQ(tombstones().first().id, numberedId(1));
    EXPECT_EQ(remoteOrder(), QList<QUuid>{numberedId(2)});
}

TEST_F(CloudSyncLargePush, GivesWayToALaterCopyThatCameMeanwhile) {
    m_queue.work();
    putRemote(numberedPalette(1, 500, "Theirs"));
    announcePalettes();
    m_queue.land();
    EXPECT_EQ(remote(1)->name(), QStringLiteral("Theirs"));
    EXPECT_EQ(store().palettes().first().name(), QStringLiteral("Theirs"));
    EXPECT_EQ(remote(2)->lastModified(), ReferenceTime{200});
}

TEST_F(CloudSyncLargePush, IsNotPreparedTwiceForAChangeThatComesMeanwhile) {
    save({m_second, m_first});
    scheduler().advance(500);
    EXPECT_EQ(m_queue.waiting(), 1);
    m_queue.workAndLand();
    EXPECT_EQ(remoteOrder(), QList<QUuid>({numberedId(2), numberedId(1)}));
    scheduler().advance(10'000);
    EXPECT_EQ(m_queue.runs(), 1);
}

TEST_F(CloudSyncLargePush, GoesAtOnceWhereTheProgramEnds) {
    m_queue.work();
    engine().flushPendingPushes();
    EXPECT_TRUE(remote(1) && remote(2));
    const int synchronized = m_cloud.synchronizeCount;
    m_queue.land();
    EXPECT_EQ(m_cloud.synchronizeCount, synchronized) << "and not once more";
}

TEST_F(CloudSyncLargePush, IsDroppedWhereSyncIsTurnedOffAndMadeUpForLater) {
    m_queue.work();
    engine().stop();
    m_queue.land();
    EXPECT_FALSE(remote(1) || remote(2));
    EXPECT_EQ(engine().status().kind, Kind::Off);
    engine().start();
    m_queue.workAndLand();
    EXPECT_TRUE(remote(1) && remote(2));
}

TEST_F(CloudSyncLargePush, OfWhatTheCloudHasIsNotPreparedAgain) {
    m_queue.workAndLand();
    save({m_first, m_second, numberedPalette(3, 300)});
    scheduler().advance(500);
    EXPECT_EQ(m_queue.waiting(), 0);
    EXPECT_TRUE(remote(3));
    EXPECT_EQ(m_queue.runs(), 1);
}

TEST_F(CloudSyncLargePush, OfWhatAnotherMachineRemovedIsPreparedAgain) {
    m_queue.workAndLand();
    m_cloud.values.erase(cloudKeys::palette(numberedId(1)));
    m_cloud.values.erase(cloudKeys::palette(numberedId(2)));
    announcePalettes();
    save({m_first, m_second});
    scheduler().advance(500);
    EXPECT_EQ(m_queue.waiting(), 1);
    m_queue.workAndLand();
    EXPECT_TRUE(remote(1) && remote(2));
}

} // namespace
} // namespace dropshade
