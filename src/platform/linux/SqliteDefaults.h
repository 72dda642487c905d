// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/UserDefaults.h"
#include "platform/linux/UnsavedValue.h"

#include <chrono>
#include <map>
#include <memory>

namespace dropshade {

class DefaultsDatabase;
class ScheduledWork;
class Scheduler;

/// User defaults in an SQLite database. All processes of the user share the file.
///
/// - Every value comes back exactly, also a string with NUL characters or lone surrogates and a
///   real that is not a number.
/// - A call waits for other processes 200 ms at most, the last writes 5 s in all. A read that they
///   keep from the file finds only what this process could not store.
/// - A damaged file, or one of another program, is renamed to "<name>.damaged-<UTC time>" with its
///   companions, and a fresh store begins. A removed or replaced file counts as removed or replaced
///   from the next call on.
/// - Where no file can be made, the values live as long as the object; each write tries anew. Where
///   the file can be read alone, it is, and writes are refused.
/// - A file that a newer version of the program has changed in form is read as far as it can be;
///   it is never written or renamed, so writes are refused.
/// - What was refused is written with the next write, when the object ends, and where there is a
///   scheduler 5 s later.
class SqliteDefaults : public UserDefaults {
    Q_OBJECT

public:
    /// Nothing is opened or made before it is needed. The scheduler outlives the object.
    explicit SqliteDefaults(const QString& path, Scheduler* scheduler = nullptr);
    ~SqliteDefaults() override;

    [[nodiscard]] std::optional<DefaultsValue> value(const QString& key) const override;
    bool setValue(const QString& key, const DefaultsValue& value) override;
    bool remove(const QString& key) override;
    bool update(const QString& key, const Change& change) override;
    bool amend(const QString& key, const Change& change) override;
    void beginLastWrites() override;
    [[nodiscard]] QStringList keys() const override;
    [[nodiscard]] int refusedReads() const override { return m_refusedReads; }

    /// `dropshade/defaults.sqlite` in the user's configuration folder.
    [[nodiscard]] static QString defaultPath();

private:
    using Deadline = std::chrono::steady_clock::time_point;

    [[nodiscard]] std::optional<DefaultsValue> storedValue(const QString& key) const;
    bool storeAndAnnounce(const QString& key);
    bool store(const QString& key);
    bool storeUnsaved(Deadline deadline);
    void storeUnsavedLater();
    [[nodiscard]] Deadline deadline() const;

    std::unique_ptr<DefaultsDatabase> m_database;
    Scheduler* m_scheduler;
    /// Until when the last writes may wait; set once they have begun.
    std::optional<Deadline> m_end;
    std::unique_ptr<ScheduledWork> m_retry;
    /// What the disk refused so far.
    std::map<QString, UnsavedValue> m_unsaved;
    mutable int m_refusedReads = 0;
};

} // namespace dropshade
