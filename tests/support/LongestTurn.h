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

/// The longest that the event loop was busy without a pause, in processor time of its thread.
class LongestTurn {
public:
    LongestTurn() {
        auto* dispatcher = QAbstractEventDispatcher::instance();
        m_connections = {QObject::connect(dispatcher, &QAbstractEventDispatcher::awake,
                                          [this] { m_begin = processorMilliseconds(); }),
                         QObject::connect(dispatcher, &QAbstractEventDispatcher::aboutToBlock,
                                          [this] { note(); })};
    }
    ~LongestTurn() {
        for (const auto& connection : m_connections)
            QObject::disconnect(connection);
    }
    [[nodiscard]] double milliseconds() const { return m_longest; }

private:
    void note() {
        if (m_begin > 0.0)
            m_longest = std::max(m_longest, processorMilliseconds() - m_begin);
    }

    double m_begin = 0.0;
    double m_longest = 0.0;
    std::array<QMetaObject::Connection, 2> m_connections;
};

} // namespace dropshade
