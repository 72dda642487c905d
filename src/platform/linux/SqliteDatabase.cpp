// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/linux/SqliteDatabase.h"

namespace dropshade {
namespace {

QByteArray immutableUri(const QByteArray& path) {
    return "file:" + path.toPercentEncoding("/") + "?immutable=1";
}

} // namespace

SqliteDatabase::SqliteDatabase(const QByteArray& path, Access access) {
    const bool isImmutable = access == Access::Immutable;
    const QByteArray name = isImmutable ? immutableUri(path) : path;
    const int flags = isImmutable ? SQLITE_OPEN_READONLY | SQLITE_OPEN_URI : SQLITE_OPEN_READWRITE;
    m_status = sqlite3_open_v2(name.constData(), &m_handle,
                               flags | SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_EXRESCODE, nullptr);
    if (m_status != SQLITE_OK) {
        return;
    }
    // SQLite's own waiting pauses for up to 100 ms, and so misses its turn beside a busy writer.
    sqlite3_busy_handler(m_handle, &SqliteDatabase::waitForOthers, this);
    // The last connection would delete the log by name when it closes. If the file has been renamed
    // or removed meanwhile, that is the log of the file that took its place.
    int keepLog = 1;
    sqlite3_file_control(m_handle, "main", SQLITE_FCNTL_PERSIST_WAL, &keepLog);
}

SqliteDatabase::~SqliteDatabase() {
    for (const auto& [sql, statement] : m_statements) {
        sqlite3_finalize(statement);
    }
    sqlite3_close(m_handle);
}

void SqliteDatabase::leaveFilesAlone() {
    sqlite3_db_config(m_handle, SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 1, nullptr);
}

sqlite3_stmt* SqliteDatabase::prepared(std::string_view sql, int& result) {
    result = SQLITE_OK;
    if (const auto found = m_statements.find(sql); found != m_statements.end()) {
        return found->second;
    }
    sqlite3_stmt* statement = nullptr;
    result = sqlite3_prepare_v3(m_handle, sql.data(), static_cast<int>(sql.size()),
                                SQLITE_PREPARE_PERSISTENT, &statement, nullptr);
    if (result == SQLITE_OK) {
        m_statements.emplace(sql, statement);
    }
    return statement;
}

int SqliteDatabase::run(std::string_view sql) {
    int result = SQLITE_OK;
    sqlite3_stmt* statement = prepared(sql, result);
    if (statement == nullptr) {
        return result;
    }
    const SqliteUse use(statement);
    result = sqlite3_step(statement);
    return result == SQLITE_DONE || result == SQLITE_ROW ? SQLITE_OK : result;
}

int SqliteDatabase::execute(const char* sql) {
    return sqlite3_exec(m_handle, sql, nullptr, nullptr, nullptr);
}

int SqliteDatabase::read(const char* sql, QByteArray& result) {
    const auto takeFirst = [](void* target, int, char** values, char**) {
        auto& first = *static_cast<QByteArray*>(target);
        if (first.isNull()) {
            first = values[0];
        }
        return 0;
    };
    result = QByteArray();
    return sqlite3_exec(m_handle, sql, takeFirst, &result, nullptr);
}

int SqliteDatabase::read(const char* sql, qint64& result) {
    QByteArray text;
    const int code = read(sql, text);
    result = text.toLongLong();
    return code;
}

int SqliteDatabase::waitForOthers(void* database, int) {
    return pauseBefore(static_cast<SqliteDatabase*>(database)->m_deadline) ? 1 : 0;
}

} // namespace dropshade
