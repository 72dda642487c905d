// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "convert/ColorPickerModel.h"

#include "app/RecentColor.h"
#include "app/SettingsReaders.h"
#include "support/CopierFixture.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

namespace dropshade {
namespace {

const SRGBColor pink(1.0, 0.0, 128.0 / 255.0);

class ColorPickerModelTest : public testing::Test {
protected:
    CopierFixture m_fixture;
    ColorPickerModel m_model{m_fixture.defaults, m_fixture.settings, m_fixture.copier};
};

TEST_F(ColorPickerModelTest, SpacesAroundAColorStayInTheFieldAndParse) {
    m_model.setInput(QStringLiteral("  #FF0080 \n"));
    EXPECT_EQ(m_model.input(), QStringLiteral("  #FF0080 \n"));
    EXPECT_EQ(m_model.parsed(), pink);
    EXPECT_FALSE(m_model.didParseFail());
}

TEST_F(ColorPickerModelTest, DeletingTheWholeTextIsNoError) {
    m_model.setInput(QStringLiteral("#FF0080"));
    m_model.setInput(QString());
    EXPECT_FALSE(m_model.parsed());
    EXPECT_FALSE(m_model.didParseFail());
    m_model.setInput(QStringLiteral(" \t\n"));
    EXPECT_FALSE(m_model.didParseFail());
}

TEST_F(ColorPickerModelTest, AFailingParseClearsTheColorAndTheRows) {
    m_model.setInput(QStringLiteral("#FF0080"));
    m_model.setInput(QStringLiteral("#FF008"));
    EXPECT_FALSE(m_model.parsed());
    EXPECT_TRUE(m_model.didParseFail());
    EXPECT_FALSE(m_model.rowsEnabled());
    EXPECT_EQ(m_model.rowValue(ColorFormat::cssRGB), QStringLiteral("\u2014"));
    m_model.copyRowColor();
    EXPECT_TRUE(m_fixture.pasteboard.copies().isEmpty());
    EXPECT_EQ(m_fixture.checks(), 0);
}

TEST_F(ColorPickerModelTest, ColorAndFailureAreBothNewWhenEitherIsTold) {
    m_model.setInput(QStringLiteral("red"));
    QObject::connect(&m_model, &ColorPickerModel::parsedDidChange,
                     [this] { EXPECT_NE(m_model.parsed().has_value(), m_model.didParseFail()); });
    m_model.setInput(QStringLiteral("redd"));
    m_model.setInput(QStringLiteral("red"));
}

TEST_F(ColorPickerModelTest, AClipboardOfTheSameColorKeepsTheUsersOwnWriting) {
    m_model.setInput(QStringLiteral("#FF0000"));
    m_model.prefill(QStringLiteral("red"));
    EXPECT_EQ(m_model.input(), QStringLiteral("#FF0000"));
    m_model.prefill(QStringLiteral(" blue\n"));
    EXPECT_EQ(m_model.input(), QStringLiteral("blue"));
    EXPECT_EQ(m_model.parsed(), SRGBColor(0, 0, 1));
}

TEST_F(ColorPickerModelTest, AClipboardThatDiffersOnlyBelowEightBitsBringsNothingNew) {
    m_model.applyColor(SRGBColor(1.0, 0.0, 0.001));
    m_model.prefill(QStringLiteral("#FF0000"));
    EXPECT_EQ(m_model.parsed(), SRGBColor(1.0, 0.0, 0.001));
    m_model.prefill(QStringLiteral("#FF0000FE"));
    EXPECT_EQ(m_model.input(), QStringLiteral("#FF0000FE")) << "alpha counts";
}

TEST_F(ColorPickerModelTest, AClipboardWithoutAColorKeepsEverythingAsItWas) {
    m_model.setInput(QStringLiteral("not a colour"));
    for (const char* text : {"", "   ", "hello", "#12345", "javascript:alert(1)"}) {
        m_model.prefill(QString::fromLatin1(text));
        EXPECT_EQ(m_model.input(), QStringLiteral("not a colour"));
        EXPECT_TRUE(m_model.didParseFail());
    }
}

TEST_F(ColorPickerModelTest, AHugeClipboardIsOnlyRead) {
    m_model.prefill(QString(5'000'000, u'f'));
    EXPECT_TRUE(m_model.input().isEmpty());
}

TEST_F(ColorPickerModelTest, ASampleKeepsItsPrecisionThoughTheFieldRoundsIt) {
    m_fixture.defaults.setValue(keys::colorFormat, QStringLiteral("hex"));
    const SRGBColor precise(0.123456, 0.654321, 0.5, 0.75);
    m_model.applySample(precise);
    EXPECT_EQ(m_model.parsed(), precise);
    EXPECT_EQ(m_model.input(), QStringLiteral("#1FA780"));
    EXPECT_EQ(m_model.rowValue(ColorFormat::hexa), QStringLiteral("#1FA780BF"));
    EXPECT_EQ(m_fixture.checks(), 1);
    EXPECT_TRUE(m_fixture.pasteboard.copies().isEmpty()) << "sampling copies nothing";
}

TEST_F(ColorPickerModelTest, ApplyingAColorEndsAFailure) {
    m_model.setInput(QStringLiteral("nonsense"));
    m_model.applyColor(pink);
    EXPECT_FALSE(m_model.didParseFail());
}

TEST_F(ColorPickerModelTest, ACopyIsCountedCopiedRememberedAndHeardAndThenCloses) {
    m_model.setInput(QStringLiteral("rgb(228 87 46 / 0.75)"));
    QStringList order;
    QObject::connect(&m_model, &ColorPickerModel::didCopy,
                     [&order](const QString& text) { order.append(text); });
    m_model.closeAction = [&] {
        EXPECT_EQ(m_fixture.soundPlayer.played().size(), 1);
        order.append(QStringLiteral("closed"));
    };
    m_model.copyRowColor(ColorFormat::cssHSL);
    EXPECT_EQ(order,
              (QStringList{QStringLiteral("hsl(14 77.1% 53.7%)"), QStringLiteral("closed")}));
    EXPECT_EQ(m_fixture.pasteboard.copies(), QStringList{QStringLiteral("hsl(14 77.1% 53.7%)")});
    EXPECT_EQ(m_fixture.checks(), 1);
    ASSERT_EQ(loadRecentColors(m_fixture.defaults).size(), 1);
    EXPECT_EQ(loadRecentColors(m_fixture.defaults).first().color(), *m_model.parsed());
}

TEST_F(ColorPickerModelTest, TheWindowStaysWhereTheUserWantsIt) {
    m_model.setInput(QStringLiteral("red"));
    m_fixture.settings.setCloseConvertDialogOnCopy(false);
    m_model.closeAction = [] { FAIL(); };
    m_model.copyRowColor();
    EXPECT_EQ(m_fixture.pasteboard.copies(), QStringList{QStringLiteral("#FF0000")});
}

TEST_F(ColorPickerModelTest, ACopyDoesNotRememberWhereTheUserWantsNoRecents) {
    m_model.setInput(QStringLiteral("red"));
    m_fixture.defaults.setValue(keys::recentColorsLimit, qint64{0});
    m_model.copyRowColor();
    EXPECT_TRUE(loadRecentColors(m_fixture.defaults).isEmpty());
    EXPECT_EQ(m_fixture.checks(), 1);
}

TEST_F(ColorPickerModelTest, ACopyDoesNotRememberWhereRecentsAreNotShown) {
    m_model.setInput(QStringLiteral("red"));
    m_fixture.defaults.setValue(keys::showRecentColors, false);
    m_model.copyRowColor();
    EXPECT_TRUE(loadRecentColors(m_fixture.defaults).isEmpty());
    EXPECT_EQ(m_fixture.pasteboard.copies(), QStringList{QStringLiteral("#FF0000")});
}

TEST_F(ColorPickerModelTest, ACopyIsSilentWhereTheUserWantsNoSound) {
    m_model.setInput(QStringLiteral("red"));
    m_fixture.defaults.setValue(keys::copySound, QStringLiteral("none"));
    m_model.copyRowColor();
    EXPECT_TRUE(m_fixture.soundPlayer.played().isEmpty());
    EXPECT_EQ(m_fixture.pasteboard.copies(), QStringList{QStringLiteral("#FF0000")});
}

TEST_F(ColorPickerModelTest, EachCallToTheFrontRaisesTheToken) {
    m_model.raiseFocusToken();
    m_model.raiseFocusToken();
    EXPECT_EQ(m_model.focusToken(), 2);
}

TEST_F(ColorPickerModelTest, RowsFollowTheSettingsOfTheMoment) {
    m_model.setInput(QStringLiteral("red"));
    m_fixture.defaults.setValue(keys::useHashPrefix, false);
    m_fixture.defaults.setValue(keys::useLowercase, true);
    EXPECT_EQ(m_model.rowValue(ColorFormat::hex), QStringLiteral("ff0000"));
}

} // namespace
} // namespace dropshade
