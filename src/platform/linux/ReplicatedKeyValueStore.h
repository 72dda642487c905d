// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CloudAccount.h"
#include "platform/Scheduler.h"
#include "platform/linux/ReplicaDatabase.h"
#include "platform/linux/replica/ReplicaTransport.h"

#include <QSet>
#include <QThread>

#include <map>

namespace dropshade {

/// A cloud made of a replica on the disk and a transport to where the machines meet.
///
/// A write is at once in the replica and waits there until the remote side has taken it, for days
/// if need be. It is sent only in view of what the remote side has: where another machine wrote
/// meanwhile, the rule of `open` decides, so that no write undoes one that it didn't know of.
/// A disk that takes nothing more costs what is written then, when the process ends, and no more.
class ReplicatedKeyValueStore : public CloudKeyValueStore {
    Q_OBJECT

public:
    /// What differs between the program and a test.
    struct Means {
        /// Gives the way to an account; null where the program lacks it.
        std::function<std::unique_ptr<ReplicaTransport>(const CloudAccount&)> transport;
        /// Where the replica of an account lies; each has its own.
        std::function<QString(const CloudAccount&)> path;
    };

    /// Reads nothing and opens nothing before it is needed.
    ReplicatedKeyValueStore(const UserDefaults& defaults, const Scheduler& scheduler, Means means);
    ~ReplicatedKeyValueStore() override;

    void open(ConflictRule rule) override;
    void close() override;
    [[nodiscard]] std::optional<CloudValue> value(const QString& key) const override;
    void setValue(const QString& key, const CloudValue& value) override;
    void remove(const QString& key) override;
    [[nodiscard]] std::map<QString, CloudValue> dictionaryRepresentation() const override;
    void synchronize() override;
    [[nodiscard]] QString trouble() const override;

    /// Whether writes wait to be taken by the remote side.
    [[nodiscard]] bool hasUnsent() const;

    /// `dropshade/sync` in the user's data folder: the replicas, and the folder of an account
    /// that names none.
    [[nodiscard]] static QString defaultFolder();

private:
    using Row = std::optional<ReplicaRow>;

    ReplicaDatabase& database() const;
    [[nodiscard]] Row row(const QString& key) const;
    [[nodiscard]] std::map<QString, ReplicaRow> rows() const;
    void connectTransport();
    void waitForSending();
    void write(const QString& key, const std::optional<CloudValue>& value);
    bool commit(const std::optional<QByteArray>& cursor = std::nullopt);
    void moveLog();
    void sendUnsent();
    [[nodiscard]] std::map<qint64, std::pair<QString, ReplicaRow>> unsent() const;

    void distrustRemote();
    void take(const QList<RemoteEntry>& entries);
    void take(const RemoteEntry& entry);
    [[nodiscard]] bool isNews(const RemoteEntry& entry, const ReplicaRow& ours) const;
    void forgetAllBut(const QStringList& keys);
    void finishCatchingUp(const QByteArray& cursor);
    void takeCopy(const RemoteEntry& entry, const QString& name);
    void endSending(const QList<SendResult>& results);
    void becomeClean(const QString& key, ReplicaRow row, const RemoteEntry& entry);
    void resolve(const QString& key, ReplicaRow ours, const RemoteEntry& entry);
    void announce();
    void setTrouble(QString& which, const QString& words);

    const UserDefaults& m_defaults;
    const Scheduler& m_scheduler;
    Means m_means;
    mutable std::unique_ptr<ReplicaDatabase> m_database;
    mutable QString m_path;
    mutable qint64 m_serial = 0;
    /// What is not on the disk yet.
    ReplicaDatabase::Changes m_uncommitted;
    /// About how many bytes lie in the log of the replica, and how many since it was last moved.
    qsizetype m_logSize = 0;
    qsizetype m_unmovedSize = 0;
    std::unique_ptr<QThread> m_logMover;
    ConflictRule m_rule;
    std::unique_ptr<ReplicaTransport> m_transport;
    bool m_isReady = false;
    /// The serials of the rows under way, by key.
    std::map<QString, qint64> m_underWay;
    /// The serials of what the remote side will never take, by key.
    std::map<QString, qint64> m_refused;
    QStringList m_unannounced;
    QString m_transportTrouble;
    QString m_diskTrouble;
    QString m_refusalTrouble;
};

} // namespace dropshade
