// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CloudKeyValueStore.h"
#include "platform/ReferenceTime.h"
#include "platform/linux/KeptDatabase.h"

#include <map>

namespace dropshade {

/// What a replica holds under a key.
struct ReplicaRow {
    /// Nothing for a key that was removed here, or that the remote side holds unreadably.
    std::optional<CloudValue> value;
    /// The version of the remote side that the value is, or was written in view of.
    QByteArray version;
    ReferenceTime writtenAt;
    /// Above 0 while the value waits to be sent; a later write has a higher one.
    qint64 serial = 0;
};

/// A replica on the disk. Commits survive the process; the last ones may be lost with the power,
/// and are then made once more from what the program remembers.
class ReplicaDatabase {
public:
    /// What is to become of a key: a row, or nothing to forget it.
    using Changes = std::map<QString, std::optional<ReplicaRow>>;

    explicit ReplicaDatabase(const QString& path);

    [[nodiscard]] std::optional<ReplicaRow> row(const QString& key) const;
    [[nodiscard]] std::map<QString, ReplicaRow> rows() const;
    /// The rows that wait to be sent, the oldest writes first; some of them where there are many.
    [[nodiscard]] std::map<qint64, std::pair<QString, ReplicaRow>> unsent() const;
    [[nodiscard]] qint64 highestSerial() const;
    [[nodiscard]] QByteArray cursor() const;

    /// All of it or nothing; false when the disk refuses.
    [[nodiscard]] bool write(const Changes& changes,
                             const std::optional<QByteArray>& cursor = std::nullopt);

    /// Writes only make the log longer. Moves it into the file, which waits for the disk: for
    /// another thread, on a database of its own with the same path.
    void moveLog() { m_database.moveLog(); }

private:
    mutable KeptDatabase m_database;
};

} // namespace dropshade
