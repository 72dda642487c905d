// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "contrast/ColorInputModel.h"

#include "app/SettingsReaders.h"
#include "contrast/ColorWellEdit.h"
#include "support/CopierFixture.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

namespace dropshade {
namespace {

using Target = ContrastModel::SwatchTarget;

const SRGBColor red(1, 0, 0);

class ColorInputModelTest : public testing::Test {
protected:
    CopierFixture m_fixture;
    LastContrastPair m_last;
    ContrastModel m_model{m_last, [] {}};
    ColorInputModel m_row{Target::foreground, m_model, m_fixture.copier};

    void type(const char* text) {
        m_row.setFocused(true);
        m_row.edit(QString::fromLatin1(text));
    }
};

TEST_F(ColorInputModelTest, ShowsTheColorInTheFormatOfTheSettings) {
    EXPECT_EQ(m_row.text(), QStringLiteral("#000000"));
    m_fixture.defaults.setValue(keys::colorFormat, QStringLiteral("cssRGB"));
    m_model.setFgColor(red);
    EXPECT_EQ(m_row.text(), QStringLiteral("rgb(255 0 0)"));
}

TEST_F(ColorInputModelTest, ATypedColorBecomesTheColorAtOnce) {
    type("red");
    EXPECT_EQ(m_model.fgColor(), red);
    EXPECT_EQ(m_row.text(), QStringLiteral("red")) << "what is typed stays as it is";
}

TEST_F(ColorInputModelTest, AnIncompleteColorNeitherChangesNorMarksAnything) {
    type("#FF0");
    type("#FF00008");
    EXPECT_EQ(m_model.fgColor(), SRGBColor(1, 1, 0));
    EXPECT_FALSE(m_row.invalid());
}

TEST_F(ColorInputModelTest, LeavingANonColorMarksTheRowAndKeepsTheLastGoodColor) {
    type("red");
    type("redd");
    m_row.setFocused(false);
    EXPECT_TRUE(m_row.invalid());
    EXPECT_EQ(m_model.fgColor(), red);
    EXPECT_EQ(m_row.text(), QStringLiteral("redd"));
}

TEST_F(ColorInputModelTest, ALaterChangeOfTheColorReplacesAMarkedText) {
    type("redd");
    m_row.setFocused(false);
    m_model.setFgColor(red);
    EXPECT_FALSE(m_row.invalid());
    EXPECT_EQ(m_row.text(), QStringLiteral("#FF0000"));
}

TEST_F(ColorInputModelTest, EnterMarksANonColorToo) {
    type("nonsense");
    m_row.submit();
    EXPECT_TRUE(m_row.invalid());
    type("blue");
    EXPECT_FALSE(m_row.invalid());
}

TEST_F(ColorInputModelTest, TheColorsOwnTextIsNeverMarkedThoughItDoesNotParse) {
    m_fixture.defaults.setValue(keys::colorFormat, QStringLiteral("swiftUIColorRGB"));
    m_model.setFgColor(red);
    m_row.setFocused(true);
    m_row.setFocused(false);
    EXPECT_FALSE(m_row.invalid());
}

TEST_F(ColorInputModelTest, TheTextOfAFocusedFieldIsTheUsersOwn) {
    m_row.setFocused(true);
    m_model.setFgColor(red);
    EXPECT_EQ(m_row.text(), QStringLiteral("#000000"));
}

TEST_F(ColorInputModelTest, TheOtherRowsColorTouchesNothingHere) {
    type("redd");
    m_row.setFocused(false);
    m_model.setBgColor(red);
    EXPECT_TRUE(m_row.invalid());
    EXPECT_EQ(m_row.text(), QStringLiteral("redd"));
}

TEST_F(ColorInputModelTest, TheTextFollowsAFix) {
    m_model.setFgColor(SRGBColor(0.9, 0.5, 0.5));
    EXPECT_EQ(m_row.text(), QStringLiteral("#E68080"));
    m_model.applyRatioFix(Target::foreground, 7.0);
    EXPECT_NE(m_row.text(), QStringLiteral("#E68080"));
    EXPECT_EQ(m_row.text(), m_fixture.copier.text(m_model.fgColor()));
}

class ColorWellEditTest : public testing::Test {
protected:
    SRGBColor m_color{0.2, 0.4, 0.6, 0.5};
    ColorWellEdit m_edit{
        {[this] { return m_color; }, [this](const SRGBColor& color) { m_color = color; }}};
};

TEST_F(ColorWellEditTest, CancelRestoresTheColorAfterLiveChanges) {
    const SRGBColor before = m_color;
    m_edit.open();
    m_edit.setFields({0.5, 1.0, 1.0, 1.0});
    EXPECT_EQ(m_color, SRGBColor(0, 1, 1));
    m_edit.cancel();
    m_edit.didClose();
    EXPECT_EQ(m_color, before);
    EXPECT_FALSE(m_edit.showingPicker());
}

TEST_F(ColorWellEditTest, ClickingAwayKeepsTheChangesAndDropsTheAlpha) {
    m_edit.open();
    m_edit.setFields({0.5, 1.0, 1.0, 1.0});
    m_edit.didClose();
    EXPECT_EQ(m_color, SRGBColor(0, 1, 1, 1));
}

TEST_F(ColorWellEditTest, OpeningChangesNothing) {
    const SRGBColor before = m_color;
    m_edit.open();
    m_edit.didClose();
    EXPECT_EQ(m_color, before) << "alpha and all";
}

TEST_F(ColorWellEditTest, ACancelIsForOneOpeningOnly) {
    m_edit.open();
    m_edit.cancel();
    m_edit.didClose();
    m_edit.open();
    m_edit.setFields({0.0, 1.0, 1.0, 1.0});
    m_edit.didClose();
    EXPECT_EQ(m_color, SRGBColor(1, 0, 0));
}

TEST_F(ColorWellEditTest, AGreyOpensWithTheHueOfTheTimeBefore) {
    m_edit.open();
    m_edit.setFields({0.3, 0.7, 0.7, 1.0});
    m_edit.didClose();
    m_color = SRGBColor(0.5, 0.5, 0.5);
    m_edit.open();
    EXPECT_EQ(m_edit.fields().hue, 0.3);
    EXPECT_EQ(m_edit.fields().saturation, 0.0);
}

} // namespace
} // namespace dropshade
