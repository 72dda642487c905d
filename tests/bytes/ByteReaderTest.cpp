// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "bytes/ByteReader.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>

namespace dropshade {
namespace {

constexpr std::array<std::uint8_t, 8> oneToEight = {1, 2, 3, 4, 5, 6, 7, 8};

TEST(ByteReader, ReadsInTheOrderOfItsFile) {
    ByteReader big(oneToEight);
    EXPECT_EQ(big.u8(), 0x01);
    EXPECT_EQ(big.u16(), 0x0203);
    EXPECT_EQ(big.u32(), 0x04050607U);
    ByteReader little(oneToEight, ByteReader::Endian::little);
    EXPECT_EQ(little.u8(), 0x01);
    EXPECT_EQ(little.u16(), 0x0302);
    EXPECT_EQ(little.u32(), 0x07060504U);
    EXPECT_EQ(ByteReader(oneToEight).u64(), 0x0102030405060708U);
    EXPECT_EQ(ByteReader(oneToEight, ByteReader::Endian::little).u64(), 0x0807060504030201U);
}

TEST(ByteReader, CountsWhatRemains) {
    ByteReader reader(oneToEight);
    EXPECT_EQ(reader.remaining(), 8U);
    reader.skip(3);
    EXPECT_EQ(reader.remaining(), 5U);
    EXPECT_EQ(reader.position(), 3U);
    reader.seek(8);
    EXPECT_EQ(reader.remaining(), 0U);
    EXPECT_FALSE(reader.failed());
}

TEST(ByteReader, FailsForGoodPastTheEnd) {
    ByteReader reader(oneToEight);
    reader.skip(6);
    EXPECT_EQ(reader.u32() & 0xFFFFU, 0U);
    EXPECT_TRUE(reader.failed());
    EXPECT_EQ(reader.remaining(), 0U);
    reader.seek(0);
    EXPECT_EQ(reader.u8(), 0);
    EXPECT_TRUE(reader.failed());
}

TEST(ByteReader, IsNotFooledByCountsThatOverflow) {
    constexpr auto most = std::numeric_limits<std::uint64_t>::max();
    ByteReader reader(oneToEight);
    reader.skip(4);
    EXPECT_FALSE(reader.contains(4, most));
    EXPECT_FALSE(reader.contains(most, 4));
    EXPECT_TRUE(reader.contains(8, 0));
    EXPECT_TRUE(reader.take(most).empty());
    EXPECT_TRUE(reader.failed());
}

TEST(ByteReader, TakesBytesWhereTheyLie) {
    ByteReader reader(oneToEight);
    reader.skip(2);
    const auto taken = reader.take(3);
    EXPECT_EQ(taken.data(), oneToEight.data() + 2);
    EXPECT_EQ(taken.size(), 3U);
    EXPECT_EQ(reader.u8(), 6);
    EXPECT_TRUE(reader.take(0).empty());
    EXPECT_FALSE(reader.failed());
    EXPECT_TRUE(reader.take(3).empty());
    EXPECT_TRUE(reader.failed());
}

TEST(ByteReader, ReadsSinglesInEitherOrder) {
    constexpr std::array<std::uint8_t, 4> big = {0x3F, 0x80, 0, 0};
    constexpr std::array<std::uint8_t, 4> little = {0, 0, 0x20, 0xC1};
    EXPECT_EQ(ByteReader(big).f32(), 1.0F);
    EXPECT_EQ(ByteReader(little, ByteReader::Endian::little).f32(), -10.0F);
}

TEST(ByteReader, HandsOnSinglesThatAreNoNumbers) {
    constexpr std::array<std::uint8_t, 8> odd = {0x7F, 0xC0, 0, 0, 0xFF, 0x80, 0, 0};
    ByteReader reader(odd);
    EXPECT_TRUE(std::isnan(reader.f32()));
    EXPECT_EQ(reader.f32(), -std::numeric_limits<float>::infinity());
}

TEST(ByteReader, GivesZeroForASingleThatIsCut) {
    constexpr std::array<std::uint8_t, 3> cut = {0x3F, 0x80, 0};
    ByteReader reader(cut);
    EXPECT_EQ(reader.f32(), 0.0F);
    EXPECT_TRUE(reader.failed());
}

} // namespace
} // namespace dropshade
