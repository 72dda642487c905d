// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "WindowFixture.h"
#include "color/ColorParser.h"
#include "support/QtPrinters.h"

#include <vector>

namespace dropshade {
namespace {

class SwatchEditing : public PalettesWindowModel {
protected:
    std::unique_ptr<SwatchEdit> add() { return m_model.makeSwatchAdd(seaId(), scaleId(0)); }
    std::unique_ptr<SwatchEdit> edit(qsizetype scale, qsizetype swatch) {
        return m_model.makeSwatchEdit(path(scale, swatch));
    }
    void setFormat(const char* format) {
        defaults().setValue(keys::colorFormat, QString::fromLatin1(format));
    }
    PaletteSwatch last() { return sea().scales().first().swatches().last(); }
    PaletteSwatch swatchAt(qsizetype scale, qsizetype swatch) {
        return sea().scales().at(scale).swatches().at(swatch);
    }
};

// Adding

TEST_F(SwatchEditing, ANewSwatchStartsBlackInTheFormatOfTheSettings) {
    setFormat("cssRGB");
    const auto popover = add();
    EXPECT_EQ(popover->color(), SRGBColor());
    EXPECT_EQ(popover->valueText(), QStringLiteral("rgb(0 0 0)"));
    EXPECT_TRUE(popover->label().isEmpty());
    EXPECT_FALSE(popover->isInvalid());
}

TEST_F(SwatchEditing, AnAddedSwatchIsStoredAsSixDigitsWhateverWasTyped) {
    const auto popover = add();
    popover->typeValue(QStringLiteral("rgba(255, 0, 0, 0.5)"));
    popover->add();
    EXPECT_EQ(last().value(), QStringLiteral("#ff0000"));
    EXPECT_FALSE(last().label());
}

TEST_F(SwatchEditing, ALabelIsTrimmedAndABlankOneIsNone) {
    const auto popover = add();
    popover->typeLabel(QStringLiteral("  blue-500 "));
    popover->add();
    EXPECT_EQ(last().label(), QStringLiteral("blue-500"));
    popover->typeLabel(QStringLiteral("  "));
    popover->add();
    EXPECT_FALSE(last().label());
}

TEST_F(SwatchEditing, AnInvalidTextStillAddsTheLastGoodColor) {
    const auto popover = add();
    popover->typeValue(QStringLiteral("teal"));
    popover->typeValue(QStringLiteral("tea"));
    EXPECT_TRUE(popover->isInvalid());
    popover->add();
    EXPECT_EQ(last().value(), QStringLiteral("#008080"));
}

TEST_F(SwatchEditing, EachAddedSwatchHasAnIdOfItsOwn) {
    const auto popover = add();
    popover->add();
    const QUuid first = last().id();
    popover->add();
    EXPECT_NE(last().id(), first);
}

TEST_F(SwatchEditing, NothingIsStoredBeforeTheAdd) {
    const auto popover = add();
    popover->typeValue(QStringLiteral("teal"));
    popover->pickColor(SRGBColor(1.0, 1.0, 1.0));
    popover->typeLabel(QStringLiteral("x"));
    popover->cancel();
    expectUntouched();
}

// The value field

TEST_F(SwatchEditing, TheWellSetsTheTextAndClearsTheMark) {
    const auto popover = add();
    popover->typeValue(QStringLiteral("nonsense"));
    popover->pickColor(SRGBColor(1.0, 0.5, 0.0));
    EXPECT_EQ(popover->valueText(), QStringLiteral("#FF8000"));
    EXPECT_FALSE(popover->isInvalid());
}

TEST_F(SwatchEditing, ATextThatParsesMovesTheWellAndStaysAsTyped) {
    const auto popover = add();
    const SignalCount colors(*popover, &SwatchEdit::colorDidChange);
    const SignalCount texts(*popover, &SwatchEdit::valueTextDidChange);
    popover->typeValue(QStringLiteral("red"));
    EXPECT_EQ(popover->color(), SRGBColor(1.0, 0.0, 0.0));
    EXPECT_EQ(popover->valueText(), QStringLiteral("red"));
    popover->typeValue(QStringLiteral("#f00"));
    EXPECT_EQ(colors.count(), 1);
    EXPECT_EQ(texts.count(), 0);
}

TEST_F(SwatchEditing, ATextThatDoesNotParseKeepsTheColor) {
    const auto popover = add();
    popover->typeValue(QStringLiteral("red"));
    popover->typeValue(QStringLiteral("re"));
    EXPECT_EQ(popover->color(), SRGBColor(1.0, 0.0, 0.0));
    EXPECT_TRUE(popover->isInvalid());
}

class FieldInFormat : public SwatchEditing, public testing::WithParamInterface<ColorFormat> {};

TEST_P(FieldInFormat, HoldingTheFormattedColorIsNeverInvalid) {
    const std::string_view raw = rawValue(GetParam());
    setFormat(std::string(raw).c_str());
    const auto popover = edit(0, 1);
    const QString formattedText = popover->valueText();
    EXPECT_FALSE(popover->isInvalid());
    popover->typeValue(formattedText + QLatin1Char('!'));
    popover->typeValue(formattedText);
    EXPECT_FALSE(popover->isInvalid()) << formattedText.toStdString();
    EXPECT_EQ(swatchAt(0, 1).value(), QStringLiteral("#0000ff"));
}

std::vector<ColorFormat> allFormats() {
    std::vector<ColorFormat> formats;
    for (const ColorFormatGroup& group : formatGroups())
        formats.insert(formats.end(), group.formats.begin(), group.formats.end());
    return formats;
}

INSTANTIATE_TEST_SUITE_P(Every, FieldInFormat, testing::ValuesIn(allFormats()),
                         [](const auto& row) { return std::string(rawValue(row.param)); });

TEST_F(SwatchEditing, AFormattedTextThatDoesNotParseIsInvalidOnceItDiffers) {
    setFormat("swiftUIColorRGB");
    const auto popover = edit(0, 1);
    ASSERT_FALSE(parseColor(popover->valueText().toStdString()));
    popover->typeValue(popover->valueText() + QLatin1Char(' '));
    EXPECT_TRUE(popover->isInvalid());
}

// Editing

TEST_F(SwatchEditing, OpeningAndClosingTheEditorChangesNothing) {
    const auto popover = edit(0, 1);
    EXPECT_EQ(popover->color(), SRGBColor(0.0, 0.0, 1.0));
    expectUntouched();
}

TEST_F(SwatchEditing, EachChangeTakesEffectAtOnceUnderTheSameId) {
    const auto popover = edit(0, 1);
    popover->typeValue(QStringLiteral("tan"));
    EXPECT_EQ(swatchAt(0, 1).value(), QStringLiteral("#d2b48c"));
    popover->typeLabel(QStringLiteral("sand"));
    EXPECT_EQ(swatchAt(0, 1).label(), QStringLiteral("sand"));
    popover->pickColor(SRGBColor(0.0, 0.0, 0.0));
    EXPECT_EQ(swatchAt(0, 1).value(), QStringLiteral("#000000"));
    EXPECT_EQ(swatchAt(0, 1).id(), swatchId(0, 1));
}

TEST_F(SwatchEditing, AFavoriteFollowsTheEdit) {
    m_model.toggleFavorite(path(0, 1));
    edit(0, 1)->typeValue(QStringLiteral("tan"));
    EXPECT_EQ(settings().pinnedColors().first()->value, QStringLiteral("#d2b48c"));
}

TEST_F(SwatchEditing, ACancelRestoresTheVeryTextAndStampsAllTheSame) {
    store().updateSwatch(seaId(), scaleId(0),
                         PaletteSwatch(swatchId(0, 1), QStringLiteral("rgb(1, 2, 3)")));
    const auto popover = edit(0, 1);
    popover->pickColor(SRGBColor(1.0, 0.0, 0.0));
    EXPECT_EQ(swatchAt(0, 1).value(), QStringLiteral("#ff0000"));
    scheduler().advance(1000);
    popover->cancel();
    EXPECT_EQ(swatchAt(0, 1).value(), QStringLiteral("rgb(1, 2, 3)"));
    EXPECT_EQ(sea().lastModified(), now());
    EXPECT_TRUE(store().hasPendingSave());
}

TEST_F(SwatchEditing, DoneLeavesHexadecimalDigits) {
    store().updateSwatch(seaId(), scaleId(0),
                         PaletteSwatch(swatchId(0, 1), QStringLiteral("rgb(1, 2, 3)")));
    {
        const auto popover = edit(0, 1);
        popover->typeLabel(QStringLiteral("ink"));
    }
    EXPECT_EQ(swatchAt(0, 1).value(), QStringLiteral("#010203"));
}

TEST_F(SwatchEditing, ACancelAfterTheSwatchIsGoneBringsNothingBack) {
    const auto popover = edit(0, 1);
    m_model.deleteSwatch(path(0, 1), false);
    popover->cancel();
    EXPECT_EQ(values(0), QStringLiteral("navy aqua"));
}

TEST_F(SwatchEditing, AnAbsentLabelShowsAsAnEmptyField) {
    EXPECT_TRUE(edit(0, 1)->label().isEmpty());
}

} // namespace
} // namespace dropshade
