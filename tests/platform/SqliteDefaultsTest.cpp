// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/linux/SqliteDefaults.h"

#include "platform/linux/SqliteDatabase.h"
#include "support/DefaultsFolder.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

#include <functional>

namespace dropshade {
namespace {

const QByteArray text(400, 'x');

QString numbered(int number) {
    return QStringLiteral("key%1").arg(number);
}

int fileMode(const QString& path) {
    struct stat found = {};
    return ::stat(QFile::encodeName(path).constData(), &found) == 0 ? found.st_mode & 0777 : -1;
}

class SqliteDefaultsFile : public testing::Test {
protected:
    QString path() const { return m_folder.path(); }
    void fill(int count) const {
        SqliteDefaults store(path());
        for (int number = 0; number < count; ++number) {
            ASSERT_TRUE(store.setValue(numbered(number), text));
        }
    }
    int execute(const char* statements) const {
        SqliteDatabase database(QFile::encodeName(path()), SqliteDatabase::Access::ReadWrite);
        return database.execute(statements);
    }
    /// A write works, and another process sees it.
    void expectUsable(UserDefaults& store) const {
        EXPECT_TRUE(store.setValue(m_key, true));
        EXPECT_EQ(SqliteDefaults(path()).value(m_key), DefaultsValue(true));
    }

    DefaultsFolder m_folder{DefaultsFolder::Medium::Memory};
    const QString m_key = QStringLiteral("fresh");
};

TEST_F(SqliteDefaultsFile, IsMadeByTheFirstWriteForTheUserAlone) {
    const QString nested = m_folder.folder().filePath(QStringLiteral("a/b/d.sqlite"));
    SqliteDefaults store(nested);
    EXPECT_FALSE(store.contains(m_key));
    EXPECT_FALSE(QFile::exists(nested));
    EXPECT_TRUE(store.setValue(m_key, true));
    EXPECT_EQ(fileMode(nested), 0600);
    EXPECT_EQ(fileMode(nested + QStringLiteral("-wal")), 0600);
    EXPECT_EQ(fileMode(m_folder.folder().filePath(QStringLiteral("a/b"))), 0700);
    EXPECT_EQ(fileMode(m_folder.folder().filePath(QStringLiteral("a"))), 0700);
}

TEST_F(SqliteDefaultsFile, LiesInTheConfigurationFolder) {
    qputenv("XDG_CONFIG_HOME", "/somewhere");
    EXPECT_EQ(SqliteDefaults::defaultPath(),
              QStringLiteral("/somewhere/dropshade/defaults.sqlite"));
}

TEST_F(SqliteDefaultsFile, HoldsAllOfItsContentOnceTheLastObjectIsGone) {
    fill(3);
    const QByteArray content = contentOf(path());
    QFile::remove(path() + QStringLiteral("-wal"));
    EXPECT_TRUE(setContent(path(), content));
    EXPECT_EQ(SqliteDefaults(path()).keys().size(), 3);
}

TEST_F(SqliteDefaultsFile, IsApartFromThatOfAnotherStoreInTheProcess) {
    SqliteDefaults store(path());
    SqliteDefaults other(path() + QStringLiteral(".other"));
    EXPECT_TRUE(store.setValue(m_key, true));
    EXPECT_FALSE(other.contains(m_key));
}

TEST_F(SqliteDefaultsFile, MayBeASymbolicLink) {
    const QString elsewhere = m_folder.folder().filePath(QStringLiteral("elsewhere.sqlite"));
    ASSERT_TRUE(setContent(elsewhere, "garbage"));
    ASSERT_TRUE(QFile::link(elsewhere, path()));
    SqliteDefaults store(path());
    EXPECT_TRUE(store.setValue(m_key, true));
    EXPECT_TRUE(store.contains(m_key));
    const QStringList all = m_folder.folder().entryList({QStringLiteral("elsewhere*.damaged-*")});
    ASSERT_EQ(all.size(), 1);
    EXPECT_EQ(contentOf(m_folder.folder().filePath(all.first())), "garbage");
}

struct Damage {
    std::string name;
    int keys;
    std::function<QByteArray(QByteArray)> apply;
};

/// What a fresh file is made of.
constexpr qsizetype pageSize = 32 * 1024;

QByteArray overwritten(QByteArray content, qsizetype position, qsizetype size) {
    return content.replace(position, size, QByteArray(size, '\xa5'));
}

const std::vector<Damage> damages = {
    {"Garbage", 3, [](const QByteArray& content) { return QByteArray(content.size(), 'g'); }},
    {"ShortGarbage", 3, [](const QByteArray&) { return QByteArray("short"); }},
    {"HeaderCut", 3, [](const QByteArray& content) { return content.left(50); }},
    {"HeaderOnly", 3, [](const QByteArray& content) { return content.left(100); }},
    {"LastPageCut", 30, [](const QByteArray& content) { return content.chopped(pageSize); }},
    {"PageInTheMiddle", 30,
     [](const QByteArray& content) { return overwritten(content, 2 * pageSize, pageSize); }},
    {"PageInTheMiddleOfALargeFile", 2000,
     [](const QByteArray& content) {
         return overwritten(content, content.size() / pageSize / 2 * pageSize, pageSize);
     }},
    {"SecondHalfOfALargeFileCut", 2000,
     [](const QByteArray& content) {
         return content.left(content.size() / pageSize / 2 * pageSize);
     }},
    {"AnotherProgramsFile", 0, [](const QByteArray& content) { return content; }},
};

class SqliteDefaultsDamage : public SqliteDefaultsFile, public testing::WithParamInterface<Damage> {
protected:
    void damage() const {
        fill(GetParam().keys);
        if (GetParam().keys == 0) {
            ASSERT_TRUE(setContent(path(), QByteArray()));
            ASSERT_EQ(execute("CREATE TABLE other(a)"), SQLITE_OK);
        }
        ASSERT_TRUE(setContent(path(), GetParam().apply(contentOf(path()))));
    }
};

TEST_P(SqliteDefaultsDamage, IsSetAsideAndAFreshStoreBegins) {
    damage();
    const QByteArray damaged = contentOf(path());
    SqliteDefaults store(path());
    for (int number = 0; number < GetParam().keys; ++number) {
        static_cast<void>(store.value(numbered(number)));
    }
    static_cast<void>(store.keys());
    const QStringList aside = m_folder.setAside();
    ASSERT_EQ(aside.size(), 1);
    EXPECT_EQ(contentOf(aside.first()), damaged);
    EXPECT_TRUE(store.keys().isEmpty());
    expectUsable(store);
    EXPECT_EQ(m_folder.setAside().size(), 1);
}

TEST_P(SqliteDefaultsDamage, IsSetAsideByAWriteThatMeetsIt) {
    damage();
    const QByteArray damaged = contentOf(path());
    SqliteDefaults store(path());
    for (int number = 0; number < std::max(GetParam().keys, 1); ++number) {
        ASSERT_TRUE(store.setValue(numbered(number), true));
    }
    const QStringList aside = m_folder.setAside();
    ASSERT_EQ(aside.size(), 1);
    EXPECT_EQ(contentOf(aside.first()).size(), damaged.size());
    expectUsable(store);
}

INSTANTIATE_TEST_SUITE_P(All, SqliteDefaultsDamage, testing::ValuesIn(damages),
                         [](const auto& tested) { return tested.param.name; });

TEST_F(SqliteDefaultsFile, IsNeverSetAsideOverAnEarlierOne) {
    for (const char* garbage : {"one", "two", "three"}) {
        ASSERT_TRUE(setContent(path(), garbage));
        SqliteDefaults store(path());
        expectUsable(store);
    }
    QByteArrayList found;
    for (const QString& aside : m_folder.setAside()) {
        found.append(contentOf(aside));
    }
    std::sort(found.begin(), found.end());
    EXPECT_EQ(found, (QByteArrayList{"one", "three", "two"}));
}

TEST_F(SqliteDefaultsFile, MayBeEmpty) {
    ASSERT_TRUE(setContent(path(), QByteArray()));
    SqliteDefaults store(path());
    EXPECT_TRUE(store.keys().isEmpty());
    expectUsable(store);
    EXPECT_TRUE(m_folder.setAside().isEmpty());
}

TEST_F(SqliteDefaultsFile, LeavesALogWhoseFileIsGoneToWhoeverWantsIt) {
    ASSERT_TRUE(setContent(path() + QStringLiteral("-wal"), "the log"));
    SqliteDefaults store(path());
    expectUsable(store);
    const QStringList logs = m_folder.setAside(QStringLiteral("-wal"));
    ASSERT_EQ(logs.size(), 1);
    EXPECT_EQ(contentOf(logs.first()), "the log");
}

TEST_F(SqliteDefaultsFile, OfANewerVersionIsReadAndNeverChanged) {
    fill(2);
    ASSERT_EQ(execute("PRAGMA user_version = 2"), SQLITE_OK);
    const QByteArray before = contentOf(path());
    {
        SqliteDefaults store(path());
        EXPECT_EQ(store.value(numbered(0)), DefaultsValue(text));
        EXPECT_FALSE(store.setValue(numbered(0), true));
        EXPECT_FALSE(store.remove(numbered(1)));
        EXPECT_EQ(store.value(numbered(0)), DefaultsValue(true));
        EXPECT_EQ(store.keys(), QStringList{numbered(0)});
    }
    EXPECT_EQ(contentOf(path()), before);
    EXPECT_TRUE(m_folder.setAside().isEmpty());
}

TEST_F(SqliteDefaultsFile, OfANewerVersionIsLeftAloneAlsoWhenItCannotBeRead) {
    fill(1);
    ASSERT_EQ(execute("PRAGMA user_version = 2; ALTER TABLE defaults RENAME TO d2"), SQLITE_OK);
    SqliteDefaults store(path());
    EXPECT_FALSE(store.contains(numbered(0)));
    EXPECT_FALSE(store.setValue(m_key, true));
    EXPECT_TRUE(store.contains(m_key));
    EXPECT_TRUE(m_folder.setAside().isEmpty());
}

TEST_F(SqliteDefaultsFile, CountsAsEmptyOnceItIsRemoved) {
    SqliteDefaults store(path());
    ASSERT_TRUE(store.setValue(numbered(0), true));
    ASSERT_TRUE(QFile::remove(path()));
    EXPECT_FALSE(store.contains(numbered(0)));
    expectUsable(store);
    EXPECT_EQ(store.keys(), QStringList{m_key});
}

TEST_F(SqliteDefaultsFile, IsMadeAnewWithItsFolder) {
    const QString nested = m_folder.folder().filePath(QStringLiteral("a/d.sqlite"));
    SqliteDefaults store(nested);
    ASSERT_TRUE(store.setValue(numbered(0), true));
    ASSERT_TRUE(QDir(m_folder.folder().filePath(QStringLiteral("a"))).removeRecursively());
    EXPECT_TRUE(store.setValue(m_key, true));
    EXPECT_EQ(SqliteDefaults(nested).keys(), QStringList{m_key});
}

TEST_F(SqliteDefaultsFile, IsReadAnewOnceAnotherTookItsPlace) {
    const QString replacement = path() + QStringLiteral(".new");
    ASSERT_TRUE(SqliteDefaults(replacement).setValue(m_key, qint64(2)));
    SqliteDefaults store(path());
    ASSERT_TRUE(store.setValue(m_key, qint64(1)));
    ASSERT_TRUE(QFile::remove(path()));
    ASSERT_TRUE(QFile::remove(path() + QStringLiteral("-wal")));
    ASSERT_TRUE(QFile::rename(replacement, path()));
    EXPECT_EQ(store.value(m_key), DefaultsValue(qint64(2)));
}

TEST_F(SqliteDefaultsFile, KeepsItsLogWhenAProcessWithAnOlderFileEnds) {
    auto older = std::make_unique<SqliteDefaults>(path());
    ASSERT_TRUE(older->setValue(numbered(0), true));
    ASSERT_TRUE(QFile::remove(path()));
    SqliteDefaults store(path());
    ASSERT_TRUE(store.setValue(m_key, true));
    older.reset();
    ASSERT_TRUE(store.setValue(numbered(1), true));
    EXPECT_EQ(SqliteDefaults(path()).keys().size(), 2);
}

} // namespace
} // namespace dropshade
