// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/linux/ReplicatedKeyValueStore.h"

#include "platform/linux/replica/BackgroundCheck.h"

#include <QEventLoop>
#include <QStandardPaths>
#include <QTimer>

#include <algorithm>
#include <utility>

namespace dropshade {
namespace {

constexpr std::chrono::milliseconds longestFarewell{1000};

/// About what goes out at once: well below what a server takes in one request.
constexpr qsizetype mostBytesAtOnce = 512 * 1024;
constexpr std::size_t mostRowsAtOnce = 32;

/// When so much has been written the log of a replica is moved into its file; a log that has grown
/// to the second size while it was moved is one that the next write must wait for.
constexpr qsizetype longLog = 4 * 1024 * 1024;
constexpr qsizetype longestLog = 32 * 1024 * 1024;

qsizetype sizeOf(const ReplicaRow& row) {
    const QByteArray* data = row.value ? std::get_if<QByteArray>(&*row.value) : nullptr;
    return data ? data->size() : 64;
}

qsizetype sizeOf(const ReplicaDatabase::Changes& changes) {
    qsizetype size = 0;
    for (const auto& [key, row] : changes)
        size += row ? sizeOf(*row) : 0;
    return size;
}

} // namespace

ReplicatedKeyValueStore::ReplicatedKeyValueStore(const UserDefaults& defaults,
                                                 const Scheduler& scheduler, Means means)
    : m_defaults(defaults), m_scheduler(scheduler), m_means(std::move(means)) {}

ReplicatedKeyValueStore::~ReplicatedKeyValueStore() {
    static_cast<void>(commit());
    if (m_logMover)
        m_logMover->wait();
}

QString ReplicatedKeyValueStore::defaultFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
           QStringLiteral("/dropshade/sync");
}

void ReplicatedKeyValueStore::open(ConflictRule rule) {
    close();
    // Another account may have been chosen, and each has a replica of its own.
    if (m_path != m_means.path(CloudAccount::read(m_defaults))) {
        m_database.reset();
        m_uncommitted.clear();
    }
    m_rule = std::move(rule);
    m_transport = m_means.transport(CloudAccount::read(m_defaults));
    if (!m_transport) {
        setTrouble(m_transportTrouble, missingPartWords());
        return;
    }
    connectTransport();
    m_transport->start(database().cursor());
}

void ReplicatedKeyValueStore::connectTransport() {
    ReplicaTransport* transport = m_transport.get();
    connect(transport, &ReplicaTransport::ready, this, [this] {
        m_isReady = true;
        sendUnsent();
    });
    connect(transport, &ReplicaTransport::remoteIsNew, this,
            &ReplicatedKeyValueStore::distrustRemote);
    connect(transport, &ReplicaTransport::received, this, [this](const QList<RemoteEntry>& news) {
        take(news);
        static_cast<void>(commit());
    });
    connect(transport, &ReplicaTransport::listed, this, &ReplicatedKeyValueStore::forgetAllBut);
    connect(transport, &ReplicaTransport::caughtUp, this,
            &ReplicatedKeyValueStore::finishCatchingUp);
    connect(transport, &ReplicaTransport::foundCopy, this, &ReplicatedKeyValueStore::takeCopy);
    connect(transport, &ReplicaTransport::sendEnded, this, &ReplicatedKeyValueStore::endSending);
    connect(transport, &ReplicaTransport::troubleDidChange, this, [this](const QString& words) {
        setTrouble(m_transportTrouble, words);
        announce();
    });
}

void ReplicatedKeyValueStore::close() {
    static_cast<void>(commit());
    if (m_transport)
        waitForSending();
    m_transport.reset();
    m_isReady = false;
    m_underWay.clear();
    m_refused.clear();
    m_unannounced.clear();
    m_rule = nullptr;
    m_transportTrouble.clear();
    m_refusalTrouble.clear();
}

void ReplicatedKeyValueStore::waitForSending() {
    if (!m_isReady || !hasUnsent())
        return;
    QEventLoop loop;
    QTimer::singleShot(longestFarewell, &loop, &QEventLoop::quit);
    connect(m_transport.get(), &ReplicaTransport::sendEnded, &loop, [this, &loop] {
        if (!m_isReady || m_underWay.empty())
            loop.quit();
    });
    sendUnsent();
    if (!m_underWay.empty())
        loop.exec(QEventLoop::ExcludeUserInputEvents);
}

ReplicaDatabase& ReplicatedKeyValueStore::database() const {
    if (!m_database) {
        m_path = m_means.path(CloudAccount::read(m_defaults));
        m_database = std::make_unique<ReplicaDatabase>(m_path);
        m_serial = m_database->highestSerial();
    }
    return *m_database;
}

ReplicatedKeyValueStore::Row ReplicatedKeyValueStore::row(const QString& key) const {
    const auto uncommitted = m_uncommitted.find(key);
    return uncommitted != m_uncommitted.end() ? uncommitted->second : database().row(key);
}

std::map<QString, ReplicaRow> ReplicatedKeyValueStore::rows() const {
    std::map<QString, ReplicaRow> all = database().rows();
    for (const auto& [key, row] : m_uncommitted) {
        if (row)
            all.insert_or_assign(key, *row);
        else
            all.erase(key);
    }
    return all;
}

std::optional<CloudValue> ReplicatedKeyValueStore::value(const QString& key) const {
    const Row found = row(key);
    return found ? found->value : std::nullopt;
}

std::map<QString, CloudValue> ReplicatedKeyValueStore::dictionaryRepresentation() const {
    std::map<QString, CloudValue> values;
    for (auto& [key, row] : rows()) {
        if (row.value)
            values.emplace(key, *row.value);
    }
    return values;
}

void ReplicatedKeyValueStore::setValue(const QString& key, const CloudValue& value) {
    write(key, value);
}

void ReplicatedKeyValueStore::remove(const QString& key) {
    write(key, std::nullopt);
}

void ReplicatedKeyValueStore::write(const QString& key, const std::optional<CloudValue>& value) {
    ReplicaRow changed = row(key).value_or(ReplicaRow());
    if (changed.value == value)
        return;
    changed.value = value;
    changed.writtenAt = m_scheduler.now();
    changed.serial = ++m_serial;
    m_uncommitted.insert_or_assign(key, changed);
}

void ReplicatedKeyValueStore::synchronize() {
    const bool isMuch = sizeOf(m_uncommitted) > longLog;
    static_cast<void>(commit());
    // To keep much is enough for a turn of the event loop.
    if (isMuch)
        QMetaObject::invokeMethod(this, &ReplicatedKeyValueStore::sendUnsent, Qt::QueuedConnection);
    else
        sendUnsent();
}

bool ReplicatedKeyValueStore::commit(const std::optional<QByteArray>& cursor) {
    if (m_uncommitted.empty() && !cursor)
        return true;
    // A write begins the log anew where all of it has been moved.
    if (m_logMover && m_logMover->isFinished() && m_unmovedSize == 0)
        m_logSize = 0;
    const bool isKept = database().write(m_uncommitted, cursor);
    if (isKept) {
        const qsizetype size = sizeOf(m_uncommitted);
        m_logSize += size;
        m_unmovedSize += size;
        m_uncommitted.clear();
        moveLog();
    }
    //: The changes of this machine that wait to be sent can't be kept on the disk.
    const QString words = tr("The disk is full or can't be written.");
    setTrouble(m_diskTrouble, isKept ? QString() : words);
    return isKept;
}

/// Has a long log moved into the file by another thread, for that waits for the disk, where writes
/// only make the log longer.
void ReplicatedKeyValueStore::moveLog() {
    const bool isTooLong = m_logSize > longestLog;
    const bool isMoving = m_logMover && m_logMover->isRunning();
    if (m_unmovedSize <= longLog || (isMoving && !isTooLong))
        return;
    m_unmovedSize = 0;
    if (isTooLong && m_logMover) {
        m_logMover->wait();
        database().moveLog();
        m_logSize = 0;
        return;
    }
    m_logMover.reset(QThread::create([path = m_path] { ReplicaDatabase(path).moveLog(); }));
    m_logMover->start();
}

QString ReplicatedKeyValueStore::trouble() const {
    for (const QString* words : {&m_transportTrouble, &m_diskTrouble}) {
        if (!words->isEmpty())
            return *words;
    }
    return m_refusalTrouble;
}

void ReplicatedKeyValueStore::setTrouble(QString& which, const QString& words) {
    const QString before = trouble();
    which = words;
    if (trouble() != before)
        Q_EMIT troubleDidChange();
}

std::map<qint64, std::pair<QString, ReplicaRow>> ReplicatedKeyValueStore::unsent() const {
    auto waiting = database().unsent();
    std::erase_if(waiting,
                  [this](const auto& entry) { return m_uncommitted.contains(entry.second.first); });
    for (const auto& [key, row] : m_uncommitted) {
        if (row && row->serial > 0)
            waiting.insert({row->serial, {key, *row}});
    }
    std::erase_if(waiting, [this](const auto& entry) {
        const auto refused = m_refused.find(entry.second.first);
        return refused != m_refused.end() && refused->second == entry.first;
    });
    return waiting;
}

bool ReplicatedKeyValueStore::hasUnsent() const {
    return !unsent().empty();
}

void ReplicatedKeyValueStore::sendUnsent() {
    if (!m_transport || !m_isReady || !m_underWay.empty())
        return;
    QList<OutgoingEntry> entries;
    qsizetype bytes = 0;
    for (const auto& [serial, keyed] : unsent()) {
        const auto& [key, row] = keyed;
        bytes += sizeOf(row);
        const bool isEnough = m_underWay.size() == mostRowsAtOnce || bytes > mostBytesAtOnce;
        if (isEnough && !entries.isEmpty())
            break;
        m_underWay.insert({key, serial});
        entries.append({key, row.value, row.writtenAt, row.version});
    }
    if (!entries.isEmpty())
        m_transport->send(entries);
}

void ReplicatedKeyValueStore::endSending(const QList<SendResult>& results) {
    const auto underWay = std::exchange(m_underWay, {});
    QList<RemoteEntry> news;
    for (const SendResult& result : results) {
        const auto sent = underWay.find(result.current.key);
        if (sent == underWay.end())
            continue;
        const auto& [key, serial] = *sent;
        if (result.outcome == SendResult::Outcome::Failed)
            m_isReady = false;
        else if (result.outcome == SendResult::Outcome::Outdated)
            news.append(result.current);
        else if (result.outcome == SendResult::Outcome::Refused)
            m_refused.insert_or_assign(key, serial);
        const Row ours = row(key);
        if (result.outcome != SendResult::Outcome::Stored || !ours)
            continue;
        if (ours->serial == serial) {
            becomeClean(key, *ours, result.current);
        } else {
            ReplicaRow later = *ours;
            later.version = result.current.version;
            m_uncommitted.insert_or_assign(key, later);
        }
    }
    std::erase_if(m_refused, [this](const auto& refused) {
        const Row ours = row(refused.first);
        return !ours || ours->serial != refused.second;
    });
    //: The folder or server of sync takes only values up to a size; most are palettes.
    const QString tooLarge = tr("Something is too large to be synced and stays on this machine.");
    setTrouble(m_refusalTrouble, m_refused.empty() ? QString() : tooLarge);
    take(news);
    static_cast<void>(commit());
    announce();
    sendUnsent();
}

void ReplicatedKeyValueStore::becomeClean(const QString& key, ReplicaRow row,
                                          const RemoteEntry& entry) {
    row.version = entry.version;
    row.serial = 0;
    if (row.value || !row.version.isEmpty())
        m_uncommitted.insert_or_assign(key, row);
    else
        m_uncommitted.insert_or_assign(key, std::nullopt);
}

void ReplicatedKeyValueStore::distrustRemote() {
    for (auto& [key, row] : rows()) {
        ReplicaRow changed = row;
        changed.version.clear();
        if (changed.serial == 0)
            changed.serial = ++m_serial;
        m_uncommitted.insert_or_assign(key, changed);
    }
    static_cast<void>(commit());
}

void ReplicatedKeyValueStore::take(const QList<RemoteEntry>& entries) {
    // Of what happened to a key the end counts.
    std::map<QString, RemoteEntry> latest;
    for (const RemoteEntry& entry : entries)
        latest.insert_or_assign(entry.key, entry);
    // Whether a removal holds may depend on what else has come.
    QList<RemoteEntry> removals;
    for (const auto& [key, entry] : latest) {
        const Row ours = row(key);
        if (!entry.value || (ours && !ours->value))
            removals.append(entry);
        else
            take(entry);
    }
    for (const RemoteEntry& entry : removals)
        take(entry);
}

bool ReplicatedKeyValueStore::isNews(const RemoteEntry& entry, const ReplicaRow& ours) const {
    if (entry.version.isEmpty() || ours.version.isEmpty())
        return entry.version != ours.version;
    return m_transport->supersedes(entry.version, ours.version);
}

void ReplicatedKeyValueStore::take(const RemoteEntry& entry) {
    const Row ours = row(entry.key);
    if (!ours && !entry.value)
        return;
    if (ours && !isNews(entry, *ours))
        return;
    if (ours && ours->serial > 0 && ours->value != entry.value) {
        resolve(entry.key, *ours, entry);
        return;
    }
    ReplicaRow theirs;
    theirs.value = entry.value;
    theirs.writtenAt = entry.writtenAt;
    becomeClean(entry.key, theirs, entry);
    if (!ours || ours->value != entry.value)
        m_unannounced.append(entry.key);
}

/// Two machines wrote the key, neither knowing of the other.
void ReplicatedKeyValueStore::resolve(const QString& key, ReplicaRow ours,
                                      const RemoteEntry& entry) {
    const auto merged = m_rule(
        {key, ours.value, entry.value, ours.version.isEmpty(), ours.writtenAt > entry.writtenAt});
    if (merged != ours.value)
        m_unannounced.append(key);
    if (merged == entry.value) {
        ours.value = merged;
        ours.writtenAt = entry.writtenAt;
        becomeClean(key, ours, entry);
        return;
    }
    ours.value = merged;
    ours.version = entry.version;
    ours.serial = ++m_serial;
    m_uncommitted.insert_or_assign(key, ours);
}

void ReplicatedKeyValueStore::forgetAllBut(const QStringList& keys) {
    const QSet<QString> present(keys.cbegin(), keys.cend());
    QList<RemoteEntry> gone;
    for (const auto& [key, row] : rows()) {
        if (!present.contains(key) && !row.version.isEmpty())
            gone.append({key, std::nullopt, row.writtenAt, {}});
    }
    take(gone);
    static_cast<void>(commit());
}

void ReplicatedKeyValueStore::finishCatchingUp(const QByteArray& cursor) {
    static_cast<void>(commit(cursor));
    announce();
    sendUnsent();
}

void ReplicatedKeyValueStore::takeCopy(const RemoteEntry& entry, const QString& name) {
    Row ours = row(entry.key);
    if (!ours)
        ours = ReplicaRow();
    const auto merged =
        m_rule({entry.key, ours->value, entry.value, false, ours->writtenAt > entry.writtenAt});
    if (merged != ours->value) {
        ours->value = merged;
        ours->writtenAt = std::max(ours->writtenAt, entry.writtenAt);
        ours->serial = ++m_serial;
        m_uncommitted.insert_or_assign(entry.key, ours);
        m_unannounced.append(entry.key);
    }
    // Kept here for good, also by those who hear of it now, the copy has had its day: of a replica
    // a power cut may take the end.
    const bool isKept = commit();
    announce();
    if (isKept && m_transport)
        m_transport->discardCopy(name);
    sendUnsent();
}

void ReplicatedKeyValueStore::announce() {
    QStringList keys = std::exchange(m_unannounced, {});
    keys.removeDuplicates();
    if (!keys.isEmpty())
        Q_EMIT didChangeExternally(keys);
}

} // namespace dropshade
