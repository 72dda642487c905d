// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/UserDefaults.h"
#include "platform/linux/SqliteDatabase.h"

#include <functional>
#include <map>
#include <memory>

namespace dropshade {

/// The settings on the disk: one table in one file, which at each call is the file that is then at
/// the path. It is opened at the first call that needs it and made by the first write.
class DefaultsDatabase {
public:
    /// What is to become of a key: a value, or nothing to remove it.
    using Changes = std::map<QString, std::optional<DefaultsValue>>;

    explicit DefaultsDatabase(const QString& path);
    ~DefaultsDatabase();

    /// What the disk holds under `key`; nothing also when it can't be read.
    [[nodiscard]] std::optional<DefaultsValue> value(const QString& key);
    [[nodiscard]] QStringList keys();

    /// Stores all of the changes and returns true, or stores none.
    [[nodiscard]] bool write(const Changes& changes, Deadline deadline);

    /// When a call that begins now gives up waiting for other processes.
    [[nodiscard]] static Deadline deadline();

private:
    enum class Need { Read, Write };
    using Work = std::function<int(SqliteDatabase&)>;

    int attempt(Need need, Deadline deadline, const Work& work);
    bool prepare(Need need, Deadline deadline);
    void open(Need need, Deadline deadline);
    int connect(Deadline deadline);
    int adopt(SqliteDatabase& database, Deadline deadline);
    int fill(SqliteDatabase& database, Deadline deadline) const;
    bool setAside(Deadline deadline);
    int store(SqliteDatabase& database, const Changes& changes, Deadline deadline) const;

    SqliteFile m_file;
    std::unique_ptr<SqliteDatabase> m_database;
    /// The file that `m_database` has open, or that could not be opened.
    std::optional<FileIdentity> m_opened;
    bool m_isWritable = false;
};

} // namespace dropshade
