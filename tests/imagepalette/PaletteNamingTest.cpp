// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "imagepalette/PaletteNaming.h"

#include "support/QtPrinters.h"
#include "support/RowName.h"

#include <gtest/gtest.h>

namespace dropshade {
namespace {

struct Row {
    const char* name;
    const char16_t* fileName;
    const char16_t* tidied; ///< Null where there is no name.
};

class TidiedName : public testing::TestWithParam<Row> {};

TEST_P(TidiedName, ComesFromTheFileName) {
    const auto [name, fileName, tidied] = GetParam();
    const auto expected = tidied ? std::optional(QString::fromUtf16(tidied)) : std::nullopt;
    EXPECT_EQ(tidiedName(QString::fromUtf16(fileName)), expected);
}

INSTANTIATE_TEST_SUITE_P(
    Names, TidiedName,
    testing::Values(Row{"WordsBeginWithCapitals", u"my_photo-FINAL", u"My Photo Final"},
                    Row{"UnderscoresAloneStay", u"___", u"___"},
                    Row{"HyphensAloneStay", u" -_- ", u"-_-"},
                    Row{"BlanksAloneAreNone", u" \t\n ", nullptr}, Row{"Empty", u"", nullptr},
                    Row{"OuterBlanksGo", u"\n beach day\t", u"Beach Day"},
                    Row{"BlanksInARowAreOne", u"a  _ - b", u"A B"},
                    Row{"ADotIsPartOfAWord", u"2024.final", u"2024.final"},
                    Row{"OnlyBlanksPartWords", u"one\ttwo", u"One\ttwo"},
                    Row{"SharpSGrows", u"\u00dftra\u00dfe", u"SStra\u00dfe"},
                    Row{"AnAccentStaysWithItsLetter", u"e\u0301CLAIR", u"E\u0301clair"},
                    Row{"PicturesStay", u"\U0001f3a8_ART", u"\U0001f3a8 Art"},
                    Row{"OtherScripts", u"\u043c\u043e\u0440\u0415", u"\u041c\u043e\u0440\u0435"}),
    rowName);

TEST(TidiedNameOfNothing, IsNone) {
    EXPECT_EQ(tidiedName(std::nullopt), std::nullopt);
}

} // namespace
} // namespace dropshade
