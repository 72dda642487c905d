// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QAudioFormat>
#include <QByteArray>

#include <optional>

namespace dropshade {

/// A sound as a device takes it.
struct DecodedSound {
    QAudioFormat format; ///< 16-bit integers in the byte order of this machine
    QByteArray samples;
};

/// The sound in an audio file (AIFF and what else libsndfile reads), or nothing when the bytes are
/// not one, have more than two channels or last longer than ten seconds.
[[nodiscard]] std::optional<DecodedSound> decodedSound(const QByteArray& file);

} // namespace dropshade
