// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/linux/ReplicatedKeyValueStore.h"

#include "support/ManualScheduler.h"
#include "support/MemoryDefaults.h"
#include "support/QtPrinters.h"
#include "support/SimulatedServer.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

namespace dropshade {
namespace {

const QString a = QStringLiteral("a");
const QString b = QStringLiteral("b");
const CloudValue one = QStringLiteral("one");
const CloudValue two = QStringLiteral("two");
const CloudValue three = QStringLiteral("three");

/// A replica and a server that it reaches only when the test pumps.
class Replica {
public:
    Replica(SimulatedServer& server, const QString& path) : m_server(server), m_path(path) {
        begin();
    }

    void begin() {
        store = std::make_unique<ReplicatedKeyValueStore>(
            m_defaults, scheduler,
            ReplicatedKeyValueStore::Means{[this](const CloudAccount&) {
                                               auto made = std::make_unique<SimulatedTransport>(
                                                   m_server, isReachable);
                                               transport = made.get();
                                               return made;
                                           },
                                           [this](const CloudAccount&) { return m_path; }});
        QObject::connect(store.get(), &CloudKeyValueStore::didChangeExternally,
                         [this](const QStringList& keys) { announced.append(keys); });
        store->open([this](const CloudConflict& conflict) {
            conflicts.append(conflict);
            return resolve ? resolve(conflict) : conflict.theirs;
        });
    }

    void write(const QString& key, const CloudValue& value) {
        store->setValue(key, value);
        store->synchronize();
    }
    void pump() {
        while (transport->pump()) {
        }
    }

    std::unique_ptr<ReplicatedKeyValueStore> store;
    SimulatedTransport* transport = nullptr;
    ManualScheduler scheduler;
    bool isReachable = true;
    QStringList announced;
    QList<CloudConflict> conflicts;
    std::function<std::optional<CloudValue>(const CloudConflict&)> resolve;

private:
    SimulatedServer& m_server;
    QString m_path;
    MemoryDefaults m_defaults;
};

class ReplicatedKeyValueStoreTest : public testing::Test {
protected:
    [[nodiscard]] QString path(const char* name) const {
        return m_folder.filePath(QString::fromLatin1(name));
    }
    [[nodiscard]] std::optional<CloudValue> remote(const QString& key) const {
        const auto found = server.entries.find(key);
        return found == server.entries.end() ? std::nullopt : found->second.value;
    }

    QTemporaryDir m_folder;
    SimulatedServer server;
    Replica here{server, path("here.sqlite")};
};

TEST_F(ReplicatedKeyValueStoreTest, ReadsWhatWasWrittenAtOnceAndSendsItWhenSynchronized) {
    here.pump();
    here.store->setValue(a, one);
    EXPECT_EQ(here.store->value(a), one);
    here.pump();
    EXPECT_EQ(remote(a), std::nullopt);
    here.store->synchronize();
    here.pump();
    EXPECT_EQ(remote(a), one);
    EXPECT_FALSE(here.store->hasUnsent());
    EXPECT_TRUE(here.announced.isEmpty());
}

TEST_F(ReplicatedKeyValueStoreTest, KeepsEachTypeExactly) {
    const std::map<QString, CloudValue> values = {
        {QStringLiteral("bool"), true},
        {QStringLiteral("integer"), qint64(-9'007'199'254'740'993)},
        {QStringLiteral("real"), 0.1 + 0.2},
        {QStringLiteral("string"), QStringLiteral(u"\0é🎨")},
        {QStringLiteral("data"), QByteArray("\0\x01\xff", 3)},
        {QStringLiteral("strings"), QStringList{QString(), a}},
    };
    for (const auto& [key, value] : values)
        here.store->setValue(key, value);
    here.store->synchronize();
    here.begin();
    EXPECT_EQ(here.store->dictionaryRepresentation(), values);
}

TEST_F(ReplicatedKeyValueStoreTest, WritesMadeOfflineGoOutAfterARestart) {
    here.isReachable = false;
    here.write(a, one);
    here.write(b, two);
    here.store->remove(a);
    here.store->synchronize();
    here.pump();
    here.begin();
    EXPECT_EQ(here.store->value(b), two);
    EXPECT_EQ(here.store->value(a), std::nullopt);
    here.isReachable = true;
    here.pump();
    EXPECT_EQ(remote(b), two);
    EXPECT_EQ(remote(a), std::nullopt);
}

TEST_F(ReplicatedKeyValueStoreTest, ChangesOfOthersAreAppliedAndThenAnnounced) {
    here.pump();
    server.put(a, one);
    server.put(b, two);
    std::optional<CloudValue> seen;
    QObject::connect(here.store.get(), &CloudKeyValueStore::didChangeExternally,
                     [&] { seen = here.store->value(b); });
    here.pump();
    EXPECT_EQ(seen, two);
    EXPECT_EQ(here.announced, (QStringList{a, b}));
    server.put(a, std::nullopt);
    here.pump();
    EXPECT_EQ(here.store->value(a), std::nullopt);
    EXPECT_EQ(here.announced, (QStringList{a, b, a}));
}

TEST_F(ReplicatedKeyValueStoreTest, ItsOwnWritesAreNoNews) {
    here.pump();
    here.write(a, one);
    here.pump();
    here.write(a, two);
    here.pump();
    EXPECT_TRUE(here.announced.isEmpty());
    EXPECT_EQ(server.writes, 2);
}

TEST_F(ReplicatedKeyValueStoreTest, TheSameValueOnceMoreIsNotSent) {
    here.write(a, one);
    here.pump();
    const int before = here.transport->sendCount;
    here.write(a, one);
    here.store->remove(b);
    here.store->synchronize();
    EXPECT_EQ(here.transport->sendCount, before);
}

TEST_F(ReplicatedKeyValueStoreTest, WhatHappenedMeanwhileComesAfterARestart) {
    server.put(a, one);
    server.put(b, one);
    here.pump();
    here.store->close();
    server.put(a, two);
    server.put(b, std::nullopt);
    here.announced.clear();
    here.begin();
    here.pump();
    EXPECT_EQ(here.store->value(a), two);
    EXPECT_EQ(here.store->value(b), std::nullopt);
    EXPECT_EQ(here.announced, (QStringList{a, b}));
}

TEST_F(ReplicatedKeyValueStoreTest, AListAfterCompactionTellsWhatIsGone) {
    server.put(a, one);
    server.put(b, one);
    here.pump();
    here.store->close();
    server.put(b, std::nullopt);
    server.put(a, two);
    server.compact();
    here.begin();
    here.pump();
    EXPECT_EQ(here.store->value(a), two);
    EXPECT_EQ(here.store->value(b), std::nullopt);
}

TEST_F(ReplicatedKeyValueStoreTest, AnAnswerThatWasLostDoesNoHarm) {
    here.pump();
    here.write(a, one);
    here.transport->loseAnswer();
    EXPECT_TRUE(here.store->hasUnsent());
    here.pump();
    EXPECT_FALSE(here.store->hasUnsent());
    EXPECT_EQ(server.writes, 1);
    EXPECT_TRUE(here.conflicts.isEmpty());
    EXPECT_TRUE(here.announced.isEmpty());
}

TEST_F(ReplicatedKeyValueStoreTest, AWriteDuringASendGoesOutNext) {
    here.pump();
    here.write(a, one);
    here.write(a, two);
    here.pump();
    EXPECT_EQ(remote(a), two);
    EXPECT_FALSE(here.store->hasUnsent());
    EXPECT_TRUE(here.conflicts.isEmpty());
}

TEST_F(ReplicatedKeyValueStoreTest, AtFirstContactTheRuleHearsThatNothingWasKnown) {
    server.put(a, one);
    here.write(a, two);
    here.pump();
    ASSERT_EQ(here.conflicts.size(), 1);
    EXPECT_TRUE(here.conflicts.first().isFirstContact);
    EXPECT_EQ(here.conflicts.first().ours, two);
    EXPECT_EQ(here.conflicts.first().theirs, one);
    EXPECT_EQ(here.store->value(a), one);
    EXPECT_EQ(here.announced, QStringList{a});
    EXPECT_EQ(remote(a), one);
}

TEST_F(ReplicatedKeyValueStoreTest, WhereBothWroteTheRuleDecidesAndHearsWhoWasLater) {
    server.put(a, one);
    here.pump();
    here.announced.clear();
    here.isReachable = false;
    here.resolve = [](const CloudConflict&) { return three; };
    server.put(a, two, ReferenceTime{1.0});
    here.write(a, CloudValue(QStringLiteral("ours")));
    here.isReachable = true;
    here.pump();
    ASSERT_EQ(here.conflicts.size(), 1);
    EXPECT_FALSE(here.conflicts.first().isFirstContact);
    EXPECT_TRUE(here.conflicts.first().areOursLater);
    EXPECT_EQ(here.store->value(a), three);
    EXPECT_EQ(remote(a), three);
    EXPECT_EQ(here.announced, QStringList{a});
}

TEST_F(ReplicatedKeyValueStoreTest, ARuleForOursOverwritesAndAnnouncesNothing) {
    server.put(a, one);
    here.resolve = [](const CloudConflict& conflict) { return conflict.ours; };
    here.write(a, two);
    here.pump();
    EXPECT_EQ(remote(a), two);
    EXPECT_TRUE(here.announced.isEmpty());
}

TEST_F(ReplicatedKeyValueStoreTest, TheRuleIsAskedForRemovalsLast) {
    server.put(a, one);
    server.put(b, one);
    here.pump();
    here.isReachable = false;
    here.write(a, two);
    here.write(b, two);
    server.put(a, std::nullopt);
    server.put(b, three);
    std::optional<CloudValue> otherKey;
    here.resolve = [&](const CloudConflict& conflict) {
        if (conflict.key == a)
            otherKey = here.store->value(b);
        return conflict.theirs;
    };
    here.isReachable = true;
    here.pump();
    EXPECT_EQ(otherKey, three);
    EXPECT_EQ(here.store->value(a), std::nullopt);
}

TEST_F(ReplicatedKeyValueStoreTest, AKeyThatWasRemovedAndWrittenAgainMeanwhileIsThere) {
    server.put(a, one);
    here.pump();
    server.put(a, std::nullopt);
    server.put(a, two);
    here.pump();
    EXPECT_EQ(here.store->value(a), two);
}

TEST_F(ReplicatedKeyValueStoreTest, AWipedServerGetsEverythingAgain) {
    here.write(a, one);
    here.pump();
    server.wipe();
    here.pump();
    EXPECT_EQ(remote(a), one);
    EXPECT_EQ(here.store->value(a), one);
}

TEST_F(ReplicatedKeyValueStoreTest, AnUnreadableRemoteValueIsOverwrittenByTheNextWrite) {
    here.write(a, one);
    here.pump();
    ++server.revision;
    const RemoteEntry junk{a, std::nullopt, {}, QByteArray::number(server.revision)};
    server.entries[a] = junk;
    server.events.push_back({server.revision, junk});
    here.pump();
    EXPECT_EQ(here.store->value(a), std::nullopt);
    here.write(a, two);
    here.pump();
    EXPECT_EQ(remote(a), two);
}

TEST_F(ReplicatedKeyValueStoreTest, ARefusedValueStaysHereAndIsToldOfUntilItChanges) {
    here.transport->mostBytes = 10;
    here.write(a, QByteArray(11, 'x'));
    here.write(b, one);
    here.pump();
    EXPECT_EQ(remote(a), std::nullopt);
    EXPECT_EQ(remote(b), one);
    EXPECT_FALSE(here.store->trouble().isEmpty());
    EXPECT_EQ(here.store->value(a), CloudValue(QByteArray(11, 'x')));
    here.write(a, QByteArray(10, 'x'));
    here.pump();
    EXPECT_TRUE(remote(a));
    EXPECT_EQ(here.store->trouble(), QString());
}

TEST_F(ReplicatedKeyValueStoreTest, MuchGoesOutInPartsUntilAllIsThere) {
    for (int number = 0; number < 200; ++number)
        here.store->setValue(QString::number(number), QByteArray(20'000, 'x'));
    here.store->synchronize();
    here.pump();
    EXPECT_EQ(server.entries.size(), 200U);
    EXPECT_GT(here.transport->sendCount, 6);
}

TEST_F(ReplicatedKeyValueStoreTest, ACopyIsMergedKeptAndThenDiscarded) {
    here.write(a, one);
    here.pump();
    here.resolve = [](const CloudConflict& conflict) { return conflict.theirs; };
    QStringList discardedBefore;
    QObject::connect(here.store.get(), &CloudKeyValueStore::didChangeExternally,
                     [&] { discardedBefore = here.transport->discarded; });
    Q_EMIT here.transport->foundCopy({a, two, {}, {}}, QStringLiteral("a (copy)"));
    EXPECT_TRUE(discardedBefore.isEmpty()) << "who hears of it has not kept it yet";
    EXPECT_EQ(here.store->value(a), two);
    EXPECT_EQ(here.announced, QStringList{a});
    EXPECT_EQ(here.transport->discarded, QStringList{QStringLiteral("a (copy)")});
    here.pump();
    EXPECT_EQ(remote(a), two);
}

TEST_F(ReplicatedKeyValueStoreTest, ClosedItIsQuietAndStillRemembers) {
    here.write(a, one);
    here.pump();
    here.store->close();
    EXPECT_EQ(here.store->value(a), one);
    here.store->setValue(b, two);
    here.store->synchronize();
    EXPECT_EQ(here.store->value(b), two);
}

TEST_F(ReplicatedKeyValueStoreTest, WithoutTheMeansItSaysSoAndWorksOn) {
    MemoryDefaults defaults;
    ReplicatedKeyValueStore store(defaults, here.scheduler,
                                  {[](const CloudAccount&) { return nullptr; },
                                   [this](const CloudAccount&) { return path("other.sqlite"); }});
    store.open({});
    store.setValue(a, one);
    store.synchronize();
    EXPECT_EQ(store.value(a), one);
    EXPECT_FALSE(store.trouble().isEmpty());
}

TEST_F(ReplicatedKeyValueStoreTest, NothingIsMadeBeforeItIsNeeded) {
    MemoryDefaults defaults;
    {
        const ReplicatedKeyValueStore store(
            defaults, here.scheduler,
            {[](const CloudAccount&) { return nullptr; },
             [this](const CloudAccount&) { return path("none.sqlite"); }});
    }
    EXPECT_FALSE(QFile::exists(path("none.sqlite")));
}

TEST_F(ReplicatedKeyValueStoreTest, ADamagedReplicaIsSetAsideAndFilledAnew) {
    server.put(a, one);
    here.pump();
    here.store.reset();
    QFile file(path("here.sqlite"));
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    file.write(QByteArray(4096, 'x'));
    file.close();
    for (const char* suffix : {"-wal", "-shm"})
        QFile::remove(path("here.sqlite") + QLatin1String(suffix));
    here.begin();
    EXPECT_EQ(here.store->value(a), std::nullopt);
    here.pump();
    EXPECT_EQ(here.store->value(a), one);
    EXPECT_EQ(QDir(m_folder.path()).entryList({QStringLiteral("*.damaged-*")}).size(), 1);
}

} // namespace
} // namespace dropshade
