// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "interchange/CLRCoder.h"

#include "interchange/HexText.h"
#include "interchange/KeyBudget.h"
#include "support/Palettes.h"
#include "support/QtPrinters.h"
#include "support/Seed.h"

#include <gtest/gtest.h>

#include <QSet>

#include <plist/plist.h>

namespace dropshade {
namespace {

ColorList listOf(std::initializer_list<const char*> keys) {
    ColorList list(QStringLiteral("list"));
    for (const char* key : keys)
        list.setColor(SRGBColor(1.0, 0.0, 0.0), QString::fromUtf8(key));
    return list;
}

/// "Scale: label, label" for each scale; an absent label is a dash.
QStringList shown(const Palette& palette) {
    QStringList scales;
    for (const PaletteScale& scale : palette.scales()) {
        QStringList labels;
        for (const PaletteSwatch& swatch : scale.swatches())
            labels.append(swatch.label().value_or(QStringLiteral("-")));
        scales.append(scale.name() + QStringLiteral(": ") + labels.join(QStringLiteral(", ")));
    }
    return scales;
}

QStringList shown(const ColorList& list) {
    return shown(CLRCoder::paletteOf(list, ReferenceTime{}));
}

PaletteScale scaleOf(const char* name,
                     std::initializer_list<std::pair<const char*, const char*>> swatches) {
    QList<PaletteSwatch> all;
    for (const auto& [value, label] : swatches)
        all.append(PaletteSwatch(QString::fromUtf8(value),
                                 label ? std::optional(QString::fromUtf8(label)) : std::nullopt));
    return PaletteScale(QString::fromUtf8(name), all);
}

QStringList keysOf(const QList<PaletteScale>& scales) {
    return CLRCoder::listOf(makePalette("p", scales)).allKeys();
}

TEST(CLRCoder, ReadsPlainKeysFlat) {
    EXPECT_EQ(shown(listOf({"Red", "Green", "Blue"})),
              QStringList{QStringLiteral("Colors: Red, Green, Blue")});
}

TEST(CLRCoder, ReadsScalesFromSixKeysOfTenOn) {
    EXPECT_EQ(shown(listOf({"A / 1", "x", "B / 2", "A / 3", "y"})),
              (QStringList{QStringLiteral("A: 1, 3"), QStringLiteral("Colors: x, y"),
                           QStringLiteral("B: 2")}));
    EXPECT_EQ(shown(listOf({"A / 1", "x", "B / 2", "z", "y"})),
              QStringList{QStringLiteral("Colors: A / 1, x, B / 2, z, y")});
    EXPECT_EQ(
        shown(listOf({"A / 1", "A / 2", "A / 3", "A / 4", "A / 5", "A / 6", "7", "8", "9", "10"}))
            .size(),
        2);
}

TEST(CLRCoder, SplitsAKeyAtItsFirstSeparatorOnly) {
    EXPECT_EQ(shown(listOf({"A / B / C"})), QStringList{QStringLiteral("A: B / C")});
    EXPECT_EQ(shown(listOf({" / x"})), QStringList{QStringLiteral(": x")});
    EXPECT_EQ(shown(listOf({"A / "})), QStringList{QStringLiteral("A: -")});
    EXPECT_EQ(shown(listOf({"A/B", "A /B"})), QStringList{QStringLiteral("Colors: A/B, A /B")});
    EXPECT_EQ(shown(listOf({"A /  / B"})), QStringList{QStringLiteral("A:  / B")});
}

TEST(CLRCoder, PutsPlainKeysOfScalesUnderColorsAlsoWhereAScaleHasThatName) {
    EXPECT_EQ(shown(listOf({"Colors / 1", "x", "Colors / 2"})),
              QStringList{QStringLiteral("Colors: 1, x, 2")});
}

TEST(CLRCoder, LeavesNamesAndLabelsAsTheyAre) {
    EXPECT_EQ(shown(listOf({" A\u202E /  b\n"})), QStringList{QStringLiteral(" A\u202E:  b\n")});
}

TEST(CLRCoder, SkipsKeysWithoutAColorAndKeepsTheirScale) {
    ColorList list = listOf({"A / 1"});
    list.setColor(std::nullopt, QStringLiteral("B / 2"));
    EXPECT_EQ(shown(list), (QStringList{QStringLiteral("A: 1"), QStringLiteral("B: ")}));
    ColorList flat(QStringLiteral("flat"));
    flat.setColor(std::nullopt, QStringLiteral("k"));
    EXPECT_EQ(shown(flat), QStringList{QStringLiteral("Colors: ")});
}

TEST(CLRCoder, MakesNoScalesOfAListWithoutKeys) {
    EXPECT_TRUE(shown(ColorList(QString())).isEmpty());
}

TEST(CLRCoder, ReadsValuesAsLowercaseHexWithoutAlpha) {
    ColorList list(QString{});
    list.setColor(SRGBColor(1.0, 0.5, 0.0, 0.25), QStringLiteral("k"));
    const Palette palette = CLRCoder::paletteOf(list, ReferenceTime{3.0});
    EXPECT_EQ(palette.scales().at(0).swatches().at(0).value(), QStringLiteral("#ff8000"));
    EXPECT_EQ(palette.name(), QStringLiteral("Imported Palette"));
    EXPECT_EQ(palette.lastModified(), ReferenceTime{3.0});
}

TEST(CLRCoder, MakesNewIdsAtEveryLevel) {
    const ColorList list = listOf({"A / 1", "A / 2"});
    QSet<QUuid> ids;
    for (int round = 0; round < 2; ++round) {
        const Palette palette = CLRCoder::paletteOf(list, ReferenceTime{});
        const PaletteScale& scale = palette.scales().at(0);
        ids += {palette.id(), scale.id(), scale.swatches().at(0).id(), scale.swatches().at(1).id()};
    }
    EXPECT_EQ(ids.size(), 8);
}

TEST(CLRCoder, WritesScaleAndLabelOrElseTheValue) {
    EXPECT_EQ(keysOf({scaleOf("Blue", {{"#00f", "Sky"}, {"#123456", nullptr}, {"red", " \n"}}),
                      scaleOf("", {{"#000", " x "}}), scaleOf("none", {})}),
              (QStringList{QStringLiteral("Blue / Sky"), QStringLiteral("Blue / #123456"),
                           QStringLiteral("Blue / red"), QStringLiteral(" / x")}));
}

TEST(CLRCoder, NumbersKeysThatAreTaken) {
    EXPECT_EQ(
        keysOf({scaleOf("A", {{"#000", "x"}, {"#111", "x"}, {"#222", "x (2)"}, {"#333", "x"}}),
                scaleOf("A", {{"#444", "x"}})}),
        (QStringList{QStringLiteral("A / x"), QStringLiteral("A / x (2)"),
                     QStringLiteral("A / x (2) (2)"), QStringLiteral("A / x (3)"),
                     QStringLiteral("A / x (4)")}));
}

TEST(CLRCoder, StoresTheResolvedColorWithItsAlpha) {
    const ColorList list = CLRCoder::listOf(
        makePalette("", {scaleOf("A", {{"rgba(255, 0, 0, 0.5)", "x"}, {"no colour", "y"}})}));
    EXPECT_EQ(list.name(), QStringLiteral("Imported Palette"));
    EXPECT_EQ(list.colorWithKey(QStringLiteral("A / x")), SRGBColor(1.0, 0.0, 0.0, 0.5));
    EXPECT_EQ(list.colorWithKey(QStringLiteral("A / y")), SRGBColor());
}

/// What a palette of these scales is once it has gone out and come back.
QStringList returned(const QList<PaletteScale>& scales) {
    return shown(CLRCoder::decode(CLRCoder::encode(makePalette("p", scales)), ReferenceTime{}));
}

TEST(CLRRoundTrip, LabelsAnUnlabelledSwatchWithItsValue) {
    EXPECT_EQ(returned({scaleOf("Blue", {{"#00f", "Sky"}, {"#123456", nullptr}})}),
              QStringList{QStringLiteral("Blue: Sky, #123456")});
}

TEST(CLRRoundTrip, LeavesTheNumberOfASecondEqualLabelInIt) {
    EXPECT_EQ(returned({scaleOf("Blue", {{"#00f", "Sky"}, {"#00e", "Sky"}})}),
              QStringList{QStringLiteral("Blue: Sky, Sky (2)")});
}

TEST(CLRRoundTrip, KeepsASeparatorInALabelAndMovesTheTailOfAScalesNameIntoIt) {
    EXPECT_EQ(returned({scaleOf("A", {{"#00f", "B / C"}})}),
              QStringList{QStringLiteral("A: B / C")});
    EXPECT_EQ(returned({scaleOf("A / B", {{"#00f", "C"}})}),
              QStringList{QStringLiteral("A: B / C")});
}

TEST(CLRRoundTrip, KeepsAnEmptyNameAndLeavesOutAScaleWithoutSwatches) {
    EXPECT_EQ(returned({scaleOf("", {{"#00f", "x"}}), scaleOf("none", {})}),
              QStringList{QStringLiteral(": x")});
}

TEST(CLRBytes, ComeBackWithTheSameKeysAndColors) {
    const std::uint64_t seed = testSeed();
    SCOPED_TRACE(seedTrace(seed));
    RandomPalettes random(seed);
    for (int round = 0; round < 100; ++round) {
        const Palette palette = random.palette();
        const ColorList encoded = CLRCoder::listOf(palette);
        ColorList written(QString{});
        for (const QString& key : encoded.allKeys())
            written.setColor(encoded.colorWithKey(key), KeyBudget::cleaned(key));
        const auto list = ColorList::read(QString(), encoded.bytes());
        ASSERT_TRUE(list);
        ASSERT_EQ(list->allKeys().size(), written.allKeys().size());
        for (qsizetype at = 0; at < list->allKeys().size(); ++at) {
            const QString key = written.allKeys().at(at);
            const auto color = written.colorWithKey(key);
            ASSERT_EQ(list->allKeys().at(at), key);
            ASSERT_EQ(hexText(*list->colorWithKey(key)), hexText(*color));
        }
    }
}

TEST(CLRBytes, KeepAlphaInTheListItself) {
    const Palette palette = makePalette("p", {scaleOf("A", {{"rgba(51, 102, 153, 0.5)", "x"}})});
    const auto color = ColorList::read(QString(), CLRCoder::encode(palette))
                           ->colorWithKey(QStringLiteral("A / x"));
    EXPECT_EQ(color->alpha(), 0.5);
    EXPECT_EQ(hexText(*color), QStringLiteral("#336699"));
}

TEST(CLRBytes, AreRefusedWhereTheyAreNoList) {
    EXPECT_EQ(CLRCoder::decode(CLRCoder::encode(makePalette("p")), ReferenceTime{}).name(),
              QStringLiteral("Imported Palette"));
    EXPECT_THROW(static_cast<void>(CLRCoder::decode("plain text", ReferenceTime{})), CLRCoderError);
    EXPECT_THROW(static_cast<void>(CLRCoder::decode(QByteArray(), ReferenceTime{})), CLRCoderError);
}

/// What another library for property lists makes of the bytes.
class Foreign {
public:
    explicit Foreign(const QByteArray& bytes) {
        plist_from_bin(bytes.constData(), uint32_t(bytes.size()), &m_root);
    }
    ~Foreign() { plist_free(m_root); }
    Foreign(const Foreign&) = delete;
    Foreign& operator=(const Foreign&) = delete;

    [[nodiscard]] plist_t root() const { return m_root; }
    [[nodiscard]] plist_t object(plist_t reference) const {
        uint64_t number = 0;
        plist_get_uid_val(reference, &number);
        return plist_array_get_item(plist_dict_get_item(m_root, "$objects"), uint32_t(number));
    }
    [[nodiscard]] plist_t field(plist_t dictionary, const char* key) const {
        const plist_t value = plist_dict_get_item(dictionary, key);
        return plist_get_node_type(value) == PLIST_UID ? object(value) : value;
    }
    static QByteArray bytes(plist_t node) {
        uint64_t size = 0;
        const char* data = plist_get_data_ptr(node, &size);
        return QByteArray(data, qsizetype(size));
    }
    static quint64 number(plist_t node) {
        uint64_t value = 0;
        plist_get_uint_val(node, &value);
        return value;
    }

private:
    plist_t m_root = nullptr;
};

TEST(CLRBytes, AreAKeyedArchiveWithEachColorInItsOwnAndInTheGenericSpace) {
    const Palette palette =
        makePalette("p", {scaleOf("A", {{"#ff0000", "x"}, {"rgba(0, 0, 255, 0.5)", "y"}})});
    const Foreign list(CLRCoder::encode(palette));
    ASSERT_TRUE(list.root());
    EXPECT_EQ(list.number(list.field(list.root(), "$version")), 100000U);
    EXPECT_STREQ(plist_get_string_ptr(list.field(list.root(), "$archiver"), nullptr),
                 "NSKeyedArchiver");
    const plist_t top = list.field(list.root(), "$top");
    EXPECT_EQ(plist_dict_get_size(top), 2U);
    const plist_t keys = list.field(list.field(top, "NSKeys"), "NS.objects");
    ASSERT_EQ(plist_array_get_size(keys), 2U);
    EXPECT_STREQ(plist_get_string_ptr(list.object(plist_array_get_item(keys, 1)), nullptr),
                 "A / y");
    const plist_t items = list.field(list.field(top, "NSColors"), "NS.objects");
    const plist_t red = list.object(plist_array_get_item(items, 0));
    EXPECT_EQ(list.number(list.field(red, "NSColorSpace")), 1U);
    EXPECT_EQ(list.bytes(list.field(red, "NSComponents")), "1 0 0 1");
    EXPECT_EQ(list.bytes(list.field(red, "NSRGB")).back(), '\0');
    const plist_t blue = list.object(plist_array_get_item(items, 1));
    EXPECT_EQ(list.bytes(list.field(blue, "NSComponents")), "0 0 1 0.5");
    EXPECT_TRUE(list.bytes(list.field(blue, "NSRGB")).endsWith(QByteArray(" 0.5\0", 5)));
    const plist_t space = list.field(blue, "NSCustomColorSpace");
    EXPECT_EQ(space, list.field(red, "NSCustomColorSpace"));
    EXPECT_EQ(list.number(list.field(space, "NSID")), 7U);
    EXPECT_EQ(list.bytes(list.field(space, "NSICC")).mid(36, 4), "acsp");
    for (const auto& [object, name] : {std::pair(list.field(top, "NSKeys"), "NSMutableArray"),
                                       std::pair(red, "NSColor"), std::pair(space, "NSColorSpace")})
        EXPECT_STREQ(
            plist_get_string_ptr(list.field(list.field(object, "$class"), "$classname"), nullptr),
            name);
}

TEST(CLRBytes, AreTheSameEachTime) {
    const Palette palette = makePalette("p", {makeScale("A", {"#123456", "#654321"})});
    EXPECT_EQ(CLRCoder::encode(palette), CLRCoder::encode(palette));
}

} // namespace
} // namespace dropshade
