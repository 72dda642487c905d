// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/linux/sound/AudioSinkPlayer.h"

#include "platform/linux/sound/SoundDecoder.h"

#include <QAudioDevice>
#include <QMediaDevices>

namespace dropshade {

namespace {

/// Servers fade a stream that runs dry, and some stop short of its last block.
constexpr qint64 silenceAtEndMicroseconds = 200'000;

} // namespace

AudioSinkPlayer::Result AudioSinkPlayer::play(const QByteArray& file) {
    m_sink.reset();
    m_source.close();
    const auto sound = decodedSound(file);
    if (!sound)
        return Result::Unreadable;
    const QAudioDevice device = QMediaDevices::defaultAudioOutput();
    if (device.isNull())
        return Result::NoDevice;
    m_samples =
        sound->samples + QByteArray(sound->format.bytesForDuration(silenceAtEndMicroseconds), '\0');
    m_source.setBuffer(&m_samples);
    m_source.open(QIODevice::ReadOnly);
    m_sink = std::make_unique<QAudioSink>(device, sound->format);
    // The server gets the whole sound at once, so that a busy machine cannot make it stutter.
    m_sink->setBufferSize(m_samples.size());
    m_sink->start(&m_source);
    return m_sink->error() == QAudio::NoError ? Result::Playing : Result::NoDevice;
}

} // namespace dropshade
