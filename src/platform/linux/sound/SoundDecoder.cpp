// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/linux/sound/SoundDecoder.h"

#include <QBuffer>

#include <sndfile.h>

#include <cstdio>
#include <memory>

namespace dropshade {

namespace {

constexpr int mostChannels = 2;
constexpr int mostSeconds = 10;

QBuffer& bufferOf(void* user) {
    return *static_cast<QBuffer*>(user);
}

sf_count_t fileSize(void* user) {
    return bufferOf(user).size();
}

sf_count_t seek(sf_count_t offset, int whence, void* user) {
    QBuffer& buffer = bufferOf(user);
    const qint64 origin = whence == SEEK_CUR   ? buffer.pos()
                          : whence == SEEK_END ? buffer.size()
                                               : 0;
    return buffer.seek(origin + offset) ? buffer.pos() : -1;
}

sf_count_t read(void* target, sf_count_t count, void* user) {
    return bufferOf(user).read(static_cast<char*>(target), count);
}

sf_count_t write(const void*, sf_count_t, void*) {
    return 0;
}

sf_count_t tell(void* user) {
    return bufferOf(user).pos();
}

using SoundFile = std::unique_ptr<SNDFILE, decltype([](SNDFILE* file) { sf_close(file); })>;

} // namespace

std::optional<DecodedSound> decodedSound(const QByteArray& file) {
    QBuffer buffer;
    buffer.setData(file);
    buffer.open(QIODevice::ReadOnly);
    SF_VIRTUAL_IO access{fileSize, seek, read, write, tell};
    SF_INFO info{};
    const SoundFile sound(sf_open_virtual(&access, SFM_READ, &info, &buffer));
    if (!sound || info.channels < 1 || info.channels > mostChannels || info.samplerate < 1 ||
        info.frames < 0 || info.frames > sf_count_t(mostSeconds) * info.samplerate)
        return std::nullopt;
    DecodedSound decoded;
    decoded.format.setSampleFormat(QAudioFormat::Int16);
    decoded.format.setSampleRate(info.samplerate);
    decoded.format.setChannelCount(info.channels);
    decoded.samples.resize(info.frames * decoded.format.bytesPerFrame());
    const sf_count_t frames =
        sf_readf_short(sound.get(), reinterpret_cast<short*>(decoded.samples.data()), info.frames);
    decoded.samples.resize(frames * decoded.format.bytesPerFrame());
    return decoded;
}

} // namespace dropshade
