// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "sync/SyncValueCodec.h"

#include <zlib.h>

#include <algorithm>

namespace dropshade {
namespace {

constexpr char frameMark = 0x01;
constexpr qsizetype markSize = 1;
constexpr int rawDeflate = -MAX_WBITS;
constexpr qsizetype spareRoom = 64;

// A reader tries these capacities in turn and takes what is shorter than the one at hand.
constexpr qsizetype firstCapacityPerByte = 8;
constexpr qsizetype leastFirstCapacity = 1024;
constexpr qsizetype capacityGrowth = 4;
constexpr int mostAttempts = 4;

Bytef* bytesOf(QByteArray& bytes, qsizetype offset) {
    return reinterpret_cast<Bytef*>(bytes.data() + offset);
}

/// zlib reads through a pointer that isn't const, and writes nothing there.
Bytef* inputOf(const QByteArray& bytes, qsizetype offset) {
    return reinterpret_cast<Bytef*>(const_cast<char*>(bytes.constData() + offset));
}

} // namespace

QByteArray compressedValue(const QByteArray& plain) {
    z_stream stream = {};
    if (deflateInit2(&stream, Z_DEFAULT_COMPRESSION, Z_DEFLATED, rawDeflate, MAX_MEM_LEVEL - 1,
                     Z_DEFAULT_STRATEGY) != Z_OK)
        return plain;
    const qsizetype room = plain.size() + spareRoom;
    QByteArray frame(markSize + room, Qt::Uninitialized);
    frame[0] = frameMark;
    stream.next_in = inputOf(plain, 0);
    stream.avail_in = static_cast<uInt>(plain.size());
    stream.next_out = bytesOf(frame, markSize);
    stream.avail_out = static_cast<uInt>(room);
    const bool fits = deflate(&stream, Z_FINISH) == Z_STREAM_END;
    const auto left = static_cast<qsizetype>(stream.avail_out);
    deflateEnd(&stream);
    if (!fits)
        return plain;
    frame.resize(frame.size() - left);
    frame.squeeze();
    return frame;
}

std::optional<QByteArray> decompressedValue(const QByteArray& stored) {
    if (stored.size() <= markSize || stored.front() != frameMark)
        return stored;
    z_stream stream = {};
    if (inflateInit2(&stream, rawDeflate) != Z_OK)
        return std::nullopt;
    const qsizetype payload = stored.size() - markSize;
    qsizetype capacity = std::max(firstCapacityPerByte * payload, leastFirstCapacity);
    QByteArray plain;
    qsizetype size = 0;
    int result = Z_OK;
    stream.next_in = inputOf(stored, markSize);
    stream.avail_in = static_cast<uInt>(payload);
    // One stream goes through all attempts: each would only do again what the last one did.
    for (int attempt = 0; attempt < mostAttempts; ++attempt) {
        plain.resize(capacity);
        stream.next_out = bytesOf(plain, size);
        stream.avail_out = static_cast<uInt>(capacity - size);
        result = inflate(&stream, Z_NO_FLUSH);
        size = capacity - static_cast<qsizetype>(stream.avail_out);
        if (stream.avail_out > 0)
            break;
        capacity *= capacityGrowth;
    }
    inflateEnd(&stream);
    if (result != Z_STREAM_END || size == 0 || stream.avail_out == 0)
        return std::nullopt;
    plain.resize(size);
    plain.squeeze();
    return plain;
}

} // namespace dropshade
