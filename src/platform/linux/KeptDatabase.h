// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/linux/SqliteDatabase.h"

#include <functional>
#include <memory>

namespace dropshade {

/// What tells a database of the program from another file, and how one is made.
struct DatabaseForm {
    /// Tells this program, and tools such as `file`, whose the file is.
    qint64 applicationId;
    /// Raised with every change of the tables that an older program could not work with.
    qint64 version;
    /// Makes the tables in an empty database, and sets the two numbers above.
    const char* create;
    /// Sets up each connection that may write.
    const char* settings;
};

/// Steps through the rows of a kept statement; `bind` fills in its parameters.
template <typename Bind, typename Row>
int forEachRow(SqliteDatabase& database, std::string_view sql, const Bind& bind, const Row& row) {
    int result = SQLITE_OK;
    sqlite3_stmt* statement = database.prepared(sql, result);
    if (statement == nullptr) {
        // The table is not there or not ours: the file is no database of this program.
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

/// A small database in one file, which at each call is the file that is then at the path. It is
/// opened at the first call that needs it and made by the first write. A damaged file, or one that
/// is none of the form, is renamed and a fresh one begun.
class KeptDatabase {
public:
    /// Gives SQLite's code. May run once more, on a fresh file.
    using Work = std::function<int(SqliteDatabase&)>;

    KeptDatabase(const QString& path, const DatabaseForm& form);
    ~KeptDatabase();

    /// Runs `work` if there is something to read. False where there is and it couldn't be read.
    bool read(const Work& work);

    /// Runs `work` in a transaction. False when nothing of it was stored.
    [[nodiscard]] bool write(Deadline deadline, const Work& work);

    /// Moves what the log has into the file, which SQLite else does within a write that makes the
    /// log long. It waits for the disk; no other connection waits for it.
    void moveLog();

    /// When a call that begins now gives up waiting for other processes.
    [[nodiscard]] static Deadline deadline();

private:
    enum class Need { Read, Write };

    int attempt(Need need, Deadline deadline, const Work& work);
    bool prepare(Need need, Deadline deadline);
    void open(Need need, Deadline deadline);
    int connect(Deadline deadline);
    int adopt(SqliteDatabase& database, Deadline deadline);
    int fill(SqliteDatabase& database, Deadline deadline) const;
    bool setAside(Deadline deadline);
    int store(SqliteDatabase& database, const Work& work, Deadline deadline) const;

    SqliteFile m_file;
    DatabaseForm m_form;
    std::unique_ptr<SqliteDatabase> m_database;
    /// The file that `m_database` has open, or that could not be opened.
    std::optional<FileIdentity> m_opened;
    bool m_isWritable = false;
};

} // namespace dropshade
