// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/linux/etcd/EtcdTransport.h"

#include "platform/linux/etcd/EtcdAccounts.h"
#include "platform/linux/replica/BackgroundCheck.h"
#include "platform/linux/replica/ReplicaRecord.h"

#include <QUuid>

#include <algorithm>
#include <utility>

namespace dropshade {
namespace {

/// So many that an answer is read in a millisecond or two.
constexpr int keysOfAPage = 16;

/// A server that is full stays so for a while.
constexpr int fullMilliseconds = 15'000;

/// No event of ours is longer, even if all of its values are as large as they may be.
constexpr qsizetype mostWatchBytes = 64 * 1024 * 1024;

} // namespace

EtcdTransport::EtcdTransport(const CloudAccount& account, PasswordLookup password,
                             const Timing& timing)
    : m_account(account), m_passwordLookup(std::move(password)), m_timing(timing),
      m_client(account, timing.timeout), m_idKey(etcdPrefix(account) + "id"),
      m_valuePrefix(etcdPrefix(account) + "v/") {
    m_retryTimer.setSingleShot(true);
    m_livenessTimer.setInterval(timing.liveness);
    m_fullTimer.setSingleShot(true);
    m_fullTimer.setInterval(std::min(fullMilliseconds, timing.longestRetry));
    connect(&m_retryTimer, &QTimer::timeout, this, &EtcdTransport::connectServer);
    connect(&m_livenessTimer, &QTimer::timeout, this, &EtcdTransport::checkLiveness);
    connect(&m_fullTimer, &QTimer::timeout, this, &ReplicaTransport::ready);
}

EtcdTransport::~EtcdTransport() = default;

bool EtcdTransport::supersedes(const QByteArray& version, const QByteArray& known) const {
    return version.toLongLong() > known.toLongLong();
}

QByteArray EtcdTransport::keyOf(const QString& key) const {
    return m_valuePrefix + key.toUtf8();
}

RemoteEntry EtcdTransport::entryOf(const EtcdKeyValue& keyValue) const {
    RemoteEntry entry;
    entry.key = QString::fromUtf8(keyValue.key.mid(m_valuePrefix.size()));
    entry.version = QByteArray::number(keyValue.modRevision);
    const auto record = ReplicaRecord::decoded(keyValue.value);
    if (record && record->key == entry.key) {
        entry.value = record->value;
        entry.writtenAt = record->writtenAt;
    }
    return entry;
}

QByteArray EtcdTransport::cursor() const {
    return m_id + ':' + QByteArray::number(m_revision);
}

void EtcdTransport::start(const QByteArray& cursor) {
    const qsizetype colon = cursor.lastIndexOf(':');
    m_id = cursor.left(std::max<qsizetype>(colon, 0));
    m_revision = cursor.mid(colon + 1).toLongLong();
    const QString trouble = m_client.addressTrouble();
    if (!trouble.isEmpty())
        // Nothing to try again: another address comes with another transport.
        QMetaObject::invokeMethod(
            this, [this, trouble] { Q_EMIT troubleDidChange(trouble); }, Qt::QueuedConnection);
    else
        lookUpPassword();
}

void EtcdTransport::lookUpPassword() {
    if (m_account.user.isEmpty()) {
        connectServer();
        return;
    }
    m_passwordCheck = std::make_unique<BackgroundCheck>(
        [lookup = m_passwordLookup, account = m_account] { return lookup(account); },
        [this](const QString& password) {
            m_client.setPassword(password);
            connectServer();
        });
}

void EtcdTransport::connectServer() {
    ++m_connection;
    m_client.logIn([this, connection = m_connection](const EtcdReply& reply) {
        if (connection != m_connection)
            return;
        if (reply.problem == Problem::None)
            identify();
        else
            reconnect(reply.words);
    });
}

void EtcdTransport::reconnect(const QString& words) {
    ++m_connection;
    m_isConnected = false;
    m_watch.reset();
    m_livenessTimer.stop();
    const int wait = m_timing.retry << std::min(m_attempts, 10);
    ++m_attempts;
    m_retryTimer.start(std::min(wait, m_timing.longestRetry));
    // One that is back at once is nothing to bother the user with.
    if (m_attempts > 1 || m_revision == 0)
        Q_EMIT troubleDidChange(words.isEmpty() ? strangeAnswerWords() : words);
}

void EtcdTransport::identify() {
    m_client.post("/v3/kv/range", etcd::rangeRequest(m_idKey, {}, 1, 0),
                  [this, connection = m_connection](const EtcdReply& reply) {
                      if (connection != m_connection)
                          return;
                      const auto range = etcd::rangeIn(reply.body);
                      if (reply.problem != Problem::None)
                          reconnect(reply.words);
                      else if (!range || range->revision == 0)
                          reconnect(strangeAnswerWords());
                      else
                          takeIdentity(*range);
                  });
}

void EtcdTransport::takeIdentity(const EtcdRange& range) {
    if (range.keyValues.isEmpty()) {
        const QByteArray id = QUuid::createUuid().toByteArray(QUuid::WithoutBraces);
        m_client.post("/v3/kv/txn", etcd::transactionRequest({{m_idKey, id, 0}}),
                      [this, connection = m_connection](const EtcdReply& reply) {
                          if (connection != m_connection)
                              return;
                          // Whoever was first has given the id; ask for it.
                          if (reply.problem == Problem::None)
                              identify();
                          else
                              reconnect(reply.words);
                      });
        return;
    }
    const QByteArray id = range.keyValues.first().value;
    const bool isKnown = id == m_id && range.revision >= m_revision;
    if (!isKnown && m_revision > 0)
        Q_EMIT remoteIsNew();
    m_id = id;
    if (isKnown && m_revision > 0) {
        watch();
    } else {
        m_revision = 0;
        list(m_valuePrefix, 0, {});
    }
}

void EtcdTransport::list(const QByteArray& from, qint64 revision, const QStringList& keys) {
    m_client.post("/v3/kv/range",
                  etcd::rangeRequest(from, etcd::endOf(m_valuePrefix), keysOfAPage, revision),
                  [=, this, connection = m_connection](const EtcdReply& reply) {
                      if (connection != m_connection)
                          return;
                      const auto range = etcd::rangeIn(reply.body);
                      if (reply.problem == Problem::Compacted) {
                          list(m_valuePrefix, 0, {});
                          return;
                      }
                      if (reply.problem != Problem::None || !range) {
                          reconnect(reply.words);
                          return;
                      }
                      QStringList known = keys;
                      QList<RemoteEntry> entries;
                      for (const EtcdKeyValue& keyValue : range->keyValues) {
                          entries.append(entryOf(keyValue));
                          known.append(entries.last().key);
                      }
                      const qint64 at = revision > 0 ? revision : range->revision;
                      Q_EMIT received(entries);
                      if (range->hasMore && !range->keyValues.isEmpty()) {
                          list(range->keyValues.last().key + '\0', at, known);
                          return;
                      }
                      m_revision = at;
                      Q_EMIT listed(known);
                      Q_EMIT caughtUp(cursor());
                      watch();
                  });
}

void EtcdTransport::watch() {
    m_watchLine.clear();
    // From the revision that is known already: to begin right behind it is allowed also where that
    // next one is the one compacted to, and then what it removed is left out without a word.
    m_watch = m_client.openStream("/v3/watch", etcd::watchRequest(m_valuePrefix, m_revision));
    connect(m_watch.get(), &QNetworkReply::readyRead, this, &EtcdTransport::readWatch);
    // Queued, for a reply must not be destroyed by its own signal.
    connect(
        m_watch.get(), &QNetworkReply::finished, this,
        [this, connection = m_connection] {
            if (connection == m_connection && m_watch)
                reconnect(m_client.replyOf(*m_watch).words);
        },
        Qt::QueuedConnection);
    m_livenessTimer.start();
}

void EtcdTransport::readWatch() {
    const int connection = m_connection;
    m_watchLine += m_watch->readAll();
    qsizetype begin = 0;
    for (qsizetype end = 0; (end = m_watchLine.indexOf('\n', begin)) >= 0; begin = end + 1) {
        takeWatchLine(m_watchLine.mid(begin, end - begin));
        if (connection != m_connection)
            return;
    }
    m_watchLine.remove(0, begin);
    if (m_watchLine.size() > mostWatchBytes)
        QMetaObject::invokeMethod(
            this, [this] { reconnect(strangeAnswerWords()); }, Qt::QueuedConnection);
}

void EtcdTransport::takeWatchLine(const QByteArray& line) {
    const auto message = etcd::watchMessageIn(line);
    const bool isBroken = !message || message->error || message->isCanceled;
    const bool isOfAnother = message && message->isCreated && message->revision < m_revision;
    if (isBroken || isOfAnother) {
        // Compacted away, restored from an old copy, or about to end: look anew at what there is.
        if (message && message->isCanceled)
            m_revision = 0;
        const int connection = ++m_connection;
        //: The server of sync; another connection is made.
        const QString words = EtcdClient::tr("The server has ended the connection.");
        QMetaObject::invokeMethod(
            this,
            [this, connection, words] {
                if (connection == m_connection)
                    reconnect(words);
            },
            Qt::QueuedConnection);
        return;
    }
    if (message->isCreated && !m_isConnected) {
        m_isConnected = true;
        m_attempts = 0;
        Q_EMIT troubleDidChange({});
        Q_EMIT ready();
    }
    if (message->events.isEmpty())
        return;
    QList<RemoteEntry> news;
    for (const EtcdEvent& event : message->events) {
        RemoteEntry entry = entryOf(event.keyValue);
        if (event.isRemoval)
            entry.version.clear();
        news.append(entry);
    }
    m_revision = std::max(m_revision, message->revision);
    Q_EMIT received(news);
    Q_EMIT caughtUp(cursor());
}

/// A server that is stopped, or has lost the others of its cluster, keeps its connections.
void EtcdTransport::checkLiveness() {
    m_livenessTimer.stop();
    m_client.post("/v3/kv/range", etcd::rangeRequest(m_idKey, {}, 1, 0),
                  [this, connection = m_connection](const EtcdReply& reply) {
                      if (connection != m_connection)
                          return;
                      if (reply.problem == Problem::None)
                          m_livenessTimer.start();
                      else
                          reconnect(reply.words);
                  });
}

void EtcdTransport::send(const QList<OutgoingEntry>& entries) {
    m_chunks = {entries};
    m_results.clear();
    sendNext();
}

void EtcdTransport::sendNext() {
    if (m_chunks.isEmpty()) {
        endSending();
        return;
    }
    const QList<OutgoingEntry> chunk = m_chunks.takeFirst();
    QList<EtcdWrite> writes;
    for (const OutgoingEntry& entry : chunk) {
        std::optional<QByteArray> bytes;
        if (entry.value)
            bytes = ReplicaRecord{entry.key, *entry.value, entry.writtenAt}.encoded();
        writes.append({keyOf(entry.key), bytes, entry.base.toLongLong()});
    }
    m_client.post("/v3/kv/txn", etcd::transactionRequest(writes),
                  [this, chunk](const EtcdReply& reply) { finishChunk(chunk, reply); });
}

void EtcdTransport::finishChunk(const QList<OutgoingEntry>& chunk, const EtcdReply& reply) {
    using Outcome = SendResult::Outcome;
    const auto transaction = etcd::transactionIn(reply.body);
    const auto reportAll = [&](Outcome outcome, const QList<OutgoingEntry>& entries) {
        for (const OutgoingEntry& entry : entries)
            m_results.append({outcome, {entry.key, std::nullopt, {}, {}}});
    };
    if (reply.problem == Problem::None && transaction) {
        report(chunk, *transaction);
    } else if (reply.problem == Problem::TooLarge && chunk.size() > 1) {
        const qsizetype half = chunk.size() / 2;
        m_chunks.prepend(chunk.mid(half));
        m_chunks.prepend(chunk.first(half));
    } else if (reply.problem == Problem::TooLarge) {
        reportAll(Outcome::Refused, chunk);
    } else {
        reportAll(Outcome::Failed, chunk);
        for (const auto& rest : std::exchange(m_chunks, {}))
            reportAll(Outcome::Failed, rest);
        if (reply.problem == Problem::Full || reply.problem == Problem::Refused) {
            Q_EMIT troubleDidChange(reply.words);
            m_fullTimer.start();
        } else if (m_isConnected) {
            reconnect(reply.words);
        }
        endSending();
        return;
    }
    sendNext();
}

void EtcdTransport::report(const QList<OutgoingEntry>& chunk, const EtcdTransaction& transaction) {
    using Outcome = SendResult::Outcome;
    for (const OutgoingEntry& entry : chunk) {
        RemoteEntry current = {entry.key, std::nullopt, {}, {}};
        if (transaction.hasSucceeded) {
            if (entry.value)
                current = {entry.key, entry.value, entry.writtenAt,
                           QByteArray::number(transaction.revision)};
            m_results.append({Outcome::Stored, current});
            continue;
        }
        for (const EtcdKeyValue& keyValue : transaction.found) {
            if (keyValue.key == keyOf(entry.key))
                current = entryOf(keyValue);
        }
        // Sent before, and stored, though the answer never came.
        const bool isThere =
            current.value == entry.value && current.version.isEmpty() == !entry.value.has_value();
        m_results.append({isThere ? Outcome::Stored : Outcome::Outdated, current});
    }
    m_fullTimer.stop();
    Q_EMIT troubleDidChange({});
}

void EtcdTransport::endSending() {
    Q_EMIT sendEnded(std::exchange(m_results, {}));
}

} // namespace dropshade
