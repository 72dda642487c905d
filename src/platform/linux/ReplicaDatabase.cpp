// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/linux/ReplicaDatabase.h"

#include "platform/linux/DefaultsCoding.h"

namespace dropshade {
namespace {

// "DrRp". Type and value lie as in the defaults; without a value both are null.
constexpr DatabaseForm form = {
    0x44725270, 1,
    "CREATE TABLE replica(key PRIMARY KEY NOT NULL, type INTEGER, value, version BLOB NOT NULL, "
    "writtenAt REAL NOT NULL, serial INTEGER NOT NULL);"
    "CREATE INDEX unsent ON replica(serial) WHERE serial > 0;"
    "CREATE TABLE place(cursor BLOB NOT NULL);"
    "PRAGMA application_id = 0x44725270;"
    "PRAGMA user_version = 1",
    // What a power cut takes of a replica, the next start gives it again: not worth a wait on the
    // disk at each push. Nor is that of a move of the log.
    "PRAGMA synchronous = NORMAL; PRAGMA journal_size_limit = 0; PRAGMA wal_autocheckpoint = 0"};

constexpr std::string_view selectRow =
    "SELECT key, type, value, version, writtenAt, serial FROM replica WHERE key = ?1";
constexpr std::string_view selectRows =
    "SELECT key, type, value, version, writtenAt, serial FROM replica";
constexpr std::string_view selectUnsent =
    "SELECT key, type, value, version, writtenAt, serial FROM replica WHERE serial > 0 "
    "ORDER BY serial LIMIT 64";
constexpr std::string_view selectHighest = "SELECT max(serial) FROM replica WHERE serial > 0";
constexpr std::string_view selectCursor = "SELECT cursor FROM place";
constexpr std::string_view upsert =
    "INSERT OR REPLACE INTO replica(key, type, value, version, writtenAt, serial) "
    "VALUES(?1, ?2, ?3, ?4, ?5, ?6)";
constexpr std::string_view deleteRow = "DELETE FROM replica WHERE key = ?1";
constexpr std::string_view deleteCursor = "DELETE FROM place";
constexpr std::string_view insertCursor = "INSERT INTO place(cursor) VALUES(?1)";

ReplicaRow rowIn(sqlite3_stmt* statement) {
    ReplicaRow row;
    row.value = valueIn(statement, 1);
    row.version = bytesIn(statement, 3);
    row.writtenAt = ReferenceTime{sqlite3_column_double(statement, 4)};
    row.serial = sqlite3_column_int64(statement, 5);
    return row;
}

int bindRow(sqlite3_stmt* statement, const QString& key, const ReplicaRow& row) {
    int result = bindText(statement, 1, key);
    if (result == SQLITE_OK && row.value)
        result = bindValue(statement, 2, *row.value);
    if (result == SQLITE_OK)
        result = bindBytes(statement, 4, row.version);
    if (result == SQLITE_OK)
        result = sqlite3_bind_double(statement, 5, row.writtenAt.seconds);
    return result == SQLITE_OK ? sqlite3_bind_int64(statement, 6, row.serial) : result;
}

const auto bindNothing = [](sqlite3_stmt*) { return SQLITE_OK; };
const auto ignoreRow = [](sqlite3_stmt*) {};

} // namespace

ReplicaDatabase::ReplicaDatabase(const QString& path) : m_database(path, form) {}

std::optional<ReplicaRow> ReplicaDatabase::row(const QString& key) const {
    std::optional<ReplicaRow> found;
    m_database.read([&](SqliteDatabase& database) {
        return forEachRow(
            database, selectRow,
            [&](sqlite3_stmt* statement) { return bindText(statement, 1, key); },
            [&](sqlite3_stmt* statement) { found = rowIn(statement); });
    });
    return found;
}

std::map<QString, ReplicaRow> ReplicaDatabase::rows() const {
    std::map<QString, ReplicaRow> found;
    m_database.read([&](SqliteDatabase& database) {
        found.clear();
        return forEachRow(database, selectRows, bindNothing, [&](sqlite3_stmt* statement) {
            found.insert_or_assign(textIn(statement, 0), rowIn(statement));
        });
    });
    return found;
}

std::map<qint64, std::pair<QString, ReplicaRow>> ReplicaDatabase::unsent() const {
    std::map<qint64, std::pair<QString, ReplicaRow>> found;
    m_database.read([&](SqliteDatabase& database) {
        found.clear();
        return forEachRow(database, selectUnsent, bindNothing, [&](sqlite3_stmt* statement) {
            const ReplicaRow row = rowIn(statement);
            found.insert({row.serial, {textIn(statement, 0), row}});
        });
    });
    return found;
}

qint64 ReplicaDatabase::highestSerial() const {
    qint64 highest = 0;
    m_database.read([&](SqliteDatabase& database) {
        return forEachRow(database, selectHighest, bindNothing, [&](sqlite3_stmt* statement) {
            highest = sqlite3_column_int64(statement, 0);
        });
    });
    return highest;
}

QByteArray ReplicaDatabase::cursor() const {
    QByteArray found;
    m_database.read([&](SqliteDatabase& database) {
        return forEachRow(database, selectCursor, bindNothing,
                          [&](sqlite3_stmt* statement) { found = bytesIn(statement, 0); });
    });
    return found;
}

bool ReplicaDatabase::write(const Changes& changes, const std::optional<QByteArray>& cursor) {
    return m_database.write(KeptDatabase::deadline(), [&](SqliteDatabase& database) {
        int result = SQLITE_OK;
        for (const auto& [key, row] : changes) {
            const auto bind = [&, &changedKey = key, &changedRow = row](sqlite3_stmt* statement) {
                return changedRow ? bindRow(statement, changedKey, *changedRow)
                                  : bindText(statement, 1, changedKey);
            };
            if (result == SQLITE_OK)
                result = forEachRow(database, row ? upsert : deleteRow, bind, ignoreRow);
        }
        if (result == SQLITE_OK && cursor)
            result = forEachRow(database, deleteCursor, bindNothing, ignoreRow);
        if (result == SQLITE_OK && cursor)
            result = forEachRow(
                database, insertCursor,
                [&](sqlite3_stmt* statement) { return bindBytes(statement, 1, *cursor); },
                ignoreRow);
        return result;
    });
}

} // namespace dropshade
