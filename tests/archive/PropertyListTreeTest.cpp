// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "archive/PropertyListTree.h"

#include "archive/BinaryPropertyListWriter.h"
#include "support/ArchivedLists.h"
#include "support/BinaryPropertyLists.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

namespace dropshade {
namespace {

using Tree = PropertyListTree;

/// In XML and in binary.
class PropertyListForms : public testing::TestWithParam<bool> {
protected:
    [[nodiscard]] static std::unique_ptr<Tree> tree(const QByteArray& root) {
        const QByteArray xml = archives::document(root);
        return Tree::open(GetParam() ? archives::binary(xml) : xml);
    }

    /// Of the value below the one key "k".
    template <typename Answer>
    static auto asked(const QByteArray& value, Answer&& answer) {
        const auto list = tree("<dict><key>k</key>" + value + "</dict>");
        return answer(*list, *list->value(list->root(), "k"));
    }
};

TEST_P(PropertyListForms, AnswersForEachKindWithItsValue) {
    const auto string = [](const Tree& list, Tree::Node node) { return list.string(node); };
    const auto data = [](const Tree& list, Tree::Node node) { return list.data(node, 1000); };
    const auto integer = [](const Tree& list, Tree::Node node) { return list.integer(node); };
    EXPECT_EQ(asked("<string>a&amp;b</string>", string), QStringLiteral("a&b"));
    EXPECT_EQ(asked(QStringLiteral(u"<string>群🎨é</string>").toUtf8(), string),
              QStringLiteral(u"群🎨é"));
    EXPECT_EQ(asked("<string></string>", string), QString());
    EXPECT_EQ(asked("<data>AAEC\n\tAw==</data>", data), QByteArray("\0\1\2\3", 4));
    EXPECT_EQ(asked("<data></data>", data), QByteArray());
    EXPECT_EQ(asked("<integer>100000</integer>", integer), 100000);
    EXPECT_EQ(asked("<integer>-5</integer>", integer), -5);
    EXPECT_EQ(asked("<integer>4000000000</integer>", integer), 4000000000);
}

TEST_P(PropertyListForms, GivesNothingForAnotherKind) {
    for (const char* value : {"<true/>", "<real>1</real>", "<array/>", "<dict/>"}) {
        asked(value, [](const Tree& list, Tree::Node node) {
            EXPECT_FALSE(list.string(node));
            EXPECT_FALSE(list.data(node, 10));
            EXPECT_FALSE(list.integer(node));
            EXPECT_FALSE(list.uid(node));
            EXPECT_FALSE(list.value(node, "k"));
            EXPECT_FALSE(list.item(node, 0));
            return 0;
        });
    }
}

TEST_P(PropertyListForms, FindsItemsAndEntries) {
    const auto list = tree("<array><string>a</string><dict><key>x</key><integer>1</integer><key>y"
                           "</key><integer>2</integer></dict></array>");
    EXPECT_EQ(list->count(list->root()), 2U);
    EXPECT_EQ(list->string(*list->item(list->root(), 0)), QStringLiteral("a"));
    const auto dictionary = *list->item(list->root(), 1);
    EXPECT_EQ(list->count(dictionary), 2U);
    EXPECT_EQ(list->integer(*list->value(dictionary, "y")), 2);
    EXPECT_FALSE(list->value(dictionary, "z"));
    EXPECT_FALSE(list->item(list->root(), 2));
    EXPECT_FALSE(list->item(list->root(), ~std::uint64_t(0)));
    EXPECT_FALSE(list->string(1000000));
}

TEST_P(PropertyListForms, TakesNoMoreDataThanAskedFor) {
    const QByteArray bytes = QByteArray("0123456789").repeated(1000);
    asked("<data>" + bytes.toBase64() + "</data>", [&bytes](const Tree& list, Tree::Node node) {
        EXPECT_EQ(list.data(node, 25), bytes.first(25));
        EXPECT_EQ(list.data(node, 100000), bytes);
        return 0;
    });
}

INSTANTIATE_TEST_SUITE_P(BothForms, PropertyListForms, testing::Bool(),
                         [](const auto& row) { return row.param ? "Binary" : "Xml"; });

TEST(PropertyListTree, RefusesXmlThatIsNoPropertyList) {
    const QByteArray value = "<string>a</string>";
    EXPECT_TRUE(Tree::open(archives::document(value)));
    EXPECT_TRUE(Tree::open("<plist>" + value + "</plist>"));
    const QByteArrayList refused = {
        "",
        "<plist/>",
        "<plist></plist>",
        value,
        "<plist>" + value,
        "<plist>" + value + value + "</plist>",
        "<plist><key>a</key></plist>",
        "<plist><dict>" + value + "</dict></plist>",
        "<plist><dict><key>a</key></dict></plist>",
        "<plist><dict><key>a</key><key>b</key></dict></plist>",
        "<plist><array><key>a</key></array></plist>",
        "<plist><string><b/></string></plist>",
        "<plist>" + QByteArray("<array>").repeated(65) + QByteArray("</array>").repeated(65) +
            "</plist>",
        "<!DOCTYPE plist [<!ENTITY a \"b\">]><plist><string>&a;</string></plist>",
        "<!DOCTYPE plist [<!ATTLIST plist a CDATA \"b\">]><plist>" + value + "</plist>",
        "<plist " + QByteArray("a=\"\" ").repeated(200) + ">" + value + "</plist>",
        "\xFF\xFE<plist>",
    };
    for (const QByteArray& bytes : refused)
        EXPECT_FALSE(Tree::open(bytes)) << bytes.left(100).toStdString();
}

TEST(PropertyListTree, ReadsBinaryThatSharesItsPartsOrHoldsItself) {
    const auto shared = Tree::open(binaryArrayChain(500, 14));
    ASSERT_TRUE(shared);
    Tree::Node node = shared->root();
    for (int depth = 0; depth < 499; ++depth)
        node = *shared->item(node, 13);
    EXPECT_EQ(shared->count(node), 14U);
    const auto circle = Tree::open(binaryPropertyList({QByteArray("\xA1\0\0\0", 4)}));
    EXPECT_EQ(circle->item(circle->root(), 0), circle->root());
}

TEST(PropertyListTree, GivesNothingForBinaryThatPointsOutOfTheFile) {
    const auto broken = [](const QByteArray& object) {
        const auto list = Tree::open(binaryPropertyList({object}));
        EXPECT_TRUE(list);
        const auto root = list->root();
        return !list->count(root) && !list->string(root) && !list->data(root, 10) &&
               !list->integer(root) && !list->uid(root) && !list->value(root, "k");
    };
    EXPECT_TRUE(broken(QByteArray("\xAF\x13\x7F\xFF\xFF\xFF\xFF\xFF\xFF\xFF")));
    EXPECT_TRUE(broken("\xDF\x11\xFF\xFF"));
    EXPECT_TRUE(broken("\x5F\x13\x7F\xFF\xFF\xFF\xFF\xFF\xFF\xFF"));
    EXPECT_TRUE(broken("\x6F\x13\x7F\xFF\xFF\xFF\xFF\xFF\xFF\xFF"));
    EXPECT_TRUE(broken("\x6F\x13\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF"));
    EXPECT_TRUE(broken("\x4F\x12\x7F\xFF\xFF\xFF"));
    EXPECT_TRUE(broken("\x14"));
    EXPECT_TRUE(broken("\x1F"));
    EXPECT_TRUE(broken("\x8F"));
    EXPECT_FALSE(Tree::open("bplist00"));
    EXPECT_FALSE(Tree::open(QByteArray("bplist00") + QByteArray(32, '\xFF')));
    EXPECT_FALSE(Tree::open(QByteArray("bplist00") + QByteArray(32, '\0')));
}

TEST(BinaryPropertyListWriter, WritesWhatAnotherLibraryReads) {
    for (const int count : {1, 20, 300, 70000}) {
        BinaryPropertyListWriter writer(quint64(count) + 10);
        std::vector<BinaryPropertyListWriter::Object> items;
        for (int index = 0; index < count; ++index)
            items.push_back(writer.string(QStringLiteral(u"é%1").arg(index)));
        const auto data = writer.data(QByteArray(count, 'd'));
        const auto uid = writer.uid(quint32(count) * 1000);
        const QByteArray bytes = writer.file(
            writer.dictionary({{writer.string(QStringLiteral("items")), writer.array(items)},
                               {writer.string(QStringLiteral("data")), data},
                               {writer.string(QStringLiteral("uid")), uid},
                               {writer.string(QStringLiteral("n")), writer.integer(0xFFFFFFFF)}}));
        plist_t root = nullptr;
        plist_from_bin(bytes.constData(), uint32_t(bytes.size()), &root);
        ASSERT_TRUE(root);
        const plist_t list = plist_dict_get_item(root, "items");
        ASSERT_EQ(plist_array_get_size(list), uint32_t(count));
        EXPECT_EQ(QString::fromUtf8(plist_get_string_ptr(
                      plist_array_get_item(list, uint32_t(count) - 1), nullptr)),
                  QStringLiteral(u"é%1").arg(count - 1));
        uint64_t number = 0;
        plist_get_data_ptr(plist_dict_get_item(root, "data"), &number);
        EXPECT_EQ(number, uint64_t(count));
        plist_get_uid_val(plist_dict_get_item(root, "uid"), &number);
        EXPECT_EQ(number, uint64_t(count) * 1000);
        plist_get_uint_val(plist_dict_get_item(root, "n"), &number);
        EXPECT_EQ(number, 0xFFFFFFFFU);
        plist_free(root);
    }
}

} // namespace
} // namespace dropshade
