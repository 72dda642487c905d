// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "widgets/Menu.h"

#include "support/FakeAppearance.h"
#include "support/SignalCount.h"

#include <QPushButton>
#include <QTest>
#include <QWindow>

#include <gtest/gtest.h>

namespace dropshade {
namespace {

class MenuTest : public testing::Test {
protected:
    FakeAppearance m_appearance;
    Look m_look{m_appearance};
    Menu m_menu{m_look};
};

TEST_F(MenuTest, AHeaderCannotBeChosen) {
    EXPECT_FALSE(m_menu.addHeader(QStringLiteral("Web"))->isEnabled());
}

TEST_F(MenuTest, RowsAreAsHighAsThemeRowsAndSeparatorsLower) {
    QAction* row = m_menu.addRow(QStringLiteral("Rename"), Icon::Copy);
    QAction* separator = m_menu.addSeparator();
    m_menu.addRow(QStringLiteral("Delete"));
    EXPECT_EQ(m_menu.actionGeometry(row).height(), 28);
    EXPECT_EQ(m_menu.actionGeometry(separator).height(), 12);
}

TEST_F(MenuTest, IsWideEnoughForWordsAndKeyEquivalent) {
    QAction* bare = m_menu.addRow(QStringLiteral("Quick Pick"));
    const int narrow = m_menu.actionGeometry(bare).width();
    m_menu.addRow(QStringLiteral("Quick Pick\tCtrl+Alt+Space"));
    EXPECT_GT(m_menu.sizeHint().width(), narrow + 40);
}

TEST_F(MenuTest, ASubmenuIsInTheSameLook) {
    const Menu* submenu = m_menu.addSubmenu(QStringLiteral("Copy As"), Icon::Copy);
    EXPECT_EQ(submenu->style(), m_look.style());
    EXPECT_EQ(submenu->parent(), &m_menu);
}

TEST_F(MenuTest, HasOneRowForEachThingItIsGiven) {
    m_menu.addRow(QStringLiteral("A"));
    m_menu.setDestructive(m_menu.addRow(QStringLiteral("Delete")));
    m_menu.show();
    EXPECT_FALSE(m_menu.grab().isNull());
    EXPECT_EQ(m_menu.actions().size(), 2);
}

TEST_F(MenuTest, AClickInAnotherWindowClosesTheMenuThatIsAWindowAndDoesNothingElse) {
    QPushButton other;
    SignalCount clicks(other, &QAbstractButton::clicked);
    other.setGeometry(0, 0, 300, 200);
    other.show();
    m_menu.addRow(QStringLiteral("Quit"));
    SignalCount rows(m_menu, &QMenu::triggered);
    m_menu.openAsWindow(QStringLiteral("Menu"));
    // Where the row is, as far as the toolkit knows.
    QTest::mouseClick(other.windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(20, 20));
    EXPECT_FALSE(m_menu.isVisible());
    EXPECT_EQ(rows.count(), 0);
    EXPECT_EQ(clicks.count(), 0);
}

TEST_F(MenuTest, ASubmenuOfAMenuThatIsAWindowHangsFromIt) {
    Menu* submenu = m_menu.addSubmenu(QStringLiteral("Recent Colors"), Icon::Clock);
    submenu->addRow(QStringLiteral("#FF8001"));
    SignalCount rows(*submenu, &QMenu::triggered);
    m_menu.openAsWindow(QStringLiteral("Menu"));
    QTest::keyClick(&m_menu, Qt::Key_Down);
    QTest::keyClick(&m_menu, Qt::Key_Right);
    ASSERT_TRUE(submenu->isVisible());
    EXPECT_EQ(submenu->windowHandle()->type(), Qt::ToolTip);
    EXPECT_EQ(submenu->windowHandle()->transientParent(), m_menu.windowHandle());
    QTest::mouseClick(submenu->windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(20, 20));
    EXPECT_EQ(rows.count(), 1);
    EXPECT_FALSE(m_menu.isVisible());
}

} // namespace
} // namespace dropshade
