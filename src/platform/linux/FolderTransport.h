// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/linux/replica/ReplicaTransport.h"

#include <QThread>

#include <memory>

namespace dropshade {

class FolderWorker;

/// A folder as the place where the machines meet: a file for each key, in a folder that may lie
/// inside one that Syncthing, Nextcloud or the like shares. See `FolderWorker`.
class FolderTransport : public ReplicaTransport {
    Q_OBJECT

public:
    explicit FolderTransport(const QString& folder);
    /// Waits for the disk two seconds at most, and then leaves the thread to itself.
    ~FolderTransport() override;

    void start(const QByteArray& cursor) override;
    void send(const QList<OutgoingEntry>& entries) override;
    [[nodiscard]] bool supersedes(const QByteArray& version,
                                  const QByteArray& known) const override;
    void discardCopy(const QString& name) override;

private:
    std::unique_ptr<QThread> m_thread;
    FolderWorker* m_worker; ///< of the thread, which destroys it at its end
};

} // namespace dropshade
