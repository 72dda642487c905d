// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "color/WhiteSpace.h"

#include "support/RowName.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>

namespace dropshade {
namespace {

struct WhiteSpaceRow {
    const char* name;
    const char* bytes;
};

class WhiteSpaceCharacter : public testing::TestWithParam<WhiteSpaceRow> {};

TEST_P(WhiteSpaceCharacter, IsOneCharacter) {
    const std::string character = GetParam().bytes;
    EXPECT_EQ(whiteSpaceLength(character), character.size());
    EXPECT_EQ(whiteSpaceLength(character + character), character.size());
}

TEST_P(WhiteSpaceCharacter, IsTrimmedFromBothEndsButNotFromTheMiddle) {
    const std::string character = GetParam().bytes;
    const std::string kept = "a" + character + "b";
    EXPECT_EQ(trimmedWhiteSpace(character + character + kept + character + character), kept);
}

TEST_P(WhiteSpaceCharacter, IsNoneWhenCutShort) {
    const std::string character = GetParam().bytes;
    for (std::size_t length = 1; length < character.size(); ++length)
        EXPECT_EQ(whiteSpaceLength(character.substr(0, length)), 0u);
}

// Unicode 15, PropList.txt, White_Space.
INSTANTIATE_TEST_SUITE_P(
    PropList, WhiteSpaceCharacter,
    testing::Values(
        WhiteSpaceRow{"Tab", "\t"}, WhiteSpaceRow{"LineFeed", "\n"},
        WhiteSpaceRow{"LineTabulation", "\v"}, WhiteSpaceRow{"FormFeed", "\f"},
        WhiteSpaceRow{"CarriageReturn", "\r"}, WhiteSpaceRow{"Space", " "},
        WhiteSpaceRow{"NextLine", "\xC2\x85"}, WhiteSpaceRow{"NoBreakSpace", "\u00A0"},
        WhiteSpaceRow{"OghamSpaceMark", "\u1680"}, WhiteSpaceRow{"EnQuad", "\u2000"},
        WhiteSpaceRow{"EmQuad", "\u2001"}, WhiteSpaceRow{"EnSpace", "\u2002"},
        WhiteSpaceRow{"EmSpace", "\u2003"}, WhiteSpaceRow{"ThreePerEmSpace", "\u2004"},
        WhiteSpaceRow{"FourPerEmSpace", "\u2005"}, WhiteSpaceRow{"SixPerEmSpace", "\u2006"},
        WhiteSpaceRow{"FigureSpace", "\u2007"}, WhiteSpaceRow{"PunctuationSpace", "\u2008"},
        WhiteSpaceRow{"ThinSpace", "\u2009"}, WhiteSpaceRow{"HairSpace", "\u200A"},
        WhiteSpaceRow{"LineSeparator", "\u2028"}, WhiteSpaceRow{"ParagraphSeparator", "\u2029"},
        WhiteSpaceRow{"NarrowNoBreakSpace", "\u202F"},
        WhiteSpaceRow{"MediumMathematicalSpace", "\u205F"},
        WhiteSpaceRow{"IdeographicSpace", "\u3000"}),
    rowName);

class VisibleCharacter : public testing::TestWithParam<WhiteSpaceRow> {};

TEST_P(VisibleCharacter, IsNotWhiteSpace) {
    EXPECT_EQ(whiteSpaceLength(GetParam().bytes), 0u);
}

INSTANTIATE_TEST_SUITE_P(
    Neighbours, VisibleCharacter,
    testing::Values(WhiteSpaceRow{"Nothing", ""}, WhiteSpaceRow{"Backspace", "\b"},
                    WhiteSpaceRow{"ShiftOut", "\x0E"}, WhiteSpaceRow{"UnitSeparator", "\x1F"},
                    WhiteSpaceRow{"ExclamationMark", "!"}, WhiteSpaceRow{"Index", "\u0084"},
                    WhiteSpaceRow{"InvertedExclamationMark", "\u00A1"},
                    WhiteSpaceRow{"MongolianVowelSeparator", "\u180E"},
                    WhiteSpaceRow{"ZeroWidthSpace", "\u200B"},
                    WhiteSpaceRow{"LeftToRightEmbedding", "\u202A"},
                    WhiteSpaceRow{"WordJoiner", "\u2060"},
                    WhiteSpaceRow{"IdeographicComma", "\u3001"},
                    WhiteSpaceRow{"ByteOrderMark", "\uFEFF"}, WhiteSpaceRow{"LoneByte85", "\x85"},
                    WhiteSpaceRow{"LoneByteA0", "\xA0"}, WhiteSpaceRow{"ByteFF", "\xFF"}),
    rowName);

TEST(TrimmedWhiteSpace, IsEmptyForWhiteSpaceAlone) {
    EXPECT_EQ(trimmedWhiteSpace(" \u3000\n"), "");
}

TEST(TrimmedWhiteSpace, IsEmptyForEmptyText) {
    EXPECT_EQ(trimmedWhiteSpace(""), "");
}

TEST(TrimmedWhiteSpace, KeepsNulBytes) {
    using namespace std::string_view_literals;
    EXPECT_EQ(trimmedWhiteSpace(" \0a\0 "sv), "\0a\0"sv);
}

} // namespace
} // namespace dropshade
