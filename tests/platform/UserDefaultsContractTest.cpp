// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/UserDefaults.h"

#include "platform/linux/SqliteDefaults.h"
#include "support/MemoryDefaults.h"
#include "support/UserDefaultsContract.h"

#include <gmock/gmock.h>

#include <QTemporaryDir>

namespace dropshade {
namespace {

using testing::UnorderedElementsAre;

/// One kind of store; a second process is a second object on the same content.
class MemoryKind {
public:
    UserDefaults& store() { return m_store; }
    void writeElsewhere(const QString& key, const DefaultsValue& value) {
        m_store.setFromAnotherProcess(key, value);
    }
    void removeElsewhere(const QString& key) { m_store.removeFromAnotherProcess(key); }

private:
    MemoryDefaults m_store;
};

class SqliteKind {
public:
    UserDefaults& store() { return m_store; }
    void writeElsewhere(const QString& key, const DefaultsValue& value) {
        ASSERT_TRUE(m_other.setValue(key, value));
    }
    void removeElsewhere(const QString& key) { ASSERT_TRUE(m_other.remove(key)); }

private:
    QTemporaryDir m_folder;
    QString m_path = m_folder.filePath(QStringLiteral("defaults.sqlite"));
    SqliteDefaults m_store{m_path};
    SqliteDefaults m_other{m_path};
};

template <typename Kind>
class UserDefaultsContract : public testing::Test {
protected:
    UserDefaultsContract() {
        QObject::connect(&store(), &UserDefaults::didChange,
                         [this](const QString& key) { m_announced.append(key); });
    }
    UserDefaults& store() { return m_kind.store(); }

    Kind m_kind;
    QStringList m_announced;
    const QString m_key = QStringLiteral("key");
};

struct KindNames {
    template <typename Kind>
    static std::string GetName(int) {
        return std::is_same_v<Kind, MemoryKind> ? "Memory" : "Sqlite";
    }
};

using Kinds = testing::Types<MemoryKind, SqliteKind>;
TYPED_TEST_SUITE(UserDefaultsContract, Kinds, KindNames);

TYPED_TEST(UserDefaultsContract, StartsWithNothingSet) {
    EXPECT_FALSE(this->store().value(this->m_key));
    EXPECT_FALSE(this->store().contains(this->m_key));
    EXPECT_TRUE(this->store().keys().isEmpty());
}

TYPED_TEST(UserDefaultsContract, GivesEveryValueBackWithItsTypeAndBits) {
    for (const auto& [name, value] : defaultsValues()) {
        EXPECT_TRUE(this->store().setValue(this->m_key, value)) << name;
        const auto stored = this->store().value(this->m_key);
        ASSERT_TRUE(stored) << name;
        EXPECT_TRUE(isSame(*stored, value)) << name;
    }
}

TYPED_TEST(UserDefaultsContract, ReadsOnlyTheExactType) {
    this->store().setValue(this->m_key, qint64(1));
    EXPECT_EQ(this->store().template read<qint64>(this->m_key), 1);
    EXPECT_FALSE(this->store().template read<bool>(this->m_key));
    EXPECT_FALSE(this->store().template read<double>(this->m_key));
    EXPECT_FALSE(this->store().template read<QString>(this->m_key));
}

TYPED_TEST(UserDefaultsContract, ReplacesAValueAlsoByOneOfAnotherType) {
    this->store().setValue(this->m_key, QStringLiteral("one"));
    this->store().setValue(this->m_key, true);
    EXPECT_EQ(this->store().value(this->m_key), DefaultsValue(true));
    EXPECT_EQ(this->store().keys(), QStringList{this->m_key});
}

TYPED_TEST(UserDefaultsContract, TellsAnEmptyValueFromAnUnsetKey) {
    this->store().setValue(this->m_key, QByteArray());
    EXPECT_TRUE(this->store().contains(this->m_key));
    EXPECT_TRUE(this->store().remove(this->m_key));
    EXPECT_FALSE(this->store().contains(this->m_key));
}

TYPED_TEST(UserDefaultsContract, RemovesAKeyThatIsNotSet) {
    EXPECT_TRUE(this->store().remove(this->m_key));
    EXPECT_TRUE(this->store().keys().isEmpty());
}

TYPED_TEST(UserDefaultsContract, ListsTheKeysThatAreSet) {
    for (const char16_t* key : {u"a", u"b", u"c"}) {
        this->store().setValue(QString::fromUtf16(key), true);
    }
    this->store().remove(QStringLiteral("b"));
    EXPECT_THAT(this->store().keys(), UnorderedElementsAre(u"a", u"c"));
}

TYPED_TEST(UserDefaultsContract, KeepsKeysApartByEveryUnit) {
    const QStringList keys = {
        QString(),
        QStringLiteral("a"),
        QStringLiteral("A"),
        QStringLiteral("a "),
        QStringLiteral("a") + QChar(u'\0'),
        QStringLiteral("a") + QChar(0xdc00),
        QStringLiteral("a") + QChar(0xdc01),
        QStringLiteral(u"\u00e9"),
        QStringLiteral(u"e\u0301"),
    };
    for (const QString& key : keys) {
        EXPECT_TRUE(this->store().setValue(key, key));
    }
    for (const QString& key : keys) {
        EXPECT_EQ(this->store().template read<QString>(key), key);
    }
    EXPECT_THAT(this->store().keys(), testing::UnorderedElementsAreArray(keys));
}

TYPED_TEST(UserDefaultsContract, AnnouncesEachOwnWriteOnceItCanBeRead) {
    std::optional<DefaultsValue> seen;
    QObject::connect(&this->store(), &UserDefaults::didChange,
                     [&](const QString& key) { seen = this->store().value(key); });
    this->store().setValue(this->m_key, true);
    EXPECT_EQ(seen, DefaultsValue(true));
    this->store().setValue(this->m_key, true);
    this->store().remove(this->m_key);
    EXPECT_FALSE(seen);
    EXPECT_EQ(this->m_announced, QStringList(3, this->m_key));
}

TYPED_TEST(UserDefaultsContract, LetsAnObserverWrite) {
    const QString other = QStringLiteral("other");
    QObject::connect(&this->store(), &UserDefaults::didChange, [&](const QString& key) {
        if (key == this->m_key) {
            this->store().setValue(other, true);
        }
    });
    EXPECT_TRUE(this->store().setValue(this->m_key, true));
    EXPECT_TRUE(this->store().contains(other));
}

TYPED_TEST(UserDefaultsContract, SeesAnotherProcesssWritesAtTheNextReadAndAnnouncesNone) {
    this->m_kind.writeElsewhere(this->m_key, qint64(1));
    EXPECT_EQ(this->store().value(this->m_key), DefaultsValue(qint64(1)));
    this->m_kind.writeElsewhere(this->m_key, qint64(2));
    EXPECT_EQ(this->store().value(this->m_key), DefaultsValue(qint64(2)));
    this->m_kind.removeElsewhere(this->m_key);
    EXPECT_FALSE(this->store().value(this->m_key));
    EXPECT_TRUE(this->m_announced.isEmpty());
}

TYPED_TEST(UserDefaultsContract, UpdatesWhatAnotherProcessWroteLastAndAnnouncesIt) {
    const auto longer = [](const std::optional<DefaultsValue>& value) {
        return DefaultsValue(value ? std::get<QString>(*value) + u'x' : QStringLiteral("-"));
    };
    EXPECT_TRUE(this->store().update(this->m_key, longer));
    EXPECT_EQ(this->store().value(this->m_key), DefaultsValue(QStringLiteral("-")));
    this->m_kind.writeElsewhere(this->m_key, QStringLiteral("other"));
    EXPECT_TRUE(this->store().update(this->m_key, longer));
    EXPECT_EQ(this->store().value(this->m_key), DefaultsValue(QStringLiteral("otherx")));
    EXPECT_EQ(this->m_announced, QStringList(2, this->m_key));
}

TYPED_TEST(UserDefaultsContract, AmendsWhatAnotherProcessWroteLastAndAnnouncesIt) {
    const auto longer = [](const std::optional<DefaultsValue>& value) {
        return DefaultsValue(value ? std::get<QString>(*value) + u'x' : QStringLiteral("-"));
    };
    EXPECT_TRUE(this->store().amend(this->m_key, longer));
    this->m_kind.writeElsewhere(this->m_key, QStringLiteral("other"));
    EXPECT_TRUE(this->store().amend(this->m_key, longer));
    EXPECT_EQ(this->store().value(this->m_key), DefaultsValue(QStringLiteral("otherx")));
    EXPECT_EQ(this->m_announced, QStringList(2, this->m_key));
}

TYPED_TEST(UserDefaultsContract, CountsNoReadOfWhatIsUnsetAsRefused) {
    EXPECT_FALSE(this->store().contains(this->m_key));
    EXPECT_TRUE(this->store().setValue(this->m_key, true));
    EXPECT_TRUE(this->store().contains(this->m_key));
    EXPECT_EQ(this->store().keys().size(), 1);
    EXPECT_EQ(this->store().refusedReads(), 0);
}

TEST(SqliteDefaultsContents, OutliveTheObject) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("defaults.sqlite"));
    {
        SqliteDefaults store(path);
        for (const auto& [name, value] : defaultsValues()) {
            EXPECT_TRUE(store.setValue(QString::fromStdString(name), value)) << name;
        }
    }
    const SqliteDefaults store(path);
    for (const auto& [name, value] : defaultsValues()) {
        const auto stored = store.value(QString::fromStdString(name));
        ASSERT_TRUE(stored) << name;
        EXPECT_TRUE(isSame(*stored, value)) << name;
    }
}

} // namespace
} // namespace dropshade
