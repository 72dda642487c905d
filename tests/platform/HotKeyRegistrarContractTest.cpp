// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/HotKeyRegistrar.h"

#include "platform/ModifierKeys.h"
#include "platform/linux/VirtualKeyCodes.h"
#include "platform/linux/X11HotKeyRegistrar.h"
#include "support/FakeHotKeyRegistrar.h"
#include "support/X11Hand.h"

#include <QProcess>
#include <QTest>

#include <gmock/gmock.h>

#include <vector>

namespace dropshade {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Status = HotKeyRegistrar::Status;

constexpr int patienceMilliseconds = 5000;
/// Longer than the delay before a held key repeats, and some repetitions.
constexpr int holdMilliseconds = 1000;

constexpr quint32 keyC = 8;
constexpr quint32 keyP = 35;
constexpr quint32 noSuchKey = 200;

struct FakeKeyboard {
    static bool canTest() { return true; }
    void press(quint32 keyCode, quint32 modifiers) { registrar.press({keyCode, modifiers}); }
    void release(quint32 keyCode, quint32) { registrar.release(keyCode); }
    void releaseModifiersFirst(quint32 keyCode, quint32) { registrar.release(keyCode); }
    void hold(quint32 keyCode, quint32 modifiers) { press(keyCode, modifiers); }
    void setLocks(bool) {}
    void takeInAnotherProgram(quint32 keyCode, quint32 modifiers) {
        registrar.take({keyCode, modifiers});
    }
    void settle() {}

    FakeHotKeyRegistrar registrar;
};

/// The X server that the test runs on.
struct GrabbedKeyboard {
    static bool canTest() { return X11Hand::isThere(); }

    static std::uint8_t serverKey(quint32 keyCode) {
        return static_cast<std::uint8_t>(*linuxKeyCode(keyCode) + xkbKeyCodeOffset);
    }

    std::vector<std::uint8_t> modifierKeysFor(quint32 modifiers) {
        std::vector<std::uint8_t> wanted;
        for (const auto& [bit, symbol] :
             {std::pair(controlKey, XK_Control_L), std::pair(optionKey, XK_Alt_L),
              std::pair(shiftKey, XK_Shift_L), std::pair(commandKey, XK_Super_L)}) {
            if ((modifiers & bit) != 0)
                wanted.push_back(hand.keyOf(static_cast<xcb_keysym_t>(symbol)));
        }
        return wanted;
    }

    void press(quint32 keyCode, quint32 modifiers) {
        for (const std::uint8_t key : modifierKeysFor(modifiers))
            hand.press(key);
        hand.press(serverKey(keyCode));
    }
    void release(quint32 keyCode, quint32 modifiers) {
        hand.release(serverKey(keyCode));
        for (const std::uint8_t key : modifierKeysFor(modifiers))
            hand.release(key);
    }
    void releaseModifiersFirst(quint32 keyCode, quint32 modifiers) {
        for (const std::uint8_t key : modifierKeysFor(modifiers))
            hand.release(key);
        hand.release(serverKey(keyCode));
    }
    void hold(quint32 keyCode, quint32 modifiers) {
        press(keyCode, modifiers);
        QTest::qWait(holdMilliseconds);
    }

    void setLocks(bool areOn) {
        if (areOn == m_areLocksOn)
            return;
        m_areLocksOn = areOn;
        for (const xcb_keysym_t lock : {XK_Caps_Lock, XK_Num_Lock}) {
            hand.press(hand.keyOf(lock));
            hand.release(hand.keyOf(lock));
        }
    }

    void takeInAnotherProgram(quint32 keyCode, quint32 modifiers) {
        const auto state = X11ModifierMasks::read(hand.connection()).state(modifiers);
        const xcb_screen_t* screen =
            xcb_setup_roots_iterator(xcb_get_setup(hand.connection())).data;
        const auto cookie =
            xcb_grab_key_checked(hand.connection(), 0, screen->root, *state, serverKey(keyCode),
                                 XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
        EXPECT_EQ(xcb_request_check(hand.connection(), cookie), nullptr);
    }

    /// Time for what must not come.
    void settle() { QTest::qWait(100); }

    X11HotKeyRegistrar registrar;
    X11Hand hand;

private:
    bool m_areLocksOn = false;
};

template <typename Keyboard>
class HotKeyRegistrarContract : public testing::Test {
protected:
    HotKeyRegistrarContract() {
        QObject::connect(&m_keyboard.registrar, &HotKeyRegistrar::pressed, &m_keyboard.registrar,
                         [this](quint32 id) { m_presses.push_back(id); });
        QObject::connect(&m_keyboard.registrar, &HotKeyRegistrar::released, &m_keyboard.registrar,
                         [this](quint32 id) { m_releases.push_back(id); });
    }

    void SetUp() override {
        if (!Keyboard::canTest())
            GTEST_SKIP() << "needs an X server";
    }
    void TearDown() override { m_keyboard.setLocks(false); }

    Status hold(quint32 id, quint32 keyCode, quint32 modifiers) {
        return m_keyboard.registrar.registerHotKey(id, keyCode, modifiers);
    }
    bool waitForReleases(std::size_t count) {
        return QTest::qWaitFor([this, count] { return m_releases.size() >= count; },
                               patienceMilliseconds);
    }
    void tap(quint32 keyCode, quint32 modifiers) {
        m_keyboard.press(keyCode, modifiers);
        m_keyboard.release(keyCode, modifiers);
    }

    Keyboard m_keyboard;
    std::vector<quint32> m_presses;
    std::vector<quint32> m_releases;
};

struct KeyboardNames {
    template <typename Keyboard>
    static std::string GetName(int) {
        return std::is_same_v<Keyboard, FakeKeyboard> ? "Fake" : "X11";
    }
};

using Keyboards = testing::Types<FakeKeyboard, GrabbedKeyboard>;
TYPED_TEST_SUITE(HotKeyRegistrarContract, Keyboards, KeyboardNames);

TYPED_TEST(HotKeyRegistrarContract, ReportsThePressAndTheReleaseUnderTheId) {
    ASSERT_EQ(this->hold(7, keyC, controlKey | optionKey), Status::Registered);
    this->m_keyboard.press(keyC, controlKey | optionKey);
    ASSERT_TRUE(QTest::qWaitFor([this] { return !this->m_presses.empty(); }));
    EXPECT_THAT(this->m_presses, ElementsAre(7));
    EXPECT_THAT(this->m_releases, IsEmpty());
    this->m_keyboard.release(keyC, controlKey | optionKey);
    ASSERT_TRUE(this->waitForReleases(1));
    EXPECT_THAT(this->m_releases, ElementsAre(7));
}

TYPED_TEST(HotKeyRegistrarContract, KnowsEveryModifierButFunction) {
    for (const quint32 modifiers : {commandKey, shiftKey, optionKey, controlKey,
                                    commandKey | shiftKey | optionKey | controlKey}) {
        this->m_releases.clear();
        ASSERT_EQ(this->hold(modifiers, keyC, modifiers), Status::Registered);
        this->tap(keyC, modifiers);
        ASSERT_TRUE(this->waitForReleases(1)) << modifiers;
        EXPECT_THAT(this->m_releases, ElementsAre(modifiers));
    }
    EXPECT_EQ(this->hold(1, keyC, functionKey | controlKey), Status::Unavailable);
}

TYPED_TEST(HotKeyRegistrarContract, AHeldKeyIsOnePress) {
    ASSERT_EQ(this->hold(1, keyC, controlKey), Status::Registered);
    this->m_keyboard.hold(keyC, controlKey);
    EXPECT_THAT(this->m_releases, IsEmpty());
    this->m_keyboard.release(keyC, controlKey);
    ASSERT_TRUE(this->waitForReleases(1));
    this->m_keyboard.settle();
    EXPECT_THAT(this->m_presses, ElementsAre(1));
    EXPECT_THAT(this->m_releases, ElementsAre(1));
}

TYPED_TEST(HotKeyRegistrarContract, TheReleaseComesAlsoWhenTheModifiersGoUpFirst) {
    ASSERT_EQ(this->hold(1, keyC, controlKey | shiftKey), Status::Registered);
    this->m_keyboard.press(keyC, controlKey | shiftKey);
    this->m_keyboard.releaseModifiersFirst(keyC, controlKey | shiftKey);
    ASSERT_TRUE(this->waitForReleases(1));
    EXPECT_THAT(this->m_releases, ElementsAre(1));
}

TYPED_TEST(HotKeyRegistrarContract, LocksMakeNoDifference) {
    ASSERT_EQ(this->hold(1, keyC, controlKey), Status::Registered);
    this->m_keyboard.setLocks(true);
    this->tap(keyC, controlKey);
    EXPECT_TRUE(this->waitForReleases(1));
    this->m_keyboard.settle();
    EXPECT_THAT(this->m_presses, ElementsAre(1));
}

TYPED_TEST(HotKeyRegistrarContract, OtherCombinationsOfTheKeyAreNotReported) {
    ASSERT_EQ(this->hold(1, keyC, controlKey), Status::Registered);
    this->tap(keyC, controlKey | shiftKey);
    this->tap(keyC, 0);
    this->tap(keyP, controlKey);
    this->m_keyboard.settle();
    EXPECT_THAT(this->m_presses, IsEmpty());
}

TYPED_TEST(HotKeyRegistrarContract, TellsEachIdFromTheOthers) {
    ASSERT_EQ(this->hold(1, keyC, controlKey), Status::Registered);
    ASSERT_EQ(this->hold(2, keyP, controlKey), Status::Registered);
    this->tap(keyP, controlKey);
    this->tap(keyC, controlKey);
    ASSERT_TRUE(this->waitForReleases(2));
    EXPECT_THAT(this->m_releases, ElementsAre(2, 1));
}

TYPED_TEST(HotKeyRegistrarContract, ReportsNothingOnceUnregistered) {
    ASSERT_EQ(this->hold(1, keyC, controlKey), Status::Registered);
    this->m_keyboard.registrar.unregisterHotKey(1);
    this->tap(keyC, controlKey);
    this->m_keyboard.settle();
    EXPECT_THAT(this->m_presses, IsEmpty());
    EXPECT_EQ(this->hold(1, keyC, controlKey), Status::Registered);
    this->tap(keyC, controlKey);
    EXPECT_TRUE(this->waitForReleases(1));
}

TYPED_TEST(HotKeyRegistrarContract, UnregisteredWhileItIsDownItReportsNoRelease) {
    ASSERT_EQ(this->hold(1, keyC, controlKey), Status::Registered);
    this->m_keyboard.press(keyC, controlKey);
    ASSERT_TRUE(QTest::qWaitFor([this] { return !this->m_presses.empty(); }));
    this->m_keyboard.registrar.unregisterHotKey(1);
    this->m_keyboard.release(keyC, controlKey);
    this->m_keyboard.settle();
    EXPECT_THAT(this->m_releases, IsEmpty());
}

TYPED_TEST(HotKeyRegistrarContract, SaysThatAnotherProgramHasTheCombinationAndLeavesNothingBehind) {
    this->m_keyboard.takeInAnotherProgram(keyC, controlKey);
    EXPECT_EQ(this->hold(1, keyC, controlKey), Status::Taken);
    this->tap(keyC, controlKey);
    this->m_keyboard.settle();
    EXPECT_THAT(this->m_presses, IsEmpty());
    EXPECT_EQ(this->hold(1, keyP, controlKey), Status::Registered);
}

TYPED_TEST(HotKeyRegistrarContract, ACombinationOfOursIsTakenForOthersOfOurs) {
    ASSERT_EQ(this->hold(1, keyC, controlKey), Status::Registered);
    EXPECT_EQ(this->hold(2, keyC, controlKey), Status::Taken);
    this->tap(keyC, controlKey);
    ASSERT_TRUE(this->waitForReleases(1));
    EXPECT_THAT(this->m_presses, ElementsAre(1));
}

TEST(X11HotKeys, AKeyThatNoKeyboardHasIsUnavailable) {
    if (!X11Hand::isThere())
        GTEST_SKIP() << "needs an X server";
    X11HotKeyRegistrar registrar;
    EXPECT_EQ(registrar.registerHotKey(1, noSuchKey, controlKey), Status::Unavailable);
    EXPECT_EQ(registrar.registerHotKey(1, 4000000000U, controlKey), Status::Unavailable);
}

TEST(X11HotKeys, GoOnWhenAModifierMovesAndWhenTheLayoutChanges) {
    if (!X11Hand::isThere())
        GTEST_SKIP() << "needs an X server";
    GrabbedKeyboard keyboard;
    int releases = 0;
    QObject::connect(&keyboard.registrar, &HotKeyRegistrar::released, &keyboard.registrar,
                     [&](quint32) { ++releases; });
    ASSERT_EQ(keyboard.registrar.registerHotKey(1, keyC, commandKey), Status::Registered);
    const auto press = [&] {
        // Time for the news of the keyboard, which comes before the key on another connection.
        QTest::qWait(200);
        const int before = releases;
        keyboard.press(keyC, commandKey);
        keyboard.release(keyC, commandKey);
        return QTest::qWaitFor([&] { return releases == before + 1; });
    };
    EXPECT_TRUE(press());
    const auto run = [](const QString& program, const QStringList& arguments) {
        return QProcess::execute(program, arguments);
    };
    // Super from the fourth modifier to the third.
    ASSERT_EQ(run(QStringLiteral("xmodmap"),
                  {QStringLiteral("-e"), QStringLiteral("remove mod4 = Super_L Super_R"),
                   QStringLiteral("-e"), QStringLiteral("add mod3 = Super_L Super_R")}),
              0);
    EXPECT_TRUE(press());
    ASSERT_EQ(run(QStringLiteral("setxkbmap"), {QStringLiteral("gr")}), 0);
    EXPECT_TRUE(press());
    ASSERT_EQ(run(QStringLiteral("setxkbmap"), {QStringLiteral("us")}), 0);
    EXPECT_TRUE(press());
}

} // namespace
} // namespace dropshade
