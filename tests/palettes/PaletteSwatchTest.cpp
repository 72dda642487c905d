// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "palettes/PaletteSwatch.h"

#include "color/ColorConversions.h"
#include "contrast/ContrastMetrics.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

namespace dropshade {
namespace {

const SRGBColor white(1.0, 1.0, 1.0);
const SRGBColor black;

PaletteSwatch swatch(const char* value) {
    return PaletteSwatch(QString::fromUtf8(value));
}

HSBComponents tint(const char* value) {
    return hsbComponents(swatch(value).pinTint());
}

TEST(PaletteSwatch, KeepsItsTextExactlyAndTheColorBeside) {
    const PaletteSwatch typed(QStringLiteral("  RED "), QStringLiteral("warm"));
    EXPECT_EQ(typed.value(), QStringLiteral("  RED "));
    EXPECT_EQ(typed.label(), QStringLiteral("warm"));
    EXPECT_EQ(typed.color(), SRGBColor(1.0, 0.0, 0.0));
}

TEST(PaletteSwatch, ReadsItsColorFromTextOfAnyLengthAndAlphabet) {
    const SRGBColor red(1.0, 0.0, 0.0);
    for (int blanks = 0; blanks < 80; ++blanks)
        EXPECT_EQ(PaletteSwatch(QString(blanks, QChar(u' ')) + QStringLiteral("red")).color(), red);
    EXPECT_EQ(swatch("\u2003red").color(), red);
    EXPECT_EQ(swatch("r\u0119d").color(), black);
    EXPECT_EQ(PaletteSwatch(QStringLiteral("red") + QChar(u'\0')).color(), black);
}

TEST(PaletteSwatch, HasNoLabelUnlessGivenOneAndTellsAnEmptyLabelFromNone) {
    EXPECT_FALSE(swatch("red").label());
    EXPECT_EQ(PaletteSwatch(QStringLiteral("red"), QString()).label(), QString());
}

TEST(PaletteSwatch, GetsANewIdUnlessGivenOne) {
    EXPECT_NE(swatch("red").id(), swatch("red").id());
    const QUuid id = QUuid::createUuid();
    EXPECT_EQ(PaletteSwatch(id, QStringLiteral("red")).id(), id);
}

TEST(PaletteSwatch, IsEqualToAnotherWhenTheIdsAreEqualAndOnlyThen) {
    const QUuid id = QUuid::createUuid();
    EXPECT_EQ(PaletteSwatch(id, QStringLiteral("red")),
              PaletteSwatch(id, QStringLiteral("blue"), QStringLiteral("sea")));
    EXPECT_FALSE(swatch("red") == swatch("red"));
}

TEST(PaletteSwatch, ShowsTextThatMeansNoColorAsBlackAndKeepsIt) {
    const PaletteSwatch unknown = swatch("no colour");
    EXPECT_EQ(unknown.value(), QStringLiteral("no colour"));
    EXPECT_EQ(unknown.color(), black);
    EXPECT_TRUE(unknown.prefersLightText());
    EXPECT_EQ(unknown.pinTint(), white);
}

TEST(PaletteSwatch, PutsDarkTextAndABlackTintOnWhite) {
    EXPECT_FALSE(swatch("#ffffff").prefersLightText());
    EXPECT_EQ(swatch("#ffffff").pinTint(), black);
}

TEST(PaletteSwatch, PutsLightTextAndAWhiteTintOnBlack) {
    EXPECT_TRUE(swatch("#000000").prefersLightText());
    EXPECT_EQ(swatch("#000000").pinTint(), white);
}

TEST(PaletteSwatch, PutsDarkTextOnRedSinceBlackHasTheHigherContrast) {
    const PaletteSwatch red = swatch("#ff0000");
    EXPECT_NEAR(contrastRatio(red.color(), white), 3.998, 5e-4);
    EXPECT_NEAR(contrastRatio(red.color(), black), 5.252, 5e-4);
    EXPECT_FALSE(red.prefersLightText());
}

TEST(PaletteSwatch, ChoosesTheTextOfTheOpaqueColorWhateverTheAlpha) {
    for (const char* value : {"#00000000", "#00008010"})
        EXPECT_TRUE(swatch(value).prefersLightText()) << value;
    EXPECT_FALSE(swatch("#ffffff01").prefersLightText());
}

TEST(PaletteSwatch, HasAPlainTintBelowASaturationOfEightHundredths) {
    EXPECT_EQ(swatch("rgb(200, 184.2, 184.2)").pinTint(), black);
    EXPECT_EQ(swatch("rgb(60, 55.26, 55.26)").pinTint(), white);
}

TEST(PaletteSwatch, HasAHuedTintFromASaturationOfEightHundredthsOn) {
    // Every pair of 8-bit components whose saturation is 0.08 to the point.
    for (int most = 25; most <= 250; most += 25) {
        const int least = most * 23 / 25;
        const QString value = QStringLiteral("rgb(%1, %2, %2)").arg(most).arg(least);
        EXPECT_GT(hsbComponents(PaletteSwatch(value).pinTint()).saturation, 0.0)
            << value.toStdString();
    }
    EXPECT_GT(tint("rgb(200, 184, 184)").saturation, 0.0);
}

TEST(PaletteSwatch, TintsADarkColorWithAPaleWashOfItsHue) {
    const HSBComponents strong = tint("#000080");
    EXPECT_NEAR(strong.hue, 240.0 / 360.0, 1e-12);
    EXPECT_NEAR(strong.saturation, 0.14, 1e-12);
    EXPECT_NEAR(strong.brightness, 0.97, 1e-12);
    // 40 of 100 is a saturation of 0.4, and 0.4 × 0.22 stays below the most.
    EXPECT_NEAR(tint("rgb(60, 100, 60)").saturation, 0.088, 1e-12);
    EXPECT_NEAR(tint("rgb(60, 100, 60)").hue, 120.0 / 360.0, 1e-12);
}

TEST(PaletteSwatch, TintsALightColorWithADeepShadeOfItsHue) {
    const HSBComponents strong = tint("#ffff00");
    EXPECT_NEAR(strong.hue, 60.0 / 360.0, 1e-12);
    EXPECT_NEAR(strong.saturation, 0.85, 1e-12);
    EXPECT_NEAR(strong.brightness, 0.22, 1e-12);
    EXPECT_NEAR(tint("rgb(200, 255, 200)").saturation, 0.55, 1e-12);
    EXPECT_NEAR(tint("rgb(250, 250, 75)").saturation, 0.7, 1e-12);
}

TEST(PaletteSwatch, HasAnOpaqueTintWhateverItsAlpha) {
    for (const char* value : {"#ff000000", "#0000ff33", "#80808000", "#ffffff00"})
        EXPECT_EQ(swatch(value).pinTint().alpha(), 1.0) << value;
}

TEST(PaletteSwatch, CopiesItselfUnderANewId) {
    const PaletteSwatch source(QStringLiteral("tan"), QStringLiteral("sand"));
    const PaletteSwatch copy = source.freshCopy();
    EXPECT_NE(copy.id(), source.id());
    EXPECT_EQ(copy.value(), source.value());
    EXPECT_EQ(copy.label(), source.label());
    EXPECT_EQ(copy.color(), source.color());
    EXPECT_EQ(copy.prefersLightText(), source.prefersLightText());
    EXPECT_EQ(copy.pinTint(), source.pinTint());
}

TEST(PaletteSwatch, IsTheSizeOfAPointer) {
    EXPECT_EQ(sizeof(PaletteSwatch), sizeof(void*));
}

} // namespace
} // namespace dropshade
