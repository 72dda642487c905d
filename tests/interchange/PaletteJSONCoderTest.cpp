// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "interchange/PaletteJSONCoder.h"

#include "support/Palettes.h"
#include "support/QtPrinters.h"
#include "support/Seed.h"

#include <gtest/gtest.h>

#include <QSet>
#include <QStringEncoder>

namespace dropshade {
namespace {

QByteArray encodedNamed(const QString& name) {
    return PaletteJSONCoder::encode(Palette(name, {}, ReferenceTime{}));
}

DecodedSwatch decodedSwatch(const QByteArray& fields) {
    return PaletteJSONCoder::decode("{\"name\":\"p\",\"scales\":[{\"name\":\"s\",\"swatches\":[{" +
                                    fields + "}]}]}")
        .scales.at(0)
        .swatches.at(0);
}

void expectRefused(const QByteArray& json) {
    EXPECT_THROW(static_cast<void>(PaletteJSONCoder::decode(json)), JsonError)
        << json.left(200).toStdString();
}

TEST(PaletteJSONCoder, WritesSortedKeysTwoBlanksAndNoFinalLineEnd) {
    const Palette palette = makePalette(
        "Brand", {PaletteScale(QStringLiteral("Blue"),
                               {PaletteSwatch(QStringLiteral("#0000ff"), QStringLiteral("Primary")),
                                PaletteSwatch(QStringLiteral("rgba(0, 0, 0, 0.5)"))})});
    EXPECT_EQ(PaletteJSONCoder::encode(palette), R"json({
  "name" : "Brand",
  "scales" : [
    {
      "name" : "Blue",
      "swatches" : [
        {
          "label" : "Primary",
          "value" : "#0000ff"
        },
        {
          "label" : "",
          "value" : "rgba(0, 0, 0, 0.5)"
        }
      ]
    }
  ]
})json");
}

TEST(PaletteJSONCoder, WritesAnEmptyLineBetweenTheBracketsOfAnEmptyList) {
    EXPECT_EQ(PaletteJSONCoder::encode(makePalette("a", {makeScale("b", {})})), R"({
  "name" : "a",
  "scales" : [
    {
      "name" : "b",
      "swatches" : [

      ]
    }
  ]
})");
    EXPECT_EQ(encodedNamed(QString()), "{\n  \"name\" : \"\",\n  \"scales\" : [\n\n  ]\n}");
}

TEST(PaletteJSONCoder, EscapesSlashesQuotesBackslashesAndControls) {
    const auto name = [](const QString& text) {
        const QByteArray json = encodedNamed(text);
        return json.mid(13, json.indexOf(",\n  \"scales\"") - 13);
    };
    EXPECT_EQ(name(QStringLiteral("</title>\"\\*/")), R"("<\/title>\"\\*\/")");
    EXPECT_EQ(name(QStringLiteral("\b\f\n\r\t")), R"("\b\f\n\r\t")");
    EXPECT_EQ(name(QString(QChar(u'\0')) + QChar(0x1F) + QChar(0x7F)), "\"\\u0000\\u001f\x7F\"");
    EXPECT_EQ(name(QStringLiteral(u"色🎨\u2028\u202E")),
              QStringLiteral(u"\"色🎨\u2028\u202E\"").toUtf8());
}

TEST(PaletteJSONCoder, WritesUtf8EvenForALoneSurrogate) {
    const QByteArray json = encodedNamed(QString(QChar(0xD800)));
    EXPECT_TRUE(json.isValidUtf8());
    EXPECT_EQ(PaletteJSONCoder::decode(json).name.size(), 1);
}

TEST(PaletteJSONCoder, ReadsBackAllThatItWritesWithAbsentLabelsEmpty) {
    const std::uint64_t seed = testSeed();
    SCOPED_TRACE(seedTrace(seed));
    RandomPalettes random(seed);
    for (int round = 0; round < 200; ++round) {
        const Palette palette = random.palette();
        const QByteArray json = PaletteJSONCoder::encode(palette);
        const DecodedPreset preset = PaletteJSONCoder::decode(json);
        const Palette copy = PaletteJSONCoder::makePalette(preset, ReferenceTime{5.0});
        ASSERT_EQ(PaletteJSONCoder::encode(copy), json);
        ASSERT_EQ(copy.name(), palette.name());
        ASSERT_EQ(copy.scales().size(), palette.scales().size());
        for (qsizetype at = 0; at < copy.scales().size(); ++at) {
            const auto& swatches = copy.scales().at(at).swatches();
            const auto& originals = palette.scales().at(at).swatches();
            ASSERT_EQ(copy.scales().at(at).name(), palette.scales().at(at).name());
            ASSERT_EQ(swatches.size(), originals.size());
            for (qsizetype place = 0; place < swatches.size(); ++place) {
                ASSERT_EQ(swatches.at(place).value(), originals.at(place).value());
                ASSERT_TRUE(swatches.at(place).label().has_value());
                ASSERT_EQ(*swatches.at(place).label(),
                          originals.at(place).label().value_or(QString()));
            }
        }
    }
}

TEST(PaletteJSONCoder, MakesNewIdsAtEveryLevelAndStampsTheMoment) {
    const DecodedPreset preset = PaletteJSONCoder::decode(
        R"({"name":"p","scales":[{"name":"s","swatches":[{"value":"red"},{"value":"red"}]}]})");
    const Palette first = PaletteJSONCoder::makePalette(preset, ReferenceTime{5.0});
    const Palette second = PaletteJSONCoder::makePalette(preset, ReferenceTime{5.0});
    QSet<QUuid> ids;
    for (const Palette& palette : {first, second}) {
        ids += {palette.id(), palette.scales().at(0).id()};
        for (const PaletteSwatch& swatch : palette.scales().at(0).swatches())
            ids.insert(swatch.id());
    }
    EXPECT_EQ(ids.size(), 8);
    EXPECT_EQ(first.lastModified(), ReferenceTime{5.0});
}

TEST(PaletteJSONCoder, ReadsAPaletteWithoutScalesButNotOneWithoutTheKey) {
    EXPECT_TRUE(PaletteJSONCoder::decode(R"({"name":"p","scales":[]})").scales.isEmpty());
    expectRefused(R"({"name":"p"})");
    expectRefused(R"({"scales":[]})");
    expectRefused(R"({"name":"p","scales":[{"name":"s"}]})");
    expectRefused(R"({"name":"p","scales":[{"swatches":[]}]})");
}

TEST(PaletteJSONCoder, NeedsTheValueOfASwatchAndNotItsLabel) {
    EXPECT_EQ(decodedSwatch(R"("value":"red")").label, std::nullopt);
    EXPECT_THROW(decodedSwatch(R"("label":"red")"), JsonError);
}

TEST(PaletteJSONCoder, TellsANullLabelFromAnEmptyOne) {
    EXPECT_EQ(decodedSwatch(R"("value":"red","label":null)").label, std::nullopt);
    EXPECT_EQ(decodedSwatch(R"("value":"red","label":"")").label, QString());
}

TEST(PaletteJSONCoder, KeepsAValueThatIsNoColorAndShowsBlack) {
    const DecodedPreset preset = PaletteJSONCoder::decode(
        R"({"name":"p","scales":[{"name":"s","swatches":[{"value":"not a colour"}]}]})");
    const Palette palette = PaletteJSONCoder::makePalette(preset, ReferenceTime{});
    const PaletteSwatch& swatch = palette.scales().at(0).swatches().at(0);
    EXPECT_EQ(swatch.color(), SRGBColor());
    EXPECT_TRUE(PaletteJSONCoder::encode(palette).contains(R"("value" : "not a colour")"));
}

TEST(PaletteJSONCoder, KeepsEveryFormOfColorAsWritten) {
    for (const char* value : {"RebeccaPurple", "rgba(1, 2, 3, 0.5)", "#11223344", " #FFF "})
        EXPECT_EQ(decodedSwatch(R"("value":")" + QByteArray(value) + '"').value,
                  QString::fromLatin1(value));
}

TEST(PaletteJSONCoder, NeitherCleansNorCutsNames) {
    const QString name = QString(10'000, u'x') + QChar(u'\0') + QStringLiteral("\n \u202E</title>");
    EXPECT_EQ(PaletteJSONCoder::decode(encodedNamed(name)).name, name);
}

TEST(PaletteJSONCoder, RefusesWrongTypes) {
    for (const char* json :
         {"[]", "\"p\"", "null", "1", R"({"name":1,"scales":[]})", R"({"name":null,"scales":[]})",
          R"({"name":"p","scales":null})", R"({"name":"p","scales":{}})",
          R"({"name":"p","scales":[1]})", R"({"name":"p","scales":[{"name":[],"swatches":[]}]})",
          R"({"name":"p","scales":[{"name":"s","swatches":{}}]})",
          R"({"name":"p","scales":[{"name":"s","swatches":["red"]}]})"})
        expectRefused(json);
    EXPECT_THROW(decodedSwatch(R"("value":16711680)"), JsonError);
    EXPECT_THROW(decodedSwatch(R"("value":null)"), JsonError);
    EXPECT_THROW(decodedSwatch(R"("value":"red","label":1)"), JsonError);
}

TEST(PaletteJSONCoder, IgnoresUnknownKeysWhateverTheyHold) {
    EXPECT_EQ(decodedSwatch(R"("id":{"a":[1,true,null,"x"]},"value":"red","Value":2)").value,
              QStringLiteral("red"));
    EXPECT_EQ(decodedSwatch(R"("n":1e999,"m":-1e-999,"value":"red","o":)" + QByteArray(10'000, '9'))
                  .value,
              QStringLiteral("red"));
}

TEST(PaletteJSONCoder, TakesTheLaterOfTwoKeysAlike) {
    EXPECT_EQ(decodedSwatch(R"("value":"red","value":"blue")").value, QStringLiteral("blue"));
    EXPECT_EQ(decodedSwatch(R"("value":"red","label":"a","label":null)").label, std::nullopt);
    const auto preset = PaletteJSONCoder::decode(
        R"({"name":"p","scales":[{"name":"s","swatches":[]}],"scales":[]})");
    EXPECT_TRUE(preset.scales.isEmpty());
}

TEST(PaletteJSONCoder, RefusesNestingWithoutEnd) {
    expectRefused(QByteArray(1'000'000, '['));
    expectRefused("{\"name\":\"p\",\"scales\":[],\"x\":" + QByteArray(1'000'000, '['));
    expectRefused(QByteArray("{\"name\":").repeated(100'000));
}

TEST(PaletteJSONCoder, RefusesATextCutAtAnyByte) {
    const QByteArray whole = PaletteJSONCoder::encode(
        makePalette("Bränd \"/", {makeScale("Blue", {"navy"}), makeScale("", {})}));
    for (qsizetype length = 0; length < whole.size(); ++length)
        expectRefused(whole.left(length));
    EXPECT_NO_THROW(static_cast<void>(PaletteJSONCoder::decode(whole + "\r\n")));
    expectRefused(whole + "x");
    expectRefused(whole + whole);
}

TEST(PaletteJSONCoder, RefusesBytesThatAreNoUnicode) {
    expectRefused("{\"name\":\"\xFF\",\"scales\":[]}");
    expectRefused("{\"name\":\"\xED\xA0\x80\",\"scales\":[]}");
    expectRefused(QByteArray("\xFF\xFE{", 3));
}

TEST(PaletteJSONCoder, ReadsEveryUnicodeEncodingWithAndWithoutAMark) {
    const QString name = QStringLiteral(u"Größe 🎨");
    const QString json = QString::fromUtf8(encodedNamed(name));
    for (const auto encoding :
         {QStringConverter::Utf8, QStringConverter::Utf16LE, QStringConverter::Utf16BE,
          QStringConverter::Utf32LE, QStringConverter::Utf32BE}) {
        for (const auto flag :
             {QStringConverter::Flag::Default, QStringConverter::Flag::WriteBom}) {
            QStringEncoder encoder(encoding, flag);
            const QByteArray bytes = encoder.encode(json);
            EXPECT_EQ(PaletteJSONCoder::decode(bytes).name, name)
                << QStringConverter::nameForEncoding(encoding);
        }
    }
}

} // namespace
} // namespace dropshade
