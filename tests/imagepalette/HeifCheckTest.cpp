// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "imagepalette/HeifCheck.h"
#include "bytes/BytesOf.h"
#include "imagepalette/HevcHeaders.h"
#include "imagepalette/SampleFiles.h"

#include <gtest/gtest.h>

namespace dropshade {
namespace {

using namespace SampleFiles;

std::optional<std::uint64_t> pixelsOf(const QByteArray& file) {
    return heifDecodingPixels(bytesOf(file));
}

// Main profile, no sub-layers, sequence 0, 4:2:0; then a width of 16 and a height of 8.
constexpr std::uint8_t sequenceHeader[] = {0x42, 0x01, 0x01, 0x01, 0x60, 0x00, 0x00,
                                           0x03, 0x00, 0x90, 0x00, 0x00, 0x03, 0x00,
                                           0x00, 0x03, 0x00, 0x5D, 0xA0, 0x88, 0x98};

TEST(HevcHeaders, ASequenceHeaderSaysHowLargeThePicturesAre) {
    EXPECT_TRUE(isHevcSequenceHeader(sequenceHeader));
    EXPECT_EQ(hevcPicturePixels(sequenceHeader), 16u * 8u);
}

TEST(HevcHeaders, ASequenceHeaderCutShortSaysNothing) {
    for (std::size_t length = 0; length < std::size(sequenceHeader); ++length)
        EXPECT_EQ(hevcPicturePixels(std::span(sequenceHeader).first(length)), std::nullopt);
}

TEST(HevcHeaders, APictureStartsWithItsFirstSlice) {
    const std::uint8_t first[] = {19 << 1, 1, 0x80};
    const std::uint8_t next[] = {19 << 1, 1, 0x40};
    const std::uint8_t message[] = {39 << 1, 1, 0x80};
    EXPECT_TRUE(startsHevcPicture(first));
    EXPECT_FALSE(startsHevcPicture(next));
    EXPECT_FALSE(startsHevcPicture(message));
    EXPECT_FALSE(startsHevcPicture(std::span(first).first(2)));
}

TEST(HeifDecodingPixels, AreThoseOfTheCodedPictureAndItsAlpha) {
    const QByteArray opaque = heic(picture(64, 64));
    ASSERT_FALSE(opaque.isEmpty()) << "no HEVC encoder";
    EXPECT_EQ(pixelsOf(opaque), 64u * 64u);
    QImage image(64, 64, QImage::Format_ARGB32);
    image.fill(qRgba(255, 0, 0, 100));
    EXPECT_EQ(pixelsOf(heic(image)), 2u * 64u * 64u);
}

TEST(HeifDecodingPixels, AreThoseAnnouncedWhereTheseAreMore) {
    const QByteArray file = heic(picture(64, 64));
    ASSERT_FALSE(file.isEmpty()) << "no HEVC encoder";
    const qsizetype sides = file.indexOf("ispe") + 8;
    EXPECT_EQ(pixelsOf(patched(file, sides, QByteArray("\0\1\0\0\0\1\0\0", 8))),
              std::uint64_t{1} << 32);
}

TEST(HeifDecodingPixels, AreToldInSpiteOfBytesAfterTheLastBox) {
    const QByteArray file = heic(picture(64, 64));
    ASSERT_FALSE(file.isEmpty()) << "no HEVC encoder";
    EXPECT_EQ(pixelsOf(file + "tail"), 64u * 64u);
}

TEST(HeifDecodingPixels, AreNoneForAFileCutShort) {
    const QByteArray file = heic(picture(64, 64));
    ASSERT_FALSE(file.isEmpty()) << "no HEVC encoder";
    for (qsizetype length = 0; length < file.size(); ++length)
        ASSERT_EQ(pixelsOf(file.left(length)), std::nullopt) << length;
}

} // namespace
} // namespace dropshade
