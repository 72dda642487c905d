// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/linux/FolderWatch.h"
#include "platform/linux/replica/ReplicaTransport.h"

#include <QHash>
#include <QTimer>

#include <sys/types.h>

namespace dropshade {

/// The work of `FolderTransport`, for a thread of its own: a disk, and all the more a file system
/// behind which there is a network, may take its time.
///
/// Each key is a file with a record, named after the key. A file is replaced as a whole, never
/// written in place, and only under a lock by which the processes of one computer take turns. A
/// file that can't be read is left alone for half a minute, in case it is just being written, and
/// is then renamed when its key is. A file with a record under another name is a copy that a
/// program which shares the folder has made of a conflict. The folder has an id, in a file, by
/// which one that was emptied or not mounted is told from one without values.
class FolderWorker : public QObject {
    Q_OBJECT

public:
    explicit FolderWorker(const QString& folder);

    void start(const QByteArray& folderId);
    void send(const QList<OutgoingEntry>& entries);
    void discardCopy(const QString& name);

    /// Makes the folder, writes and removes a file in it. Empty, or why that can't be done.
    [[nodiscard]] static QString check(const QString& folder);

    /// The name of the file for a key.
    [[nodiscard]] static QString fileName(const QString& key);

Q_SIGNALS:
    // As those of `ReplicaTransport`.
    void ready();
    void remoteIsNew();
    void received(const QList<dropshade::RemoteEntry>& entries);
    void listed(const QStringList& keys);
    void caughtUp(const QByteArray& cursor);
    void foundCopy(const dropshade::RemoteEntry& entry, const QString& name);
    void sendEnded(const QList<dropshade::SendResult>& results);
    void troubleDidChange(const QString& words);

private:
    /// A file as it was when it was last looked at.
    struct Known {
        timespec changed = {};
        off_t size = 0;
        ino_t inode = 0;
        /// Empty for a file that isn't the one of its key.
        QByteArray version;
        QString key;
        bool isReadable = false;
    };

    void attempt();
    void fail(const QString& words);
    [[nodiscard]] bool openFolder();
    [[nodiscard]] QByteArray storedId() const;
    void scan();
    void readAll();
    void look(const QString& name, QList<RemoteEntry>& news);
    [[nodiscard]] SendResult send(const OutgoingEntry& entry);
    /// No bytes mean no file.
    [[nodiscard]] bool replace(const QString& path, const QByteArray& bytes);
    [[nodiscard]] QString pathOf(const QString& name) const;

    QString m_folder;
    QByteArray m_id;
    bool m_isOpen = false;
    QHash<QString, Known> m_known;
    std::unique_ptr<FolderWatch> m_watch;
    QTimer m_coalesce{this};
    QTimer m_poll{this};
    QTimer m_retry{this};
};

} // namespace dropshade
