// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QAudioSink>
#include <QBuffer>

#include <memory>

namespace dropshade {

/// Plays a sound on the default device of the desktop. May block while the sound server does.
class AudioSinkPlayer {
public:
    enum class Result { Playing, Unreadable, NoDevice };

    /// Plays the audio file with these bytes from its start; what was being heard stops.
    Result play(const QByteArray& file);

private:
    QByteArray m_samples;
    QBuffer m_source;
    std::unique_ptr<QAudioSink> m_sink;
};

} // namespace dropshade
