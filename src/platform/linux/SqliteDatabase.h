// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/linux/SqliteFile.h"

#include <sqlite3.h>

#include <map>
#include <string_view>

namespace dropshade {

/// One connection to a database, and the statements prepared on it. Results are SQLite's codes.
class SqliteDatabase {
public:
    enum class Access {
        ReadWrite,
        /// Takes the file for one that nobody changes, which needs no companion beside it: the way
        /// to read where nothing can be written. A log is left out of account.
        Immutable
    };

    /// Opens an existing file; whether that went well is told by `status`.
    SqliteDatabase(const QByteArray& path, Access access);
    ~SqliteDatabase();
    SqliteDatabase(const SqliteDatabase&) = delete;
    SqliteDatabase& operator=(const SqliteDatabase&) = delete;

    [[nodiscard]] int status() const { return m_status; }

    /// False when the file could be opened for reading alone.
    [[nodiscard]] bool isWritable() const { return sqlite3_db_readonly(m_handle, "main") == 0; }

    /// Until when later calls wait for the locks of other connections; not at all unless set.
    void setDeadline(Deadline deadline) { m_deadline = deadline; }

    /// From here on the connection changes nothing in its files, not even when it closes.
    void leaveFilesAlone();

    /// The statement for `sql`, prepared at the first call and kept; `sql` must live as long as
    /// this object. Null, with the reason in `result`, when it can't be prepared.
    [[nodiscard]] sqlite3_stmt* prepared(std::string_view sql, int& result);

    /// Runs one statement, kept like the others. Its rows are ignored.
    [[nodiscard]] int run(std::string_view sql);

    /// Runs statements that are not worth keeping.
    [[nodiscard]] int execute(const char* sql);

    /// The first column of the first row, as text or as a number.
    [[nodiscard]] int read(const char* sql, QByteArray& result);
    [[nodiscard]] int read(const char* sql, qint64& result);

private:
    static int waitForOthers(void* database, int count);

    sqlite3* m_handle = nullptr;
    int m_status = SQLITE_OK;
    Deadline m_deadline;
    std::map<std::string_view, sqlite3_stmt*> m_statements;
};

/// A kept statement while it is in use: at the end it is reset and lets go of what was bound.
class SqliteUse {
public:
    explicit SqliteUse(sqlite3_stmt* statement) : m_statement(statement) {}
    ~SqliteUse() {
        sqlite3_reset(m_statement);
        sqlite3_clear_bindings(m_statement);
    }
    SqliteUse(const SqliteUse&) = delete;
    SqliteUse& operator=(const SqliteUse&) = delete;

private:
    sqlite3_stmt* m_statement;
};

} // namespace dropshade
