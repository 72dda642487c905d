// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT

// The palettes in the engine: what is pushed, what a pull makes of it, and how they get along.

#include "SyncFixture.h"

#include <random>

namespace dropshade {
namespace {

class CloudSyncPalettes : public SyncFixture {
protected:
    /// A palette whose value in the cloud has exactly that many bytes.
    static Palette paletteOfSize(int number, qsizetype size) {
        std::mt19937_64 random(42);
        const QString digits =
            QStringLiteral("0123456789abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQ"
                           "RSTUVWXYZ+-");
        QString noise(2'000'000, Qt::Uninitialized);
        for (QChar& character : noise)
            character = digits.at(qsizetype(random() % 64));
        const auto sized = [&](qsizetype length) {
            return Palette(numberedId(number), noise.left(length), {}, ReferenceTime{5.0});
        };
        qsizetype low = 0;
        qsizetype high = noise.size();
        while (low < high) {
            const qsizetype middle = (low + high) / 2;
            if (cloudValueOf(sized(middle)).size() < size)
                low = middle + 1;
            else
                high = middle;
        }
        return sized(low);
    }
};

TEST_F(CloudSyncPalettes, AnEmptyCloudTakesTheWholeLibraryInItsOrder) {
    setLocal({numberedPalette(2, 5.0), numberedPalette(1, 6.0)});
    engine().start();
    EXPECT_EQ(local(), (QList{2, 1}));
    EXPECT_TRUE(isSame(*remote(2), store().palettes().first()));
    EXPECT_TRUE(remote(1));
    EXPECT_EQ(decompressedValue(*m_cloud.read<QByteArray>(cloudKeys::order)),
              "[\"" + uuidText(numberedId(2)).toUtf8() + "\",\"" +
                  uuidText(numberedId(1)).toUtf8() + "\"]");
    EXPECT_EQ(m_cloud.read<double>(cloudKeys::orderUpdatedAt), start + unixSecondsOfReference);
    EXPECT_EQ(tombstones(), QList<Tombstone>());
    EXPECT_TRUE(m_cloud.value(cloudKeys::tombstones));
}

TEST_F(CloudSyncPalettes, AnEmptyLibraryTakesAllOfAFullCloudInItsOrder) {
    for (const int number : {1, 2, 3})
        putRemote(numberedPalette(number, 5.0));
    putOrder({3, 1, 2});
    engine().start();
    EXPECT_EQ(local(), (QList{3, 1, 2}));
    EXPECT_EQ(decodedPalettes(*defaults().read<QByteArray>(keys::userPalettes), {})->size(), 3);
}

TEST_F(CloudSyncPalettes, WritesOnlyWhatTheCloudHasOlderOrNotAtAll) {
    putRemote(numberedPalette(1, 5.0, "same"));
    putRemote(numberedPalette(2, 4.0, "older"));
    putRemote(numberedPalette(3, 9.0, "newer"));
    setLocal({numberedPalette(1, 5.0), numberedPalette(2, 5.0), numberedPalette(3, 5.0),
              numberedPalette(4, 5.0)});
    engine().start();
    EXPECT_FALSE(m_cloud.written.contains(cloudKeys::palette(numberedId(1))));
    EXPECT_TRUE(m_cloud.written.contains(cloudKeys::palette(numberedId(2))));
    EXPECT_FALSE(m_cloud.written.contains(cloudKeys::palette(numberedId(3))));
    EXPECT_TRUE(m_cloud.written.contains(cloudKeys::palette(numberedId(4))));
    EXPECT_EQ(store().palettes().at(2).name(), QStringLiteral("newer"));
}

TEST_F(CloudSyncPalettes, OnEqualMomentsEachSideKeepsItsOwnContent) {
    putRemote(numberedPalette(1, 5.0, "theirs"));
    setLocal({numberedPalette(1, 5.0, "ours")});
    engine().start();
    announcePalettes();
    EXPECT_EQ(store().palettes().first().name(), QStringLiteral("ours"));
    EXPECT_EQ(remote(1)->name(), QStringLiteral("theirs"));
}

TEST_F(CloudSyncPalettes, AnEditGoesUpHalfASecondAfterItsSave) {
    setLocal({numberedPalette(1, 5.0)});
    engine().start();
    m_cloud.written.clear();
    store().renamePalette(numberedId(1), QStringLiteral("Sea"));
    scheduler().advance(250 + 499);
    EXPECT_TRUE(m_cloud.written.isEmpty());
    scheduler().advance(1);
    EXPECT_EQ(remote(1)->name(), QStringLiteral("Sea"));
    // And with it the tombstones and the order, whatever they were.
    EXPECT_EQ(m_cloud.written,
              (QStringList{cloudKeys::tombstones, cloudKeys::palette(numberedId(1)),
                           cloudKeys::order, cloudKeys::orderUpdatedAt}));
}

TEST_F(CloudSyncPalettes, ADeletionBuriesThePaletteAndRemovesItsKey) {
    setLocal({numberedPalette(1, 5.0), numberedPalette(2, 5.0)});
    engine().start();
    store().deletePalette(numberedId(1));
    scheduler().advance(750);
    EXPECT_EQ(m_cloud.removed, QStringList{cloudKeys::palette(numberedId(1))});
    EXPECT_EQ(tombstones(), (QList<Tombstone>{{numberedId(1), ReferenceTime{start + 0.75}}}));
}

TEST_F(CloudSyncPalettes, ADeletionSeenTwiceIsBuriedOnce) {
    setLocal({numberedPalette(1, 5.0)});
    engine().start();
    putTombstones({{numberedId(1), ReferenceTime{start - 3.0}}});
    store().deletePalette(numberedId(1));
    scheduler().advance(750);
    EXPECT_EQ(tombstones(), (QList<Tombstone>{{numberedId(1), ReferenceTime{start - 3.0}}}));
    EXPECT_FALSE(remote(1));
}

TEST_F(CloudSyncPalettes, WhatIsOfAClockYearsAheadCanBeDeleted) {
    putRemote(numberedPalette(1, start + 1e8));
    engine().start();
    store().deletePalette(numberedId(1));
    scheduler().advance(750);
    // Another machine, which had not heard of it, offers its copy once more.
    putRemote(numberedPalette(1, start + 1e8));
    announcePalettes();
    EXPECT_TRUE(local().isEmpty());
}

TEST_F(CloudSyncPalettes, WhatOutlivedADeletionCanBeDeletedOnceMore) {
    putTombstones({{numberedId(1), ReferenceTime{start - 20.0}}});
    putRemote(numberedPalette(1, start - 10.0));
    engine().start();
    ASSERT_EQ(local(), QList{1});
    store().deletePalette(numberedId(1));
    scheduler().advance(750);
    EXPECT_EQ(tombstones(), (QList<Tombstone>{{numberedId(1), ReferenceTime{start + 0.75}}}));
    putRemote(numberedPalette(1, start - 10.0));
    announcePalettes();
    EXPECT_TRUE(local().isEmpty());
}

TEST_F(CloudSyncPalettes, ATombstoneOfTheSameMomentDeletesAndALaterEditSurvives) {
    setLocal({numberedPalette(1, start - 50.0), numberedPalette(2, start - 40.0)});
    putTombstones({{numberedId(1), ReferenceTime{start - 50.0}},
                   {numberedId(2), ReferenceTime{start - 50.0}}});
    engine().start();
    EXPECT_EQ(local(), QList{2});
    EXPECT_TRUE(remote(2));
}

TEST_F(CloudSyncPalettes, WhatADeletionElsewhereDropsLosesItsFavorites) {
    const Palette palette = numberedPalette(1, 5.0);
    setLocal({palette});
    engine().start();
    settings().pinSwatch(palette.scales().first().swatches().first(), palette,
                         palette.scales().first());
    putTombstones({{numberedId(1), ReferenceTime{start}}});
    announcePalettes();
    EXPECT_TRUE(store().palettes().isEmpty());
    EXPECT_TRUE(settings().pinnedColors().isEmpty());
    // The key is left for the machine that deleted the palette.
    EXPECT_TRUE(remote(1));
}

TEST_F(CloudSyncPalettes, ATombstoneOf90DaysIsIgnoredAndLeavesWithTheNextPush) {
    const double expired = start - tombstoneLifetime;
    setLocal({numberedPalette(1, expired - 1.0), numberedPalette(2, expired - 1.0)});
    putTombstones(
        {{numberedId(1), ReferenceTime{expired}}, {numberedId(2), ReferenceTime{expired + 1.0}}});
    engine().start();
    EXPECT_EQ(local(), QList{1});
    EXPECT_EQ(tombstones(), (QList<Tombstone>{{numberedId(2), ReferenceTime{expired + 1.0}}}));
}

TEST_F(CloudSyncPalettes, ForeignKeysAreIgnoredAndStay) {
    const QString noId = QStringLiteral("palette.not-an-id");
    const QString otherId = cloudKeys::palette(numberedId(7));
    const QString junk = cloudKeys::palette(numberedId(8));
    const QString noData = cloudKeys::palette(numberedId(9));
    m_cloud.values[noId] = cloudValueOf(numberedPalette(1, 5.0));
    m_cloud.values[otherId] = cloudValueOf(numberedPalette(1, 5.0));
    m_cloud.values[junk] = QByteArray("\x01junk");
    m_cloud.values[noData] = QStringLiteral("text");
    engine().start();
    EXPECT_TRUE(local().isEmpty());
    for (const QString& key : {noId, otherId, junk, noData})
        EXPECT_TRUE(m_cloud.value(key)) << key.toStdString();
}

TEST_F(CloudSyncPalettes, AnUnreadableValueIsOverwrittenByThePaletteOfItsKey) {
    m_cloud.values[cloudKeys::palette(numberedId(1))] = QByteArray("\x01junk");
    setLocal({numberedPalette(1, 5.0)});
    engine().start();
    EXPECT_TRUE(isSame(*remote(1), store().palettes().first()));
}

TEST_F(CloudSyncPalettes, APaletteOf900000BytesStaysHereAndOneByteLessGoesUp) {
    const Palette large = paletteOfSize(1, 900'000);
    const Palette small = paletteOfSize(2, 899'999);
    ASSERT_EQ(cloudValueOf(large).size(), 900'000);
    ASSERT_EQ(cloudValueOf(small).size(), 899'999);
    setLocal({large, small});
    engine().start();
    EXPECT_FALSE(remote(1));
    EXPECT_TRUE(remote(2));
    EXPECT_EQ(local(), (QList{1, 2}));
    // It is known all the same: deleting it is a deletion.
    store().deletePalette(numberedId(1));
    scheduler().advance(750);
    EXPECT_EQ(tombstones().size(), 1);
}

TEST_F(CloudSyncPalettes, APaletteWithAMonotonousNameOfHalfAMegabyteArrives) {
    const QString name(600'000, u'a');
    setLocal({Palette(numberedId(1), name, {}, ReferenceTime{5.0})});
    engine().start();
    ASSERT_TRUE(remote(1));
    EXPECT_EQ(remote(1)->name(), name);
}

TEST_F(CloudSyncPalettes, APullWithoutADifferenceNeitherSavesNorAnnounces) {
    setLocal({numberedPalette(1, 5.0)});
    engine().start();
    SignalCount saves(store(), &UserPaletteStore::didChange);
    SignalCount changes(store(), &UserPaletteStore::palettesDidChange);
    const int writes = defaults().writeCount();
    announcePalettes();
    EXPECT_EQ(saves.count() + changes.count(), 0);
    EXPECT_EQ(defaults().writeCount(), writes);
}

TEST_F(CloudSyncPalettes, APullKeepsWhatItSawAsTheBaseline) {
    setLocal({numberedPalette(1, 5.0)});
    engine().start();
    // Deleted, but not yet pushed, when a pull brings it back: it was never deleted.
    store().deletePalette(numberedId(1));
    announcePalettes();
    EXPECT_EQ(local(), QList{1});
    scheduler().advance(2000);
    EXPECT_TRUE(tombstones().isEmpty());
}

TEST_F(CloudSyncPalettes, APaletteDeletedWhileSyncWasOffIsBack) {
    setLocal({numberedPalette(1, 5.0)});
    engine().start();
    engine().stop();
    store().deletePalette(numberedId(1));
    scheduler().advance(2000);
    engine().start();
    EXPECT_EQ(local(), QList{1});
    EXPECT_TRUE(tombstones().isEmpty());
}

TEST_F(CloudSyncPalettes, AnOrderNotYetPushedIsRevertedByAPull) {
    setLocal({numberedPalette(1, 5.0), numberedPalette(2, 5.0)});
    engine().start();
    store().reorderPalettes({numberedId(2), numberedId(1)});
    announcePalettes();
    EXPECT_EQ(local(), (QList{1, 2}));
}

TEST_F(CloudSyncPalettes, WithoutItsMomentTheRemoteOrderCountsForNothing) {
    for (const int number : {1, 2})
        putRemote(numberedPalette(number, 5.0));
    setLocal({numberedPalette(1, 5.0), numberedPalette(2, 5.0)});
    putOrder({2, 1}, false);
    engine().start();
    EXPECT_EQ(local(), (QList{1, 2}));
}

TEST_F(CloudSyncPalettes, UnreadableTombstonesAndOrderCountAsNoneAndAreReplaced) {
    m_cloud.values[cloudKeys::tombstones] = QByteArray("{}");
    m_cloud.values[cloudKeys::order] = QByteArray("\x01nonsense");
    m_cloud.values[cloudKeys::orderUpdatedAt] = QStringLiteral("now");
    setLocal({numberedPalette(1, 5.0)});
    engine().start();
    EXPECT_TRUE(tombstones().isEmpty());
    EXPECT_EQ(m_cloud.read<double>(cloudKeys::orderUpdatedAt), start + unixSecondsOfReference);
}

TEST_F(CloudSyncPalettes, APaletteWithoutAMomentCountsAsModifiedAtEachPull) {
    const QByteArray json =
        "{\"id\":\"" + uuidText(numberedId(1)).toUtf8() + "\",\"name\":\"new\",\"scales\":[]}";
    setLocal({numberedPalette(1, start - 10.0, "old")});
    engine().start();
    scheduler().advance(5000);
    m_cloud.receive({{cloudKeys::palette(numberedId(1)), json}});
    EXPECT_EQ(store().palettes().first().name(), QStringLiteral("new"));
    EXPECT_EQ(store().palettes().first().lastModified(), ReferenceTime{start + 5.0});
    scheduler().advance(400);
    announcePalettes();
    EXPECT_EQ(store().palettes().first().lastModified(), ReferenceTime{start + 5.4});
}

TEST_F(CloudSyncPalettes, AnEditGoesUpThoughWhatItEditsIsOfAClockYearsAhead) {
    putRemote(numberedPalette(1, start + 1e8, "future"));
    engine().start();
    store().renamePalette(numberedId(1), QStringLiteral("now"));
    scheduler().advance(750);
    EXPECT_EQ(remote(1)->name(), QStringLiteral("now"));
    announcePalettes();
    EXPECT_EQ(store().palettes().first().name(), QStringLiteral("now"));
}

TEST_F(CloudSyncPalettes, AValueThatFailsToBeReadCostsNoPalette) {
    putRemote(numberedPalette(1, 20.0, "later"));
    engine().start();
    setLocal({numberedPalette(1, 10.0, "earlier"), numberedPalette(2, 10.0)});
    m_cloud.isFailing = true;
    announcePalettes();
    EXPECT_EQ(local(), (QList{1, 2}));
    m_cloud.isFailing = false;
    announcePalettes();
    EXPECT_EQ(store().palettes().first().name(), QStringLiteral("later"));
}

TEST_F(CloudSyncPalettes, ARepeatedTombstoneEndsTheProcess) {
    putTombstones({{numberedId(1), ReferenceTime{start}}, {numberedId(1), ReferenceTime{start}}});
    EXPECT_DEATH(engine().start(), "Duplicate values for key: '");
}

TEST_F(CloudSyncPalettes, BombsAmongTheKeysCostNoPalette) {
    putRemote(numberedPalette(1, 5.0));
    const QByteArray stream = qCompress(QByteArray(5'000'000, ' '), 9);
    m_cloud.values[cloudKeys::palette(numberedId(2))] =
        QByteArray('\x01' + stream.mid(6, stream.size() - 10));
    m_cloud.values[cloudKeys::palette(numberedId(3))] = compressedValue(QByteArray(500'000, '['));
    engine().start();
    EXPECT_EQ(local(), QList{1});
}

} // namespace
} // namespace dropshade
