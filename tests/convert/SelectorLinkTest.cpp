// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "convert/SelectorLink.h"

#include "support/CopierFixture.h"

#include <gtest/gtest.h>

namespace dropshade {
namespace {

class SelectorLinkTest : public testing::Test {
protected:
    CopierFixture m_fixture;
    ColorPickerModel m_model{m_fixture.defaults, m_fixture.settings, m_fixture.copier};
    SelectorLink m_link{m_model, m_fixture.scheduler};

    void drag(const HSBComponents& fields) {
        m_link.setFields(fields);
        m_fixture.scheduler.advance(0);
    }
};

TEST_F(SelectorLinkTest, TheSelectorsFollowATypedColor) {
    m_model.setInput(QStringLiteral("rgb(0 255 0 / 0.5)"));
    EXPECT_NEAR(m_link.fields().hue, 1.0 / 3.0, 1e-9);
    EXPECT_EQ(m_link.fields().saturation, 1.0);
    EXPECT_EQ(m_link.fields().brightness, 1.0);
    EXPECT_EQ(m_link.fields().alpha, 0.5);
}

TEST_F(SelectorLinkTest, TheColorFollowsTheSelectorsAfterTheirOwnUpdate) {
    m_link.setFields({0.5, 1.0, 1.0, 1.0});
    EXPECT_FALSE(m_model.parsed()) << "the step is queued";
    m_fixture.scheduler.advance(0);
    EXPECT_EQ(m_model.parsed(), SRGBColor(0, 1, 1));
    EXPECT_EQ(m_model.input(), QStringLiteral("#00FFFF"));
}

TEST_F(SelectorLinkTest, DraggingTheSaturationToZeroAndBackKeepsTheHue) {
    drag({0.6, 0.8, 0.9, 1.0});
    drag({0.6, 0.0, 0.9, 1.0});
    EXPECT_EQ(m_link.fields().hue, 0.6);
    drag({m_link.fields().hue, 0.8, 0.9, 1.0});
    EXPECT_EQ(m_model.parsed(), hsbToSRGB(0.6, 0.8, 0.9, 1.0));
}

TEST_F(SelectorLinkTest, DraggingThroughBlackKeepsHueAndSaturation) {
    drag({0.6, 0.8, 0.9, 1.0});
    drag({0.6, 0.8, 0.0, 1.0});
    EXPECT_EQ(m_link.fields(), (HSBComponents{0.6, 0.8, 0.0, 1.0}));
}

TEST_F(SelectorLinkTest, ATypedGreyKeepsTheHueAsWell) {
    drag({0.6, 0.8, 0.9, 1.0});
    m_model.setInput(QStringLiteral("#808080"));
    EXPECT_EQ(m_link.fields().hue, 0.6);
    EXPECT_EQ(m_link.fields().saturation, 0.0);
    m_model.setInput(QStringLiteral("black"));
    EXPECT_EQ(m_link.fields().hue, 0.6);
    EXPECT_EQ(m_link.fields().brightness, 0.0);
}

TEST_F(SelectorLinkTest, AHueAtTheRightEndDoesNotJumpToTheLeft) {
    drag({0.9, 1.0, 1.0, 1.0});
    drag({1.0, 1.0, 1.0, 1.0});
    EXPECT_EQ(m_model.parsed(), SRGBColor(1, 0, 0));
    EXPECT_EQ(m_link.fields().hue, 1.0);
}

TEST_F(SelectorLinkTest, ADragThatChangesNothingToSpeakOfRewritesNothing) {
    m_model.setInput(QStringLiteral(" RED "));
    int changes = 0;
    QObject::connect(&m_model, &ColorPickerModel::inputDidChange, [&changes] { ++changes; });
    drag({0.0, 0.9995, 0.9995, 0.9995});
    EXPECT_EQ(changes, 0);
    EXPECT_EQ(m_model.input(), QStringLiteral(" RED "));
    EXPECT_EQ(m_model.parsed(), SRGBColor(1, 0, 0));
}

TEST_F(SelectorLinkTest, TypingIsNeverRewrittenByTheSelectorsThatFollow) {
    // The second hue is within the dead band of the first, the second brightness is not.
    for (const char* text : {"#FF0080", "#FE0081", "#FE0082", "#010203", "#010204"}) {
        m_model.setInput(QString::fromLatin1(text));
        m_fixture.scheduler.advance(10);
        EXPECT_EQ(m_model.input(), QString::fromLatin1(text));
    }
}

TEST_F(SelectorLinkTest, WithoutAColorTheSelectorsStayWhereTheyAre) {
    drag({0.6, 0.8, 0.9, 0.5});
    m_model.setInput(QStringLiteral("nonsense"));
    m_model.setInput(QString());
    EXPECT_EQ(m_link.fields(), (HSBComponents{0.6, 0.8, 0.9, 0.5}));
}

TEST_F(SelectorLinkTest, ANewWindowsSelectorsShowTheColorThatTheModelKept) {
    m_model.setInput(QStringLiteral("blue"));
    const SelectorLink next(m_model, m_fixture.scheduler);
    EXPECT_NEAR(next.fields().hue, 2.0 / 3.0, 1e-9);
}

TEST_F(SelectorLinkTest, ABurstOfMovesIsOneStep) {
    int changes = 0;
    QObject::connect(&m_model, &ColorPickerModel::parsedDidChange, [&changes] { ++changes; });
    for (int move = 1; move <= 50; ++move)
        m_link.setFields({0.5, move / 50.0, 1.0, 1.0});
    m_fixture.scheduler.advance(0);
    EXPECT_EQ(changes, 1);
}

TEST_F(SelectorLinkTest, NothingLoopsBack) {
    drag({0.123, 0.456, 0.789, 0.321});
    EXPECT_EQ(m_fixture.scheduler.pendingCount(), 0);
    EXPECT_EQ(m_link.fields(), (HSBComponents{0.123, 0.456, 0.789, 0.321}));
}

} // namespace
} // namespace dropshade
