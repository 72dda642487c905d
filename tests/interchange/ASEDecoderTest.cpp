// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "interchange/ASECoder.h"

#include "interchange/SwatchExchangeBytes.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

#include <QSet>

#include <cmath>
#include <limits>

namespace dropshade {
namespace {

using Case = ASECoderError::Case;
using ase::bigEndian;
using ase::color;
using ase::file;
using ase::groupEnd;
using ase::groupStart;
using ase::red;

Palette decoded(quint32 count, const QByteArray& blocks) {
    return ASECoder::decode(file(count, blocks), ReferenceTime{7.0});
}

PaletteSwatch onlySwatch(const QByteArray& block) {
    const Palette palette = decoded(1, block);
    EXPECT_EQ(palette.scales().size(), 1);
    EXPECT_EQ(palette.scales().at(0).swatches().size(), 1);
    return palette.scales().at(0).swatches().at(0);
}

std::optional<QString> labelOf(const QByteArray& nameField) {
    return onlySwatch(ase::block(1, ase::colorBody(nameField, "RGB ", {1.0F, 0.0F, 0.0F}))).label();
}

std::optional<QString> labelOf(const QString& name) {
    return labelOf(ase::name(name));
}

QString valueOf(const QByteArray& model, std::initializer_list<float> numbers) {
    return onlySwatch(color(QStringLiteral("a"), model, numbers)).value();
}

void expectRefused(const QByteArray& bytes, Case which, const char* model = "") {
    try {
        static_cast<void>(ASECoder::decode(bytes, ReferenceTime{}));
        ADD_FAILURE() << "decoded";
    } catch (const ASECoderError& error) {
        EXPECT_EQ(error.which(), which) << error.what();
        EXPECT_EQ(error.model(), QString::fromLatin1(model));
    }
}

QStringList names(const Palette& palette) {
    QStringList all;
    for (const PaletteScale& scale : palette.scales())
        all.append(scale.name());
    return all;
}

QStringList labels(const PaletteScale& scale) {
    QStringList all;
    for (const PaletteSwatch& swatch : scale.swatches())
        all.append(swatch.label().value_or(QStringLiteral("none")));
    return all;
}

const QString blanks = QStringLiteral("  \t ");

TEST(ASEDecoder, MakesAnImportedPaletteOfAnEmptyFile) {
    const Palette palette = decoded(0, QByteArray());
    EXPECT_EQ(palette.name(), QStringLiteral("Imported Palette"));
    EXPECT_TRUE(palette.scales().isEmpty());
    EXPECT_EQ(palette.lastModified(), ReferenceTime{7.0});
}

TEST(ASEDecoder, CallsAFileBelowTwelveBytesTruncatedWhateverItIs) {
    expectRefused(QByteArray(), Case::truncated);
    expectRefused("ASEF\0\1\0\0", Case::truncated);
    expectRefused("plain text", Case::truncated);
    expectRefused(QByteArray(11, 'A'), Case::truncated);
}

TEST(ASEDecoder, RefusesAnotherMagic) {
    expectRefused(QByteArray(12, 'A'), Case::notAnASEFile);
    expectRefused(file(0, QByteArray()).replace('F', 'f'), Case::notAnASEFile);
    expectRefused(R"({"name":"a","scales":[]})", Case::notAnASEFile);
}

TEST(ASEDecoder, NeverLooksAtTheVersion) {
    for (const char* version : {"\0\0\0\1", "\xFF\xFF\xFF\xFF", "\0\0\0\0"}) {
        const QByteArray bytes = file(1, red(QStringLiteral("a"))).replace(4, 4, version, 4);
        EXPECT_EQ(ASECoder::decode(bytes, ReferenceTime{}).scales().size(), 1);
    }
}

TEST(ASEDecoder, IsTruncatedAtTheFirstBlockThatIsMissing) {
    const QByteArray blocks = red(QStringLiteral("a"));
    expectRefused(file(2, blocks), Case::truncated);
    expectRefused(file(0xFFFFFFFF, blocks), Case::truncated);
}

TEST(ASEDecoder, IgnoresWhatStandsBehindTheCountedBlocks) {
    const Palette palette =
        decoded(1, red(QStringLiteral("a")) + red(QStringLiteral("b")) + "junk");
    EXPECT_EQ(labels(palette.scales().at(0)), QStringList{QStringLiteral("a")});
    EXPECT_TRUE(decoded(0, "junk").scales().isEmpty());
}

TEST(ASEDecoder, IsTruncatedWhereverTheFileIsCut) {
    const QByteArray whole =
        file(4, groupStart(QStringLiteral("g")) + red(QStringLiteral("a")) +
                    color(QStringLiteral("b"), "CMYK", {0, 0, 0, 1}) + groupEnd());
    EXPECT_EQ(ASECoder::decode(whole, ReferenceTime{}).scales().size(), 1);
    for (qsizetype length = 0; length < whole.size(); ++length)
        expectRefused(whole.first(length), Case::truncated);
}

TEST(ASEDecoder, IsTruncatedByABodyThatReachesPastTheFile) {
    expectRefused(file(1, bigEndian(quint16(0xC003)) + bigEndian(quint32(1))), Case::truncated);
    expectRefused(file(1, bigEndian(quint16(0xC002)) + bigEndian(quint32(0xFFFFFFFF))),
                  Case::truncated);
}

TEST(ASEDecoder, KeepsGroupsInOrderWithEmptyOnesAndEmptyNames) {
    const Palette palette =
        decoded(8, groupStart(QStringLiteral("One")) + red(QStringLiteral("a")) +
                       red(QStringLiteral("b")) + groupEnd() + groupStart(QString()) + groupEnd() +
                       groupStart(QStringLiteral("Three")) + groupEnd());
    EXPECT_EQ(names(palette),
              (QStringList{QStringLiteral("One"), QString(), QStringLiteral("Three")}));
    EXPECT_EQ(labels(palette.scales().at(0)),
              (QStringList{QStringLiteral("a"), QStringLiteral("b")}));
    EXPECT_TRUE(palette.scales().at(1).swatches().isEmpty());
}

TEST(ASEDecoder, ClosesAnOpenGroupAtTheNextStartAndAtTheEnd) {
    const Palette palette =
        decoded(4, groupStart(QStringLiteral("One")) + red(QStringLiteral("a")) +
                       groupStart(QStringLiteral("Two")) + red(QStringLiteral("b")));
    EXPECT_EQ(names(palette), (QStringList{QStringLiteral("One"), QStringLiteral("Two")}));
    EXPECT_EQ(labels(palette.scales().at(1)), QStringList{QStringLiteral("b")});
}

TEST(ASEDecoder, DoesNothingAtAGroupEndOutsideGroups) {
    EXPECT_TRUE(decoded(2, groupEnd() + groupEnd()).scales().isEmpty());
}

TEST(ASEDecoder, PutsColorsOutsideGroupsFirstWhereverTheyStand) {
    const Palette palette =
        decoded(5, red(QStringLiteral("before")) + groupStart(QStringLiteral("g")) +
                       red(QStringLiteral("in")) + groupEnd() + red(QStringLiteral("after")));
    EXPECT_EQ(names(palette), (QStringList{QStringLiteral("Colors"), QStringLiteral("g")}));
    EXPECT_EQ(labels(palette.scales().at(0)),
              (QStringList{QStringLiteral("before"), QStringLiteral("after")}));
}

TEST(ASEDecoder, SkipsUnknownBlocksByTheirLength) {
    const Palette palette = decoded(3, ase::block(0xC003, "anything") + red(QStringLiteral("a")) +
                                           ase::block(0, QByteArray()));
    EXPECT_EQ(labels(palette.scales().at(0)), QStringList{QStringLiteral("a")});
}

TEST(ASEDecoder, FollowsTheDeclaredLengthWhateverABodyHolds) {
    const QByteArray body = ase::colorBody(ase::name(QStringLiteral("a")), "RGB ", {1, 0, 0});
    const Palette longer = decoded(2, ase::block(1, body + "unread") + red(QStringLiteral("b")));
    EXPECT_EQ(longer.scales().at(0).swatches().size(), 2);
    const QByteArray declaredEmpty = bigEndian(quint16(1)) + bigEndian(quint32(0)) + body;
    EXPECT_EQ(onlySwatch(declaredEmpty).label(), QStringLiteral("a"));
    // The next block then begins inside the colour that was read: here with its name.
    expectRefused(file(2, declaredEmpty), Case::truncated);
}

TEST(ASEDecoder, TakesGroupStartsWithoutANameBeforeEveryColor) {
    const QByteArray start = ase::block(0xC001, QByteArray());
    const Palette palette =
        decoded(4, start + red(QStringLiteral("a")) + start + red(QStringLiteral("b")));
    EXPECT_EQ(names(palette), (QStringList{QString(), QString()}));
    EXPECT_EQ(labels(palette.scales().at(1)), QStringList{QStringLiteral("b")});
}

TEST(ASEDecoder, CannotTakeAGroupStartWithoutANameAtTheVeryEnd) {
    expectRefused(file(1, ase::block(0xC001, QByteArray())), Case::truncated);
}

TEST(ASEDecoder, LeavesOutTheColorsThatAGroupStartSpans) {
    const Palette palette =
        decoded(2, ase::block(0xC001, ase::name(QStringLiteral("g")) + red(QStringLiteral("a"))) +
                       groupEnd());
    EXPECT_EQ(names(palette), QStringList{QStringLiteral("g")});
    EXPECT_TRUE(palette.scales().at(0).swatches().isEmpty());
}

TEST(ASEDecoder, ReadsRgbAsLowercaseHex) {
    EXPECT_EQ(valueOf("RGB ", {1.0F, 0.5F, 0.0F}), QStringLiteral("#ff8000"));
    EXPECT_EQ(valueOf(" RGB", {0.2F, 0.4F, 0.6F}), QStringLiteral("#336699"));
    EXPECT_EQ(valueOf("RGB\t", {0.0F, 0.0F, 0.0F}), QStringLiteral("#000000"));
}

TEST(ASEDecoder, ClampsWhatIsOutOfRangeAndTakesWhatIsNoNumberForZero) {
    constexpr float infinity = std::numeric_limits<float>::infinity();
    EXPECT_EQ(valueOf("RGB ", {-0.5F, 1.5F, infinity}), QStringLiteral("#00ffff"));
    EXPECT_EQ(valueOf("RGB ", {std::nanf(""), -infinity, 1.0F}), QStringLiteral("#0000ff"));
    EXPECT_EQ(valueOf("Gray", {std::nanf("")}), QStringLiteral("#000000"));
    EXPECT_EQ(valueOf("LAB ", {std::nanf(""), std::nanf(""), std::nanf("")}),
              QStringLiteral("#000000"));
    EXPECT_EQ(valueOf("LAB ", {infinity, 0.0F, 0.0F}), QStringLiteral("#ffffff"));
    EXPECT_EQ(valueOf("CMYK", {std::nanf(""), -infinity, -0.001F, 0.0F}),
              QStringLiteral("#ffffff"));
}

TEST(ASEDecoder, ReadsGrayInBothSpellings) {
    EXPECT_EQ(valueOf("Gray", {0.5F}), QStringLiteral("#808080"));
    EXPECT_EQ(valueOf("GRAY", {1.0F}), QStringLiteral("#ffffff"));
}

TEST(ASEDecoder, ReadsLabAsItIsStored) {
    EXPECT_EQ(valueOf("LAB ", {50.0F, 0.0F, 0.0F}), QStringLiteral("#777777"));
    EXPECT_EQ(valueOf("LAB ", {0.5F, 0.0F, 0.0F}), QStringLiteral("#020202"));
    EXPECT_EQ(valueOf("LAB ", {100.0F, 0.0F, 0.0F}), QStringLiteral("#ffffff"));
    EXPECT_EQ(valueOf("LAB ", {500.0F, 0.0F, 0.0F}), QStringLiteral("#ffffff"));
}

TEST(ASEDecoder, ReadsCmyk) {
    EXPECT_EQ(valueOf("CMYK", {0.0F, 0.0F, 0.0F, 0.0F}), QStringLiteral("#ffffff"));
    const SRGBColor cyan = onlySwatch(color(QStringLiteral("c"), "CMYK", {1, 0, 0, 0})).color();
    EXPECT_LT(cyan.red(), 0.2);
    EXPECT_GT(cyan.blue(), 0.7);
}

TEST(ASEDecoder, NamesTheModelThatItDoesNotKnow) {
    const auto withModel = [](const QByteArray& model) {
        return file(1, color(QStringLiteral("a"), model, {1.0F, 1.0F, 1.0F, 1.0F}));
    };
    expectRefused(withModel("Lab "), Case::unknownColorModel, "Lab");
    expectRefused(withModel("rgb "), Case::unknownColorModel, "rgb");
    expectRefused(withModel("HSB "), Case::unknownColorModel, "HSB");
    expectRefused(withModel("    "), Case::unknownColorModel, "");
    expectRefused(withModel("RG\xC2 "), Case::unknownColorModel, "");
    try {
        static_cast<void>(ASECoder::decode(withModel(QByteArray("RGB\0", 4)), ReferenceTime{}));
        ADD_FAILURE() << "decoded";
    } catch (const ASECoderError& error) {
        EXPECT_EQ(error.model(), QStringLiteral("RGB") + QChar(u'\0'));
    }
}

TEST(ASEDecoder, GivesNoLabelForANameOfNothing) {
    EXPECT_EQ(labelOf(QString()), std::nullopt);
    EXPECT_EQ(labelOf(bigEndian(quint16(0))), std::nullopt);
    EXPECT_EQ(labelOf(blanks), std::nullopt);
    EXPECT_EQ(labelOf(QStringLiteral("\u202A\u2069\u0007")), std::nullopt);
}

TEST(ASEDecoder, TakesANameWithoutItsTerminatorAndDropsOnlyOne) {
    EXPECT_EQ(labelOf(bigEndian(quint16(2)) + ase::units(QStringLiteral("ab"))),
              QStringLiteral("ab"));
    EXPECT_EQ(labelOf(QStringLiteral("ab") + QChar(u'\0')), QStringLiteral("ab"));
}

TEST(ASEDecoder, CleansNames) {
    EXPECT_EQ(labelOf(QStringLiteral("\ta\tb\n\r\x7F\u0085\u009F c\t")), QStringLiteral("a\tb c"));
    EXPECT_EQ(labelOf(QStringLiteral("a\u202A\u202B\u202C\u202D\u202E\u2066\u2067\u2068\u2069b")),
              QStringLiteral("ab"));
    EXPECT_EQ(labelOf(QStringLiteral("a\u200F\u2065\u206A\u202Fb\u00A0")),
              QStringLiteral("a\u200F\u2065\u206A\u202Fb"));
    EXPECT_EQ(labelOf(QStringLiteral("\u2028\u3000群青🎨 ")), QStringLiteral(u"群青🎨"));
}

TEST(ASEDecoder, RepairsLoneSurrogates) {
    const QString high = QString(QChar(0xD83C));
    const QString low = QString(QChar(0xDFA8));
    const QString repaired = QString(QChar(QChar::ReplacementCharacter));
    EXPECT_EQ(labelOf(high + low), high + low);
    EXPECT_EQ(labelOf(low + high), repaired + repaired);
    EXPECT_EQ(labelOf(high + QStringLiteral("\u0001") + low), repaired + repaired);
    EXPECT_EQ(labelOf(high + high + low), repaired + high + low);
    EXPECT_EQ(labelOf(high + QStringLiteral("a")), repaired + QStringLiteral("a"));
}

TEST(ASEDecoder, CutsANameAfterTwoHundredCharacters) {
    const QString letters(200, u'a');
    EXPECT_EQ(labelOf(letters), letters);
    EXPECT_EQ(labelOf(letters + u'b'), letters);
    const QString accented = QStringLiteral(u"e\u0301").repeated(200);
    EXPECT_EQ(labelOf(accented + u'b'), accented);
    const QString painter = QStringLiteral(u"🎨").repeated(200);
    EXPECT_EQ(labelOf(painter + u'b'), painter);
    EXPECT_EQ(labelOf(QString(200, u' ') + QStringLiteral("a")), QStringLiteral("a"));
}

TEST(ASEDecoder, MakesNewIdsAtEveryLevel) {
    const QByteArray blocks =
        groupStart(QStringLiteral("g")) + red(QStringLiteral("a")) + red(QStringLiteral("a"));
    QSet<QUuid> ids;
    for (int round = 0; round < 2; ++round) {
        const Palette palette = decoded(3, blocks);
        ids += {palette.id(), palette.scales().at(0).id(),
                palette.scales().at(0).swatches().at(0).id(),
                palette.scales().at(0).swatches().at(1).id()};
    }
    EXPECT_EQ(ids.size(), 8);
}

} // namespace
} // namespace dropshade
