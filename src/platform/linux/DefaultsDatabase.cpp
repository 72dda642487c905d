// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/linux/DefaultsDatabase.h"

#include "platform/linux/DefaultsCoding.h"

namespace dropshade {
namespace {

// "DrSh".
constexpr DatabaseForm form = {0x44725368, 1,
                               "CREATE TABLE defaults("
                               "key PRIMARY KEY NOT NULL, type INTEGER NOT NULL, value);"
                               "PRAGMA application_id = 0x44725368;"
                               "PRAGMA user_version = 1",
                               "PRAGMA synchronous = FULL; PRAGMA journal_size_limit = 0"};

constexpr std::string_view selectValue = "SELECT type, value FROM defaults WHERE key = ?1";
constexpr std::string_view selectKeys = "SELECT key FROM defaults";
constexpr std::string_view upsert =
    "INSERT INTO defaults(key, type, value) VALUES(?1, ?2, ?3) "
    "ON CONFLICT(key) DO UPDATE SET type = excluded.type, value = excluded.value";
constexpr std::string_view deleteKey = "DELETE FROM defaults WHERE key = ?1";

int readValue(SqliteDatabase& database, const QString& key, std::optional<DefaultsValue>& value) {
    value.reset();
    return forEachRow(
        database, selectValue, [&](sqlite3_stmt* statement) { return bindText(statement, 1, key); },
        [&](sqlite3_stmt* statement) { value = valueIn(statement, 0); });
}

int store(SqliteDatabase& database, const QString& key, const std::optional<DefaultsValue>& value) {
    const auto bind = [&](sqlite3_stmt* statement) {
        const int result = bindText(statement, 1, key);
        return result == SQLITE_OK && value ? bindValue(statement, 2, *value) : result;
    };
    return forEachRow(database, value ? upsert : deleteKey, bind, [](sqlite3_stmt*) {});
}

} // namespace

DefaultsDatabase::DefaultsDatabase(const QString& path) : m_database(path, form) {}

bool DefaultsDatabase::read(const QString& key, std::optional<DefaultsValue>& value) {
    value.reset();
    return m_database.read(
        [&](SqliteDatabase& database) { return readValue(database, key, value); });
}

bool DefaultsDatabase::readKeys(QStringList& keys) {
    keys.clear();
    return m_database.read([&](SqliteDatabase& database) {
        keys.clear();
        return forEachRow(
            database, selectKeys, [](sqlite3_stmt*) { return SQLITE_OK; },
            [&](sqlite3_stmt* statement) { keys.append(textIn(statement, 0)); });
    });
}

bool DefaultsDatabase::write(const Changes& changes, Deadline deadline) {
    return m_database.write(deadline, [&](SqliteDatabase& database) {
        int result = SQLITE_OK;
        for (const auto& [key, unsaved] : changes) {
            std::optional<DefaultsValue> present;
            if (result == SQLITE_OK && !unsaved.isReplaced()) {
                result = readValue(database, key, present);
            }
            if (result == SQLITE_OK) {
                result = store(database, key, unsaved.over(present));
            }
        }
        return result;
    });
}

bool DefaultsDatabase::update(const QString& key, const UserDefaults::Change& change,
                              Deadline deadline) {
    return m_database.write(deadline, [&](SqliteDatabase& database) {
        std::optional<DefaultsValue> present;
        const int result = readValue(database, key, present);
        return result == SQLITE_OK ? store(database, key, change(present)) : result;
    });
}

} // namespace dropshade
