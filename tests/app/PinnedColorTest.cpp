// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "app/PinnedColor.h"

#include "support/Palettes.h"
#include "support/QtPrinters.h"
#include "support/Seed.h"

#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <bit>
#include <limits>

namespace dropshade {
namespace {

PinRecord example() {
    return {QUuid(QStringLiteral("00000000-0000-4000-8000-00000000000a")),
            QUuid(QStringLiteral("00000000-0000-4000-8000-00000000000b")),
            QStringLiteral("Mine"),
            QUuid(QStringLiteral("00000000-0000-4000-8000-00000000000c")),
            QStringLiteral("Red"),
            QUuid(QStringLiteral("00000000-0000-4000-8000-00000000000d")),
            QStringLiteral("#F00"),
            QStringLiteral("red-500"),
            ReferenceTime{700000000.5}};
}

/// A pin of the swatch at these places.
PinnedColor pinOf(const Palette& palette, qsizetype scaleIndex, qsizetype swatchIndex) {
    const PaletteScale& scale = palette.scales().at(scaleIndex);
    const PaletteSwatch& swatch = scale.swatches().at(swatchIndex);
    return PinnedColor({QUuid::createUuid(), palette.id(), palette.name(), scale.id(), scale.name(),
                        swatch.id(), swatch.value(), swatch.label(), ReferenceTime{1.5}});
}

TEST(PinnedColor, HoldsTheParsedColorOrOpaqueBlack) {
    PinRecord record = example();
    EXPECT_EQ(PinnedColor(record).cachedColor(), SRGBColor(1.0, 0.0, 0.0));
    record.value = QStringLiteral("no colour");
    EXPECT_EQ(PinnedColor(record).cachedColor(), SRGBColor());
    EXPECT_EQ(PinnedColor(record)->value, QStringLiteral("no colour"));
}

TEST(PinnedColor, EqualsAnotherWhenEveryFieldDoes) {
    const PinnedColor pin(example());
    EXPECT_EQ(pin, PinnedColor(example()));
    PinRecord later = example();
    later.pinnedAt.seconds = std::nextafter(later.pinnedAt.seconds, 1e9);
    EXPECT_FALSE(pin == PinnedColor(later));
    PinRecord unlabelled = example();
    unlabelled.label = std::nullopt;
    PinRecord emptyLabel = example();
    emptyLabel.label = QString();
    EXPECT_FALSE(PinnedColor(unlabelled) == PinnedColor(emptyLabel));
}

TEST(PinnedColorJson, HasTheseKeysAndForms) {
    const auto expected = QJsonDocument::fromJson(R"([{
        "id": "00000000-0000-4000-8000-00000000000A",
        "paletteId": "00000000-0000-4000-8000-00000000000B", "paletteName": "Mine",
        "scaleId": "00000000-0000-4000-8000-00000000000C", "scaleName": "Red",
        "swatchId": "00000000-0000-4000-8000-00000000000D", "value": "#F00", "label": "red-500",
        "pinnedAt": 700000000.5}])");
    EXPECT_EQ(QJsonDocument::fromJson(*encodedPins({PinnedColor(example())})), expected);
}

TEST(PinnedColorJson, LeavesAnAbsentLabelOutAndRequiresEveryOtherKey) {
    PinRecord unlabelled = example();
    unlabelled.label = std::nullopt;
    const QByteArray json = *encodedPins({PinnedColor(unlabelled)});
    const QJsonObject whole = QJsonDocument::fromJson(json).array().at(0).toObject();
    EXPECT_EQ(whole.size(), 8);
    EXPECT_EQ(decodedPins(json), QList<PinnedColor>{PinnedColor(unlabelled)});
    for (const QString& key : whole.keys()) {
        QJsonObject less = whole;
        less.remove(key);
        EXPECT_FALSE(decodedPins(QJsonDocument(QJsonArray{whole, less}).toJson()))
            << key.toStdString();
    }
}

TEST(PinnedColorJson, KeepsEveryBitOfAMoment) {
    for (const double seconds : {789012345.67890118, 0.1, -0.0, 5e-324}) {
        PinRecord record = example();
        record.pinnedAt.seconds = seconds;
        const auto pins = decodedPins(*encodedPins({PinnedColor(record)}));
        ASSERT_TRUE(pins);
        EXPECT_EQ(std::bit_cast<quint64>(pins->first()->pinnedAt.seconds),
                  std::bit_cast<quint64>(seconds));
    }
}

TEST(PinnedColorJson, HasNoFormForAMomentThatIsNotFinite) {
    PinRecord record = example();
    record.pinnedAt.seconds = std::numeric_limits<double>::quiet_NaN();
    EXPECT_FALSE(encodedPins({PinnedColor(record)}));
}

TEST(PinnedColorJson, GivesRandomPinsBack) {
    const auto seed = testSeed();
    SCOPED_TRACE(seedTrace(seed));
    RandomPalettes random(seed);
    for (int round = 0; round < 300; ++round) {
        QList<PinnedColor> pins;
        for (unsigned count = random.below(6); count > 0; --count) {
            PinRecord record = example();
            record.id = QUuid::createUuid();
            record.paletteName = random.text();
            record.scaleName = random.text();
            record.value = random.text();
            record.label = random.below(2) == 0 ? std::nullopt : std::optional(random.text());
            pins.append(PinnedColor(record));
        }
        EXPECT_EQ(decodedPins(*encodedPins(pins)), pins);
    }
}

TEST(PinnedColorJson, GivesNothingForJunk) {
    for (const char* junk : {"", "null", "{}", "[{}]", "[null]", "1", "\xff"})
        EXPECT_FALSE(decodedPins(junk)) << junk;
}

class ValidatedPins : public testing::Test {
protected:
    Palette m_sea =
        makePalette("Sea", {makeScale("Deep", {"navy", "blue"}), makeScale("Shore", {"tan"})});
    Palette m_land = makePalette("Land", {makeScale("Wood", {"green"})});
    QList<PinnedColor> m_pins = {pinOf(m_land, 0, 0), pinOf(m_sea, 1, 0), pinOf(m_sea, 0, 1)};
};

TEST_F(ValidatedPins, AreTheSameWhereNothingHasChanged) {
    EXPECT_EQ(validatedPins(m_pins, {m_sea, m_land}), m_pins);
}

TEST_F(ValidatedPins, AreNoneWithoutPalettes) {
    EXPECT_TRUE(validatedPins(m_pins, {}).isEmpty());
    EXPECT_TRUE(validatedPins({}, {m_sea}).isEmpty());
}

TEST_F(ValidatedPins, LeaveOutThoseWhosePaletteScaleOrSwatchIsGone) {
    EXPECT_EQ(validatedPins(m_pins, {m_sea}), m_pins.sliced(1));
    Palette less = m_sea;
    less.setScales(m_sea.scales().first(1));
    EXPECT_EQ(validatedPins(m_pins, {less, m_land}), (QList{m_pins.at(0), m_pins.at(2)}));
    PaletteScale deep = m_sea.scales().at(0);
    deep.setSwatches(deep.swatches().first(1));
    less.setScales({deep, m_sea.scales().at(1)});
    EXPECT_EQ(validatedPins(m_pins, {less, m_land}), m_pins.first(2));
}

TEST_F(ValidatedPins, CountASwatchInAnotherScaleAsGone) {
    PaletteScale deep = m_sea.scales().at(0);
    PaletteScale shore = m_sea.scales().at(1);
    shore.setSwatches(shore.swatches() + deep.swatches());
    deep.setSwatches({});
    Palette moved = m_sea;
    moved.setScales({deep, shore});
    EXPECT_EQ(validatedPins(m_pins, {moved, m_land}), m_pins.first(2));
}

TEST_F(ValidatedPins, FollowNamesValueAndLabelAndKeepTheRest) {
    Palette changed = m_sea;
    changed.setName(QStringLiteral("Ocean"));
    PaletteScale shore = m_sea.scales().at(1);
    shore.setName(QStringLiteral("Beach"));
    shore.setSwatches({PaletteSwatch(shore.swatches().at(0).id(), QStringLiteral("#fff"),
                                     QStringLiteral("foam"))});
    changed.setScales({m_sea.scales().at(0), shore});
    const auto pins = validatedPins(m_pins, {changed, m_land});
    ASSERT_EQ(pins.size(), 3);
    PinRecord expected = m_pins.at(1).record();
    expected.paletteName = QStringLiteral("Ocean");
    expected.scaleName = QStringLiteral("Beach");
    expected.value = QStringLiteral("#fff");
    expected.label = QStringLiteral("foam");
    EXPECT_EQ(pins.at(1).record(), expected);
    EXPECT_EQ(pins.at(1).cachedColor(), SRGBColor(1.0, 1.0, 1.0));
    EXPECT_EQ(pins.at(2)->paletteName, QStringLiteral("Ocean"));
    EXPECT_EQ(pins.at(0), m_pins.at(0));
}

} // namespace
} // namespace dropshade
