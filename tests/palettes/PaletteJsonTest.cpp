// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "palettes/PaletteJson.h"

#include "support/Palettes.h"
#include "support/QtPrinters.h"
#include "support/Seed.h"

#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <bit>
#include <functional>
#include <limits>

namespace dropshade {
namespace {

constexpr ReferenceTime now{812345678.125};
constexpr const char* idText = "0A1B2C3D-4E5F-6071-8293-A4B5C6D7E8F9";

const QUuid paletteId(QStringLiteral("11111111-aaaa-4bbb-8ccc-ddddddddddd1"));
const QUuid scaleId(QStringLiteral("22222222-aaaa-4bbb-8ccc-ddddddddddd2"));
const QUuid swatchId(QStringLiteral("33333333-aaaa-4bbb-8ccc-ddddddddddd3"));

Palette example() {
    const PaletteSwatch swatch(swatchId, QStringLiteral("#F00"), QStringLiteral("red-500"));
    const PaletteScale scale(scaleId, QStringLiteral("Red"), {swatch});
    return Palette(paletteId, QStringLiteral("Mine"), {scale}, ReferenceTime{700000000.5});
}

/// The example's JSON with one object of it changed.
QByteArray changed(const QString& level, const std::function<void(QJsonObject&)>& change) {
    QJsonObject palette = QJsonDocument::fromJson(*encodedPalette(example())).object();
    QJsonObject scale = palette[QLatin1String("scales")].toArray().at(0).toObject();
    QJsonObject swatch = scale[QLatin1String("swatches")].toArray().at(0).toObject();
    if (level == QLatin1String("swatch"))
        change(swatch);
    scale[QLatin1String("swatches")] = QJsonArray{swatch};
    if (level == QLatin1String("scale"))
        change(scale);
    palette[QLatin1String("scales")] = QJsonArray{scale};
    if (level == QLatin1String("palette"))
        change(palette);
    return QJsonDocument(palette).toJson(QJsonDocument::Compact);
}

QByteArray without(const char* level, const char* key) {
    return changed(QString::fromLatin1(level),
                   [key](QJsonObject& object) { object.remove(QLatin1String(key)); });
}

QByteArray with(const char* level, const char* key, const QJsonValue& value) {
    return changed(QString::fromLatin1(level),
                   [&](QJsonObject& object) { object[QLatin1String(key)] = value; });
}

TEST(PaletteJson, HasTheseKeysAndForms) {
    const auto document = QJsonDocument::fromJson(*encodedPalettes({example()}));
    const auto expected = QJsonDocument::fromJson(R"([{
        "id": "11111111-AAAA-4BBB-8CCC-DDDDDDDDDDD1", "name": "Mine", "lastModified": 700000000.5,
        "scales": [{"id": "22222222-AAAA-4BBB-8CCC-DDDDDDDDDDD2", "name": "Red",
                    "swatches": [{"id": "33333333-AAAA-4BBB-8CCC-DDDDDDDDDDD3", "value": "#F00",
                                  "label": "red-500"}]}]}])");
    EXPECT_EQ(document, expected);
}

TEST(PaletteJson, LeavesAnAbsentLabelOutAndKeepsAnEmptyOne) {
    const PaletteSwatch none(QStringLiteral("red"));
    const PaletteSwatch empty(QStringLiteral("red"), QString());
    const Palette palette = makePalette("p", {PaletteScale(QStringLiteral("s"), {none, empty})});
    const QByteArray json = *encodedPalette(palette);
    EXPECT_EQ(json.count("\"label\""), 1);
    const auto swatches = decodedPalette(json, now)->scales().at(0).swatches();
    EXPECT_FALSE(swatches.at(0).label());
    EXPECT_EQ(swatches.at(1).label(), QString());
}

TEST(PaletteJson, GivesPalettesBackWhole) {
    const auto seed = testSeed();
    SCOPED_TRACE(seedTrace(seed));
    RandomPalettes random(seed);
    for (int round = 0; round < 300; ++round) {
        const QList<Palette> palettes = random.palettes();
        const auto json = encodedPalettes(palettes);
        ASSERT_TRUE(json);
        ASSERT_FALSE(QJsonDocument::fromJson(*json).isNull()) << json->toStdString();
        const auto decoded = decodedPalettes(*json, now);
        ASSERT_TRUE(decoded) << json->toStdString();
        EXPECT_TRUE(areSame(*decoded, palettes)) << "round " << round;
    }
}

TEST(PaletteJson, ReadsWhatAnotherEncoderWrites) {
    const auto reencoded =
        QJsonDocument::fromJson(*encodedPalettes({example()})).toJson(QJsonDocument::Indented);
    const auto decoded = decodedPalettes(reencoded, now);
    ASSERT_TRUE(decoded);
    EXPECT_TRUE(areSame(*decoded, {example()}));
}

TEST(PaletteJson, KeepsEveryBitOfAMoment) {
    for (const double seconds : {0.0, -0.0, 0.1, 789012345.67890118, -63113904000.000015, 5e-324}) {
        Palette palette = example();
        palette.setLastModified(ReferenceTime{seconds});
        const auto decoded = decodedPalette(*encodedPalette(palette), now);
        ASSERT_TRUE(decoded);
        EXPECT_EQ(std::bit_cast<quint64>(decoded->lastModified().seconds),
                  std::bit_cast<quint64>(seconds));
    }
}

TEST(PaletteJson, HasNoFormForAMomentThatIsNotFinite) {
    Palette palette = example();
    palette.setLastModified(ReferenceTime{std::numeric_limits<double>::infinity()});
    EXPECT_FALSE(encodedPalette(palette));
    EXPECT_FALSE(encodedPalettes({example(), palette}));
}

TEST(PaletteJson, TakesTheColorsOfADecodedSwatchFromItsText) {
    const auto decoded = decodedPalette(*encodedPalette(example()), now);
    ASSERT_TRUE(decoded);
    EXPECT_EQ(decoded->scales().at(0).swatches().at(0).color(), SRGBColor(1.0, 0.0, 0.0));
}

TEST(PaletteJson, GivesAPaletteWithoutMomentThePresentOne) {
    for (const QByteArray& json :
         {without("palette", "lastModified"), with("palette", "lastModified", QJsonValue::Null)}) {
        const auto decoded = decodedPalette(json, now);
        ASSERT_TRUE(decoded);
        EXPECT_EQ(decoded->lastModified(), now);
        EXPECT_EQ(decoded->id(), paletteId);
    }
}

TEST(PaletteJson, GivesAPaletteWithoutIdADifferentOneAtEachReading) {
    const QByteArray json = without("palette", "id");
    const auto first = decodedPalette(json, now);
    const auto second = decodedPalette(json, now);
    ASSERT_TRUE(first && second);
    EXPECT_NE(first->id(), second->id());
    EXPECT_FALSE(first->id().isNull());
    EXPECT_EQ(first->scales().at(0).id(), scaleId);
}

TEST(PaletteJson, FailsWithoutAnyOtherKey) {
    const std::pair<const char*, const char*> keys[] = {
        {"palette", "name"},   {"palette", "scales"}, {"scale", "id"},    {"scale", "name"},
        {"scale", "swatches"}, {"swatch", "id"},      {"swatch", "value"}};
    for (const auto& [level, key] : keys) {
        EXPECT_FALSE(decodedPalette(without(level, key), now)) << level << ' ' << key;
        EXPECT_FALSE(decodedPalette(with(level, key, QJsonValue::Null), now)) << level << key;
    }
    EXPECT_TRUE(decodedPalette(without("swatch", "label"), now));
    EXPECT_TRUE(decodedPalette(with("swatch", "label", QJsonValue::Null), now));
}

TEST(PaletteJson, FailsAtAValueOfTheWrongType) {
    EXPECT_FALSE(decodedPalette(with("palette", "id", QStringLiteral("no id")), now));
    EXPECT_FALSE(decodedPalette(with("palette", "id", 1), now));
    EXPECT_FALSE(decodedPalette(with("palette", "lastModified", QStringLiteral("1")), now));
    EXPECT_FALSE(decodedPalette(with("palette", "scales", QJsonObject()), now));
    EXPECT_FALSE(decodedPalette(with("scale", "id", QStringLiteral("")), now));
    EXPECT_FALSE(decodedPalette(with("swatch", "value", 255), now));
    EXPECT_FALSE(decodedPalette(with("swatch", "label", 1), now));
}

TEST(PaletteJson, MakesAWholeListUnreadableByOneSwatchWithoutId) {
    const QByteArray good = *encodedPalette(example());
    const QByteArray bad = without("swatch", "id");
    EXPECT_TRUE(decodedPalettes('[' + good + ']', now));
    EXPECT_FALSE(decodedPalettes('[' + good + ',' + bad + ']', now));
}

TEST(PaletteJson, ReadsAnEmptyListAsOne) {
    EXPECT_EQ(encodedPalettes({}), "[]");
    const auto decoded = decodedPalettes("[]", now);
    ASSERT_TRUE(decoded);
    EXPECT_TRUE(decoded->isEmpty());
}

TEST(PaletteJson, PassesOverUnknownKeysAndTakesTheLastOfEqualOnes) {
    const auto decoded =
        decodedPalette(R"({"name":"a","x":{"y":[1]},"scales":[],"name":"b"})", now);
    ASSERT_TRUE(decoded);
    EXPECT_EQ(decoded->name(), QStringLiteral("b"));
}

TEST(PaletteJson, TakesIdsInLowerCaseAndTheNullId) {
    const QByteArray lower = QByteArray(idText).toLower();
    const auto decoded = decodedPalette(R"({"name":"a","scales":[],"id":")" + lower + "\"}", now);
    ASSERT_TRUE(decoded);
    EXPECT_EQ(decoded->id(), QUuid(QString::fromLatin1(idText)));
    EXPECT_TRUE(decodedPalette(
        with("palette", "id", QStringLiteral("00000000-0000-0000-0000-000000000000")), now));
}

TEST(PaletteJson, GivesNothingForJunk) {
    for (const char* junk : {"", "null", "{}", "[null]", "[[]]", "[{}]", "1", "\"\"", "[1,2]",
                             "bplist00", "\x01\x02", "[{\"name\":\"a\",\"scales\":[]}", "[] []",
                             R"([{"name":"a","scales":[],"lastModified":1e999}])"})
        EXPECT_FALSE(decodedPalettes(junk, now)) << junk;
    EXPECT_FALSE(decodedPalettes(QByteArray(3000000, '['), now));
}

TEST(PaletteJson, SurvivesRandomDamage) {
    const auto seed = testSeed();
    SCOPED_TRACE(seedTrace(seed));
    RandomPalettes random(seed);
    const QByteArray json = *encodedPalettes({example(), example()});
    for (int round = 0; round < 5000; ++round) {
        QByteArray damaged = json;
        for (unsigned count = 1 + random.below(3); count > 0; --count)
            damaged[qsizetype(random.below(unsigned(json.size())))] =
                static_cast<char>(random.below(256));
        const auto decoded = decodedPalettes(damaged, now);
        EXPECT_TRUE(!decoded || encodedPalettes(*decoded)) << "round " << round;
    }
}

} // namespace
} // namespace dropshade
