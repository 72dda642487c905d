// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "support/QtPrinters.h"
#include "support/Seed.h"
#include "json/JsonDocument.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <limits>
#include <random>

namespace dropshade {
namespace {

QByteArray written(const QString& text) {
    JsonWriter json;
    json.string(text);
    return json.text();
}

TEST(JsonWriter, PutsCommasBetweenItemsAndNoWhiteSpace) {
    JsonWriter json;
    json.beginArray();
    json.beginObject();
    json.key("a");
    json.number(1.0);
    json.key("b");
    json.beginArray();
    json.endArray();
    json.endObject();
    json.beginObject();
    json.endObject();
    json.string(QString());
    json.endArray();
    EXPECT_EQ(json.text(), R"([{"a":1,"b":[]},{},""])");
}

TEST(JsonWriter, EscapesQuotesBackslashesAndControls) {
    EXPECT_EQ(written(QStringLiteral("a\"\\/\n\x01\x7f")), "\"a\\\"\\\\/\\u000a\\u0001\x7f\"");
    EXPECT_EQ(written(QString(QChar(u'\0'))), R"("\u0000")");
}

TEST(JsonWriter, WritesTextAsUtf8) {
    EXPECT_EQ(written(QStringLiteral(u"Größe 🎨")), "\"Gr\u00F6\u00DFe \U0001F3A8\"");
}

TEST(JsonWriter, WritesASubstituteForALoneSurrogate) {
    JsonReader reader(written(QStringLiteral("a") + QChar(0xD800) + QStringLiteral("b")));
    const QString text = reader.string();
    EXPECT_TRUE(text.startsWith(QLatin1Char('a')) && text.endsWith(QLatin1Char('b')));
    EXPECT_TRUE(text.isValidUtf16());
}

TEST(JsonWriter, WritesIdsInUpperCaseWithoutBraces) {
    JsonWriter json;
    json.uuid(QUuid(QStringLiteral("0a1b2c3d-4e5f-6071-8293-a4b5c6d7e8f9")));
    EXPECT_EQ(json.text(), "\"0A1B2C3D-4E5F-6071-8293-A4B5C6D7E8F9\"");
}

TEST(JsonWriter, RefusesNumbersThatAreNotFinite) {
    using Reals = std::numeric_limits<double>;
    for (const double value : {Reals::infinity(), -Reals::infinity(), Reals::quiet_NaN()}) {
        JsonWriter json;
        EXPECT_THROW(json.number(value), JsonError);
        EXPECT_FALSE(encodedJson([value](JsonWriter& writer) { writer.number(value); }));
    }
}

TEST(JsonWriter, HasRoomForWhateverComes) {
    for (const qsizetype room : {0, 1, 300, 100'000}) {
        for (qsizetype length = 0; length < 700; length += 7) {
            JsonWriter json;
            json.reserve(room);
            const QString plain(length, QChar(u'a'));
            const QString escaped(length, QChar(u'\n'));
            json.beginArray();
            json.string(plain);
            json.string(escaped);
            json.endArray();
            EXPECT_EQ(json.text(), "[\"" + QByteArray(length, 'a') + "\",\"" +
                                       QByteArray("\\u000a").repeated(length) + "\"]");
        }
    }
}

TEST(JsonWriter, BeginsAnewOnceItHasGivenItsText) {
    JsonWriter json;
    json.number(1.0);
    const QByteArray first = json.text();
    json.string(QStringLiteral("another"));
    EXPECT_EQ(json.text(), "\"another\"");
    EXPECT_EQ(first, "1");
    EXPECT_EQ(json.text(), "");
}

double readBack(double value) {
    JsonWriter json;
    json.number(value);
    JsonReader reader(json.text());
    const double number = reader.number();
    reader.end();
    return number;
}

TEST(JsonWriter, WritesEveryNumberSoThatItReadsBackToTheSameBits) {
    using Reals = std::numeric_limits<double>;
    std::vector<double> values = {0.0,          -0.0,
                                  0.1,          1.0 / 3.0,
                                  800000000.25, Reals::max(),
                                  Reals::min(), Reals::denorm_min(),
                                  -1e-320,      9007199254740993.0,
                                  1e22,         1e23};
    const auto seed = testSeed();
    SCOPED_TRACE(seedTrace(seed));
    std::mt19937_64 random(seed);
    while (values.size() < 20000) {
        const double value = std::bit_cast<double>(random());
        if (std::isfinite(value))
            values.push_back(value);
    }
    for (const double value : values)
        EXPECT_EQ(std::bit_cast<quint64>(readBack(value)), std::bit_cast<quint64>(value)) << value;
}

TEST(JsonWriter, WritesEveryWellFormedTextSoThatItReadsBack) {
    const auto seed = testSeed();
    SCOPED_TRACE(seedTrace(seed));
    std::mt19937_64 random(seed);
    const auto below = [&random](unsigned end) { return unsigned(random() % end); };
    for (int round = 0; round < 2000; ++round) {
        QString text;
        for (unsigned length = below(20); length > 0; --length) {
            char32_t character = below(3) != 0 ? below(0x80) : below(0x110000);
            if (character >= 0xD800 && character < 0xE000)
                character = u'"';
            text += QString::fromUcs4(&character, 1);
        }
        JsonReader reader(written(text));
        EXPECT_EQ(reader.string(), text);
    }
}

} // namespace
} // namespace dropshade
