// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractEventDispatcher>

#include <ctime>

#include <algorithm>
#include <array>

namespace dropshade {

inline double processorMilliseconds() {
    timespec now = {};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return double(now.tv_sec) * 1e3 + double(now.tv_nsec) / 1e6;
}

/// The longest that a turn of the event loop took, in processor time of its thread, which doesn't
/// count what other programs or a wait take.
class LongestTurn {
public:
    LongestTurn() {
        // Qt says before and after each turn that it waits, in an order that depends on the means
        // it waits by; between two of either there is one turn at most.
        auto* dispatcher = QAbstractEventDispatcher::instance();
        m_connections = {
            QObject::connect(dispatcher, &QAbstractEventDispatcher::awake, [this] { note(); }),
            QObject::connect(dispatcher, &QAbstractEventDispatcher::aboutToBlock,
                             [this] { note(); })};
    }
    ~LongestTurn() {
        for (const auto& connection : m_connections)
            QObject::disconnect(connection);
    }
    LongestTurn(const LongestTurn&) = delete;
    LongestTurn& operator=(const LongestTurn&) = delete;

    [[nodiscard]] double milliseconds() const { return m_longest; }
    [[nodiscard]] int turnCount() const { return m_turnCount; }

private:
    void note() {
        const double now = processorMilliseconds();
        m_longest = std::max(m_longest, now - m_last);
        m_last = now;
        ++m_turnCount;
    }

    double m_last = processorMilliseconds();
    double m_longest = 0.0;
    int m_turnCount = 0;
    std::array<QMetaObject::Connection, 2> m_connections;
};

} // namespace dropshade
