// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/DesktopShortcuts.h"

#include "platform/linux/PortalShortcuts.h"
#include "support/FakeDesktopShortcuts.h"
#include "support/FakePortal.h"
#include "support/QtPrinters.h"

#include <QTest>

#include <gmock/gmock.h>

namespace dropshade {
namespace {

using State = DesktopShortcuts::State;
using Keys = QHash<QString, QString>;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr int patienceMilliseconds = 5000;

const QString pick = QStringLiteral("pickColor");
const QString convert = QStringLiteral("convert");

struct FakeDesktop {
    static bool canBe() { return true; }

    void offer() { shortcuts.offer(); }
    [[nodiscard]] bool isAsked() const { return shortcuts.state() == State::Asking; }
    void give(const Keys& keys) { shortcuts.answer(keys); }
    void change(const Keys& keys) { shortcuts.answer(keys); }
    void refuse() { shortcuts.refuse(); }
    void press(const QString& id) { shortcuts.press(id); }
    void release(const QString& id) { shortcuts.release(id); }
    void vanish() { shortcuts.vanish(); }
    void settle() {}

    FakeDesktopShortcuts shortcuts;
};

/// The portal of a desktop, on the session bus.
struct PortalDesktop {
    static bool canBe() { return FakePortal::canBe(); }

    void offer() {
        portal.offerShortcuts(1);
        portal.vanish();
        portal.comeBack();
    }
    [[nodiscard]] bool isAsked() const { return portal.bindings() > 0 && portal.isAsked(); }
    void give(const Keys& keys) { portal.giveKeys(keys); }
    void change(const Keys& keys) { portal.changeKeys(keys); }
    void refuse() { portal.answer(1, {}); }
    void press(const QString& id) { portal.press(portal.session(), id); }
    void release(const QString& id) { portal.release(portal.session(), id); }
    void vanish() { portal.vanish(); }
    /// Time for what must not come.
    void settle() { QTest::qWait(60); }

    FakePortal portal;
    PortalShortcuts shortcuts;
};

template <typename Desktop>
class DesktopShortcutsContract : public testing::Test {
protected:
    void SetUp() override {
        if (!Desktop::canBe())
            GTEST_SKIP() << "needs a session bus";
        m_desktop = std::make_unique<Desktop>();
        const DesktopShortcuts* shortcuts = &m_desktop->shortcuts;
        QObject::connect(shortcuts, &DesktopShortcuts::pressed, shortcuts,
                         [this](const QString& id) { m_events.append(u'+' + id); });
        QObject::connect(shortcuts, &DesktopShortcuts::released, shortcuts,
                         [this](const QString& id) { m_events.append(u'-' + id); });
        QObject::connect(shortcuts, &DesktopShortcuts::refused, shortcuts,
                         [this] { ++m_refusals; });
    }

    [[nodiscard]] DesktopShortcuts& shortcuts() { return m_desktop->shortcuts; }
    template <typename Condition>
    [[nodiscard]] static bool waitFor(const Condition& condition) {
        return QTest::qWaitFor(condition, patienceMilliseconds);
    }
    [[nodiscard]] bool reaches(State state) {
        return waitFor([&] { return shortcuts().state() == state; });
    }
    void bind() {
        shortcuts().bind({{pick, QStringLiteral("Quick Pick"), {}},
                          {convert, QStringLiteral("Color Picker"), {}}});
        ASSERT_EQ(shortcuts().state(), State::Asking);
        ASSERT_TRUE(waitFor([&] { return m_desktop->isAsked(); }));
    }
    void bindTo(const Keys& keys) {
        m_desktop->offer();
        ASSERT_TRUE(reaches(State::Unbound));
        bind();
        m_desktop->give(keys);
        ASSERT_TRUE(reaches(State::Bound));
    }

    std::unique_ptr<Desktop> m_desktop;
    QStringList m_events;
    int m_refusals = 0;
};

using Desktops = testing::Types<FakeDesktop, PortalDesktop>;

struct DesktopNames {
    template <typename Desktop>
    static std::string GetName(int) {
        return std::is_same_v<Desktop, FakeDesktop> ? "Fake" : "Portal";
    }
};

TYPED_TEST_SUITE(DesktopShortcutsContract, Desktops, DesktopNames);

TYPED_TEST(DesktopShortcutsContract, ThereAreNoKeysUntilTheDesktopSaysSo) {
    EXPECT_EQ(this->shortcuts().state(), State::Unavailable);
    this->m_desktop->offer();
    EXPECT_TRUE(this->reaches(State::Unbound));
}

TYPED_TEST(DesktopShortcutsContract, EachActionShowsTheKeyThatTheDesktopNames) {
    this->bindTo({{pick, QStringLiteral("Ctrl+Alt+C")}});
    EXPECT_EQ(this->shortcuts().trigger(pick), QStringLiteral("Ctrl+Alt+C"));
    EXPECT_EQ(this->shortcuts().trigger(convert), QString());
}

TYPED_TEST(DesktopShortcutsContract, AChangeInTheDesktopShowsAtOnce) {
    this->bindTo({{pick, QStringLiteral("F9")}});
    this->m_desktop->change({{convert, QStringLiteral("F7")}});
    EXPECT_TRUE(
        this->waitFor([&] { return this->shortcuts().trigger(convert) == QStringLiteral("F7"); }));
    EXPECT_EQ(this->shortcuts().trigger(pick), QString());
}

TYPED_TEST(DesktopShortcutsContract, AKeyIsOnePressAndOneReleaseHoweverLongItIsHeld) {
    this->bindTo({{pick, QStringLiteral("F9")}});
    this->m_desktop->press(pick);
    this->m_desktop->press(pick);
    this->m_desktop->release(pick);
    this->m_desktop->release(pick);
    EXPECT_TRUE(this->waitFor([&] { return this->m_events.size() >= 2; }));
    this->m_desktop->settle();
    EXPECT_EQ(this->m_events, QStringList({u'+' + pick, u'-' + pick}));
}

TYPED_TEST(DesktopShortcutsContract, WhileTheUserThinksNothingMoreIsAsked) {
    this->m_desktop->offer();
    ASSERT_TRUE(this->reaches(State::Unbound));
    this->bind();
    this->shortcuts().bind({});
    this->m_desktop->give({{pick, QStringLiteral("F9")}});
    EXPECT_TRUE(this->reaches(State::Bound));
    EXPECT_EQ(this->shortcuts().trigger(pick), QStringLiteral("F9"));
}

TYPED_TEST(DesktopShortcutsContract, ARefusalIsToldAndLeavesNothingBound) {
    this->m_desktop->offer();
    ASSERT_TRUE(this->reaches(State::Unbound));
    this->bind();
    this->m_desktop->refuse();
    EXPECT_TRUE(this->reaches(State::Unbound));
    EXPECT_EQ(this->m_refusals, 1);
}

TYPED_TEST(DesktopShortcutsContract, WhatIsLostMeanwhileIsNotReleased) {
    this->bindTo({{pick, QStringLiteral("F9")}});
    this->m_desktop->press(pick);
    ASSERT_TRUE(this->waitFor([&] { return this->m_events.size() == 1; }));
    this->m_desktop->vanish();
    EXPECT_TRUE(this->reaches(State::Unavailable));
    EXPECT_EQ(this->shortcuts().trigger(pick), QString());
    this->m_desktop->release(pick);
    this->m_desktop->settle();
    EXPECT_EQ(this->m_events, QStringList{u'+' + pick});
    EXPECT_EQ(this->m_refusals, 0);
}

} // namespace
} // namespace dropshade
