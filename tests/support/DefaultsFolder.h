// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

namespace dropshade {

/// A folder with room for one store, gone at the end of the test.
class DefaultsFolder {
public:
    enum class Medium {
        Disk,
        Memory ///< Where no other program's writes can hold up ours; the disk if there is none.
    };

    explicit DefaultsFolder(Medium medium = Medium::Disk) : m_folder(pattern(medium)) {}

    [[nodiscard]] QDir folder() const { return QDir(m_folder.path()); }
    [[nodiscard]] QString path() const { return m_folder.filePath(QStringLiteral("d.sqlite")); }

    /// The main files that were put out of the way, oldest first.
    [[nodiscard]] QStringList setAside() const { return setAside(QString()); }

    /// The same for the companions of that suffix.
    [[nodiscard]] QStringList setAside(const QString& suffix) const {
        QStringList found;
        const auto names = folder().entryList({QStringLiteral("d.sqlite.damaged-*")}, QDir::Files);
        for (const QString& name : names) {
            const bool isCompanion =
                name.endsWith(QStringLiteral("-wal")) || name.endsWith(QStringLiteral("-shm"));
            if (suffix.isEmpty() ? !isCompanion : name.endsWith(suffix)) {
                found.append(folder().filePath(name));
            }
        }
        return found;
    }

private:
    static QString pattern(Medium medium) {
        const QString memory = QStringLiteral("/dev/shm");
        const bool isInMemory = medium == Medium::Memory && QFileInfo(memory).isWritable();
        return (isInMemory ? memory : QDir::tempPath()) + QStringLiteral("/defaults-XXXXXX");
    }

    QTemporaryDir m_folder;
};

/// Never for a store that is open in this process: closing the file would drop the store's locks.
inline QByteArray contentOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

inline bool setContent(const QString& path, const QByteArray& content) {
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

} // namespace dropshade
