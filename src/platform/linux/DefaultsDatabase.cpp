// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/linux/DefaultsDatabase.h"

#include "platform/linux/DefaultsCoding.h"

namespace dropshade {
namespace {

/// Raised with every change of the table that an older program could not work with.
constexpr qint64 schemaVersion = 1;

/// "DrSh": tells this program, and tools such as `file`, whose the file is.
constexpr qint64 applicationId = 0x44725368;
constexpr const char* createTable = "CREATE TABLE defaults("
                                    "key PRIMARY KEY NOT NULL, type INTEGER NOT NULL, value);"
                                    "PRAGMA application_id = 0x44725368;"
                                    "PRAGMA user_version = 1";

constexpr std::string_view selectValue = "SELECT type, value FROM defaults WHERE key = ?1";
constexpr std::string_view selectKeys = "SELECT key FROM defaults";
constexpr std::string_view upsert =
    "INSERT INTO defaults(key, type, value) VALUES(?1, ?2, ?3) "
    "ON CONFLICT(key) DO UPDATE SET type = excluded.type, value = excluded.value";
constexpr std::string_view deleteKey = "DELETE FROM defaults WHERE key = ?1";
constexpr std::string_view begin = "BEGIN IMMEDIATE";
constexpr std::string_view commit = "COMMIT";
constexpr std::string_view rollback = "ROLLBACK";

/// Up to this size a file is checked whole when it is opened, which takes less than a millisecond;
/// a larger one tells of its damage when the damaged page is used.
constexpr qint64 mostPagesChecked = 64;

bool isDamage(int result) {
    const int kind = result & 0xff;
    return kind == SQLITE_CORRUPT || kind == SQLITE_NOTADB;
}

bool isBusy(int result) {
    return (result & 0xff) == SQLITE_BUSY;
}

/// Steps through the rows of a kept statement; `bind` fills in its parameters.
template <typename Bind, typename Row>
int forEachRow(SqliteDatabase& database, std::string_view sql, const Bind& bind, const Row& row) {
    int result = SQLITE_OK;
    sqlite3_stmt* statement = database.prepared(sql, result);
    if (statement == nullptr) {
        // The table is not there or not ours: the file is no store of this program.
        return result == SQLITE_ERROR ? SQLITE_NOTADB : result;
    }
    const SqliteUse use(statement);
    result = bind(statement);
    if (result == SQLITE_OK) {
        while ((result = sqlite3_step(statement)) == SQLITE_ROW) {
            row(statement);
        }
    }
    return result == SQLITE_DONE ? SQLITE_OK : result;
}

int change(SqliteDatabase& database, const QString& key,
           const std::optional<DefaultsValue>& value) {
    const auto bind = [&](sqlite3_stmt* statement) {
        const int result = bindText(statement, 1, key);
        return result == SQLITE_OK && value ? bindValue(statement, 2, *value) : result;
    };
    return forEachRow(database, value ? upsert : deleteKey, bind, [](sqlite3_stmt*) {});
}

int quickCheck(SqliteDatabase& database) {
    qint64 pages = 0;
    int result = database.read("PRAGMA page_count", pages);
    if (result != SQLITE_OK || pages > mostPagesChecked) {
        return result;
    }
    QByteArray verdict;
    result = database.read("PRAGMA quick_check(1)", verdict);
    return result == SQLITE_OK && verdict != "ok" ? SQLITE_CORRUPT : result;
}

} // namespace

DefaultsDatabase::DefaultsDatabase(const QString& path) : m_file(path) {}

DefaultsDatabase::~DefaultsDatabase() = default;

Deadline DefaultsDatabase::deadline() {
    return std::chrono::steady_clock::now() + std::chrono::milliseconds(200);
}

std::optional<DefaultsValue> DefaultsDatabase::value(const QString& key) {
    std::optional<DefaultsValue> found;
    attempt(Need::Read, deadline(), [&](SqliteDatabase& database) {
        return forEachRow(
            database, selectValue,
            [&](sqlite3_stmt* statement) { return bindText(statement, 1, key); },
            [&](sqlite3_stmt* statement) { found = valueIn(statement, 0); });
    });
    return found;
}

QStringList DefaultsDatabase::keys() {
    QStringList all;
    attempt(Need::Read, deadline(), [&](SqliteDatabase& database) {
        all.clear();
        return forEachRow(
            database, selectKeys, [](sqlite3_stmt*) { return SQLITE_OK; },
            [&](sqlite3_stmt* statement) { all.append(textIn(statement, 0)); });
    });
    return all;
}

bool DefaultsDatabase::write(const Changes& changes, Deadline deadline) {
    const auto work = [&](SqliteDatabase& database) { return store(database, changes, deadline); };
    // The file may be replaced between the look at the path and the end of the transaction; what
    // went into the old one is not stored.
    for (int round = 0; round < 2; ++round) {
        if (attempt(Need::Write, deadline, work) != SQLITE_OK) {
            return false;
        }
        if (m_file.identity() == m_opened) {
            return true;
        }
    }
    return false;
}

/// Runs `work` on the file that is at the path, and once more on a fresh one if it turns out to be
/// damaged.
int DefaultsDatabase::attempt(Need need, Deadline deadline, const Work& work) {
    int result = SQLITE_CANTOPEN;
    for (int round = 0; round < 2; ++round) {
        if (!prepare(need, deadline)) {
            return SQLITE_CANTOPEN;
        }
        m_database->setDeadline(deadline);
        result = work(*m_database);
        // What may not be written is not moved either.
        if (!isDamage(result) || !m_isWritable || !setAside(deadline)) {
            break;
        }
    }
    return result;
}

bool DefaultsDatabase::prepare(Need need, Deadline deadline) {
    const auto present = m_file.identity();
    const bool isOpen = m_database != nullptr && present == m_opened;
    if (!isOpen) {
        // Where opening has failed before, each read asks anew, but does not wait for an answer.
        const bool failedBefore = present && present == m_opened;
        open(need, need == Need::Read && failedBefore ? Deadline() : deadline);
    } else if (need == Need::Write && !m_isWritable) {
        open(need, deadline);
    }
    return m_database != nullptr && (need == Need::Read || m_isWritable);
}

void DefaultsDatabase::open(Need need, Deadline deadline) {
    int result = SQLITE_CANTOPEN;
    for (int round = 0; round < 2; ++round) {
        m_database.reset();
        m_opened = m_file.identity();
        m_isWritable = false;
        if (m_file.isBlank()) {
            // Reading makes no file.
            if (need == Need::Read) {
                return;
            }
            if ((m_file.hasLog() && !m_file.setAside(m_opened, deadline)) || !m_file.create()) {
                return;
            }
            m_opened = m_file.identity();
        }
        result = connect(deadline);
        if (!isDamage(result) || !m_file.setAside(m_opened, deadline)) {
            break;
        }
    }
    if (m_database == nullptr && !isBusy(result)) {
        auto reader = std::make_unique<SqliteDatabase>(m_file.resolvedPath(),
                                                       SqliteDatabase::Access::Immutable);
        if (reader->status() == SQLITE_OK) {
            m_database = std::move(reader);
        }
    }
}

int DefaultsDatabase::connect(Deadline deadline) {
    auto database =
        std::make_unique<SqliteDatabase>(m_file.resolvedPath(), SqliteDatabase::Access::ReadWrite);
    database->setDeadline(deadline);
    int result = database->status();
    if (result == SQLITE_OK) {
        result = adopt(*database, deadline);
    }
    if (result == SQLITE_OK) {
        m_database = std::move(database);
        return result;
    }
    m_isWritable = false;
    if (isDamage(result)) {
        database->leaveFilesAlone();
    }
    return result;
}

/// Makes sure that an opened file is a store of this program that can be used.
int DefaultsDatabase::adopt(SqliteDatabase& database, Deadline deadline) {
    qint64 version = 0;
    int result = database.read("PRAGMA user_version", version);
    if (result == SQLITE_OK && version == 0) {
        result = fill(database, deadline);
    }
    qint64 owner = 0;
    if (result == SQLITE_OK) {
        result = database.read("PRAGMA application_id", owner);
    }
    if (result == SQLITE_OK && owner != applicationId) {
        result = SQLITE_NOTADB;
    }
    m_isWritable = version <= schemaVersion && database.isWritable();
    if (result != SQLITE_OK || !m_isWritable) {
        return result;
    }
    result = database.execute("PRAGMA synchronous = FULL; PRAGMA journal_size_limit = 0");
    return result == SQLITE_OK ? quickCheck(database) : result;
}

/// Makes the table in an empty database.
int DefaultsDatabase::fill(SqliteDatabase& database, Deadline deadline) const {
    // Two processes that change the journal mode at once would refuse one another.
    const FolderTurn turn(m_file.folder(), deadline);
    qint64 version = 0;
    int result = database.read("PRAGMA user_version", version);
    if (result != SQLITE_OK || version != 0) {
        return result;
    }
    qint64 objects = 0;
    result = database.read("SELECT count(*) FROM sqlite_schema", objects);
    if (result != SQLITE_OK || objects != 0) {
        return result == SQLITE_OK ? SQLITE_NOTADB : result;
    }
    // SQLite does not wait for a reader here, not even for one that only asks for the version.
    do {
        result = database.execute("PRAGMA journal_mode = WAL");
    } while (isBusy(result) && pauseBefore(deadline));
    if (result == SQLITE_OK) {
        result = database.run(begin);
    }
    if (result == SQLITE_OK) {
        result = database.execute(createTable);
    }
    return result == SQLITE_OK ? database.run(commit) : result;
}

/// Puts the damaged file that is open out of the way.
bool DefaultsDatabase::setAside(Deadline deadline) {
    m_database->leaveFilesAlone();
    m_database.reset();
    return m_file.setAside(m_opened, deadline);
}

int DefaultsDatabase::store(SqliteDatabase& database, const Changes& changes,
                            Deadline deadline) const {
    int result = SQLITE_OK;
    {
        // Taken only while waiting for the write lock: a process that writes without pause then
        // finds the turn taken by the one that waits, and lets it through.
        const FolderTurn turn(m_file.folder(), deadline);
        result = database.run(begin);
    }
    for (const auto& [key, value] : changes) {
        if (result == SQLITE_OK) {
            result = change(database, key, value);
        }
    }
    if (result == SQLITE_OK) {
        result = database.run(commit);
    }
    if (result != SQLITE_OK) {
        // SQLite may have rolled back by itself already; the reason to report is the first one.
        static_cast<void>(database.run(rollback));
    }
    return result;
}

} // namespace dropshade
