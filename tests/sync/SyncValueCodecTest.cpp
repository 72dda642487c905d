// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "sync/SyncValueCodec.h"

#include "support/QtPrinters.h"
#include "support/Seed.h"

#include <gtest/gtest.h>

#include <random>

namespace dropshade {
namespace {

/// A frame made apart from the codec, at zlib's highest level.
QByteArray frameOf(const QByteArray& plain) {
    const QByteArray zlibStream = qCompress(plain, 9);
    // Qt puts the length before it, zlib a head of 2 bytes and a sum of 4 behind.
    return '\x01' + zlibStream.mid(4 + 2, zlibStream.size() - 4 - 2 - 4);
}

QByteArray randomBytes(std::uint64_t seed, qsizetype size) {
    std::mt19937_64 random(seed);
    QByteArray bytes(size, Qt::Uninitialized);
    for (char& byte : bytes)
        byte = static_cast<char>(random());
    return bytes;
}

TEST(SyncValueCodec, FramesAreTheMarkAndARawDeflateStream) {
    const QByteArray frame = compressedValue("[]");
    EXPECT_EQ(frame.front(), '\x01');
    EXPECT_EQ(decompressedValue(frame), QByteArray("[]"));
    const QByteArray text = QByteArray("{\"id\":1}").repeated(100);
    EXPECT_LT(compressedValue(text).size(), 60);
    EXPECT_EQ(decompressedValue(compressedValue(text)), text);
}

TEST(SyncValueCodec, ReadsAStreamOfAnotherEncoder) {
    const QByteArray text = QByteArray("colour ").repeated(40);
    EXPECT_EQ(decompressedValue(frameOf(text)), text);
}

TEST(SyncValueCodec, TextInJsonIsReadableUnframed) {
    EXPECT_EQ(decompressedValue("{\"a\":1}"), QByteArray("{\"a\":1}"));
    EXPECT_EQ(decompressedValue("["), QByteArray("["));
}

TEST(SyncValueCodec, NoBytesAndALoneMarkAreTheirOwnText) {
    EXPECT_EQ(decompressedValue(""), QByteArray());
    EXPECT_EQ(decompressedValue("\x01"), QByteArray("\x01"));
}

TEST(SyncValueCodec, AFrameOfNoBytesIsUnreadable) {
    EXPECT_EQ(decompressedValue(QByteArray::fromRawData("\x01\x03\x00", 3)), std::nullopt);
}

TEST(SyncValueCodec, ADamagedOrCutFrameIsUnreadable) {
    const QByteArray frame = compressedValue(QByteArray("abcdefgh").repeated(500));
    EXPECT_EQ(decompressedValue("\x01\xff\xff\xff"), std::nullopt);
    for (qsizetype size = 2; size < frame.size(); ++size)
        EXPECT_EQ(decompressedValue(frame.left(size)), std::nullopt) << size;
}

TEST(SyncValueCodec, WhatFollowsTheStreamIsPassedOver) {
    EXPECT_EQ(decompressedValue(compressedValue("[1]") + "rest"), QByteArray("[1]"));
}

TEST(SyncValueCodec, WhatDoesNotCompressIsFramedAllTheSame) {
    const QByteArray noise = randomBytes(7, 5000);
    const QByteArray frame = compressedValue(noise);
    EXPECT_GT(frame.size(), noise.size());
    EXPECT_EQ(frame.front(), '\x01');
    EXPECT_EQ(decompressedValue(frame), noise);
}

TEST(SyncValueCodec, WhatGrowsBeyondTheSpareRoomStaysUnframed) {
    // Stored blocks cost 5 bytes each for at most 64 KiB: so much that 64 bytes don't do.
    const QByteArray noise = 'x' + randomBytes(9, 2'000'000);
    EXPECT_EQ(compressedValue(noise), noise);
    EXPECT_EQ(decompressedValue(compressedValue(noise)), noise);
}

/// A frame whose payload is as long as a test wants, padded behind the stream.
QByteArray paddedFrame(const QByteArray& plain, qsizetype payload) {
    QByteArray frame = frameOf(plain);
    return frame + QByteArray(payload + 1 - frame.size(), '\0');
}

TEST(SyncValueCodec, DecodesOnAnyOfItsFourAttempts) {
    // 8 bytes for each of the payload, and 4 times as many at each further attempt.
    const qsizetype payload = 4000;
    for (const qsizetype capacity : {32'000, 128'000, 512'000, 2'048'000}) {
        for (const qsizetype size : {capacity - 1, capacity, capacity + 1}) {
            const QByteArray plain(size, ' ');
            const auto decoded = decompressedValue(paddedFrame(plain, payload));
            if (size < 2'048'000)
                EXPECT_EQ(decoded, plain) << size;
            else
                EXPECT_EQ(decoded, std::nullopt) << size;
        }
    }
}

TEST(SyncValueCodec, AShortFrameHasACapacityOf1024AtLeast) {
    const auto largest = decompressedValue(paddedFrame(QByteArray(65'535, 'a'), 128));
    EXPECT_EQ(largest, QByteArray(65'535, 'a'));
    EXPECT_EQ(decompressedValue(paddedFrame(QByteArray(65'536, 'a'), 128)), std::nullopt);
}

TEST(SyncValueCodec, ABombIsUnreadableAndCostsNoMoreThanTheCapacity) {
    // A thousandfold, which no fair text reaches.
    EXPECT_EQ(decompressedValue(frameOf(QByteArray(30'000'000, '\0'))), std::nullopt);
}

TEST(SyncValueCodec, EveryTextComesBack) {
    const std::uint64_t seed = testSeed();
    SCOPED_TRACE(seedTrace(seed));
    std::mt19937_64 random(seed);
    for (int round = 0; round < 300; ++round) {
        QByteArray text = "[" + randomBytes(random(), qsizetype(random() % 3000));
        text += QByteArray("#ff00ff").repeated(qsizetype(random() % 200));
        ASSERT_EQ(decompressedValue(compressedValue(text)), text);
    }
}

} // namespace
} // namespace dropshade
