// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

namespace dropshade {

/// Counts how often a signal comes.
class SignalCount {
public:
    template <typename Sender, typename Signal>
    SignalCount(const Sender& sender, Signal signal) {
        QObject::connect(&sender, signal, &m_receiver, [this] { ++m_count; });
    }

    [[nodiscard]] int count() const { return m_count; }

private:
    QObject m_receiver;
    int m_count = 0;
};

} // namespace dropshade
