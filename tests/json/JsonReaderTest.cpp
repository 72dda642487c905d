// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "support/QtPrinters.h"
#include "support/Seed.h"
#include "json/JsonDocument.h"

#include <gtest/gtest.h>

#include <QStringList>

#include <cmath>
#include <random>

namespace dropshade {
namespace {

bool isJson(const QByteArray& text) {
    return decodedJson(text,
                       [](JsonReader& json) {
                           json.skip();
                           return true;
                       })
        .has_value();
}

QString string(const QByteArray& text) {
    JsonReader json(text);
    return json.string();
}

double number(const QByteArray& text) {
    JsonReader json(text);
    const double value = json.number();
    json.end();
    return value;
}

TEST(JsonReader, WalksAnObjectKeyByKey) {
    JsonReader json(R"( { "a" : 1 , "b\u0041" : [ "x" , null , { } ] } )");
    QStringList seen;
    json.object([&](std::string_view key) {
        seen.append(QString::fromUtf8(key.data(), qsizetype(key.size())));
        if (key == "a")
            EXPECT_EQ(json.number(), 1.0);
        else
            json.array([&] {
                seen.append(QStringLiteral("item"));
                json.skip();
            });
    });
    json.end();
    EXPECT_EQ(seen.join(QLatin1Char(' ')), QStringLiteral("a bA item item item"));
}

TEST(JsonReader, TakesEveryKindOfValue) {
    for (const char* text : {"null", "true", "false", "0", "-0.5e+3", "1E5", R"("")", "[]", "{}",
                             "\t\r\n [ 1,2 ] \n", R"({"a":{"a":[[]]}})"})
        EXPECT_TRUE(isJson(text)) << text;
}

TEST(JsonReader, TakesNothingThatIsNoJson) {
    for (const char* text :
         {"",          " ",           "nul",      "True",        "+1",
          "01",        "1.",          ".5",       "1e",          "-",
          "0x1",       "NaN",         "Infinity", "'a'",         "[1,]",
          "[,1]",      "[1 2]",       "[",        "]",           "{",
          "{\"a\"}",   "{\"a\":}",    "{a:1}",    "{\"a\":1,}",  "[}",
          "1 2",       "[]]",         "\"",       "\"\\\"",      "\"\\x\"",
          "\"\\u12\"", "\"\\u12g4\"", "\"\n\"",   "\"\\u+123\"", "\xEF\xBB\xBF[]",
          "/**/1",     "\"a\\"})
        EXPECT_FALSE(isJson(text)) << text;
}

TEST(JsonReader, TakesNoTextThatIsNotUtf8) {
    EXPECT_FALSE(isJson("\"\xFF\""));
    EXPECT_FALSE(isJson("\"\xED\xA0\x80\""));
    EXPECT_FALSE(isJson(QByteArray("[]\0", 3)));
}

TEST(JsonReader, ReadsEscapes) {
    EXPECT_EQ(string(R"("\"\\\/\b\f\n\r\t\u00e9")"), QStringLiteral(u"\"\\/\b\f\n\r\té"));
    EXPECT_EQ(string(R"("\uD83C\uDFA8")"), QStringLiteral(u"🎨"));
    EXPECT_EQ(string(R"("a\u0000b")"), QStringLiteral("a") + QChar(u'\0') + QStringLiteral("b"));
}

TEST(JsonReader, ReadsAnEscapedLoneSurrogateAsTheReplacementCharacter) {
    const QChar replacement(QChar::ReplacementCharacter);
    EXPECT_EQ(string(R"("\uD83C")"), QString(replacement));
    EXPECT_EQ(string(R"("\uDFA8x")"), QString(replacement) + QLatin1Char('x'));
    EXPECT_EQ(string(R"("\uD83C\u0041")"), QString(replacement) + QLatin1Char('A'));
    EXPECT_EQ(string(R"("\uD83C\uD83C\uDFA8")"), QString(replacement) + QStringLiteral(u"🎨"));
}

TEST(JsonReader, TellsNumbersTooLargeFromNumbersTooSmall) {
    EXPECT_THROW(static_cast<void>(number("1e999")), JsonError);
    EXPECT_THROW(static_cast<void>(number("-" + QByteArray(400, '9') + ".5")), JsonError);
    EXPECT_EQ(number("1e-999"), 0.0);
    EXPECT_TRUE(std::signbit(number("-1e-999")));
    EXPECT_EQ(number("0." + QByteArray(500, '0') + "1e3"), 0.0);
    EXPECT_EQ(number(QByteArray("1") + QByteArray(320, '0') + "e-320"), 1.0);
}

TEST(JsonReader, RefusesAValueOfAnotherKind) {
    EXPECT_THROW(static_cast<void>(string("1")), JsonError);
    EXPECT_THROW(static_cast<void>(number("\"1\"")), JsonError);
    EXPECT_THROW(static_cast<void>(JsonReader("\"x\"").uuid()), JsonError);
    EXPECT_THROW(JsonReader("[]").object([](std::string_view) {}), JsonError);
    EXPECT_THROW(JsonReader("{}").array([] {}), JsonError);
    EXPECT_FALSE(JsonReader("1").null());
    EXPECT_THROW(static_cast<void>(JsonReader("nil").null()), JsonError);
}

TEST(JsonReader, NestsDeepButNotWithoutEnd) {
    EXPECT_TRUE(isJson(QByteArray(512, '[') + QByteArray(512, ']')));
    EXPECT_FALSE(isJson(QByteArray(513, '[') + QByteArray(513, ']')));
    EXPECT_FALSE(isJson(QByteArray(2000000, '[')));
}

TEST(JsonReader, SurvivesEveryCutAndRandomDamage) {
    const QByteArray text =
        R"([{"id":"0A1B2C3D-4E5F-6071-8293-A4B5C6D7E8F9","a":[1.5e-3,null,true,"\uD83C\u00e9x"]}])";
    for (qsizetype length = 0; length < text.size(); ++length)
        EXPECT_FALSE(isJson(text.first(length)));
    const auto seed = testSeed();
    SCOPED_TRACE(seedTrace(seed));
    std::mt19937_64 random(seed);
    for (int round = 0; round < 20000; ++round) {
        QByteArray damaged = text;
        for (unsigned count = random() % 4; count > 0; --count)
            damaged[qsizetype(random() % unsigned(text.size()))] = static_cast<char>(random());
        static_cast<void>(isJson(damaged));
    }
}

TEST(JsonReader, SkipsANumberOutOfRange) {
    JsonReader reader("[1e999,1]");
    int count = 0;
    reader.array([&] {
        reader.skip();
        ++count;
    });
    EXPECT_EQ(count, 2);
}

TEST(JsonReader, KeepsByteOrderMarksInFrontOfAString) {
    JsonReader reader("\"\\ufeff\xEF\xBB\xBF"
                      "a\"");
    EXPECT_EQ(reader.string(), QStringLiteral("\uFEFF\uFEFFa"));
}

TEST(JsonReader, FindsWhatEndsAStringAtAnyPlace) {
    for (qsizetype place = 0; place < 40; ++place) {
        const QByteArray before(place, 'x');
        const QString text = QString::fromLatin1(before);
        EXPECT_EQ(string("\"" + before + "\"yyyyyyyy\""), text);
        EXPECT_EQ(string("\"" + before + "\\n\xC3\xA9\""), text + QStringLiteral("\n\u00E9"));
        EXPECT_EQ(string("\"" + before + "\xC3\xA9z\""), text + QStringLiteral("\u00E9z"));
        EXPECT_EQ(string("\"" + before + "\x7F\""), text + QChar(0x7F));
        EXPECT_FALSE(isJson("\"" + before + "\x1F\""));
        EXPECT_FALSE(isJson("\"" + before));
    }
}

TEST(JsonReader, ReadsAnIdHoweverItIsWritten) {
    const QUuid id(QStringLiteral("0A1B2C3D-4E5F-6071-8293-A4B5C6D7E8F9"));
    for (const char* text : {R"("0A1B2C3D-4E5F-6071-8293-A4B5C6D7E8F9")",
                             R"( "0a1b2c3d-4e5f-6071-8293-a4b5c6d7e8f9" )",
                             R"("\u0030A1B2C3D-4E5F-6071-8293-A4B5C6D7E8F9")"}) {
        JsonReader json(text);
        EXPECT_EQ(json.uuid(), id) << text;
        json.end();
    }
    for (const char* text :
         {R"("0A1B2C3D-4E5F-6071-8293-A4B5C6D7E8F")", R"("0A1B2C3D-4E5F-6071-8293-A4B5C6D7E8F9)",
          R"("0A1B2C3D-4E5F-6071-8293-A4B5C6D7E8F90")", R"("")", "null", ""})
        EXPECT_THROW(static_cast<void>(JsonReader(text).uuid()), JsonError) << text;
}

TEST(JsonReader, ReadsBooleansAndNothingElseAsOne) {
    JsonReader json("[true, false]");
    QList<bool> values;
    json.array([&] { values.append(json.boolean()); });
    EXPECT_EQ(values, (QList<bool>{true, false}));
    for (const char* text : {"1", "\"true\"", "null", "tru", "", "True"})
        EXPECT_THROW(static_cast<void>(JsonReader(text).boolean()), JsonError) << text;
}

} // namespace
} // namespace dropshade
