// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/StatusItem.h"

#include "platform/linux/TrayStatusItem.h"
#include "support/FakeStatusItem.h"
#include "support/X11Hand.h"

#include <QPixmap>
#include <QTest>

#include <gtest/gtest.h>

#include <vector>

namespace dropshade {
namespace {

constexpr int patienceMilliseconds = 5000;

struct FakePanel {
    static bool canTest() { return true; }
    bool showsItem() {
        item.setGeometry(QRect(0, 0, 22, 22));
        return !item.icons().back().isNull();
    }
    void click(Qt::MouseButton button) { item.click(button); }

    FakeStatusItem item;
};

/// The tray of the desktop that the test runs on.
struct TrayPanel {
    static bool canTest() { return X11Hand::isThere(); }
    bool showsItem() {
        return QTest::qWaitFor([this] { return item.geometry().width() > 8; },
                               patienceMilliseconds);
    }
    void click(Qt::MouseButton button) {
        // The tray moves its icons while it makes room for them.
        const auto isOverItem = [this] {
            hand.moveTo(item.geometry().center());
            QTest::qWait(200);
            return hand.isOverThisProgram();
        };
        ASSERT_TRUE(QTest::qWaitFor(isOverItem, patienceMilliseconds));
        hand.click(button == Qt::LeftButton    ? XCB_BUTTON_INDEX_1
                   : button == Qt::RightButton ? XCB_BUTTON_INDEX_3
                                               : XCB_BUTTON_INDEX_2);
    }

    TrayStatusItem item;
    X11Hand hand;
};

template <typename Panel>
class StatusItemContract : public testing::Test {
protected:
    StatusItemContract() {
        QObject::connect(&m_panel.item, &StatusItem::clicked, &m_panel.item,
                         [this](const StatusItemClick& click) { m_clicks.push_back(click); });
    }

    void SetUp() override {
        if (!Panel::canTest())
            GTEST_SKIP() << "needs an X server with a tray";
        QObject::connect(&m_panel.item, &StatusItem::hostFound, &m_panel.item,
                         [this] { ++m_hostsFound; });
        QPixmap square(22, 22);
        square.fill(Qt::red);
        m_panel.item.setIcon(QIcon(square));
    }

    Panel m_panel;
    std::vector<StatusItemClick> m_clicks;
    int m_hostsFound = 0;
};

struct PanelNames {
    template <typename Panel>
    static std::string GetName(int) {
        return std::is_same_v<Panel, FakePanel> ? "Fake" : "Tray";
    }
};

using Panels = testing::Types<FakePanel, TrayPanel>;
TYPED_TEST_SUITE(StatusItemContract, Panels, PanelNames);

TYPED_TEST(StatusItemContract, ShowsOnceItHasAnIconAndTellsWhere) {
    EXPECT_TRUE(this->m_panel.showsItem());
    EXPECT_FALSE(this->m_panel.item.geometry().isEmpty());
    EXPECT_TRUE(this->m_clicks.empty());
    EXPECT_EQ(this->m_hostsFound, 1);
}

TYPED_TEST(StatusItemContract, ReportsTheButtonOfEachClick) {
    ASSERT_TRUE(this->m_panel.showsItem());
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}) {
        this->m_clicks.clear();
        this->m_panel.click(button);
        ASSERT_TRUE(
            QTest::qWaitFor([this] { return !this->m_clicks.empty(); }, patienceMilliseconds));
        EXPECT_EQ(this->m_clicks.size(), 1U);
        EXPECT_EQ(this->m_clicks.front().button, button);
        EXPECT_EQ(this->m_clicks.front().modifiers, Qt::KeyboardModifiers());
    }
}

TYPED_TEST(StatusItemContract, CountsEachOfTwoQuickClicks) {
    ASSERT_TRUE(this->m_panel.showsItem());
    this->m_panel.click(Qt::RightButton);
    this->m_panel.click(Qt::RightButton);
    EXPECT_TRUE(
        QTest::qWaitFor([this] { return this->m_clicks.size() == 2; }, patienceMilliseconds));
}

} // namespace
} // namespace dropshade
