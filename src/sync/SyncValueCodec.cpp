// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "sync/SyncValueCodec.h"

#include <libdeflate.h>

#include <algorithm>
#include <memory>

namespace dropshade {
namespace {

constexpr char frameMark = 0x01;
constexpr qsizetype markSize = 1;
constexpr int compressionLevel = 6;
constexpr qsizetype spareRoom = 64;

// A fair text is shorter than this.
constexpr qsizetype mostPerByte = 512;
constexpr qsizetype leastMost = 65'536;

// The texts of palettes are three times as long as their streams. More room than that would be
// given back to the system after each value, to be asked for anew, page by page.
constexpr qsizetype usualPerByte = 4;
constexpr qsizetype roomGrowth = 4;

struct FreeCodec {
    void operator()(libdeflate_compressor* codec) const { libdeflate_free_compressor(codec); }
    void operator()(libdeflate_decompressor* codec) const { libdeflate_free_decompressor(codec); }
};

std::size_t sizeOf(const QByteArray& bytes) {
    return static_cast<std::size_t>(bytes.size());
}

} // namespace

QByteArray compressedValue(const QByteArray& plain) {
    const std::unique_ptr<libdeflate_compressor, FreeCodec> codec(
        libdeflate_alloc_compressor(compressionLevel));
    if (codec == nullptr)
        return plain;
    QByteArray frame(markSize + plain.size() + spareRoom, Qt::Uninitialized);
    frame[0] = frameMark;
    const std::size_t size =
        libdeflate_deflate_compress(codec.get(), plain.constData(), sizeOf(plain),
                                    frame.data() + markSize, sizeOf(frame) - markSize);
    if (size == 0)
        return plain;
    frame.truncate(markSize + static_cast<qsizetype>(size));
    frame.squeeze();
    return frame;
}

QByteArray sharedValue(const QByteArray& plain) {
    QByteArray frame = compressedValue(plain);
    const qsizetype payload = frame.size() - markSize;
    return plain.size() < std::max(mostPerByte * payload, leastMost) ? frame : plain;
}

std::optional<QByteArray> decompressedValue(const QByteArray& stored) {
    if (stored.size() <= markSize || stored.front() != frameMark)
        return stored;
    const std::unique_ptr<libdeflate_decompressor, FreeCodec> codec(
        libdeflate_alloc_decompressor());
    const qsizetype payload = stored.size() - markSize;
    const qsizetype most = std::max(mostPerByte * payload, leastMost);
    auto result = codec ? LIBDEFLATE_INSUFFICIENT_SPACE : LIBDEFLATE_BAD_DATA;
    QByteArray plain;
    std::size_t size = 0;
    for (qsizetype room = usualPerByte * payload; result == LIBDEFLATE_INSUFFICIENT_SPACE;
         room = std::min(room * roomGrowth, most)) {
        if (plain.size() == most)
            return std::nullopt;
        plain = QByteArray(room, Qt::Uninitialized);
        // What follows the stream is passed over.
        std::size_t taken = 0;
        result = libdeflate_deflate_decompress_ex(codec.get(), stored.constData() + markSize,
                                                  static_cast<std::size_t>(payload), plain.data(),
                                                  sizeOf(plain), &taken, &size);
    }
    if (result != LIBDEFLATE_SUCCESS || size == 0 || static_cast<qsizetype>(size) == most)
        return std::nullopt;
    plain.truncate(static_cast<qsizetype>(size));
    plain.squeeze();
    return plain;
}

} // namespace dropshade
