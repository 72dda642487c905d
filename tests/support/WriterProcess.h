// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/UserDefaults.h"

#include <QFile>

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <string>

namespace dropshade {

/// What the writer stores under its key of that number: every fifth value takes several pages.
inline DefaultsValue writtenValue(int number) {
    return QStringLiteral("%1 ").arg(number) + QString(number % 5 == 4 ? 9000 : 40, QChar(u'x'));
}

inline QString writtenKey(const QString& prefix, int number) {
    return prefix + QString::number(number);
}

/// A process of its own that writes numbered keys into a store, and reports each number after the
/// store has taken it.
class WriterProcess {
public:
    WriterProcess(const char* program, const QString& path, const QString& prefix, int count) {
        std::array<int, 2> ends = {};
        if (::pipe2(ends.data(), O_CLOEXEC) != 0) {
            return;
        }
        m_reports = ends[0];
        posix_spawn_file_actions_t actions;
        posix_spawn_file_actions_init(&actions);
        posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
        std::array<std::string, 4> arguments = {program, QFile::encodeName(path).toStdString(),
                                                prefix.toStdString(), std::to_string(count)};
        std::array<char*, 5> list = {arguments[0].data(), arguments[1].data(), arguments[2].data(),
                                     arguments[3].data(), nullptr};
        if (::posix_spawn(&m_process, program, &actions, nullptr, list.data(), environ) != 0) {
            m_process = -1;
        }
        posix_spawn_file_actions_destroy(&actions);
        ::close(ends[1]);
    }
    ~WriterProcess() {
        kill();
        ::close(m_reports);
    }
    WriterProcess(const WriterProcess&) = delete;
    WriterProcess& operator=(const WriterProcess&) = delete;

    /// Collects reports until the process ends, or for that long.
    void collect(std::chrono::microseconds longest) {
        const auto end = std::chrono::steady_clock::now() + longest;
        while (!m_isAtEnd) {
            const auto left = end - std::chrono::steady_clock::now();
            if (left <= std::chrono::nanoseconds(0) || !readWithin(left)) {
                return;
            }
        }
    }

    /// Collects reports until the process has stored something. False if it ends without, or takes
    /// longer than any machine should.
    [[nodiscard]] bool collectFirst() {
        const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(30);
        while (storedCount() == 0 && !m_isAtEnd && std::chrono::steady_clock::now() < end) {
            collect(std::chrono::microseconds(200));
        }
        return storedCount() > 0;
    }

    /// Kills the process without warning, and collects what it had reported until then.
    void kill() {
        if (m_process > 0) {
            ::kill(m_process, SIGKILL);
            collect(std::chrono::seconds(10));
            ::waitpid(m_process, nullptr, 0);
            m_process = -1;
        }
    }

    [[nodiscard]] bool hasEnded() const { return m_isAtEnd; }
    /// The writes that were reported as stored: the numbers from 0 up to here.
    [[nodiscard]] int storedCount() const {
        return static_cast<int>(std::count(m_text.begin(), m_text.end(), '+'));
    }
    [[nodiscard]] int refusedCount() const {
        return static_cast<int>(std::count(m_text.begin(), m_text.end(), '-')) +
               refusedTooSoonCount();
    }
    /// Those of the refused that another process can't have held up for as long as a write waits.
    [[nodiscard]] int refusedTooSoonCount() const {
        return static_cast<int>(std::count(m_text.begin(), m_text.end(), '!'));
    }

private:
    bool readWithin(std::chrono::nanoseconds longest) {
        const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(longest);
        const timespec time = {seconds.count(), (longest - seconds).count()};
        pollfd waiting = {m_reports, POLLIN, 0};
        if (::ppoll(&waiting, 1, &time, nullptr) <= 0) {
            return false;
        }
        std::array<char, 4096> buffer = {};
        const ssize_t size = ::read(m_reports, buffer.data(), buffer.size());
        m_isAtEnd = size <= 0;
        m_text.append(buffer.data(), static_cast<std::size_t>(size > 0 ? size : 0));
        return true;
    }

    pid_t m_process = -1;
    int m_reports = -1;
    bool m_isAtEnd = false;
    std::string m_text;
};

} // namespace dropshade
