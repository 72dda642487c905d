// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/linux/WaylandKeymap.h"

#include "platform/linux/XkbKeyboardLayout.h"
#include "support/QtPrinters.h"

#include <QGuiApplication>

#include <gtest/gtest.h>

namespace dropshade {
namespace {

constexpr quint32 keyY = 16;

bool isOnWayland() {
    return QGuiApplication::platformName().startsWith(QStringLiteral("wayland"));
}

TEST(WaylandKeymapTest, IsEmptyWhereThereIsNoCompositor) {
    const QByteArray display = qgetenv("WAYLAND_DISPLAY");
    qputenv("WAYLAND_DISPLAY", "wayland-of-nobody");
    EXPECT_EQ(waylandKeymap(), QByteArray());
    if (!display.isNull())
        qputenv("WAYLAND_DISPLAY", display);
}

TEST(WaylandKeymapTest, IsWholeAndTheSameWhenAskedAgain) {
    if (!isOnWayland())
        GTEST_SKIP() << "no compositor";
    const QByteArray keymap = waylandKeymap();
    EXPECT_TRUE(keymap.startsWith("xkb_keymap {"));
    EXPECT_TRUE(keymap.trimmed().endsWith("};"));
    EXPECT_EQ(waylandKeymap(), keymap);
}

TEST(WaylandKeymapTest, TheLettersAreThoseOfTheCompositorsLayoutAndNotOfTheSystems) {
    if (!isOnWayland())
        GTEST_SKIP() << "no compositor";
    qputenv("XKB_DEFAULT_LAYOUT", "gr");
    EXPECT_EQ(XkbKeyboardLayout().character(keyY), qEnvironmentVariable("LETTER_OF_Y"));
}

} // namespace
} // namespace dropshade
