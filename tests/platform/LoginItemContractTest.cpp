// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/LoginItem.h"

#include "platform/linux/AutostartLoginItem.h"
#include "support/FakeLoginItem.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace dropshade {
namespace {

struct FakeDesktop {
    FakeLoginItem item;

    void refuse() { item.setRefuses(true); }
};

/// A home folder without anything in it.
struct AutostartDesktop {
    QTemporaryDir home;
    AutostartLoginItem item{{{home.filePath(QStringLiteral("config"))},
                             {QStringLiteral("GNOME")},
                             QStringLiteral("/bin/sh")}};

    /// Neither root nor anybody else makes a folder where there is a file.
    void refuse() {
        QFile::remove(entry());
        QDir(home.path()).rmpath(QStringLiteral("config/autostart"));
        QDir(home.filePath(QStringLiteral("config"))).removeRecursively();
        QFile blocker(home.filePath(QStringLiteral("config")));
        ASSERT_TRUE(blocker.open(QIODevice::WriteOnly));
    }
    [[nodiscard]] QString entry() const {
        return home.filePath(QStringLiteral("config/autostart/org.dropshade.Dropshade.desktop"));
    }
};

template <typename Desktop>
class LoginItemContract : public testing::Test {
protected:
    Desktop m_desktop;
    LoginItem& m_item = m_desktop.item;
};

struct DesktopNames {
    template <typename Desktop>
    static std::string GetName(int) {
        return std::is_same_v<Desktop, FakeDesktop> ? "Fake" : "Autostart";
    }
};

using Desktops = testing::Types<FakeDesktop, AutostartDesktop>;
TYPED_TEST_SUITE(LoginItemContract, Desktops, DesktopNames);

TYPED_TEST(LoginItemContract, IsNotRegisteredUntilItIsAskedFor) {
    EXPECT_FALSE(this->m_item.isRegistered());
    EXPECT_TRUE(this->m_item.unregisterItem());
}

TYPED_TEST(LoginItemContract, RegistersAndUnregistersAnyNumberOfTimes) {
    for (int round = 0; round < 3; ++round) {
        EXPECT_TRUE(this->m_item.registerItem());
        EXPECT_TRUE(this->m_item.registerItem());
        EXPECT_TRUE(this->m_item.isRegistered());
        EXPECT_TRUE(this->m_item.unregisterItem());
        EXPECT_TRUE(this->m_item.unregisterItem());
        EXPECT_FALSE(this->m_item.isRegistered());
    }
}

TYPED_TEST(LoginItemContract, ARefusalLeavesItUnregistered) {
    this->m_desktop.refuse();
    EXPECT_FALSE(this->m_item.registerItem());
    EXPECT_FALSE(this->m_item.isRegistered());
}

} // namespace
} // namespace dropshade
