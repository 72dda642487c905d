// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "interchange/ASECoder.h"

#include "interchange/HexText.h"
#include "support/Palettes.h"
#include "support/QtPrinters.h"
#include "support/Seed.h"

#include <gtest/gtest.h>

namespace dropshade {
namespace {

QByteArray hexOf(const Palette& palette) {
    return ASECoder::encode(palette).toHex(' ');
}

TEST(ASEEncoder, WritesTwelveBytesForAPaletteOfNothing) {
    EXPECT_EQ(hexOf(makePalette("a")), "41 53 45 46 00 01 00 00 00 00 00 00");
}

TEST(ASEEncoder, NamesAnUnlabelledSwatchByItsValue) {
    EXPECT_EQ(hexOf(makePalette("p", {makeScale("A", {"#ff0000"})})),
              "41 53 45 46 00 01 00 00 00 00 00 03 "
              "c0 01 00 00 00 06 00 02 00 41 00 00 "
              "00 01 00 00 00 24 00 08 00 23 00 66 00 66 00 30 00 30 00 30 00 30 00 00 "
              "52 47 42 20 3f 80 00 00 00 00 00 00 00 00 00 00 00 02 "
              "c0 02 00 00 00 00");
}

TEST(ASEEncoder, WritesAnEmptyLabelAsAnEmptyName) {
    const Palette palette = makePalette(
        "p", {PaletteScale(QString(), {PaletteSwatch(QStringLiteral("#0000ff"), QString())})});
    EXPECT_EQ(hexOf(palette), "41 53 45 46 00 01 00 00 00 00 00 03 "
                              "c0 01 00 00 00 04 00 01 00 00 "
                              "00 01 00 00 00 16 00 01 00 00 "
                              "52 47 42 20 00 00 00 00 00 00 00 00 3f 80 00 00 00 02 "
                              "c0 02 00 00 00 00");
}

TEST(ASEEncoder, WritesNamesAsTheyStandWithSurrogatesAndControls) {
    const QString name = QStringLiteral(u"\u202E\n🎨 ") + QChar(0xD800);
    EXPECT_EQ(ASECoder::encode(makePalette("p", {PaletteScale(name, {})})).mid(18, 16).toHex(),
              "0007202e000ad83cdfa80020d8000000");
}

TEST(ASEEncoder, DropsAlphaAndWritesBlackForWhatIsNoColor) {
    const auto floatsOf = [](const char* value) {
        return ASECoder::encode(makePalette("", {makeScale("", {value})}))
            .chopped(8)
            .last(12)
            .toHex();
    };
    EXPECT_EQ(floatsOf("rgba(255, 255, 255, 0.25)"), "3f8000003f8000003f800000");
    EXPECT_EQ(floatsOf("no colour"), "000000000000000000000000");
}

TEST(ASEEncoder, ReadsBackWithValuesAsLabels) {
    const std::uint64_t seed = testSeed();
    SCOPED_TRACE(seedTrace(seed));
    RandomPalettes random(seed);
    for (int round = 0; round < 200; ++round) {
        const Palette palette = random.palette();
        const Palette copy = ASECoder::decode(ASECoder::encode(palette), ReferenceTime{});
        ASSERT_EQ(copy.scales().size(), palette.scales().size());
        for (qsizetype at = 0; at < copy.scales().size(); ++at) {
            const auto& swatches = copy.scales().at(at).swatches();
            const auto& originals = palette.scales().at(at).swatches();
            ASSERT_EQ(swatches.size(), originals.size());
            for (qsizetype place = 0; place < swatches.size(); ++place) {
                const PaletteSwatch& original = originals.at(place);
                ASSERT_EQ(swatches.at(place).value(), hexText(original.color()));
                QString name = original.label().value_or(original.value());
                name.remove(QChar(u'\0')).remove(QChar(u'\n'));
                ASSERT_EQ(swatches.at(place).label().value_or(QString()), name.trimmed());
            }
        }
    }
}

TEST(ASEEncoder, HoldsTheLongestNameThatTheFormatCan) {
    const QByteArray bytes =
        ASECoder::encode(makePalette("", {PaletteScale(QString(65534, u'a'), {})}));
    EXPECT_EQ(bytes.mid(12, 8).toHex(), "c00100020000ffff");
    EXPECT_EQ(bytes.size(), 12 + 6 + 2 + 2 * 65535 + 6);
}

TEST(ASEEncoderDeathTest, EndsTheProgramAtALongerName) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const Palette palette = makePalette("", {PaletteScale(QString(65535, u'a'), {})});
    EXPECT_DEATH(static_cast<void>(ASECoder::encode(palette)), "doesn't fit");
}

} // namespace
} // namespace dropshade
