// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "app/AppDelegate.h"
#include "support/FakePlatform.h"
#include "support/QtPrinters.h"
#include "widgets/Picker.h"
#include "widgets/TextButton.h"
#include "widgets/TextField.h"
#include "widgets/Toggle.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QTest>

#include <gtest/gtest.h>

#include <algorithm>

namespace dropshade {

/// The real window of the real program on a desktop of fakes, used as a user does.
class SettingsFixture : public testing::Test {
protected:
    QWidget& window() {
        if (!delegate.settingsController().window())
            open();
        return *delegate.settingsController().window();
    }
    void open() {
        delegate.openSettings();
        QApplication::setActiveWindow(delegate.settingsController().window());
    }
    template <typename Control>
    Control* find(const char* name) {
        const auto all = window().findChildren<Control*>();
        const auto found = std::find_if(all.begin(), all.end(), [name](const Control* control) {
            return control->accessibleName() == QString::fromUtf8(name);
        });
        EXPECT_NE(found, all.end()) << name;
        return *found;
    }
    Toggle* toggle(const char* name) { return find<Toggle>(name); }
    void click(QWidget* control) {
        // Rows that have just come find their places.
        QCoreApplication::processEvents();
        QTest::mouseClick(control, Qt::LeftButton);
    }
    /// The Tab key as a keyboard sends it, with its place.
    static void pressTab(QWidget* focused) {
        constexpr quint32 tab = 48;
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier,
                        tab + FakeKeyboardLayout::scanCodeOffset, 0, 0);
        QApplication::sendEvent(focused, &press);
    }
    void type(TextField* field, const char* text) {
        field->setFocus();
        field->selectAll();
        QTest::keyClicks(field, QString::fromUtf8(text));
        QTest::keyClick(field, Qt::Key_Return);
    }
    /// Opens the picker's list and chooses its row of that title.
    void choose(Picker* picker, const QString& title) {
        click(picker);
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(menu, nullptr);
        for (QAction* action : menu->actions()) {
            if (action->text() == title)
                action->trigger();
        }
        menu->close();
    }
    /// What the list of a picker offers, a bar between two rows and a dash for a divider.
    QString choices(const char* name) {
        click(find<Picker>(name));
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        EXPECT_NE(menu, nullptr) << name;
        QStringList all;
        for (const QAction* action : menu->actions())
            all.append(action->isSeparator() ? QStringLiteral("-") : action->text());
        menu->close();
        return all.join(u'|');
    }
    /// The labels in view as they stand, from the top.
    [[nodiscard]] QStringList wordsFromTop() {
        QCoreApplication::processEvents();
        QMap<int, QString> words;
        for (const auto* label : window().findChildren<QLabel*>()) {
            if (label->isVisible() && !label->text().isEmpty())
                words.insert(label->mapTo(&window(), QPoint()).y(), label->text());
        }
        return words.values();
    }
    [[nodiscard]] bool showsWords(const QString& words) {
        const auto labels = window().findChildren<QLabel*>();
        return std::any_of(labels.begin(), labels.end(), [&words](const QLabel* label) {
            return label->isVisible() && label->text() == words;
        });
    }

    FakePlatform fakes;
    AppDelegate delegate{std::move(fakes.platform)};
};

} // namespace dropshade
