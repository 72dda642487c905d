// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "widgets/WindowFrames.h"

#include "support/MemoryDefaults.h"

#include <gtest/gtest.h>

namespace dropshade {
namespace {

const QString name = QStringLiteral("ConvertWindow");
const QString key = QStringLiteral("windowFrame.ConvertWindow");
const QList<QRect> oneScreen{QRect(0, 0, 1280, 800)};

TEST(WindowFrames, AFrameComesBackAsItWasStored) {
    MemoryDefaults defaults;
    EXPECT_FALSE(storedWindowFrame(defaults, name));
    storeWindowFrame(defaults, name, QRect(-40, 20, 400, 600));
    EXPECT_EQ(storedWindowFrame(defaults, name), QRect(-40, 20, 400, 600));
}

TEST(WindowFrames, EachWindowHasItsOwn) {
    MemoryDefaults defaults;
    storeWindowFrame(defaults, name, QRect(1, 2, 3, 4));
    EXPECT_FALSE(storedWindowFrame(defaults, QStringLiteral("ContrastWindow")));
}

TEST(WindowFrames, JunkReadsAsNoFrame) {
    for (const char* junk : {"", "1 2 3", "1 2 3 4 5", "a b c d", "0 0 0 0", "0 0 -5 10",
                             "99999999999 0 10 10", "2000000000 0 10 10"}) {
        MemoryDefaults defaults;
        defaults.setValue(key, QString::fromLatin1(junk));
        EXPECT_FALSE(storedWindowFrame(defaults, name)) << junk;
    }
}

TEST(WindowFrames, AnUnchangedFrameIsNotWrittenAgain) {
    MemoryDefaults defaults;
    int writes = 0;
    QObject::connect(&defaults, &UserDefaults::didChange, [&writes] { ++writes; });
    storeWindowFrame(defaults, name, QRect(1, 2, 300, 400));
    storeWindowFrame(defaults, name, QRect(1, 2, 300, 400));
    EXPECT_EQ(writes, 1);
}

TEST(WindowFrames, AWindowOnAScreenStaysWhereItIs) {
    EXPECT_EQ(onScreens(QRect(100, 100, 400, 600), oneScreen), QRect(100, 100, 400, 600));
}

TEST(WindowFrames, AWindowOfAScreenThatIsGoneComesToOneThatIsThere) {
    EXPECT_EQ(onScreens(QRect(1500, 100, 400, 600), oneScreen), QRect(880, 100, 400, 600));
}

TEST(WindowFrames, AWindowLargerThanTheScreenIsCutToIt) {
    EXPECT_EQ(onScreens(QRect(-50, -50, 4000, 3000), oneScreen), oneScreen.first());
}

TEST(WindowFrames, TheScreenThatShowsMostOfTheWindowKeepsIt) {
    const QList<QRect> screens{QRect(0, 0, 1000, 800), QRect(1000, 0, 1000, 800)};
    EXPECT_EQ(onScreens(QRect(900, 0, 400, 400), screens), QRect(1000, 0, 400, 400));
}

} // namespace
} // namespace dropshade
