// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "KeyboardShortcuts/RecorderCocoa.h"

#include "platform/ModifierKeys.h"
#include "support/FakeAlerts.h"
#include "support/FakeAppearance.h"
#include "support/FakeHotKeyRegistrar.h"
#include "support/FakeKeyboardLayout.h"
#include "support/MemoryDefaults.h"
#include "support/QtPrinters.h"
#include "widgets/FloatingWindow.h"
#include "widgets/IconButton.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTest>
#include <QVBoxLayout>

#include <gtest/gtest.h>

namespace dropshade {
namespace {

constexpr std::uint32_t keyP = 35;
constexpr std::uint32_t keyW = 13;
constexpr std::uint32_t keyTab = 48;
constexpr std::uint32_t keyEscape = 53;

class Window : public FloatingWindow {
public:
    explicit Window(const Look& look) : FloatingWindow(look), lines(new QVBoxLayout(this)) {}

    QVBoxLayout* lines;
};

class RecorderCocoaTest : public testing::Test {
protected:
    RecorderCocoaTest() {
        window.lines->addWidget(before);
        window.lines->addWidget(recorder);
        window.resize(300, 200);
        window.show();
        QApplication::setActiveWindow(&window);
    }

    /// The events of one key as a keyboard sends them.
    void press(std::uint32_t keyCode, int key, Qt::KeyboardModifiers modifiers = {}) {
        const quint32 scan = keyCode + FakeKeyboardLayout::scanCodeOffset;
        QWidget* target = QApplication::focusWidget() ? QApplication::focusWidget() : &window;
        for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event(type, key, modifiers, scan, 0, 0);
            if (type == QEvent::KeyPress && goesToAShortcut(target, key, modifiers, scan))
                continue;
            QApplication::sendEvent(target, &event);
        }
    }
    /// What the window's own shortcuts make of a key before its control sees it.
    static bool goesToAShortcut(QWidget* target, int key, Qt::KeyboardModifiers modifiers,
                                quint32 scan) {
        QKeyEvent override(QEvent::ShortcutOverride, key, modifiers, scan, 0, 0);
        override.ignore();
        QApplication::sendEvent(target, &override);
        if (override.isAccepted())
            return false;
        QTest::keyClick(target->window(), static_cast<Qt::Key>(key), modifiers);
        return true;
    }
    [[nodiscard]] IconButton* cancelButton() const { return recorder->findChild<IconButton*>(); }
    [[nodiscard]] std::optional<Shortcut> stored() const {
        return shortcuts.getShortcut(shortcutNames::pickColor);
    }

    MemoryDefaults defaults;
    FakeHotKeyRegistrar keyboard;
    FakeKeyboardLayout layout;
    FakeAppearance appearance;
    Look look{appearance};
    FakeAlerts alerts;
    KeyboardShortcuts shortcuts{defaults, keyboard, layout};
    Window window{look};
    QLineEdit* before = new QLineEdit(&window);
    RecorderCocoa* recorder = new RecorderCocoa(look, {shortcuts, alerts}, shortcutNames::pickColor,
                                                QStringLiteral("Quick Pick"), &window);
};

TEST_F(RecorderCocoaTest, DoesNotListenUntilItIsAsked) {
    EXPECT_FALSE(recorder->model().isRecording());
    EXPECT_FALSE(cancelButton()->isVisible());
    EXPECT_EQ(recorder->accessibleName(), QStringLiteral("Quick Pick"));
    EXPECT_EQ(recorder->accessibleDescription(), QStringLiteral("Record Shortcut"));
}

TEST_F(RecorderCocoaTest, AClickMakesItListenAndAClickElsewhereEndsThat) {
    QTest::mouseClick(recorder, Qt::LeftButton);
    EXPECT_TRUE(recorder->model().isRecording());
    EXPECT_EQ(recorder->accessibleDescription(), QStringLiteral("Press Shortcut"));
    QTest::mouseClick(&window, Qt::LeftButton, {}, QPoint(2, 2));
    EXPECT_FALSE(recorder->model().isRecording());
    EXPECT_FALSE(recorder->hasFocus());
}

TEST_F(RecorderCocoaTest, TheTabKeyComesAndGoesAndRecordsNothing) {
    before->setFocus();
    QTest::keyClick(before, Qt::Key_Tab);
    EXPECT_TRUE(recorder->model().isRecording());
    press(keyTab, Qt::Key_Tab);
    EXPECT_FALSE(recorder->model().isRecording());
    EXPECT_FALSE(recorder->hasFocus());
    EXPECT_EQ(stored(), std::nullopt);
}

TEST_F(RecorderCocoaTest, WhatTheWindowWouldTakeIsRecordedInstead) {
    recorder->setFocus(Qt::TabFocusReason);
    press(keyW, Qt::Key_W, Qt::ControlModifier);
    EXPECT_EQ(stored(), (Shortcut{keyW, controlKey}));
    EXPECT_TRUE(window.isVisible());
    EXPECT_TRUE(cancelButton()->isVisible());
}

TEST_F(RecorderCocoaTest, EscapeEndsTheRecordingAndOnlyTheNextOneClosesTheWindow) {
    recorder->setFocus(Qt::TabFocusReason);
    press(keyEscape, Qt::Key_Escape);
    EXPECT_FALSE(recorder->model().isRecording());
    EXPECT_TRUE(window.isVisible());
    press(keyEscape, Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
}

TEST_F(RecorderCocoaTest, AfterARecordingReturnAndSpaceMakeItListenAgain) {
    recorder->setFocus(Qt::TabFocusReason);
    press(keyP, Qt::Key_P, Qt::ControlModifier);
    EXPECT_TRUE(recorder->hasFocus());
    EXPECT_FALSE(recorder->model().isRecording());
    QTest::keyClick(recorder, Qt::Key_Return);
    EXPECT_TRUE(recorder->model().isRecording());
    recorder->model().endRecording();
    QTest::keyClick(recorder, Qt::Key_Space);
    EXPECT_TRUE(recorder->model().isRecording());
}

TEST_F(RecorderCocoaTest, TheCancelButtonClears) {
    shortcuts.setShortcut(Shortcut{keyP, controlKey}, shortcutNames::pickColor);
    ASSERT_TRUE(cancelButton()->isVisible());
    EXPECT_EQ(cancelButton()->accessibleName(), QStringLiteral("Clear the Shortcut of Quick Pick"));
    QTest::mouseClick(cancelButton(), Qt::LeftButton);
    EXPECT_EQ(stored(), std::nullopt);
    EXPECT_FALSE(cancelButton()->isVisible());
    EXPECT_FALSE(recorder->model().isRecording());
}

TEST_F(RecorderCocoaTest, AWindowThatLosesTheKeyboardOrIsHiddenEndsTheRecording) {
    recorder->setFocus(Qt::TabFocusReason);
    QEvent deactivate(QEvent::WindowDeactivate);
    QApplication::sendEvent(&window, &deactivate);
    EXPECT_FALSE(recorder->model().isRecording());
    recorder->model().beginRecording();
    window.hide();
    EXPECT_FALSE(recorder->model().isRecording());
    EXPECT_FALSE(shortcuts.isPaused());
}

TEST_F(RecorderCocoaTest, AWindowThatComesBackDoesNotListenByItself) {
    recorder->setFocus(Qt::TabFocusReason);
    recorder->model().endRecording();
    QFocusEvent back(QEvent::FocusIn, Qt::ActiveWindowFocusReason);
    QApplication::sendEvent(recorder, &back);
    EXPECT_FALSE(recorder->model().isRecording());
}

TEST_F(RecorderCocoaTest, AfterAnAlertItHasTheKeyboardAndListensAgain) {
    keyboard.take({keyP, controlKey});
    recorder->setFocus(Qt::TabFocusReason);
    press(keyP, Qt::Key_P, Qt::ControlModifier);
    ASSERT_EQ(alerts.shown().size(), 1);
    before->setFocus();
    alerts.answer(0);
    EXPECT_TRUE(recorder->hasFocus());
    EXPECT_TRUE(recorder->model().isRecording());
}

} // namespace
} // namespace dropshade
