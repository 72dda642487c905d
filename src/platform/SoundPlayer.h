// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace dropshade {

/// Plays one short sound at a time.
class SoundPlayer {
public:
    virtual ~SoundPlayer() = default;

    /// Makes the audio file at `path`, which may be a Qt resource, the one that `play` plays, in
    /// place of any other. A file that cannot be read makes it silent.
    virtual void prepare(const QString& path) = 0;

    /// Plays the prepared sound from its start, also while it is still being heard. Returns at
    /// once, and never fails: without a sound prepared or a device to play it there is silence.
    virtual void play() = 0;
};

} // namespace dropshade
