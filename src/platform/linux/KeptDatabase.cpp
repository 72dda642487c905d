// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/linux/KeptDatabase.h"

namespace dropshade {
namespace {

constexpr std::string_view begin = "BEGIN IMMEDIATE";
constexpr std::string_view commit = "COMMIT";
constexpr std::string_view rollback = "ROLLBACK";

/// A fresh file has pages of 32 KiB. Libraries are large: to write one in many small pages takes
/// three times as long, while a setting, which waits for the disk, takes no longer in a large one.
constexpr const char* largePages = "PRAGMA page_size = 32768";

/// The log is moved into the file at 4 MiB of such pages, and 512 KiB of them are kept in memory.
/// Unless told so, SQLite keeps as many of any size as it would of small ones.
constexpr const char* pageLimits = "PRAGMA wal_autocheckpoint = 128; PRAGMA cache_size = -512";

/// Up to this size a file is checked whole when it is opened, which takes less than a millisecond;
/// a larger one tells of its damage when the damaged page is used.
constexpr qint64 mostBytesChecked = 256 * 1024;

bool isDamage(int result) {
    const int kind = result & 0xff;
    return kind == SQLITE_CORRUPT || kind == SQLITE_NOTADB;
}

bool isBusy(int result) {
    return (result & 0xff) == SQLITE_BUSY;
}

int quickCheck(SqliteDatabase& database) {
    qint64 pages = 0;
    qint64 pageSize = 0;
    int result = database.read("PRAGMA page_count", pages);
    if (result == SQLITE_OK) {
        result = database.read("PRAGMA page_size", pageSize);
    }
    if (result != SQLITE_OK || pages * pageSize > mostBytesChecked) {
        return result;
    }
    QByteArray verdict;
    result = database.read("PRAGMA quick_check(1)", verdict);
    return result == SQLITE_OK && verdict != "ok" ? SQLITE_CORRUPT : result;
}

} // namespace

KeptDatabase::KeptDatabase(const QString& path, const DatabaseForm& form)
    : m_file(path), m_form(form) {}

KeptDatabase::~KeptDatabase() = default;

Deadline KeptDatabase::deadline() {
    return std::chrono::steady_clock::now() + std::chrono::milliseconds(200);
}

bool KeptDatabase::read(const Work& work) {
    const int result = attempt(Need::Read, deadline(), work);
    return result == SQLITE_OK || (m_database == nullptr && m_file.isKnownBlank());
}

bool KeptDatabase::write(Deadline deadline, const Work& work) {
    const auto transaction = [&](SqliteDatabase& database) {
        return store(database, work, deadline);
    };
    // The file may be replaced between the look at the path and the end of the transaction; what
    // went into the old one is not stored.
    for (int round = 0; round < 2; ++round) {
        if (attempt(Need::Write, deadline, transaction) != SQLITE_OK) {
            return false;
        }
        if (m_file.identity() == m_opened) {
            return true;
        }
    }
    return false;
}

void KeptDatabase::moveLog() {
    read([](SqliteDatabase& database) { return database.execute("PRAGMA wal_checkpoint"); });
}

/// Runs `work` on the file that is at the path, and once more on a fresh one if it turns out to be
/// damaged.
int KeptDatabase::attempt(Need need, Deadline deadline, const Work& work) {
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

bool KeptDatabase::prepare(Need need, Deadline deadline) {
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

void KeptDatabase::open(Need need, Deadline deadline) {
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

int KeptDatabase::connect(Deadline deadline) {
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

/// Makes sure that an opened file is a database of this form that can be used.
int KeptDatabase::adopt(SqliteDatabase& database, Deadline deadline) {
    qint64 version = 0;
    int result = database.read("PRAGMA user_version", version);
    if (result == SQLITE_OK && version == 0) {
        result = fill(database, deadline);
    }
    qint64 owner = 0;
    if (result == SQLITE_OK) {
        result = database.read("PRAGMA application_id", owner);
    }
    if (result == SQLITE_OK && owner != m_form.applicationId) {
        result = SQLITE_NOTADB;
    }
    m_isWritable = version <= m_form.version && database.isWritable();
    if (result != SQLITE_OK || !m_isWritable) {
        return result;
    }
    result = database.execute(pageLimits);
    if (result == SQLITE_OK) {
        result = database.execute(m_form.settings);
    }
    return result == SQLITE_OK ? quickCheck(database) : result;
}

/// Makes the table in an empty database.
int KeptDatabase::fill(SqliteDatabase& database, Deadline deadline) const {
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
    result = database.execute(largePages);
    if (result != SQLITE_OK) {
        return result;
    }
    // SQLite does not wait for a reader here, not even for one that only asks for the version.
    do {
        result = database.execute("PRAGMA journal_mode = WAL");
    } while (isBusy(result) && pauseBefore(deadline));
    if (result == SQLITE_OK) {
        result = database.run(begin);
    }
    if (result == SQLITE_OK) {
        result = database.execute(m_form.create);
    }
    return result == SQLITE_OK ? database.run(commit) : result;
}

/// Puts the damaged file that is open out of the way.
bool KeptDatabase::setAside(Deadline deadline) {
    m_database->leaveFilesAlone();
    m_database.reset();
    return m_file.setAside(m_opened, deadline);
}

int KeptDatabase::store(SqliteDatabase& database, const Work& work, Deadline deadline) const {
    int result = SQLITE_OK;
    {
        // Taken only while waiting for the write lock: a process that writes without pause then
        // finds the turn taken by the one that waits, and lets it through.
        const FolderTurn turn(m_file.folder(), deadline);
        result = database.run(begin);
    }
    if (result == SQLITE_OK) {
        result = work(database);
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
