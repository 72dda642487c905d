// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT

// Replicas that meet in a real folder.

#include "platform/linux/FolderWorker.h"
#include "platform/linux/replica/ReplicaRecord.h"
#include "support/CloudMember.h"
#include "support/DefaultsFolder.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

#include <QSignalSpy>
#include <QTest>

#include <sys/mount.h>
#include <utime.h>

namespace dropshade {
namespace {

const QString a = QStringLiteral("palette.A");
const QString b = QStringLiteral("b");
const CloudValue one = QStringLiteral("one");
const CloudValue two = QStringLiteral("two");

class FolderTransportTest : public testing::Test {
protected:
    [[nodiscard]] QString folder() const { return m_base.filePath(QStringLiteral("shared")); }
    [[nodiscard]] QString replica(int number) const {
        return m_base.filePath(QStringLiteral("replica%1.sqlite").arg(number));
    }
    [[nodiscard]] QString file(const QString& key) const {
        return folder() + QLatin1Char('/') + FolderWorker::fileName(key);
    }
    [[nodiscard]] std::optional<CloudValue> stored(const QString& key) const {
        const auto record = ReplicaRecord::decoded(contentOf(file(key)));
        return record ? std::optional(record->value) : std::nullopt;
    }
    /// As a program does that brings files from elsewhere.
    void bring(const QString& path, const QByteArray& content) const {
        ASSERT_TRUE(setContent(path + QStringLiteral(".part"), content));
        QFile::remove(path);
        ASSERT_TRUE(QFile::rename(path + QStringLiteral(".part"), path));
    }

    QTemporaryDir m_base;
};

TEST_F(FolderTransportTest, NamesFilesSoThatNoKeyMeetsAnotherOrLeavesTheFolder) {
    EXPECT_EQ(FolderWorker::fileName(a), QStringLiteral("palette.A.dropshade"));
    EXPECT_EQ(FolderWorker::fileName(QStringLiteral("../x/%")),
              QStringLiteral("..%2Fx%2F%25.dropshade"));
}

TEST_F(FolderTransportTest, WhatOneWritesTheOtherSeesAndHearsOf) {
    FolderMember first(folder(), replica(1));
    FolderMember second(folder(), replica(2));
    ASSERT_TRUE(second.sees(a, std::nullopt));
    QSignalSpy announced(&second.store(), &CloudKeyValueStore::didChangeExternally);
    first.write(a, one);
    EXPECT_TRUE(second.sees(a, one));
    EXPECT_TRUE(QTest::qWaitFor([&] { return announced.size() == 1; }));
    second.write(a, two);
    EXPECT_TRUE(first.sees(a, two));
    second.store().remove(a);
    second.store().synchronize();
    EXPECT_TRUE(first.sees(a, std::nullopt));
    EXPECT_TRUE(QTest::qWaitFor([&] { return !QFile::exists(file(a)); }));
}

TEST_F(FolderTransportTest, WhatWasThereBeforeComesWithTheStart) {
    {
        FolderMember first(folder(), replica(1));
        first.write(a, one);
        first.write(b, true);
        ASSERT_TRUE(first.hasSentAll());
    }
    FolderMember second(folder(), replica(2));
    EXPECT_TRUE(second.sees(a, one));
    EXPECT_TRUE(second.sees(b, true));
}

TEST_F(FolderTransportTest, WhatWasWrittenAtTheEndIsStillSent) {
    FolderMember first(folder(), replica(1));
    first.write(a, one);
    ASSERT_TRUE(first.hasSentAll());
    first.write(a, two);
    first.store().close();
    EXPECT_EQ(stored(a), two);
}

TEST_F(FolderTransportTest, AHalfWrittenFileChangesNothingUntilItIsWhole) {
    FolderMember member(folder(), replica(1));
    member.write(a, one);
    ASSERT_TRUE(member.hasSentAll());
    const QByteArray whole = ReplicaRecord{a, two, ReferenceTime{9e8}}.encoded();
    // In place, as careless programs do.
    ASSERT_TRUE(setContent(file(a), whole.left(whole.size() / 2)));
    QTest::qWait(100); // Long enough for the file to be looked at.
    EXPECT_EQ(member.store().value(a), one);
    ASSERT_TRUE(setContent(file(a), whole));
    EXPECT_TRUE(member.sees(a, two));
}

TEST_F(FolderTransportTest, AFileThatStaysUnreadableIsPutAsideWhenItsKeyIsWritten) {
    FolderMember member(folder(), replica(1));
    member.write(a, one);
    ASSERT_TRUE(member.hasSentAll());
    ASSERT_TRUE(setContent(file(a), "junk"));
    const utimbuf longAgo = {1'000'000'000, 1'000'000'000};
    ASSERT_EQ(::utime(QFile::encodeName(file(a)).constData(), &longAgo), 0);
    member.write(a, two);
    EXPECT_TRUE(member.hasSentAll());
    EXPECT_EQ(stored(a), two);
    const auto aside = QDir(folder()).entryList({QStringLiteral("*.unreadable-*")});
    ASSERT_EQ(aside.size(), 1);
    EXPECT_EQ(contentOf(folder() + QLatin1Char('/') + aside.first()), QByteArray("junk"));
}

TEST_F(FolderTransportTest, AValueThatNobodyWouldReadStaysHereAndIsToldOf) {
    FolderMember member(folder(), replica(1));
    member.write(a, QByteArray(ReplicaRecord::mostBytes, 'x'));
    member.write(b, one);
    EXPECT_TRUE(member.hasSentAll());
    EXPECT_TRUE(member.isInTrouble());
    EXPECT_FALSE(QFile::exists(file(a)));
    EXPECT_EQ(stored(b), one);
    member.write(a, two);
    EXPECT_TRUE(member.isInTrouble(false));
    EXPECT_EQ(stored(a), two);
}

TEST_F(FolderTransportTest, AFileOfAClockThatIsAheadHoldsUpNothing) {
    FolderMember member(folder(), replica(1));
    member.write(a, one);
    ASSERT_TRUE(member.hasSentAll());
    ASSERT_TRUE(setContent(file(a), "junk"));
    const utimbuf yearsAhead = {4'000'000'000, 4'000'000'000};
    ASSERT_EQ(::utime(QFile::encodeName(file(a)).constData(), &yearsAhead), 0);
    member.write(a, two);
    member.write(b, true);
    EXPECT_TRUE(member.hasSentAll());
    EXPECT_EQ(stored(a), two);
}

TEST_F(FolderTransportTest, AFileFinishedWithinOneTickOfItsClockIsReadAllTheSame) {
    FolderMember member(folder(), replica(1));
    member.write(a, one);
    ASSERT_TRUE(member.hasSentAll());
    const QByteArray whole = ReplicaRecord{a, two, ReferenceTime{9e8}}.encoded();
    const utimbuf tick = {1'700'000'000, 1'700'000'000};
    // Its room is taken first and its content comes later, with no other sign of a change.
    ASSERT_TRUE(setContent(file(a), QByteArray(whole.size(), '\0')));
    ASSERT_EQ(::utime(QFile::encodeName(file(a)).constData(), &tick), 0);
    QTest::qWait(100); // Long enough for the file to be looked at.
    ASSERT_TRUE(setContent(file(a), whole));
    ASSERT_EQ(::utime(QFile::encodeName(file(a)).constData(), &tick), 0);
    EXPECT_TRUE(member.sees(a, two));
}

TEST_F(FolderTransportTest, ConflictCopiesOfAnyNameAreMergedAndGo) {
    FolderMember member(folder(), replica(1));
    member.write(a, one);
    ASSERT_TRUE(member.hasSentAll());
    // The rule of this test takes what was written later.
    const auto record = [](const CloudValue& value, double writtenAt) {
        return ReplicaRecord{a, value, ReferenceTime{writtenAt}}.encoded();
    };
    const QString later =
        folder() + QStringLiteral("/palette.A.sync-conflict-20260101-120000-ABC.dropshade");
    const QString earlier =
        folder() + QStringLiteral("/palette.A (conflicted copy 2026-01-01).dropshade");
    bring(later, record(two, 2e9));
    bring(earlier, record(CloudValue(QStringLiteral("old")), 1.0));
    EXPECT_TRUE(member.sees(a, two));
    EXPECT_TRUE(QTest::qWaitFor([&] { return !QFile::exists(later) && !QFile::exists(earlier); }));
    EXPECT_TRUE(QTest::qWaitFor([&] { return stored(a) == two; }));
}

TEST_F(FolderTransportTest, ForeignFilesAreLeftAlone) {
    ASSERT_TRUE(QDir().mkpath(folder()));
    const QStringList names = {QStringLiteral("notes.txt"), QStringLiteral("x.dropshade"),
                               QStringLiteral("large.dropshade"), QStringLiteral(".stfolder")};
    for (const QString& name : names)
        ASSERT_TRUE(setContent(folder() + QLatin1Char('/') + name, "mine"));
    ASSERT_TRUE(setContent(folder() + QStringLiteral("/large.dropshade"),
                           QByteArray(3 * 1024 * 1024, 'x')));
    ASSERT_TRUE(QDir(folder()).mkdir(QStringLiteral("folder.dropshade")));
    FolderMember member(folder(), replica(1));
    member.write(a, one);
    ASSERT_TRUE(member.hasSentAll());
    EXPECT_EQ(member.store().dictionaryRepresentation().size(), 1U);
    for (const QString& name : names)
        EXPECT_TRUE(QFile::exists(folder() + QLatin1Char('/') + name)) << name.toStdString();
}

TEST_F(FolderTransportTest, AFolderThatVanishesIsToldOfAndItsValuesStay) {
    FolderMember member(folder(), replica(1));
    member.write(a, one);
    ASSERT_TRUE(member.hasSentAll());
    const QString away = m_base.filePath(QStringLiteral("away"));
    ASSERT_TRUE(QDir().rename(folder(), away));
    EXPECT_TRUE(member.isInTrouble());
    member.write(b, two);
    EXPECT_EQ(member.store().value(a), one);
    EXPECT_FALSE(QFile::exists(folder()));
    ASSERT_TRUE(QDir().rename(away, folder()));
    EXPECT_TRUE(member.isInTrouble(false));
    EXPECT_TRUE(QTest::qWaitFor([&] { return stored(b) == two; }, 8000));
}

TEST_F(FolderTransportTest, AnotherFolderInItsPlaceTakesNothingAwayAndGetsEverything) {
    FolderMember member(folder(), replica(1));
    member.write(a, one);
    ASSERT_TRUE(member.hasSentAll());
    member.store().close();
    ASSERT_TRUE(QDir(folder()).removeRecursively());
    ASSERT_TRUE(QDir().mkpath(folder()));
    member.open();
    EXPECT_TRUE(QTest::qWaitFor([&] { return stored(a) == one; }));
    EXPECT_EQ(member.store().value(a), one);
}

TEST_F(FolderTransportTest, AFullDiskIsToldOfAndCatchesUpWhenThereIsRoom) {
    ASSERT_TRUE(QDir().mkpath(folder()));
    const QByteArray path = QFile::encodeName(folder());
    if (::mount("none", path.constData(), "tmpfs", 0, "size=256k") != 0)
        GTEST_SKIP() << "only root can mount a small file system: a full disk was NOT tested";
    {
        FolderMember member(folder(), replica(1));
        ASSERT_TRUE(setContent(folder() + QStringLiteral("/filler"), QByteArray(200'000, 'x')));
        member.write(a, QByteArray(100'000, 'x'));
        EXPECT_TRUE(member.isInTrouble());
        EXPECT_EQ(member.store().value(a), CloudValue(QByteArray(100'000, 'x')));
        QFile::remove(folder() + QStringLiteral("/filler"));
        EXPECT_TRUE(member.isInTrouble(false));
        EXPECT_TRUE(QTest::qWaitFor([&] { return stored(a).has_value(); }, 8000));
    }
    {
        // And the same where nothing may be written at all.
        ASSERT_EQ(::mount("none", path.constData(), "tmpfs", MS_REMOUNT | MS_RDONLY, ""), 0);
        FolderMember member(folder(), replica(2));
        EXPECT_TRUE(member.sees(a, CloudValue(QByteArray(100'000, 'x'))));
        member.write(b, one);
        EXPECT_TRUE(member.isInTrouble());
        EXPECT_EQ(member.store().value(b), one);
        EXPECT_FALSE(FolderWorker::check(folder()).isEmpty());
    }
    ::umount(path.constData());
}

TEST_F(FolderTransportTest, ACheckLeavesNothingBehind) {
    EXPECT_EQ(FolderWorker::check(folder()), QString());
    EXPECT_TRUE(QDir(folder()).isEmpty());
    EXPECT_FALSE(FolderWorker::check(QStringLiteral("/proc/nowhere")).isEmpty());
}

} // namespace
} // namespace dropshade
