// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "app/ReleaseNotes.h"

#include <gtest/gtest.h>

namespace dropshade {
namespace {

std::string plain(const char* markup) {
    return plainReleaseNotes(QString::fromUtf8(markup)).toStdString();
}

TEST(ReleaseNotes, KeepTextWithoutTags) {
    EXPECT_EQ(plain("A loupe that follows.\nTwo fixes & one wish."),
              "A loupe that follows.\nTwo fixes & one wish.");
    EXPECT_EQ(plain(""), "");
}

TEST(ReleaseNotes, GiveEachParagraphALineAndEachItemABullet) {
    EXPECT_EQ(plain("<h2>What\nis   new</h2><ul>\n<li>One</li>\n<li>Two "
                    "<b>bold</b></li></ul><p>Enjoy<br/>it</p>"),
              "What is new\n\u2022 One\n\u2022 Two bold\nEnjoy\nit");
}

TEST(ReleaseNotes, LeaveNothingThatRunsOrLoads) {
    EXPECT_EQ(plain("a<script>alert('<p>')</script>b"), "ab");
    EXPECT_EQ(plain("a<STYLE type=x>p{}</STYLE >b"), "ab");
    EXPECT_EQ(plain("a<img src='https://x.example/t.png'>b<!-- <p>c</p> -->d"), "abd");
    EXPECT_EQ(plain("a<a href=\"javascript:x\">link</a>"), "alink");
    EXPECT_EQ(plain("a<script>never ended"), "a");
    EXPECT_EQ(plain("a<!-- never ended"), "a");
    EXPECT_EQ(plain("a<b never ended"), "a");
    EXPECT_EQ(plain("a<!DOCTYPE html>b"), "ab");
}

TEST(ReleaseNotes, KnowTheUsualEntities) {
    EXPECT_EQ(plain("<p>1 &lt; 2 &amp;&amp; &#65;&#x42;&quot; &mdash; &hellip;"),
              "1 < 2 && AB\" \u2014 \u2026");
    EXPECT_EQ(plain("<p>&unknown; &#0; &#x110000; &; & &amp"),
              "&unknown; &#0; &#x110000; &; & &amp");
    EXPECT_EQ(plain("<p>&lt;script&gt;"), "<script>");
}

TEST(ReleaseNotes, KeepALooseAngleBracket) {
    EXPECT_EQ(plain("<p>a < b"), "a < b");
    EXPECT_EQ(plain("<"), "<");
}

TEST(ReleaseNotes, DropCharactersThatChangeHowOthersAreShown) {
    EXPECT_EQ(plain("a\u202Eb\u2066c\u200Bd\u0007e\u2028f"), "abcdef");
    EXPECT_EQ(plain("<p>a&#x202E;b&#xD800;c"), "ab\uFFFDc");
}

TEST(ReleaseNotes, HaveNoEmptyLinesInARow) {
    EXPECT_EQ(plain("\n\n a \n\n\n\n b \n\n"), "a\n\nb");
}

TEST(ReleaseNotes, EndAtFourThousandCharacters) {
    const QString exact(4000, u'x');
    EXPECT_EQ(plainReleaseNotes(exact), exact);
    const QString cut = plainReleaseNotes(exact + u'x');
    EXPECT_EQ(cut.size(), 4000);
    EXPECT_TRUE(cut.endsWith(u'\u2026'));
    const QString pairs = plainReleaseNotes(QStringLiteral("\U0001F3A8").repeated(3000));
    EXPECT_TRUE(pairs.isValidUtf16());
    EXPECT_LE(pairs.size(), 4000);
}

TEST(ReleaseNotes, ReadAMebibyteOfAnythingInNoTime) {
    for (const char* piece : {"<", "&", "<!--", "<script>", "<li>", "&#65;", "<p>a ", "</", "<a"}) {
        const QString text = QString::fromLatin1(piece).repeated(200'000);
        EXPECT_LE(plainReleaseNotes(text).size(), 4000) << piece;
    }
}

} // namespace
} // namespace dropshade
