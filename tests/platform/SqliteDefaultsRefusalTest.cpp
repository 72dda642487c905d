// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/linux/SqliteDefaults.h"

#include "platform/linux/SqliteDatabase.h"
#include "support/DefaultsFolder.h"
#include "support/ManualScheduler.h"

#include <QElapsedTimer>

#include <gmock/gmock.h>

#include <sched.h>
#include <signal.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <unistd.h>

#include <thread>

namespace dropshade {
namespace {

using testing::UnorderedElementsAre;

const QString oldKey = QStringLiteral("old");
const QString newKey = QStringLiteral("new");
const QString nextKey = QStringLiteral("next");

/// What holds whenever the disk refuses for a while: `refuse` makes it, `allow` ends it. `old` is
/// on the disk before.
template <typename Refuse, typename Allow>
void expectNothingLost(const QString& path, const Refuse& refuse, const Allow& allow) {
    QStringList announced;
    SqliteDefaults store(path);
    QObject::connect(&store, &UserDefaults::didChange,
                     [&](const QString& key) { announced.append(key); });
    ASSERT_TRUE(store.setValue(oldKey, qint64(1)));

    refuse();
    const QByteArray large(40000, 'x');
    EXPECT_FALSE(store.setValue(newKey, large));
    EXPECT_FALSE(store.remove(oldKey));
    EXPECT_EQ(store.value(newKey), DefaultsValue(large));
    EXPECT_FALSE(store.contains(oldKey));
    EXPECT_EQ(store.keys(), QStringList{newKey});
    EXPECT_EQ(announced, (QStringList{oldKey, newKey, oldKey}));
    {
        const SqliteDefaults other(path);
        EXPECT_EQ(other.value(oldKey), DefaultsValue(qint64(1)));
        EXPECT_FALSE(other.contains(newKey));
    }

    allow();
    EXPECT_TRUE(store.setValue(nextKey, true));
    const SqliteDefaults other(path);
    EXPECT_EQ(other.value(newKey), DefaultsValue(large));
    EXPECT_THAT(other.keys(), UnorderedElementsAre(newKey, nextKey));
}

/// No file of this process may grow past `size`. The signal that would end the process is off.
class FileSizeLimit {
public:
    explicit FileSizeLimit(rlim_t size) : m_handler(::signal(SIGXFSZ, SIG_IGN)) {
        ::getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limit = {size, m_before.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit() {
        ::setrlimit(RLIMIT_FSIZE, &m_before);
        ::signal(SIGXFSZ, m_handler);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

private:
    rlimit m_before = {};
    sighandler_t m_handler;
};

/// A small file system of its own, which no other process sees and which goes with this one.
class SmallDisk {
public:
    explicit SmallDisk(const QString& place) : m_place(QFile::encodeName(place)) {
        m_isMounted = ::unshare(CLONE_NEWNS) == 0 &&
                      ::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
                      ::mount("disk", m_place.constData(), "tmpfs", 0, "size=512k") == 0;
    }
    ~SmallDisk() {
        if (m_isMounted) {
            ::umount2(m_place.constData(), MNT_DETACH);
        }
    }
    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;

    [[nodiscard]] bool isMounted() const { return m_isMounted; }
    [[nodiscard]] bool setReadOnly(bool isReadOnly) const {
        return ::mount("disk", m_place.constData(), "tmpfs",
                       MS_REMOUNT | (isReadOnly ? 0UL + MS_RDONLY : 0UL), "size=512k") == 0;
    }

private:
    QByteArray m_place;
    bool m_isMounted = false;
};

/// Root may write whatever the permissions say; for as long as this lives the process is nobody.
class Unprivileged {
public:
    Unprivileged() : m_wasRoot(::geteuid() == 0 && ::seteuid(65534) == 0) {}
    ~Unprivileged() {
        if (m_wasRoot) {
            static_cast<void>(::seteuid(0) == 0);
        }
    }
    Unprivileged(const Unprivileged&) = delete;
    Unprivileged& operator=(const Unprivileged&) = delete;

private:
    bool m_wasRoot;
};

class SqliteDefaultsRefusal : public testing::Test {
protected:
    DefaultsFolder m_folder;
    const QString m_path = m_folder.path();
};

TEST_F(SqliteDefaultsRefusal, OfAFileThatMayNotGrowLosesNothing) {
    std::optional<FileSizeLimit> limit;
    expectNothingLost(
        m_path, [&] { limit.emplace(8192); }, [&] { limit.reset(); });
}

TEST_F(SqliteDefaultsRefusal, OfAFullDiskLosesNothing) {
    const SmallDisk disk(m_folder.folder().path());
    if (!disk.isMounted()) {
        GTEST_SKIP() << "a file system can't be mounted here";
    }
    const QString ballast = m_folder.folder().filePath(QStringLiteral("ballast"));
    const auto fill = [&] {
        QFile file(ballast);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
        while (file.write(QByteArray(4096, 'x')) == 4096) {
        }
    };
    expectNothingLost(m_path, fill, [&] { EXPECT_TRUE(QFile::remove(ballast)); });
}

TEST_F(SqliteDefaultsRefusal, OfAReadOnlyDiskLosesNothing) {
    const SmallDisk disk(m_folder.folder().path());
    if (!disk.isMounted()) {
        GTEST_SKIP() << "a file system can't be mounted here";
    }
    ASSERT_TRUE(SqliteDefaults(m_path).setValue(oldKey, true));
    ASSERT_TRUE(disk.setReadOnly(true));
    SqliteDefaults store(m_path);
    EXPECT_EQ(store.value(oldKey), DefaultsValue(true));
    EXPECT_FALSE(store.setValue(newKey, true));
    EXPECT_THAT(store.keys(), UnorderedElementsAre(oldKey, newKey));
    ASSERT_TRUE(disk.setReadOnly(false));
    EXPECT_TRUE(store.setValue(nextKey, true));
    EXPECT_THAT(SqliteDefaults(m_path).keys(), UnorderedElementsAre(oldKey, newKey, nextKey));
}

TEST_F(SqliteDefaultsRefusal, OfAReadOnlyFolderLosesNothing) {
    constexpr auto forReading = QFile::ReadOwner | QFile::ExeOwner | QFile::ReadGroup |
                                QFile::ExeGroup | QFile::ReadOther | QFile::ExeOther;
    ASSERT_TRUE(SqliteDefaults(m_path).setValue(oldKey, true));
    for (const auto* companion : {u"-wal", u"-shm"}) {
        QFile::remove(m_path + QString::fromUtf16(companion));
    }
    const QString folder = m_folder.folder().path();
    ASSERT_TRUE(QFile::setPermissions(m_path, forReading));
    ASSERT_TRUE(QFile::setPermissions(folder, forReading));
    SqliteDefaults store(m_path);
    {
        const Unprivileged user;
        EXPECT_EQ(store.value(oldKey), DefaultsValue(true));
        EXPECT_FALSE(store.setValue(newKey, true));
        EXPECT_THAT(store.keys(), UnorderedElementsAre(oldKey, newKey));
    }
    ASSERT_TRUE(QFile::setPermissions(folder, forReading | QFile::WriteOwner));
    ASSERT_TRUE(QFile::setPermissions(m_path, forReading | QFile::WriteOwner));
    EXPECT_TRUE(store.setValue(nextKey, true));
    EXPECT_THAT(SqliteDefaults(m_path).keys(), UnorderedElementsAre(oldKey, newKey, nextKey));
}

TEST_F(SqliteDefaultsRefusal, OfAFolderLeavesTheValuesInMemory) {
    for (const QString& path :
         {m_path + QStringLiteral("/d.sqlite"), QStringLiteral("/proc/dropshade/d.sqlite")}) {
        ASSERT_TRUE(setContent(m_path, "in the way"));
        SqliteDefaults store(path);
        EXPECT_FALSE(store.contains(newKey));
        EXPECT_FALSE(store.setValue(newKey, qint64(1)));
        EXPECT_FALSE(store.setValue(nextKey, true));
        EXPECT_FALSE(store.remove(nextKey));
        EXPECT_EQ(store.value(newKey), DefaultsValue(qint64(1)));
        EXPECT_EQ(store.keys(), QStringList{newKey});
    }
}

TEST_F(SqliteDefaultsRefusal, OfAFolderEndsWhenTheFolderCanBeMade) {
    ASSERT_TRUE(setContent(m_path, "in the way"));
    const QString path = m_path + QStringLiteral("/d.sqlite");
    SqliteDefaults store(path);
    EXPECT_FALSE(store.setValue(newKey, true));
    ASSERT_TRUE(QFile::remove(m_path));
    EXPECT_TRUE(store.setValue(nextKey, true));
    EXPECT_THAT(SqliteDefaults(path).keys(), UnorderedElementsAre(newKey, nextKey));
}

TEST_F(SqliteDefaultsRefusal, IsMadeUpForWhenTheObjectEnds) {
    auto store = std::make_unique<SqliteDefaults>(m_path);
    {
        const FileSizeLimit limit(0);
        EXPECT_FALSE(store->setValue(newKey, true));
    }
    store.reset();
    EXPECT_EQ(SqliteDefaults(m_path).value(newKey), DefaultsValue(true));
}

TEST_F(SqliteDefaultsRefusal, OfOneLargeValueLeavesTheOthersStored) {
    SqliteDefaults store(m_path);
    ASSERT_TRUE(store.setValue(oldKey, true));
    const FileSizeLimit limit(512 * 1024);
    EXPECT_FALSE(store.setValue(newKey, QByteArray(2000000, 'x')));
    EXPECT_TRUE(store.setValue(nextKey, true));
    EXPECT_EQ(SqliteDefaults(m_path).value(nextKey), DefaultsValue(true));
    EXPECT_TRUE(store.contains(newKey));
}

TEST_F(SqliteDefaultsRefusal, ByAnotherProcesssLockComesSoonAndLosesNothing) {
    SqliteDefaults store(m_path);
    ASSERT_TRUE(store.setValue(oldKey, true));
    SqliteDatabase other(QFile::encodeName(m_path), SqliteDatabase::Access::ReadWrite);
    ASSERT_EQ(other.execute("BEGIN IMMEDIATE"), SQLITE_OK);
    QElapsedTimer timer;
    timer.start();
    EXPECT_FALSE(store.setValue(newKey, true));
    EXPECT_FALSE(store.setValue(nextKey, true));
    EXPECT_LT(timer.elapsed(), 2 * 250);
    EXPECT_TRUE(store.contains(newKey));
    EXPECT_TRUE(store.contains(oldKey));
    ASSERT_EQ(other.execute("COMMIT"), SQLITE_OK);
    EXPECT_TRUE(store.setValue(nextKey, false));
    EXPECT_THAT(SqliteDefaults(m_path).keys(), UnorderedElementsAre(oldKey, newKey, nextKey));
}

TEST_F(SqliteDefaultsRefusal, EndsByItselfWithoutAnotherWrite) {
    ManualScheduler scheduler;
    SqliteDefaults store(m_path, &scheduler);
    const SqliteDefaults other(m_path);
    ASSERT_TRUE(store.setValue(oldKey, true));
    EXPECT_EQ(scheduler.pendingCount(), 0);
    {
        const FileSizeLimit limit(0);
        EXPECT_FALSE(store.setValue(newKey, true));
        EXPECT_FALSE(store.remove(oldKey));
        scheduler.advance(60000);
        EXPECT_EQ(scheduler.pendingCount(), 1);
    }
    EXPECT_EQ(other.keys(), QStringList{oldKey});
    scheduler.advance(5000);
    EXPECT_EQ(other.keys(), QStringList{newKey});
    EXPECT_EQ(scheduler.pendingCount(), 0);
}

TEST_F(SqliteDefaultsRefusal, ByALockThatGoesWithinSecondsIsNoneForTheLastWrites) {
    SqliteDefaults store(m_path);
    ASSERT_TRUE(store.setValue(oldKey, true));
    SqliteDatabase other(QFile::encodeName(m_path), SqliteDatabase::Access::ReadWrite);
    ASSERT_EQ(other.execute("BEGIN IMMEDIATE"), SQLITE_OK);
    store.beginLastWrites();
    int result = SQLITE_ERROR;
    std::thread otherProcess([&] {
        // Longer than other writes wait.
        std::this_thread::sleep_for(std::chrono::milliseconds(600));
        result = other.execute("COMMIT");
    });
    EXPECT_TRUE(store.update(oldKey, [](const auto&) { return DefaultsValue(false); }));
    otherProcess.join();
    EXPECT_EQ(result, SQLITE_OK);
    EXPECT_EQ(SqliteDefaults(m_path).value(oldKey), DefaultsValue(false));
}

TEST_F(SqliteDefaultsRefusal, ByALockThatStaysLetsTheProgramEnd) {
    auto store = std::make_unique<SqliteDefaults>(m_path);
    ASSERT_TRUE(store->setValue(oldKey, true));
    SqliteDatabase other(QFile::encodeName(m_path), SqliteDatabase::Access::ReadWrite);
    ASSERT_EQ(other.execute("BEGIN IMMEDIATE"), SQLITE_OK);
    QElapsedTimer timer;
    timer.start();
    store->beginLastWrites();
    EXPECT_FALSE(store->setValue(oldKey, false));
    EXPECT_FALSE(store->setValue(newKey, true));
    store.reset();
    // What all of them may wait together, and what each may wait once that has passed.
    EXPECT_LT(timer.elapsed(), 5000 + 4 * 250);
}

TEST_F(SqliteDefaultsRefusal, OfAnUpdateChangesNothingHereNorThere) {
    SqliteDefaults store(m_path);
    ASSERT_TRUE(store.setValue(oldKey, qint64(1)));
    const auto two = [](const std::optional<DefaultsValue>&) { return DefaultsValue(qint64(2)); };
    QStringList announced;
    QObject::connect(&store, &UserDefaults::didChange,
                     [&](const QString& key) { announced.append(key); });
    {
        const FileSizeLimit limit(0);
        EXPECT_FALSE(store.update(oldKey, two));
        EXPECT_EQ(store.value(oldKey), DefaultsValue(qint64(1)));
        EXPECT_FALSE(store.setValue(oldKey, qint64(3)));
        EXPECT_FALSE(store.setValue(newKey, true));
    }
    EXPECT_EQ(announced, (QStringList{oldKey, newKey}));
    // What was refused before goes along, and counts as what is there.
    const auto next = [](const std::optional<DefaultsValue>& value) {
        return DefaultsValue(std::get<qint64>(*value) + 1);
    };
    EXPECT_TRUE(store.update(oldKey, next));
    const SqliteDefaults other(m_path);
    EXPECT_EQ(other.value(oldKey), DefaultsValue(qint64(4)));
    EXPECT_TRUE(other.contains(newKey));
}

/// Adds one to what is there, or begins with 100.
DefaultsValue counted(const std::optional<DefaultsValue>& value) {
    return DefaultsValue(value ? std::get<qint64>(*value) + 1 : qint64(100));
}

TEST_F(SqliteDefaultsRefusal, OfAnAmendmentHasItMadeOfWhatIsThereInTheEnd) {
    SqliteDefaults store(m_path);
    ASSERT_TRUE(store.setValue(oldKey, qint64(1)));
    SqliteDatabase lock(QFile::encodeName(m_path), SqliteDatabase::Access::ReadWrite);
    ASSERT_EQ(lock.execute("BEGIN IMMEDIATE"), SQLITE_OK);
    EXPECT_FALSE(store.amend(oldKey, counted));
    EXPECT_FALSE(store.amend(oldKey, counted));
    EXPECT_EQ(store.value(oldKey), DefaultsValue(qint64(3)));
    EXPECT_EQ(store.refusedReads(), 0) << "others may still read";
    ASSERT_EQ(lock.execute("COMMIT"), SQLITE_OK);
    ASSERT_TRUE(SqliteDefaults(m_path).setValue(oldKey, qint64(41)));
    EXPECT_EQ(store.value(oldKey), DefaultsValue(qint64(43)));
    EXPECT_TRUE(store.amend(oldKey, counted));
    EXPECT_EQ(SqliteDefaults(m_path).value(oldKey), DefaultsValue(qint64(44)));
}

TEST_F(SqliteDefaultsRefusal, OfAnAmendmentOfWhatIsReplacedOrRemovedChangesThat) {
    SqliteDefaults store(m_path);
    ASSERT_TRUE(store.setValue(oldKey, qint64(1)));
    {
        const FileSizeLimit limit(0);
        EXPECT_FALSE(store.remove(oldKey));
        EXPECT_FALSE(store.amend(oldKey, counted));
        EXPECT_FALSE(store.amend(newKey, counted));
        EXPECT_FALSE(store.setValue(newKey, qint64(7)));
        EXPECT_THAT(store.keys(), UnorderedElementsAre(oldKey, newKey));
    }
    EXPECT_TRUE(store.setValue(nextKey, true));
    const SqliteDefaults other(m_path);
    EXPECT_EQ(other.value(oldKey), DefaultsValue(qint64(100)));
    EXPECT_EQ(other.value(newKey), DefaultsValue(qint64(7)));
}

TEST_F(SqliteDefaultsRefusal, ToReadIsCountedAndNotTakenForAnUnsetKey) {
    ASSERT_TRUE(SqliteDefaults(m_path).setValue(oldKey, qint64(1)));
    const QString folder = m_folder.folder().path();
    ASSERT_TRUE(QFile::setPermissions(folder, QFile::WriteOwner));
    SqliteDefaults store(m_path);
    {
        const Unprivileged user;
        EXPECT_FALSE(store.contains(oldKey));
        EXPECT_EQ(store.refusedReads(), 1);
        EXPECT_FALSE(store.amend(oldKey, counted));
        EXPECT_EQ(store.value(oldKey), DefaultsValue(qint64(100)));
    }
    ASSERT_TRUE(
        QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    EXPECT_EQ(store.value(oldKey), DefaultsValue(qint64(2)));
}

TEST_F(SqliteDefaultsRefusal, ByALockOnTheWholeFileDelaysOnlyTheFirstRead) {
    ASSERT_TRUE(SqliteDefaults(m_path).setValue(oldKey, true));
    auto other = std::make_unique<SqliteDatabase>(QFile::encodeName(m_path),
                                                  SqliteDatabase::Access::ReadWrite);
    ASSERT_EQ(other->execute("PRAGMA locking_mode = EXCLUSIVE; BEGIN EXCLUSIVE; "
                             "DELETE FROM defaults; ROLLBACK"),
              SQLITE_OK);
    SqliteDefaults store(m_path);
    QElapsedTimer timer;
    timer.start();
    for (int read = 0; read < 20; ++read) {
        EXPECT_FALSE(store.contains(oldKey));
    }
    EXPECT_LT(timer.elapsed(), 2 * 250);
    other.reset();
    EXPECT_TRUE(store.contains(oldKey));
    EXPECT_TRUE(m_folder.setAside().isEmpty());
}

} // namespace
} // namespace dropshade
