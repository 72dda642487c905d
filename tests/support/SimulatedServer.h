// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/linux/replica/ReplicaTransport.h"

#include <QUuid>

#include <map>
#include <vector>

namespace dropshade {

/// The place where simulated machines meet: keys with revisions, and what happened to them.
struct SimulatedServer {
    struct Event {
        qint64 revision;
        RemoteEntry entry;
    };

    /// Writes as another machine would, and gives the entry's new version.
    QByteArray put(const QString& key, const std::optional<CloudValue>& value,
                   ReferenceTime writtenAt = {}) {
        ++revision;
        RemoteEntry entry{key, value, writtenAt, {}};
        if (value) {
            entry.version = QByteArray::number(revision);
            entries[key] = entry;
        } else {
            entries.erase(key);
        }
        events.push_back({revision, entry});
        return entry.version;
    }

    void compact() {
        compactedTo = revision;
        events.clear();
    }

    void wipe() { *this = SimulatedServer(); }

    QByteArray id = QUuid::createUuid().toByteArray();
    qint64 revision = 0;
    qint64 compactedTo = 0;
    std::map<QString, RemoteEntry> entries;
    std::vector<Event> events;
    int writes = 0;
};

/// A way to the server on which nothing moves but in `pump`.
class SimulatedTransport : public ReplicaTransport {
public:
    SimulatedTransport(SimulatedServer& server, const bool& isReachable)
        : m_server(server), m_isReachable(isReachable) {}

    void start(const QByteArray& cursor) override { m_cursor = cursor; }
    void send(const QList<OutgoingEntry>& entries) override {
        ++sendCount;
        m_outgoing = entries;
    }
    [[nodiscard]] bool supersedes(const QByteArray& version,
                                  const QByteArray& known) const override {
        return version.toLongLong() > known.toLongLong();
    }
    void discardCopy(const QString& name) override { discarded.append(name); }

    /// Delivers what is under way, in both directions. True when anything moved.
    bool pump() {
        const bool isSending = !m_outgoing.isEmpty();
        if (!m_isReachable) {
            m_isConnected = false;
            if (isSending)
                fail();
            return isSending;
        }
        const bool hadNews = m_isConnected ? catchUp() : connectNow();
        if (isSending)
            deliver();
        return isSending || hadNews;
    }

    /// The server takes what is under way, and the connection breaks before it can say so.
    void loseAnswer() {
        for (const OutgoingEntry& entry : std::as_const(m_outgoing))
            static_cast<void>(write(entry));
        m_isConnected = false;
        fail();
    }

    int sendCount = 0;
    /// Values above this size are refused.
    qsizetype mostBytes = 1'000'000;
    QStringList discarded;

private:
    [[nodiscard]] QByteArray cursorNow() const {
        return m_server.id + ':' + QByteArray::number(m_server.revision);
    }

    bool connectNow() {
        m_isConnected = true;
        const qsizetype colon = m_cursor.lastIndexOf(':');
        const bool isSame = m_cursor.left(colon) == m_server.id;
        if (!m_cursor.isEmpty() && !isSame)
            Q_EMIT remoteIsNew();
        if (m_cursor.isEmpty() || !isSame ||
            m_cursor.mid(colon + 1).toLongLong() < m_server.compactedTo)
            list();
        else
            catchUp();
        Q_EMIT ready();
        return true;
    }

    void list() {
        QStringList keys;
        QList<RemoteEntry> entries;
        for (const auto& [key, entry] : m_server.entries) {
            keys.append(key);
            entries.append(entry);
        }
        m_cursor = cursorNow();
        Q_EMIT received(entries);
        Q_EMIT listed(keys);
        Q_EMIT caughtUp(m_cursor);
    }

    bool catchUp() {
        const qsizetype colon = m_cursor.lastIndexOf(':');
        if (m_cursor.left(colon) != m_server.id)
            return connectNow();
        const qint64 seen = m_cursor.mid(colon + 1).toLongLong();
        if (seen == m_server.revision)
            return false;
        if (seen < m_server.compactedTo) {
            list();
            return true;
        }
        QList<RemoteEntry> news;
        for (const auto& event : m_server.events) {
            if (event.revision > seen)
                news.append(event.entry);
        }
        m_cursor = cursorNow();
        Q_EMIT received(news);
        Q_EMIT caughtUp(m_cursor);
        return true;
    }

    SendResult write(const OutgoingEntry& entry) {
        using Outcome = SendResult::Outcome;
        const auto found = m_server.entries.find(entry.key);
        RemoteEntry current{entry.key, std::nullopt, {}, {}};
        if (found != m_server.entries.end())
            current = found->second;
        const auto* data = entry.value ? std::get_if<QByteArray>(&*entry.value) : nullptr;
        if (data && data->size() > mostBytes)
            return {Outcome::Refused, current};
        if (current.value == entry.value)
            return {Outcome::Stored, current};
        if (current.version != entry.base)
            return {Outcome::Outdated, current};
        ++m_server.writes;
        const QByteArray version = m_server.put(entry.key, entry.value, entry.writtenAt);
        return {Outcome::Stored, {entry.key, entry.value, entry.writtenAt, version}};
    }

    void deliver() {
        QList<SendResult> results;
        for (const OutgoingEntry& entry : std::exchange(m_outgoing, {}))
            results.append(write(entry));
        Q_EMIT sendEnded(results);
    }

    void fail() {
        QList<SendResult> results;
        for (const OutgoingEntry& entry : std::exchange(m_outgoing, {}))
            results.append({SendResult::Outcome::Failed, {entry.key, std::nullopt, {}, {}}});
        Q_EMIT sendEnded(results);
    }

    SimulatedServer& m_server;
    const bool& m_isReachable;
    bool m_isConnected = false;
    QByteArray m_cursor;
    QList<OutgoingEntry> m_outgoing;
};

} // namespace dropshade
