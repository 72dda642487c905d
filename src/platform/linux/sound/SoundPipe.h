// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <optional>

namespace dropshade {

/// The exit code of the sound program where there is nothing to play on.
inline constexpr int noSoundDeviceExitCode = 3;

/// A file's bytes as they go through the pipe: their number in four bytes, the highest first, and
/// then themselves.
[[nodiscard]] QByteArray framedSound(QByteArrayView file);

/// Puts the files together again that come through the pipe in pieces.
class SoundPipe {
public:
    /// No sound of a copy comes near it; a longer frame is nothing of ours.
    static constexpr quint32 mostBytes = 4 << 20;

    void append(QByteArrayView bytes) { m_pending.append(bytes); }

    /// The last file that is complete; those before it have been overtaken and are dropped.
    [[nodiscard]] std::optional<QByteArray> takeLast();

    /// True when a frame is longer than `mostBytes`: what follows cannot be read any more.
    [[nodiscard]] bool isBroken() const;

private:
    QByteArray m_pending;
};

} // namespace dropshade
