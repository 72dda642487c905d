// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <sys/types.h>

#include <chrono>
#include <optional>

namespace dropshade {

/// The moment at which a call stops waiting for other processes.
using Deadline = std::chrono::steady_clock::time_point;

/// Lets other processes run for a moment. False, and no pause, once the deadline has passed.
[[nodiscard]] bool pauseBefore(Deadline deadline);

/// Which file is meant, whatever it is called by now.
struct FileIdentity {
    dev_t device = 0;
    ino_t inode = 0;

    friend bool operator==(const FileIdentity&, const FileIdentity&) = default;
};

/// A turn among the processes that use one folder. Who does not get it by the deadline goes on
/// without it: it orders the processes, and what must not go wrong is checked under it.
class FolderTurn {
public:
    FolderTurn(const QByteArray& folder, Deadline deadline);
    ~FolderTurn();
    FolderTurn(const FolderTurn&) = delete;
    FolderTurn& operator=(const FolderTurn&) = delete;

private:
    int m_descriptor = -1;
};

/// The file of a small database and its companions (write-ahead log, its index, a rollback
/// journal), apart from what is in them.
class SqliteFile {
public:
    explicit SqliteFile(const QString& path);

    /// The file at the path now; nothing where there is none.
    [[nodiscard]] std::optional<FileIdentity> identity() const;

    /// True when there is no file at the path, or an empty one.
    [[nodiscard]] bool isBlank() const;

    /// The same, but false also where nobody can tell, as in a folder that may not be searched.
    [[nodiscard]] bool isKnownBlank() const;

    /// True when a write-ahead log with content lies at the path. Beside a blank file it is all
    /// that is left of a database, and SQLite would delete it.
    [[nodiscard]] bool hasLog() const;

    /// The path with symbolic links resolved: where SQLite puts the companions.
    [[nodiscard]] QByteArray resolvedPath() const;
    [[nodiscard]] QByteArray folder() const;

    /// Makes the folder, for its user alone, and an empty file in it, unless they are there. False
    /// when the disk refuses.
    bool create() const;

    /// Renames the file and its companions to "<name>.damaged-<time>", never over another file. A
    /// file that is no longer the given one is left alone. False when something stays in the way.
    bool setAside(const std::optional<FileIdentity>& damaged, Deadline deadline) const;

private:
    QByteArray m_path;
};

} // namespace dropshade
