// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "interchange/ColorList.h"

#include "interchange/HexText.h"
#include "support/ArchivedLists.h"
#include "support/QtPrinters.h"
#include "support/RowName.h"

#include <gtest/gtest.h>

#include <QColorSpace>

#include <limits>

namespace dropshade {
namespace {

using archives::dataField;
using archives::dict;
using archives::field;
using archives::integerField;
using archives::reference;

/// Of the list in this archive, in XML, in binary, and in binary with references as in XML.
QList<ColorList> allForms(const QByteArray& xml) {
    QList<ColorList> lists;
    for (const QByteArray& bytes :
         {xml, archives::binary(xml), archives::binary(xml, archives::References::spelt)}) {
        const auto list = ColorList::read(QStringLiteral("list"), bytes);
        EXPECT_TRUE(list.has_value()) << bytes.left(8).toStdString();
        lists.append(list.value_or(ColorList(QString())));
    }
    return lists;
}

QString shownIn(const ColorList& list, const QString& key) {
    const auto color = list.colorWithKey(key);
    if (!color)
        return QStringLiteral("none");
    return color->alpha() == 1.0 ? hexText(*color)
                                 : hexText(*color) + QStringLiteral(" %1").arg(color->alpha());
}

/// The one colour of a list, the same in all forms.
QString colorOf(archives::List& list) {
    const auto lists = allForms(list.xml());
    EXPECT_EQ(shownIn(lists.at(0), QStringLiteral("k")), shownIn(lists.at(1), QStringLiteral("k")));
    return shownIn(lists.at(0), QStringLiteral("k"));
}

QString colorOf(const QByteArray& fields) {
    archives::List list;
    list.addColor("k", fields);
    return colorOf(list);
}

QString legacy(int space, const QByteArray& key, const QByteArray& numbers) {
    return colorOf(integerField("NSColorSpace", space) + dataField(key, numbers));
}

/// A colour with a space of its own, beside which it would be black.
QString custom(const QByteArray& spaceFields, const QByteArray& components) {
    archives::List list;
    const qsizetype space = list.add(dict(spaceFields));
    list.addColor("k", integerField("NSColorSpace", 1) + dataField("NSRGB", "0 0 0") +
                           field("NSCustomColorSpace", reference(space)) +
                           dataField("NSComponents", components));
    return colorOf(list);
}

QString customById(int id, const QByteArray& components) {
    EXPECT_EQ(custom(integerField("NSID", id), components),
              custom(integerField("NSSpaceID", id), components));
    return custom(integerField("NSID", id), components);
}

TEST(ArchivedColorList, KeepsTheOrderOfTheKeys) {
    archives::List archive;
    for (const char* key : {"z", "a", "M", "", "  "})
        archive.addColor(key, integerField("NSColorSpace", 2) + dataField("NSRGB", "1 1 1"));
    for (const ColorList& list : allForms(archive.xml())) {
        EXPECT_EQ(list.name(), QStringLiteral("list"));
        EXPECT_EQ(list.allKeys(),
                  (QStringList{QStringLiteral("z"), QStringLiteral("a"), QStringLiteral("M"),
                               QString(), QStringLiteral("  ")}));
    }
}

TEST(ArchivedColorList, ReadsKeysInEveryScript) {
    archives::List archive;
    archive.addColor(QStringLiteral(u"群青 🎨 &amp; é").toUtf8(),
                     integerField("NSColorSpace", 2) + dataField("NSRGB", "1 1 1"));
    for (const ColorList& list : allForms(archive.xml()))
        EXPECT_EQ(list.allKeys(), QStringList{QStringLiteral(u"群青 🎨 & é")});
}

TEST(ArchivedColorList, ConvertsCalibratedRgbFromTheGenericSpace) {
    EXPECT_EQ(legacy(1, "NSRGB", QByteArray("0.200000003 0.5882353187 0.400000006\0", 37)),
              QStringLiteral("#3da479"));
    EXPECT_EQ(legacy(1, "NSRGB", "1 0 0"), QStringLiteral("#ff2600"));
    EXPECT_EQ(legacy(1, "NSRGB", "1 1 1"), QStringLiteral("#ffffff"));
    EXPECT_EQ(legacy(1, "NSRGB", "1 1 1 0.5"), QStringLiteral("#ffffff 0.5"));
}

TEST(ArchivedColorList, TakesDeviceColorsAndGraysAsTheyAre) {
    EXPECT_EQ(legacy(2, "NSRGB", "0.2 0.4 0.6"), QStringLiteral("#336699"));
    EXPECT_EQ(legacy(3, "NSWhite", "0.5"), QStringLiteral("#808080"));
    EXPECT_EQ(legacy(3, "NSWhite", QByteArray("1 0.8000000119\0", 15)),
              QStringLiteral("#ffffff 0.8"));
    EXPECT_EQ(legacy(4, "NSWhite", "0.2 1"), QStringLiteral("#333333"));
}

TEST(ArchivedColorList, ReadsInkInBothSpellings) {
    EXPECT_EQ(legacy(5, "NSCMYK", "0 0 0 0"), QStringLiteral("#ffffff"));
    EXPECT_EQ(legacy(5, "NSCYMK", "0 0 0 0 0.25"), QStringLiteral("#ffffff 0.25"));
    EXPECT_NE(legacy(5, "NSCMYK", "0 0 0 1"), QStringLiteral("#ffffff"));
}

TEST(ArchivedColorList, TakesThePlainColorOfANamedOne) {
    archives::List list;
    const qsizetype plain =
        list.add(dict(integerField("NSColorSpace", 2) + dataField("NSRGB", "0 1 0")));
    list.addColor("k", integerField("NSColorSpace", 6) + field("NSColor", reference(plain)));
    EXPECT_EQ(colorOf(list), QStringLiteral("#00ff00"));
}

TEST(ArchivedColorList, GivesNoColorForANamedOneOfItself) {
    archives::List list;
    list.addColor("k", integerField("NSColorSpace", 6) + field("NSColor", reference(3)));
    EXPECT_EQ(colorOf(list), QStringLiteral("none"));
}

TEST(ArchivedColorList, KeepsTheKeyOfAColorThatCannotBeTold) {
    EXPECT_EQ(legacy(10, "NSRGB", "1 0 0"), QStringLiteral("none"));
    EXPECT_EQ(legacy(2, "NSRGB", "1 0"), QStringLiteral("none"));
    EXPECT_EQ(legacy(2, "NSRGB", "1 0 nan"), QStringLiteral("none"));
    EXPECT_EQ(legacy(2, "NSRGB", "1 0 1e999"), QStringLiteral("none"));
    EXPECT_EQ(legacy(2, "NSRGB", "red"), QStringLiteral("none"));
    EXPECT_EQ(legacy(2, "NSRGB", "1 0 0 1 1 1 1"), QStringLiteral("none"));
    EXPECT_EQ(legacy(2, "NSWhite", "0.5"), QStringLiteral("none"));
    EXPECT_EQ(colorOf(QByteArray()), QStringLiteral("none"));
}

TEST(ArchivedColorList, PrefersTheComponentsInAColorsOwnSpace) {
    EXPECT_EQ(customById(7, "1 0.4 0.8 1"), QStringLiteral("#ff66cc"));
    EXPECT_EQ(customById(14, "1.2 -0.3 0.8 0.5"), QStringLiteral("#ff00cc 0.5"));
    EXPECT_EQ(customById(4, "0.2 0.4 0.6 1"), QStringLiteral("#336699"));
    EXPECT_EQ(customById(1, "1 0 0 1"), QStringLiteral("#ff2600"));
    EXPECT_EQ(customById(16, "0.2158605 0.2158605 0.2158605 1"), QStringLiteral("#808080"));
    EXPECT_EQ(customById(17, "1 0 2 1"), QStringLiteral("#ff00ff"));
    // The red of sRGB by CSS Color 4's sample conversions.
    EXPECT_EQ(customById(12, "0.91749 0.20029 0.13856 1"), QStringLiteral("#ff0000"));
    EXPECT_EQ(customById(8, "0.85859 0 0 1"), QStringLiteral("#ff0000"));
}

TEST(ArchivedColorList, ReadsGraysAndInkInSpacesOfTheirOwn) {
    EXPECT_EQ(customById(9, "0.5 1"), QStringLiteral("#808080"));
    EXPECT_EQ(customById(5, "0.2 1"), QStringLiteral("#333333"));
    EXPECT_EQ(customById(15, "2 1"), QStringLiteral("#ffffff"));
    EXPECT_EQ(customById(2, "0.5 1"), QStringLiteral("#929292"));
    EXPECT_EQ(customById(3, "0 0 0 0 0.5"), QStringLiteral("#ffffff 0.5"));
    EXPECT_EQ(customById(6, "0 0 0 0 1"), QStringLiteral("#ffffff"));
    EXPECT_EQ(custom(integerField("NSModel", 3), "50 0 0 1"), QStringLiteral("#777777"));
    EXPECT_EQ(custom(integerField("NSModel", 2), "0 0 0 0 1"), QStringLiteral("#ffffff"));
    EXPECT_EQ(custom(integerField("NSModel", 0), "0.2 1"), QStringLiteral("#333333"));
}

TEST(ArchivedColorList, ReadsASpaceWithoutANumberByItsProfile) {
    const QByteArray adobe = QColorSpace(QColorSpace::AdobeRgb).iccProfile();
    EXPECT_EQ(custom(dataField("NSICC", adobe), "0.85859 0 0 1"), QStringLiteral("#ff0000"));
    const QByteArray p3 = QColorSpace(QColorSpace::DisplayP3).iccProfile();
    EXPECT_EQ(custom(dataField("NSICC", p3), "0.91749 0.20029 0.13856 0.5"),
              QStringLiteral("#ff0000 0.5"));
    archives::List list;
    const qsizetype data = list.add(dict(dataField("NS.data", p3)));
    const qsizetype space = list.add(dict(field("NSICC", reference(data))));
    list.addColor("k", field("NSCustomColorSpace", reference(space)) +
                           dataField("NSComponents", "1 1 1 1"));
    EXPECT_EQ(colorOf(list), QStringLiteral("#ffffff"));
}

TEST(ArchivedColorList, FallsBackToTheOlderNumbersWhereASpaceIsUnknown) {
    EXPECT_EQ(custom(integerField("NSID", 99), "1 1 1 1"), QStringLiteral("#000000"));
    EXPECT_EQ(custom(dataField("NSICC", "no profile"), "1 1 1 1"), QStringLiteral("#000000"));
    EXPECT_EQ(custom(integerField("NSID", 7), "1 1 1"), QStringLiteral("#000000"));
    EXPECT_EQ(custom(integerField("NSID", 7), "1 1 inf 1"), QStringLiteral("#000000"));
}

TEST(ArchivedColorList, ReadsColorsThatTwoKeysShareAndStripsAStrayNul) {
    archives::List archive;
    const qsizetype red =
        archive.add(dict(integerField("NSColorSpace", 2) + dataField("NSRGB", "1 0 0")));
    archive.addKey("one", red);
    archive.addKey("two", red);
    for (const ColorList& list : allForms(archive.xml())) {
        EXPECT_EQ(shownIn(list, QStringLiteral("one")), QStringLiteral("#ff0000"));
        EXPECT_EQ(shownIn(list, QStringLiteral("two")), QStringLiteral("#ff0000"));
    }
    const QByteArray bytes =
        archives::binary(archive.xml()).replace("Stwo", QByteArray("Stw\0", 4));
    EXPECT_EQ(ColorList::read(QString(), bytes)->allKeys(),
              (QStringList{QStringLiteral("one"), QStringLiteral("tw")}));
}

TEST(ArchivedColorList, ReadsAListThatWasArchivedAsOneObject) {
    archives::List archive;
    archive.addColor("k", integerField("NSColorSpace", 2) + dataField("NSRGB", "1 0 0"));
    for (const ColorList& list : allForms(archive.xmlOfOneObject()))
        EXPECT_EQ(shownIn(list, QStringLiteral("k")), QStringLiteral("#ff0000"));
}

TEST(ArchivedColorList, ReadsAnArchiveOfNothingAndOneOfNoKeys) {
    const QByteArray nothing =
        archives::document(dict(field("$top", dict(QByteArray())) +
                                field("$objects", "<array><string>$null</string></array>")));
    for (const ColorList& list : allForms(nothing))
        EXPECT_TRUE(list.allKeys().isEmpty());
    for (const ColorList& list : allForms(archives::List().xml()))
        EXPECT_TRUE(list.allKeys().isEmpty());
}

TEST(ArchivedColorList, RefusesWhatIsNoArchiveOfAList) {
    archives::List archive;
    archive.addColor("k", integerField("NSColorSpace", 2));
    const QByteArray xml = archive.xml();
    const QByteArrayList refused = {
        QByteArray(),
        "text",
        "<plist/>",
        "bplist00",
        "{}",
        QByteArray(1000, '\0'),
        QByteArray(xml).replace("$objects", "objects"),
        QByteArray(xml).replace("NSKeys", "keys"),
        QByteArray(xml).replace("<string>k</string>", "<integer>1</integer>"),
        QByteArray(xml).replace("</plist>", ""),
        archives::document("<array></array>")};
    for (const QByteArray& bytes : refused)
        EXPECT_FALSE(ColorList::read(QString(), bytes)) << bytes.left(400).toStdString();
}

TEST(ArchivedColorList, SurvivesEveryCut) {
    archives::List archive;
    archive.addColor("key", integerField("NSColorSpace", 1) + dataField("NSRGB", "1 0 0"));
    for (const QByteArray& whole : {archive.xml(), archives::binary(archive.xml())})
        for (qsizetype length = 0; length < whole.size() - 1; ++length)
            static_cast<void>(ColorList::read(QString(), whole.first(length)));
}

TEST(ArchivedColorList, LeavesOutColorsWhereTheKeysAreMore) {
    archives::List archive;
    archive.addColor("k", integerField("NSColorSpace", 2) + dataField("NSRGB", "1 0 0"));
    archive.addKey("l", 0);
    for (const ColorList& list : allForms(archive.xml())) {
        EXPECT_EQ(list.allKeys().size(), 2);
        EXPECT_EQ(shownIn(list, QStringLiteral("l")), QStringLiteral("none"));
    }
}

} // namespace
} // namespace dropshade
