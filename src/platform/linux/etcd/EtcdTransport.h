// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/linux/etcd/EtcdClient.h"
#include "platform/linux/replica/ReplicaTransport.h"

#include <QTimer>

namespace dropshade {

/// An etcd server as the place where the machines meet: a key for each key, under a prefix of the
/// user, and a watch on them all. A version is the revision at which a key was last written; the
/// keys have an id besides, by which a server that lost them is told from one that never had any.
///
/// A write is a transaction that succeeds only at the revision it was made in view of, so that one
/// whose answer was lost can be sent again. Everything is asynchronous, and a server that has gone
/// quiet is asked now and then whether it is still there.
class EtcdTransport : public ReplicaTransport {
    Q_OBJECT

public:
    /// Times in milliseconds.
    struct Timing {
        int timeout = 10'000;
        /// Between questions to a server that says nothing.
        int liveness = 20'000;
        /// Before the first of a row of new attempts; each later one waits twice as long.
        int retry = 500;
        int longestRetry = 30'000;
    };
    /// Called on another thread.
    using PasswordLookup = std::function<QString(const CloudAccount&)>;

    EtcdTransport(const CloudAccount& account, PasswordLookup password, const Timing& timing);
    ~EtcdTransport() override;

    void start(const QByteArray& cursor) override;
    void send(const QList<OutgoingEntry>& entries) override;
    [[nodiscard]] bool supersedes(const QByteArray& version,
                                  const QByteArray& known) const override;

private:
    using Problem = EtcdReply::Problem;

    void lookUpPassword();
    void connectServer();
    void identify();
    void takeIdentity(const EtcdRange& range);
    void list(const QByteArray& from, qint64 revision, const QStringList& keys);
    void watch();
    void readWatch();
    void takeWatchLine(const QByteArray& line);
    void checkLiveness();
    void reconnect(const QString& words);
    void sendNext();
    void finishChunk(const QList<OutgoingEntry>& chunk, const EtcdReply& reply);
    void report(const QList<OutgoingEntry>& chunk, const EtcdTransaction& transaction);
    void endSending();

    [[nodiscard]] QByteArray keyOf(const QString& key) const;
    [[nodiscard]] RemoteEntry entryOf(const EtcdKeyValue& keyValue) const;
    [[nodiscard]] QByteArray cursor() const;

    CloudAccount m_account;
    PasswordLookup m_passwordLookup;
    Timing m_timing;
    EtcdClient m_client;
    std::unique_ptr<CloudCheck> m_passwordCheck;
    QByteArray m_idKey;
    QByteArray m_valuePrefix;

    QByteArray m_id;
    /// All up to here is known; 0 where nothing is.
    qint64 m_revision = 0;
    /// Raised with each new connection: answers to an earlier one mean nothing.
    int m_connection = 0;
    bool m_isConnected = false;
    int m_attempts = 0;
    std::unique_ptr<QNetworkReply> m_watch;
    QByteArray m_watchLine;
    QTimer m_retryTimer;
    QTimer m_livenessTimer;
    QTimer m_fullTimer;

    /// What of the present send is still to go, in parts that the server takes.
    QList<QList<OutgoingEntry>> m_chunks;
    QList<SendResult> m_results;
};

} // namespace dropshade
