// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "interchange/ColorList.h"

#include "interchange/HexText.h"
#include "support/QtPrinters.h"
#include "support/TypedStreams.h"

#include <gtest/gtest.h>

#include <limits>

namespace dropshade {
namespace {

class StreamedColorList : public testing::TestWithParam<TypedStream::Order> {
protected:
    TypedStream stream{GetParam()};

    [[nodiscard]] std::optional<ColorList> list() const {
        return ColorList::read(QStringLiteral("list"), stream.bytes());
    }
};

QString shownIn(const std::optional<ColorList>& list, const char* key) {
    const auto color = list ? list->colorWithKey(QString::fromUtf8(key)) : std::nullopt;
    return color ? hexText(*color) : QStringLiteral("none");
}

TEST_P(StreamedColorList, ReadsEveryKindOfColorInOrder) {
    stream.begin(6);
    stream.entry("generic", 1, {0.2F, 0.5882353F, 0.4F, 1.0F});
    stream.entry("device", 2, {0.2F, 0.4F, 0.6F, 0.5F});
    stream.entry("white", 3, {0.5F, 1.0F});
    stream.entry("device white", 4, {1.0F, 1.0F});
    stream.entry("ink", 5, {0.0F, 0.0F, 0.0F, 0.0F, 1.0F});
    stream.entry(QStringLiteral(u"群青🎨").toUtf8(), 2, {0.0F, 0.0F, 1.0F, 1.0F});
    const auto read = list();
    ASSERT_TRUE(read);
    EXPECT_EQ(read->allKeys(), (QStringList{QStringLiteral("generic"), QStringLiteral("device"),
                                            QStringLiteral("white"), QStringLiteral("device white"),
                                            QStringLiteral("ink"), QStringLiteral(u"群青🎨")}));
    EXPECT_EQ(shownIn(read, "generic"), QStringLiteral("#3da479"));
    EXPECT_EQ(shownIn(read, "device"), QStringLiteral("#336699"));
    EXPECT_EQ(read->colorWithKey(QStringLiteral("device"))->alpha(), 0.5);
    EXPECT_EQ(shownIn(read, "white"), QStringLiteral("#808080"));
    EXPECT_EQ(shownIn(read, "device white"), QStringLiteral("#ffffff"));
    EXPECT_EQ(shownIn(read, "ink"), QStringLiteral("#ffffff"));
    EXPECT_EQ(shownIn(read, "群青🎨"), QStringLiteral("#0000ff"));
}

TEST_P(StreamedColorList, FollowsReferencesToColorsAndKeepsLongTablesApart) {
    stream.begin(1001);
    qsizetype first = 0;
    for (int index = 0; index < 1000; ++index) {
        stream.type("@@");
        const qsizetype color = stream.color(2, {float(index % 256) / 255.0F, 0.0F, 0.0F, 1.0F});
        first = index == 0 ? color : first;
        stream.text("key " + QByteArray::number(index));
    }
    stream.type("@@");
    stream.reference(first);
    stream.text("again");
    const auto read = list();
    ASSERT_TRUE(read);
    EXPECT_EQ(read->allKeys().size(), 1001);
    EXPECT_EQ(shownIn(read, "key 255"), QStringLiteral("#ff0000"));
    EXPECT_EQ(shownIn(read, "key 999"), QStringLiteral("#e70000"));
    EXPECT_EQ(shownIn(read, "again"), QStringLiteral("#000000"));
}

TEST_P(StreamedColorList, TakesThePlainColorOfANamedOne) {
    stream.begin(1);
    stream.type("@@");
    stream.object("NSColor", 0);
    stream.type("c");
    stream.raw("\x06");
    stream.type("@@@");
    stream.text("System");
    stream.text("labelColor");
    stream.color(2, {0.0F, 1.0F, 0.0F, 1.0F});
    stream.end();
    stream.text("k");
    EXPECT_EQ(shownIn(list(), "k"), QStringLiteral("#00ff00"));
}

TEST_P(StreamedColorList, KeepsTheKeyOfAColorThatCannotBeTold) {
    stream.begin(5);
    stream.entry("kind", 9, {1.0F, 0.0F});
    stream.entry("few", 2, {1.0F, 0.5F});
    stream.entry("many", 2, {0.5F, 0.5F, 0.5F, 0.5F, 0.5F, 0.5F, 0.5F});
    stream.entry("infinite", 2, {std::numeric_limits<float>::infinity(), 0.0F, 0.0F, 1.0F});
    stream.type("@@");
    stream.nil();
    stream.text("nil");
    const auto read = list();
    ASSERT_TRUE(read);
    EXPECT_EQ(read->allKeys().size(), 5);
    for (const char* key : {"kind", "few", "many", "infinite", "nil"})
        EXPECT_EQ(shownIn(read, key), QStringLiteral("none")) << key;
}

TEST_P(StreamedColorList, DoesNotTakeAnObjectOfAnotherClassForAColor) {
    stream.begin(1);
    stream.type("@@");
    stream.object("NSImage", 0);
    stream.type("c");
    stream.raw("\x02");
    stream.type("ffff");
    for (int count = 0; count < 4; ++count)
        stream.integer(1);
    stream.end();
    stream.text("k");
    const auto read = list();
    ASSERT_TRUE(read);
    EXPECT_EQ(shownIn(read, "k"), QStringLiteral("none"));
}

TEST_P(StreamedColorList, StripsAStrayNul) {
    stream.begin(1);
    stream.entry(QByteArray("key\0", 4), 2, {0.0F, 0.0F, 0.0F, 1.0F});
    EXPECT_EQ(list()->allKeys(), QStringList{QStringLiteral("key")});
}

TEST_P(StreamedColorList, ReadsAListOfNothing) {
    stream.begin(0);
    EXPECT_TRUE(list()->allKeys().isEmpty());
}

TEST_P(StreamedColorList, RefusesAStreamThatIsCut) {
    stream.begin(2);
    stream.entry("one", 1, {0.5F, 0.25F, 0.0F, 1.0F});
    stream.entry("two", 3, {0.5F, 1.0F});
    ASSERT_TRUE(list());
    const QByteArray whole = stream.bytes();
    for (qsizetype length = 0; length < whole.size(); ++length)
        EXPECT_FALSE(ColorList::read(QString(), whole.first(length))) << length;
}

TEST_P(StreamedColorList, RefusesAKeyThatIsNoText) {
    stream.begin(1);
    stream.type("@@");
    stream.color(2, {0.0F, 0.0F, 0.0F, 1.0F});
    stream.nil();
    EXPECT_FALSE(list());
}

TEST_P(StreamedColorList, RefusesReferencesToNothing) {
    stream.begin(1);
    stream.type("@@");
    stream.reference(5000);
    EXPECT_FALSE(list());
    TypedStream other(GetParam());
    other.raw(QByteArray(1, '\x92'));
    EXPECT_FALSE(ColorList::read(QString(), other.bytes()));
}

TEST_P(StreamedColorList, RefusesObjectsThatNestTooDeep) {
    stream.begin(1);
    stream.type("@@");
    for (int depth = 0; depth < 100000; ++depth) {
        stream.object("NSColor", 0);
        stream.type("@");
    }
    EXPECT_FALSE(list());
}

TEST_P(StreamedColorList, RefusesKeysThatAddUpToMoreThanTheFile) {
    stream.begin(1000);
    stream.type("@@");
    const qsizetype color = stream.color(2, {0.0F, 0.0F, 0.0F, 1.0F});
    const qsizetype key = stream.text(QByteArray(10000, 'k'));
    for (int count = 1; count < 1000; ++count) {
        stream.type("@@");
        stream.reference(color);
        stream.reference(key);
    }
    EXPECT_FALSE(list());
}

INSTANTIATE_TEST_SUITE_P(BothOrders, StreamedColorList,
                         testing::Values(TypedStream::Order::little, TypedStream::Order::big),
                         [](const auto& row) {
                             return row.param == TypedStream::Order::little ? "Little" : "Big";
                         });

} // namespace
} // namespace dropshade
