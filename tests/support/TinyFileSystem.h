// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QFile>
#include <QTemporaryDir>

#include <sys/mount.h>

namespace dropshade {

/// A file system of 64 KiB of its own, for as long as the object lives. To mount takes root;
/// without it `isMounted` is false.
class TinyFileSystem {
public:
    TinyFileSystem()
        : m_isMounted(::mount("tmpfs", path().constData(), "tmpfs", 0, "size=64k") == 0) {}
    ~TinyFileSystem() {
        if (m_isMounted)
            ::umount2(path().constData(), MNT_DETACH);
    }
    TinyFileSystem(const TinyFileSystem&) = delete;
    TinyFileSystem& operator=(const TinyFileSystem&) = delete;

    [[nodiscard]] bool isMounted() const { return m_isMounted; }
    [[nodiscard]] QString filePath(const QString& name) const { return m_folder.filePath(name); }

    void makeReadOnly() {
        ::mount("tmpfs", path().constData(), "tmpfs", MS_REMOUNT | MS_RDONLY, "size=64k");
    }

private:
    [[nodiscard]] QByteArray path() const { return QFile::encodeName(m_folder.path()); }

    QTemporaryDir m_folder;
    bool m_isMounted;
};

} // namespace dropshade
