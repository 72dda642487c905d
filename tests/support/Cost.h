// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QFile>

#include <malloc.h>

#include <algorithm>
#include <ctime>
#include <functional>

namespace dropshade {

/// What a piece of work cost this process.
struct Cost {
    /// Of processor time.
    double seconds = 0.0;
    /// By how many bytes the resident memory rose at its highest.
    qint64 bytes = 0;
};

namespace cost {

inline qint64 residentBytes(const char* field) {
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    const QByteArray text = status.readAll();
    const QByteArray line = text.mid(text.indexOf(field));
    return line.mid(qsizetype(qstrlen(field)), line.indexOf(" kB") - qsizetype(qstrlen(field)))
               .trimmed()
               .toLongLong() *
           1024;
}

inline double processorSeconds() {
    timespec now = {};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return double(now.tv_sec) + 1e-9 * double(now.tv_nsec);
}

} // namespace cost

/// Runs `work` once; what it frees before it ends counts all the same. Meaningless under a
/// sanitizer, which keeps what is freed.
inline Cost costOf(const std::function<void()>& work) {
    malloc_trim(0);
    QFile reset(QStringLiteral("/proc/self/clear_refs"));
    if (reset.open(QIODevice::WriteOnly))
        reset.write("5"); // The highest is counted from here on.
    reset.close();
    const qint64 before = cost::residentBytes("VmRSS:");
    const double start = cost::processorSeconds();
    work();
    const double seconds = cost::processorSeconds() - start;
    return {seconds, std::max<qint64>(0, cost::residentBytes("VmHWM:") - before)};
}

/// How much memory reading a file of so many bytes may take: what keeps a hostile file from taking
/// the machine with it.
inline qint64 mostBytesFor(qsizetype fileSize) {
    return 64 * qint64(fileSize) + 1024 * 1024;
}

/// How much processor time it may take: many times what it takes on a busy machine, and a small
/// part of what anything takes that grows with the square of a file of megabytes.
inline double mostSecondsFor(qsizetype fileSize) {
    return 2e-6 * double(fileSize);
}

/// A file of about so many bytes, made to cost more than it should.
struct HostileFile {
    const char* name;
    QByteArray (*bytes)(qsizetype size);
};

} // namespace dropshade
