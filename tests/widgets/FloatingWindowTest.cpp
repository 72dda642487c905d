// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "widgets/FloatingWindow.h"

#include "support/FakeAppearance.h"
#include "support/MemoryDefaults.h"
#include "widgets/WindowFrames.h"

#include <QTest>

#include <gtest/gtest.h>

namespace dropshade {
namespace {

const QString name = QStringLiteral("Window");
const QRect stored(20, 30, 300, 200);

class Window : public FloatingWindow {
public:
    explicit Window(const Look& look) : FloatingWindow(look) {}
};

/// Settings that another process keeps from being read, but not from being written later.
class UnreadableDefaults : public MemoryDefaults {
public:
    [[nodiscard]] std::optional<DefaultsValue> value(const QString& key) const override {
        m_refusedReads += isUnreadable ? 1 : 0;
        return isUnreadable ? std::nullopt : MemoryDefaults::value(key);
    }
    [[nodiscard]] int refusedReads() const override { return m_refusedReads; }

    bool isUnreadable = false;

private:
    mutable int m_refusedReads = 0;
};

/// The frame that is stored after a window has been opened, resized and closed.
std::optional<QRect> frameAfterUse(UnreadableDefaults& defaults, bool isUnreadable) {
    FakeAppearance appearance;
    const Look look(appearance);
    Window window(look);
    defaults.isUnreadable = isUnreadable;
    window.rememberFrame(defaults, name, QSize(400, 400));
    defaults.isUnreadable = false;
    window.show();
    window.resize(500, 450);
    window.close();
    return storedWindowFrame(defaults, name);
}

TEST(FloatingWindow, StoresTheFrameThatTheUserGaveIt) {
    UnreadableDefaults defaults;
    storeWindowFrame(defaults, name, stored);
    const auto frame = frameAfterUse(defaults, false);
    ASSERT_TRUE(frame);
    EXPECT_EQ(frame->size(), QSize(500, 450));
}

TEST(FloatingWindow, LeavesAFrameThatCouldNotBeReadAsItIs) {
    UnreadableDefaults defaults;
    storeWindowFrame(defaults, name, stored);
    EXPECT_EQ(frameAfterUse(defaults, true), stored);
}

} // namespace
} // namespace dropshade
