// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/SoundPlayer.h"

#include <QStringList>

namespace dropshade {

/// Writes down what it is asked for.
class FakeSoundPlayer : public SoundPlayer {
public:
    void prepare(const QString& path) override { m_prepared.append(path); }

    void play() override {
        if (!m_prepared.isEmpty())
            m_played.append(m_prepared.last());
    }

    /// Every path prepared, and every path played, in order.
    [[nodiscard]] const QStringList& prepared() const { return m_prepared; }
    [[nodiscard]] const QStringList& played() const { return m_played; }

private:
    QStringList m_prepared;
    QStringList m_played;
};

} // namespace dropshade
