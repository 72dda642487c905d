// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/linux/FolderWatch.h"

#include <QFile>

#include <sys/inotify.h>
#include <unistd.h>

#include <array>

namespace dropshade {

FolderWatch::FolderWatch(const QString& folder)
    : m_descriptor(inotify_init1(IN_NONBLOCK | IN_CLOEXEC)) {
    constexpr unsigned changes = IN_CLOSE_WRITE | IN_MOVED_TO | IN_MOVED_FROM | IN_DELETE |
                                 IN_ATTRIB | IN_DELETE_SELF | IN_MOVE_SELF | IN_ONLYDIR;
    if (m_descriptor < 0 ||
        inotify_add_watch(m_descriptor, QFile::encodeName(folder).constData(), changes) < 0)
        return;
    m_notifier = std::make_unique<QSocketNotifier>(m_descriptor, QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, &FolderWatch::drain);
}

FolderWatch::~FolderWatch() {
    m_notifier.reset();
    if (m_descriptor >= 0)
        ::close(m_descriptor);
}

void FolderWatch::drain() {
    // Which names have changed is told by a look at the folder, which has to be right anyway.
    std::array<char, 4096> buffer = {};
    while (::read(m_descriptor, buffer.data(), buffer.size()) > 0) {
    }
    Q_EMIT didChange();
}

} // namespace dropshade
