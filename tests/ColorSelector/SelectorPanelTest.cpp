// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "ColorSelector/SelectorPanel.h"

#include "support/FakeAppearance.h"
#include "widgets/Metrics.h"

#include <QAccessible>
#include <QTest>

#include <gtest/gtest.h>

#include <algorithm>

namespace dropshade {
namespace {

class SelectorPanelTest : public testing::Test {
protected:
    FakeAppearance m_appearance;
    Look m_look{m_appearance};
    SelectorPanel m_panel{m_look, SelectorPanel::Parts::WithAlpha, 16};
    QList<HSBComponents> m_changes;

    void SetUp() override {
        m_panel.resize(400, m_panel.sizeHint().height());
        m_panel.show();
        m_panel.setComponents({0.25, 0.5, 0.75, 1.0});
        QObject::connect(&m_panel, &SelectorPanel::componentsChanged,
                         [this](const HSBComponents& now) { m_changes.append(now); });
    }

    /// The widget's place for this place of its track.
    static QPoint at(const Selector& selector, double x, double y) {
        const QRectF track = selector.track();
        return (track.topLeft() + QPointF(x * track.width(), y * track.height())).toPoint();
    }

    static void press(Selector& selector, double x, double y) {
        QTest::mousePress(&selector, Qt::LeftButton, {}, at(selector, x, y));
    }
    static void drag(Selector& selector, double x, double y) {
        QTest::mouseMove(&selector, at(selector, x, y));
    }
    static void release(Selector& selector, double x, double y) {
        QTest::mouseRelease(&selector, Qt::LeftButton, {}, at(selector, x, y));
    }
};

TEST_F(SelectorPanelTest, TheTracksHaveTheSizesOfTheWindow) {
    EXPECT_EQ(m_panel.square().track().size(), QSizeF(368, 144));
    EXPECT_EQ(m_panel.hueSlider().track().size(), QSizeF(368, 16));
    EXPECT_EQ(m_panel.sizeHint().height(), 16 + 200);
}

TEST_F(SelectorPanelTest, APressActsAtOnce) {
    press(m_panel.hueSlider(), 0.5, 0.5);
    ASSERT_EQ(m_changes.size(), 1);
    EXPECT_EQ(m_changes.last(), (HSBComponents{0.5, 0.5, 0.75, 1.0}));
    release(m_panel.hueSlider(), 0.5, 0.5);
}

TEST_F(SelectorPanelTest, ADragBeyondTheWidgetKeepsTheValueAtItsLimit) {
    Selector& hue = m_panel.hueSlider();
    press(hue, 0.5, 0.5);
    drag(hue, 3.0, 0.5);
    EXPECT_EQ(m_panel.components().hue, 1.0);
    drag(hue, -3.0, 9.0);
    EXPECT_EQ(m_panel.components().hue, 0.0);
    release(hue, -3.0, 9.0);
    drag(hue, 0.5, 0.5);
    EXPECT_EQ(m_panel.components().hue, 0.0) << "nothing moves once the button is up";
}

TEST_F(SelectorPanelTest, TheAlphaSliderEditsTheAlphaAloneAndStaysAtItsLimits) {
    Selector& alpha = *m_panel.alphaSlider();
    press(alpha, 0.25, 0.5);
    EXPECT_EQ(m_panel.components(), (HSBComponents{0.25, 0.5, 0.75, 0.25}));
    drag(alpha, 2.0, 0.5);
    EXPECT_EQ(m_panel.components(), (HSBComponents{0.25, 0.5, 0.75, 1.0}));
    drag(alpha, -2.0, 0.5);
    EXPECT_EQ(m_panel.components(), (HSBComponents{0.25, 0.5, 0.75, 0.0}));
    release(alpha, -2.0, 0.5);
}

TEST_F(SelectorPanelTest, BothEndsOfTheHueSliderAreTheSameRed) {
    Selector& hue = m_panel.hueSlider();
    press(hue, 0.0, 0.5);
    EXPECT_EQ(m_panel.components().hue, 0.0);
    const QImage left = m_panel.square().grab().toImage();
    release(hue, 0.0, 0.5);
    press(hue, 1.0, 0.5);
    EXPECT_EQ(m_panel.components().hue, 1.0);
    EXPECT_EQ(m_panel.square().grab().toImage(), left);
    release(hue, 1.0, 0.5);
}

TEST_F(SelectorPanelTest, TheSquareEditsSaturationAndBrightnessTogether) {
    Selector& square = m_panel.square();
    press(square, 0.25, 0.25);
    EXPECT_EQ(m_panel.components(), (HSBComponents{0.25, 0.25, 0.75, 1.0}));
    drag(square, 2.0, -2.0);
    EXPECT_EQ(m_panel.components(), (HSBComponents{0.25, 1.0, 1.0, 1.0}));
    drag(square, -2.0, 2.0);
    EXPECT_EQ(m_panel.components(), (HSBComponents{0.25, 0.0, 0.0, 1.0}));
    release(square, -2.0, 2.0);
}

TEST_F(SelectorPanelTest, OtherButtonsDoNothing) {
    QTest::mouseClick(&m_panel.hueSlider(), Qt::RightButton, {}, at(m_panel.hueSlider(), 0.9, 0.5));
    EXPECT_TRUE(m_changes.isEmpty());
}

TEST_F(SelectorPanelTest, TheProgramsOwnChangesAreNotEmitted) {
    m_panel.setComponents({0.1, 0.2, 0.3, 0.4});
    EXPECT_TRUE(m_changes.isEmpty());
    EXPECT_EQ(m_panel.hueSlider().hue(), 0.1);
    EXPECT_EQ(m_panel.alphaSlider()->alpha(), 0.4);
}

TEST_F(SelectorPanelTest, ArrowKeysStepByOnePercentAndByTenWithShift) {
    QTest::keyClick(&m_panel.hueSlider(), Qt::Key_Right);
    EXPECT_DOUBLE_EQ(m_panel.components().hue, 0.26);
    QTest::keyClick(&m_panel.hueSlider(), Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_DOUBLE_EQ(m_panel.components().hue, 0.16);
    QTest::keyClick(&m_panel.square(), Qt::Key_Left);
    QTest::keyClick(&m_panel.square(), Qt::Key_Up, Qt::ShiftModifier);
    EXPECT_DOUBLE_EQ(m_panel.components().saturation, 0.49);
    EXPECT_DOUBLE_EQ(m_panel.components().brightness, 0.85);
}

TEST_F(SelectorPanelTest, HomeAndEndGoToTheLimits) {
    QTest::keyClick(m_panel.alphaSlider(), Qt::Key_Home);
    EXPECT_EQ(m_panel.components().alpha, 0.0);
    QTest::keyClick(m_panel.alphaSlider(), Qt::Key_End);
    EXPECT_EQ(m_panel.components().alpha, 1.0);
    QTest::keyClick(&m_panel.square(), Qt::Key_End);
    EXPECT_EQ(m_panel.components().saturation, 1.0);
    EXPECT_EQ(m_panel.components().brightness, 0.75);
}

TEST_F(SelectorPanelTest, AScreenReaderMeetsSlidersWithValues) {
    for (Selector* selector : m_panel.findChildren<Selector*>()) {
        QAccessibleInterface* reader = QAccessible::queryAccessibleInterface(selector);
        EXPECT_EQ(reader->role(), QAccessible::Slider);
        EXPECT_FALSE(reader->text(QAccessible::Name).isEmpty());
        EXPECT_FALSE(reader->text(QAccessible::Value).isEmpty());
        ASSERT_TRUE(reader->valueInterface());
        reader->valueInterface()->setCurrentValue(0.5);
        EXPECT_EQ(reader->valueInterface()->currentValue().toDouble(), 0.5);
    }
    EXPECT_EQ(m_panel.components().hue, 0.5);
    EXPECT_EQ(m_panel.hueSlider().spokenValue(), QStringLiteral("180 degrees"));
}

TEST_F(SelectorPanelTest, TheTrackShowsTheHuesFromRedToRed) {
    const QImage image = m_panel.hueSlider().grab().toImage();
    m_panel.setComponents({0.0, 1.0, 1.0, 1.0});
    const auto hueAt = [&](double x) {
        return QColor(image.pixel(at(m_panel.hueSlider(), x, 0.5))).hsvHue();
    };
    EXPECT_NEAR(hueAt(0.5), 180, 3);
    EXPECT_NEAR(hueAt(0.667), 240, 3);
    EXPECT_NEAR(hueAt(0.9), 324, 4);
}

TEST_F(SelectorPanelTest, TheAlphaTrackGoesFromTheCheckerboardToTheColor) {
    m_panel.setComponents({0.0, 1.0, 1.0, 0.5});
    const QImage image = m_panel.alphaSlider()->grab().toImage();
    const auto pixelAt = [&](double x, double y) {
        return QColor(image.pixel(at(*m_panel.alphaSlider(), x, y)));
    };
    // Neighbouring squares of the board, where the colour is all but transparent.
    const QColor one = pixelAt(0.03, 0.3);
    const QColor other = pixelAt(0.03, 0.6);
    EXPECT_NEAR(std::max(one.green(), other.green()), 0.9 * 255.0 * 0.97, 8.0);
    EXPECT_NEAR(std::min(one.green(), other.green()), 0.7 * 255.0 * 0.97, 8.0);
    const QColor end = pixelAt(0.97, 0.5);
    EXPECT_GT(end.red(), 245);
    EXPECT_LT(end.green(), 12);
}

TEST_F(SelectorPanelTest, AThumbShowsItsColorInAWhiteRing) {
    m_panel.setComponents({0.5, 1.0, 1.0, 1.0});
    const QImage image = m_panel.hueSlider().grab().toImage();
    const QPoint middle = at(m_panel.hueSlider(), 0.5, 0.5);
    EXPECT_EQ(QColor(image.pixel(middle)), QColor(0, 255, 255));
    const QPoint ring(metrics::thumb / 2 - 1, 0);
    EXPECT_EQ(QColor(image.pixel(middle - ring)), QColor(Qt::white));
}

TEST(SelectorSizes, AreATenPointThumbAndWhateverIsSet) {
    FakeAppearance appearance;
    const Look look(appearance);
    Saturation square(look);
    EXPECT_EQ(square.reach(), 5 + metrics::focusReach) << "half of the thumb, and a ring";
    square.setPointSize(20.0);
    EXPECT_EQ(square.reach(), 10 + metrics::focusReach);
}

TEST_F(SelectorPanelTest, TheSquareIsPureAtItsTopRightAndNearlyBlackAtItsBottom) {
    m_panel.setComponents({0.0, 0.5, 0.5, 1.0});
    const QImage image = m_panel.square().grab().toImage();
    const QColor top(image.pixel(at(m_panel.square(), 0.97, 0.03)));
    EXPECT_GT(top.red(), 225);
    EXPECT_LT(top.green(), 30);
    const QColor bottom(image.pixel(at(m_panel.square(), 0.5, 0.97)));
    EXPECT_LT(bottom.red(), 45);
    const QColor left(image.pixel(at(m_panel.square(), 0.03, 0.03)));
    EXPECT_GT(left.green(), 225);
}

} // namespace
} // namespace dropshade
