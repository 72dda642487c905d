// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/linux/FolderWorker.h"

#include "platform/linux/SqliteFile.h"
#include "platform/linux/replica/ReplicaRecord.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QSaveFile>
#include <QUuid>

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cmath>
#include <cstdlib>
#include <cstring>

namespace dropshade {
namespace {

const QString suffix = QStringLiteral(".dropshade");
const QString idFile = QStringLiteral("dropshade-folder.txt");
const QByteArray idLine = "id: ";

constexpr int coalesceMilliseconds = 20;
/// How often a folder is looked at whose file system tells of no changes.
constexpr int pollMilliseconds = 30'000;
constexpr int retryMilliseconds = 3'000;
/// For so long a file that can't be read may be one that is just being written.
constexpr qint64 patienceSeconds = 30;
constexpr std::chrono::seconds longestTurn{2};
constexpr qsizetype entriesAtOnce = 64;

QByteArray versionOf(const QByteArray& content) {
    return QCryptographicHash::hash(content, QCryptographicHash::Sha1).toHex();
}

struct FileContent {
    bool isThere = false;
    QByteArray bytes;
    /// In seconds since the last change; below 0 where the clock that told of it is ahead.
    qint64 age = 0;
};

/// A file that is too long for a record counts as one without bytes.
FileContent contentOf(const QString& path) {
    FileContent content;
    struct stat found = {};
    if (::stat(QFile::encodeName(path).constData(), &found) != 0)
        return content;
    content.isThere = true;
    content.age = QDateTime::currentSecsSinceEpoch() - found.st_mtim.tv_sec;
    QFile file(path);
    if (S_ISREG(found.st_mode) && found.st_size <= ReplicaRecord::mostBytes &&
        file.open(QIODevice::ReadOnly))
        content.bytes = file.read(ReplicaRecord::mostBytes);
    return content;
}

QString systemWords(int error) {
    return QString::fromLocal8Bit(std::strerror(error));
}

RemoteEntry entryOf(const ReplicaRecord& record, const QByteArray& version) {
    return {record.key, record.value, record.writtenAt, version};
}

} // namespace

FolderWorker::FolderWorker(const QString& folder) : m_folder(folder) {
    m_coalesce.setSingleShot(true);
    m_coalesce.setInterval(coalesceMilliseconds);
    m_poll.setInterval(pollMilliseconds);
    m_retry.setSingleShot(true);
    m_retry.setInterval(retryMilliseconds);
    connect(&m_coalesce, &QTimer::timeout, this, &FolderWorker::scan);
    connect(&m_poll, &QTimer::timeout, this, &FolderWorker::scan);
    connect(&m_retry, &QTimer::timeout, this, [this] {
        if (m_isOpen)
            Q_EMIT ready();
        else
            attempt();
    });
}

QString FolderWorker::pathOf(const QString& name) const {
    return m_folder + QLatin1Char('/') + name;
}

QString FolderWorker::fileName(const QString& key) {
    return QString::fromLatin1(key.toUtf8().toPercentEncoding()) + suffix;
}

QString FolderWorker::check(const QString& folder) {
    if (!QDir().mkpath(folder))
        //: %1 is a path, %2 the reason as the system gives it.
        return tr("The sync folder %1 can't be made: %2").arg(folder, systemWords(errno));
    QSaveFile file(folder + QStringLiteral("/.dropshade-check"));
    if (!file.open(QIODevice::WriteOnly) || file.write("check") < 0 || !file.commit())
        //: %1 is a path, %2 the reason as the system gives it.
        return tr("The sync folder %1 can't be written: %2").arg(folder, file.errorString());
    QFile::remove(file.fileName());
    return {};
}

void FolderWorker::start(const QByteArray& folderId) {
    m_id = folderId;
    attempt();
}

void FolderWorker::attempt() {
    m_known.clear();
    if (!openFolder())
        return;
    m_isOpen = true;
    m_watch = std::make_unique<FolderWatch>(m_folder);
    connect(m_watch.get(), &FolderWatch::didChange, &m_coalesce, qOverload<>(&QTimer::start));
    m_poll.start();
    Q_EMIT troubleDidChange({});
    readAll();
    QStringList keys;
    for (const Known& known : std::as_const(m_known)) {
        if (!known.key.isEmpty())
            keys.append(known.key);
    }
    Q_EMIT listed(keys);
    Q_EMIT caughtUp(m_id);
    Q_EMIT ready();
}

void FolderWorker::fail(const QString& words) {
    m_isOpen = false;
    m_watch.reset();
    m_poll.stop();
    m_retry.start();
    Q_EMIT troubleDidChange(words);
}

QByteArray FolderWorker::storedId() const {
    const QByteArray content = contentOf(pathOf(idFile)).bytes;
    const qsizetype at = content.indexOf(idLine);
    return at < 0 ? QByteArray() : content.mid(at + idLine.size()).split('\n').first().trimmed();
}

bool FolderWorker::openFolder() {
    // A folder that was there once is not made anew: its disk may be somewhere else just now.
    if (!m_id.isEmpty() && !QDir(m_folder).exists()) {
        //: %1 is a path.
        fail(tr("The sync folder %1 is missing.").arg(m_folder));
        return false;
    }
    QByteArray id = storedId();
    if (id.isEmpty()) {
        const QString words = check(m_folder);
        if (!words.isEmpty()) {
            fail(words);
            return false;
        }
        id = QUuid::createUuid().toByteArray(QUuid::WithoutBraces);
        QSaveFile file(pathOf(idFile));
        if (file.open(QIODevice::WriteOnly)) {
            file.write("Dropshade keeps what it syncs in this folder. Please leave it alone.\n" +
                       idLine + id + '\n');
            file.commit();
        }
    }
    if (!m_id.isEmpty() && id != m_id)
        Q_EMIT remoteIsNew();
    m_id = id;
    return true;
}

void FolderWorker::scan() {
    if (!m_isOpen)
        return;
    if (storedId() != m_id) {
        attempt();
        return;
    }
    readAll();
    Q_EMIT caughtUp(m_id);
}

void FolderWorker::readAll() {
    const QStringList names =
        QDir(m_folder).entryList({QLatin1Char('*') + suffix}, QDir::Files | QDir::Hidden);
    QList<RemoteEntry> news;
    for (const QString& name : names) {
        look(name, news);
        if (news.size() == entriesAtOnce)
            Q_EMIT received(std::exchange(news, {}));
    }
    const QSet<QString> present(names.cbegin(), names.cend());
    for (auto known = m_known.begin(); known != m_known.end();) {
        if (present.contains(known.key())) {
            ++known;
            continue;
        }
        if (!known->key.isEmpty())
            news.append({known->key, std::nullopt, {}, {}});
        known = m_known.erase(known);
    }
    if (!news.isEmpty())
        Q_EMIT received(news);
}

/// Reads a file if it has changed since the last time. One that couldn't be read then may well have
/// been finished within the same tick of the file system's clock.
void FolderWorker::look(const QString& name, QList<RemoteEntry>& news) {
    struct stat found = {};
    if (::stat(QFile::encodeName(pathOf(name)).constData(), &found) != 0)
        return;
    const Known before = m_known.value(name);
    if (before.isReadable && before.inode == found.st_ino && before.size == found.st_size &&
        before.changed.tv_sec == found.st_mtim.tv_sec &&
        before.changed.tv_nsec == found.st_mtim.tv_nsec)
        return;
    Known known = {found.st_mtim, found.st_size, found.st_ino, {}, {}, false};
    const QByteArray bytes = contentOf(pathOf(name)).bytes;
    const auto record = ReplicaRecord::decoded(bytes);
    const QString key =
        QString::fromUtf8(QByteArray::fromPercentEncoding(name.chopped(suffix.size()).toLatin1()));
    known.isReadable = record.has_value();
    if (fileName(key) == name && (!record || record->key == key)) {
        known.key = key;
        known.version = versionOf(bytes);
    }
    m_known.insert(name, known);
    if (record && known.key.isEmpty())
        Q_EMIT foundCopy(entryOf(*record, {}), name);
    else if (record && known.version != before.version)
        news.append(entryOf(*record, known.version));
}

void FolderWorker::discardCopy(const QString& name) {
    QFile::remove(pathOf(name));
}

void FolderWorker::send(const QList<OutgoingEntry>& entries) {
    QList<SendResult> results;
    bool isStopped = !m_isOpen;
    {
        const FolderTurn turn(QFile::encodeName(m_folder),
                              std::chrono::steady_clock::now() + longestTurn);
        isStopped = isStopped || storedId() != m_id;
        for (const OutgoingEntry& entry : entries) {
            SendResult result;
            result.current.key = entry.key;
            if (!isStopped)
                result = send(entry);
            isStopped = isStopped || result.outcome == SendResult::Outcome::Failed;
            results.append(result);
        }
    }
    if (isStopped)
        m_retry.start();
    else
        Q_EMIT troubleDidChange({});
    Q_EMIT sendEnded(results);
    if (isStopped && m_isOpen)
        m_coalesce.start();
}

SendResult FolderWorker::send(const OutgoingEntry& entry) {
    using Outcome = SendResult::Outcome;
    const QString path = pathOf(fileName(entry.key));
    const FileContent content = contentOf(path);
    const auto record = ReplicaRecord::decoded(content.bytes);
    RemoteEntry current = {entry.key, std::nullopt, {}, {}};
    if (record && record->key == entry.key) {
        current = entryOf(*record, versionOf(content.bytes));
    } else if (content.isThere) {
        if (std::abs(content.age) < patienceSeconds)
            return {Outcome::Failed, current};
        const QString aside =
            path + QStringLiteral(".unreadable-%1").arg(QDateTime::currentMSecsSinceEpoch());
        if (!QFile::rename(path, aside))
            return {Outcome::Failed, current};
    }
    if (current.value == entry.value && content.isThere == entry.value.has_value())
        return {Outcome::Stored, current};
    // A file that had to go leaves nothing of what the base was; there is nothing to undo.
    if (current.version != entry.base && (current.value || !content.isThere))
        return {Outcome::Outdated, current};
    QByteArray bytes;
    if (entry.value)
        bytes = ReplicaRecord{entry.key, *entry.value, entry.writtenAt}.encoded();
    if (bytes.size() > ReplicaRecord::mostBytes)
        return {Outcome::Refused, current};
    if (!replace(path, bytes))
        return {Outcome::Failed, current};
    const QByteArray version = entry.value ? versionOf(bytes) : QByteArray();
    return {Outcome::Stored, {entry.key, entry.value, entry.writtenAt, version}};
}

bool FolderWorker::replace(const QString& path, const QByteArray& bytes) {
    QString reason;
    if (bytes.isEmpty()) {
        if (::unlink(QFile::encodeName(path).constData()) == 0 || errno == ENOENT)
            return true;
        reason = systemWords(errno);
    } else {
        QSaveFile file(path);
        if (file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit())
            return true;
        reason = file.errorString();
    }
    //: %1 is a path, %2 the reason as the system gives it.
    Q_EMIT troubleDidChange(tr("The sync folder %1 can't be written: %2").arg(m_folder, reason));
    return false;
}

} // namespace dropshade
