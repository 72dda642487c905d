// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/linux/SqliteFile.h"

#include <QDateTime>
#include <QFile>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdlib>
#include <memory>
#include <thread>

namespace dropshade {
namespace {

constexpr std::array<const char*, 4> suffixes = {"", "-wal", "-shm", "-journal"};

bool exists(const QByteArray& path) {
    struct stat found = {};
    return ::lstat(path.constData(), &found) == 0;
}

off_t sizeOf(const QByteArray& path) {
    struct stat found = {};
    return ::stat(path.constData(), &found) == 0 ? found.st_size : 0;
}

QByteArray folderOf(const QByteArray& path) {
    const auto slash = path.lastIndexOf('/');
    return slash > 0 ? path.left(slash) : QByteArray(slash == 0 ? "/" : ".");
}

/// Makes the folder and those above it.
bool makeFolder(const QByteArray& path) {
    if (::mkdir(path.constData(), 0700) == 0 || errno == EEXIST) {
        return true;
    }
    return errno == ENOENT && makeFolder(folderOf(path)) && ::mkdir(path.constData(), 0700) == 0;
}

/// A name under which neither the file nor a companion would meet another.
QByteArray unusedName(const QByteArray& path) {
    const auto stamp = QDateTime::currentDateTimeUtc().toString(QStringLiteral("yyyyMMdd-HHmmss"));
    const QByteArray first = path + ".damaged-" + stamp.toLatin1();
    QByteArray name = first;
    const auto isTaken = [&name](const char* suffix) { return exists(name + suffix); };
    for (int number = 2; std::any_of(suffixes.begin(), suffixes.end(), isTaken); ++number) {
        name = first + '.' + QByteArray::number(number);
    }
    return name;
}

} // namespace

bool pauseBefore(Deadline deadline) {
    if (std::chrono::steady_clock::now() >= deadline) {
        return false;
    }
    std::this_thread::sleep_for(std::chrono::microseconds(200));
    return true;
}

FolderTurn::FolderTurn(const QByteArray& folder, Deadline deadline)
    : m_descriptor(::open(folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
    while (m_descriptor >= 0 && ::flock(m_descriptor, LOCK_EX | LOCK_NB) != 0 &&
           pauseBefore(deadline)) {
    }
}

FolderTurn::~FolderTurn() {
    if (m_descriptor >= 0) {
        ::close(m_descriptor);
    }
}

SqliteFile::SqliteFile(const QString& path) : m_path(QFile::encodeName(path)) {}

std::optional<FileIdentity> SqliteFile::identity() const {
    struct stat found = {};
    if (::stat(m_path.constData(), &found) != 0) {
        return std::nullopt;
    }
    return FileIdentity{found.st_dev, found.st_ino};
}

bool SqliteFile::isBlank() const {
    return sizeOf(m_path) == 0;
}

bool SqliteFile::isKnownBlank() const {
    struct stat found = {};
    return ::stat(m_path.constData(), &found) == 0 ? found.st_size == 0
                                                   : errno == ENOENT || errno == ENOTDIR;
}

bool SqliteFile::hasLog() const {
    return sizeOf(resolvedPath() + "-wal") > 0;
}

QByteArray SqliteFile::resolvedPath() const {
    const std::unique_ptr<char, decltype(&std::free)> resolved(
        ::realpath(m_path.constData(), nullptr), &std::free);
    return resolved ? QByteArray(resolved.get()) : m_path;
}

QByteArray SqliteFile::folder() const {
    return folderOf(resolvedPath());
}

bool SqliteFile::create() const {
    if (identity()) {
        return true;
    }
    if (!makeFolder(folder())) {
        return false;
    }
    // Made here and not by SQLite, which would let other users read it. Never open this file by
    // hand once it exists: closing it would drop the locks that SQLite has on it.
    const int file = ::open(m_path.constData(), O_CREAT | O_WRONLY | O_CLOEXEC, 0600);
    return file >= 0 && ::close(file) == 0;
}

bool SqliteFile::setAside(const std::optional<FileIdentity>& damaged, Deadline deadline) const {
    const FolderTurn turn(folder(), deadline);
    if (identity() != damaged) {
        return true;
    }
    const QByteArray path = resolvedPath();
    const QByteArray aside = unusedName(path);
    bool isClear = true;
    for (const char* suffix : suffixes) {
        if (exists(path + suffix)) {
            isClear &= ::rename((path + suffix).constData(), (aside + suffix).constData()) == 0;
        }
    }
    return isClear;
}

} // namespace dropshade
