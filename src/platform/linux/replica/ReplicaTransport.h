// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CloudKeyValueStore.h"
#include "platform/ReferenceTime.h"

#include <QList>

namespace dropshade {

/// What the remote side has under a key. A version names this very state of the key; it is empty
/// where there is none. A version without a value is something that can't be read.
struct RemoteEntry {
    QString key;
    std::optional<CloudValue> value;
    ReferenceTime writtenAt;
    QByteArray version;
};

/// A write of this machine, made in view of the version `base`.
struct OutgoingEntry {
    QString key;
    std::optional<CloudValue> value; ///< nothing to remove the key
    ReferenceTime writtenAt;
    QByteArray base;
};

struct SendResult {
    enum class Outcome {
        Stored,   ///< `current` has the new version.
        Outdated, ///< Nothing written: the key was at `current`, not at the base.
        Refused,  ///< This value will never be taken.
        Failed    ///< Perhaps another time, after the next `ready`. May be stored all the same.
    };
    Outcome outcome = Outcome::Failed;
    RemoteEntry current;
};

/// The way from a replica to the place where the machines meet. It works on its own, never waits
/// on the main thread, and goes on trying whatever happens.
class ReplicaTransport : public QObject {
    Q_OBJECT

public:
    /// Connects and goes on from `cursor`, which came with a `caughtUp` of the same account, or
    /// from the beginning where that is empty. The first news are a list of all there is, or what
    /// has changed since.
    virtual void start(const QByteArray& cursor) = 0;

    /// Sends these writes, each only where the key is still at its base. One call at a time:
    /// `sendEnded` ends it. To send once more what arrived before does no harm.
    virtual void send(const QList<OutgoingEntry>& entries) = 0;

    /// Whether `version` is news to whoever knows `known` of the same key.
    [[nodiscard]] virtual bool supersedes(const QByteArray& version,
                                          const QByteArray& known) const = 0;

    /// What the copy of that name had is in the replica now.
    virtual void discardCopy(const QString& name) { Q_UNUSED(name) }

Q_SIGNALS:
    /// Writes may go out, for the first time or again.
    void ready();
    /// The place is not the one that the cursor was for, or has lost what it had: nothing that the
    /// replica knows of it holds.
    void remoteIsNew();
    void received(const QList<dropshade::RemoteEntry>& entries);
    /// All keys of the remote side; what else the replica has is gone there.
    void listed(const QStringList& keys);
    /// What was received makes a whole.
    void caughtUp(const QByteArray& cursor);
    /// A second value of a key, which came about where machines were apart.
    void foundCopy(const dropshade::RemoteEntry& entry, const QString& name);
    void sendEnded(const QList<dropshade::SendResult>& results);
    /// What stands in the way, for the user; empty when nothing does.
    void troubleDidChange(const QString& words);
};

} // namespace dropshade
