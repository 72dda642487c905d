// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/linux/XkbKeyboardLayout.h"

#include "support/QtPrinters.h"
#include "support/X11Hand.h"

#include <QProcess>

#include <gtest/gtest.h>

namespace dropshade {
namespace {

constexpr quint32 keyA = 0;
constexpr quint32 keyQ = 12;
constexpr quint32 keyY = 16;
constexpr quint32 keyEqual = 24;
constexpr quint32 keySemicolon = 41;
constexpr quint32 keyReturn = 36;
constexpr quint32 keyF1 = 122;

/// A layout as the system's default, or as that of the X server where there is one.
class XkbKeyboardLayoutTest : public testing::Test {
protected:
    static void use(const char* layouts) {
        qputenv("XKB_DEFAULT_LAYOUT", layouts);
        if (X11Hand::isThere()) {
            ASSERT_EQ(QProcess::execute(QStringLiteral("setxkbmap"), {QString::fromUtf8(layouts)}),
                      0);
        }
    }
    ~XkbKeyboardLayoutTest() override { use("us"); }
};

TEST_F(XkbKeyboardLayoutTest, GivesTheLettersOfTheUsersLayout) {
    use("us");
    EXPECT_EQ(XkbKeyboardLayout().character(keyY), QStringLiteral("y"));
    use("de");
    EXPECT_EQ(XkbKeyboardLayout().character(keyY), QStringLiteral("z"));
    EXPECT_EQ(XkbKeyboardLayout().character(keySemicolon), QStringLiteral("ö"));
    use("fr");
    EXPECT_EQ(XkbKeyboardLayout().character(keyQ), QStringLiteral("a"));
}

TEST_F(XkbKeyboardLayoutTest, GivesTheAccentOfADeadKey) {
    use("de");
    EXPECT_EQ(XkbKeyboardLayout().character(keyEqual), QStringLiteral("´"));
}

TEST_F(XkbKeyboardLayoutTest, TakesTheFirstLayoutWithLatinLettersWhereTheOneInUseHasNone) {
    use("gr,fr");
    EXPECT_EQ(XkbKeyboardLayout().character(keyQ), QStringLiteral("a"));
}

TEST_F(XkbKeyboardLayoutTest, TakesTheOneInUseWhereNoneHasLatinLetters) {
    use("gr");
    EXPECT_EQ(XkbKeyboardLayout().character(keyA), QStringLiteral("α"));
}

TEST_F(XkbKeyboardLayoutTest, GivesNothingForKeysThatMakeNoCharacter) {
    use("us");
    for (const quint32 key : {keyReturn, keyF1, quint32(55), quint32(4000000000U)})
        EXPECT_EQ(XkbKeyboardLayout().character(key), QString()) << key;
}

TEST_F(XkbKeyboardLayoutTest, SeesThatTheServersLayoutHasChanged) {
    if (!X11Hand::isThere())
        GTEST_SKIP() << "needs an X server";
    use("us");
    const XkbKeyboardLayout layout;
    EXPECT_EQ(layout.character(keyY), QStringLiteral("y"));
    use("de");
    EXPECT_EQ(layout.character(keyY), QStringLiteral("z"));
}

TEST_F(XkbKeyboardLayoutTest, KnowsTheKeyOfANativeScanCode) {
    EXPECT_EQ(XkbKeyboardLayout().keyCode(38), keyA);
    EXPECT_EQ(XkbKeyboardLayout().keyCode(37), std::nullopt) << "Control";
    EXPECT_EQ(XkbKeyboardLayout().keyCode(0), std::nullopt);
}

} // namespace
} // namespace dropshade
