// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT

// How the windows are reached, and what becomes of them.

#include "app/AppDelegate.h"
#include "app/SettingsReaders.h"
#include "imagepalette/NewPaletteFromImageView.h"
#include "palettes/PaletteList.h"
#include "palettes/PalettesWindow.h"
#include "palettes/PresetPickerSheet.h"
#include "support/FakePlatform.h"
#include "support/QtPrinters.h"

#include <QApplication>
#include <QLabel>
#include <QMenu>
#include <QPointer>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include <algorithm>
#include <tuple>

namespace dropshade {
namespace {

class AppDelegateWindows : public testing::Test {
protected:
    AppDelegateWindows() {
        qputenv("HOME", QFile::encodeName(home.path()));
        delegate.applicationDidFinishLaunching();
    }

    static QWidget* shown(const QString& title) {
        QApplication::processEvents();
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            if (widget->isVisible() && widget->windowTitle() == title)
                return widget;
        }
        return nullptr;
    }
    static void close(QWidget* window) {
        window->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    /// Chooses rows of the menu, which goes away once events are heard.
    void chooseRows(std::initializer_list<const char*> titles) {
        fakes.statusItem.click();
        const auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(menu, nullptr);
        for (const char* title : titles) {
            const auto rows = menu->actions();
            const auto row = std::find_if(rows.begin(), rows.end(), [title](const QAction* each) {
                return each->text() == QString::fromUtf8(title);
            });
            ASSERT_NE(row, rows.end()) << title;
            (*row)->trigger();
        }
    }
    PalettesWindow& palettesWindow() {
        delegate.openPalettes();
        auto* window = qobject_cast<PalettesWindow*>(shown(palettes));
        EXPECT_NE(window, nullptr);
        return *window;
    }
    /// A click on the first swatch of all.
    void copySwatch(PalettesWindow& window) {
        const Palette palette = delegate.paletteStore().palettes().first();
        const PaletteScale& scale = palette.scales().first();
        Q_EMIT window.list().activationRequested(
            {ListElement::Part::Swatch, palette.id(), scale.id(), scale.swatches().first().id()});
    }
    static bool says(QWidget& window, const QString& words) {
        const auto labels = window.findChildren<QLabel*>();
        return std::any_of(labels.begin(), labels.end(), [&words](const QLabel* label) {
            return label->isVisible() && label->text() == words;
        });
    }

    const QString settings = QStringLiteral("Dropshade Settings");
    const QString about = QStringLiteral("About");
    const QString convert = QStringLiteral("Color Picker");
    const QString contrast = QStringLiteral("Check Contrast");
    const QString palettes = QStringLiteral("Palettes");

    QTemporaryDir home;
    FakePlatform fakes;
    AppDelegate delegate{std::move(fakes.platform)};
};

TEST_F(AppDelegateWindows, EachShortcutBringsUpItsOwnWindowOnRelease) {
    const std::tuple<ShortcutName, quint32, QString> rows[] = {
        {shortcutNames::convert, 122, convert},
        {shortcutNames::palettes, 120, palettes},
        {shortcutNames::checkContrast, 99, contrast}};
    for (const auto& [name, key, title] : rows) {
        delegate.shortcuts().setShortcut(Shortcut{key, 0}, name);
        fakes.hotKeys.press({key, 0});
        EXPECT_EQ(shown(title), nullptr) << title.toStdString();
        fakes.hotKeys.release(key);
        EXPECT_NE(shown(title), nullptr) << title.toStdString();
    }
    EXPECT_FALSE(delegate.isPicking());
}

TEST_F(AppDelegateWindows, EachRowOfTheMenuOpensWhatItNames) {
    chooseRows({"Color Picker…", "Palettes…", "Check Contrast…", "Settings…", "About…",
                "Check for Updates…"});
    for (const QString& title : {convert, palettes, contrast, settings, about})
        EXPECT_NE(shown(title), nullptr) << title.toStdString();
    EXPECT_EQ(fakes.feedFetcher.fetchCount(), 1);
}

TEST_F(AppDelegateWindows, APaletteFromAFileStartsWithThePalettesAndAPanel) {
    chooseRows({"New Palette from File… (.ase, .clr, .json)"});
    EXPECT_NE(shown(palettes), nullptr);
    ASSERT_EQ(fakes.filePanels.panels().size(), 1);
    EXPECT_EQ(fakes.filePanels.panels().at(0).kind.extensions.join(u' '),
              QStringLiteral("ase clr json"));
}

TEST_F(AppDelegateWindows, APaletteFromAnImageStartsWithThePalettesAndTheSheet) {
    chooseRows({"New Palette from Image…"});
    EXPECT_NE(shown(palettes), nullptr);
    const auto widgets = QApplication::allWidgets();
    EXPECT_TRUE(std::any_of(widgets.begin(), widgets.end(), [](QWidget* widget) {
        return qobject_cast<NewPaletteFromImageView*>(widget) && widget->isVisible();
    }));
}

TEST_F(AppDelegateWindows, ThePresetsComeATurnAfterThePalettes) {
    chooseRows({"New Palette from Preset…"});
    QWidget* window = shown(palettes);
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(window->findChild<PresetPickerSheet*>(), nullptr);
    fakes.scheduler.advance(0);
    EXPECT_NE(window->findChild<PresetPickerSheet*>(), nullptr);
}

TEST_F(AppDelegateWindows, AnImportBringsUpThePalettesWhateverComesOfIt) {
    delegate.importPalette("{", QStringLiteral("json"), std::nullopt);
    ASSERT_NE(shown(palettes), nullptr);
    fakes.backgroundQueue.workAndLand();
    EXPECT_EQ(fakes.alerts.shown().size(), 1);
    shown(palettes)->close();
    delegate.importPalette(R"({"name":"Inner","scales":[]})", QStringLiteral("json"), std::nullopt);
    EXPECT_NE(shown(palettes), nullptr);
    fakes.backgroundQueue.workAndLand();
    EXPECT_EQ(delegate.paletteStore().palettes().first().name(), QStringLiteral("Inner"));
}

TEST_F(AppDelegateWindows, AllFloatAboveOthersAndNoneCanBeMinimised) {
    delegate.openSettings();
    delegate.openAbout();
    delegate.openColorPicker();
    delegate.openContrast();
    delegate.openPalettes();
    for (const QString& title : {settings, about, convert, contrast, palettes}) {
        const QWidget* window = shown(title);
        ASSERT_NE(window, nullptr) << title.toStdString();
        EXPECT_TRUE(window->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
        EXPECT_TRUE(window->windowFlags().testFlag(Qt::WindowCloseButtonHint));
        EXPECT_FALSE(window->windowFlags().testFlag(Qt::WindowMinimizeButtonHint));
    }
}

TEST_F(AppDelegateWindows, OnlyThoseWithListsCanBeResized) {
    delegate.openSettings();
    delegate.openAbout();
    delegate.openColorPicker();
    delegate.openContrast();
    delegate.openPalettes();
    for (const QString& title : {settings, about, contrast})
        EXPECT_EQ(shown(title)->minimumSize(), shown(title)->maximumSize()) << title.toStdString();
    EXPECT_EQ(shown(convert)->size(), QSize(400, 600));
    EXPECT_EQ(shown(convert)->minimumSize(), QSize(380, 440));
    EXPECT_EQ(shown(palettes)->size(), QSize(560, 620));
    EXPECT_EQ(shown(palettes)->minimumSize(), QSize(160, 280));
    for (const QString& title : {convert, palettes})
        EXPECT_GT(shown(title)->maximumWidth(), 10000) << title.toStdString();
}

TEST_F(AppDelegateWindows, SettingsAndPalettesAreKeptOverACloseAndTheOthersBuiltAnew) {
    const auto reopened = [&](const QString& title, void (AppDelegate::*open)()) {
        (delegate.*open)();
        const QPointer<QWidget> before = shown(title);
        close(before);
        (delegate.*open)();
        EXPECT_NE(shown(title), nullptr) << title.toStdString();
        return before && before == shown(title);
    };
    EXPECT_TRUE(reopened(settings, &AppDelegate::openSettings));
    EXPECT_TRUE(reopened(palettes, &AppDelegate::openPalettes));
    EXPECT_FALSE(reopened(about, &AppDelegate::openAbout));
    EXPECT_FALSE(reopened(convert, &AppDelegate::openColorPicker));
    EXPECT_FALSE(reopened(contrast, &AppDelegate::openContrast));
}

TEST_F(AppDelegateWindows, ASwatchIsCopiedCountedRememberedAndHeard) {
    fakes.defaults.setValue(keys::colorFormat, QStringLiteral("cssRGB"));
    PalettesWindow& window = palettesWindow();
    copySwatch(window);
    EXPECT_TRUE(fakes.pasteboard.text().startsWith(QStringLiteral("rgb(")));
    EXPECT_EQ(fakes.defaults.read<qint64>(keys::totalChecksCount), 1);
    EXPECT_EQ(loadRecentColors(fakes.defaults).size(), 1);
    EXPECT_EQ(fakes.soundPlayer.played().size(), 1);
}

TEST_F(AppDelegateWindows, ACopyClosesThePalettesOnlyWhereTheSettingSaysSo) {
    PalettesWindow& window = palettesWindow();
    copySwatch(window);
    EXPECT_TRUE(window.isVisible());
    delegate.settings().setClosePaletteDialogOnCopy(true);
    delegate.copyColor(SRGBColor(1.0, 0.0, 0.0));
    EXPECT_TRUE(window.isVisible()) << "a copy from elsewhere";
    copySwatch(window);
    EXPECT_FALSE(window.isVisible());
}

TEST_F(AppDelegateWindows, WithoutPalettesTheWindowTellsThePresentShortcutOrHowToSetOne) {
    delegate.paletteStore().setPalettes({});
    PalettesWindow& window = palettesWindow();
    EXPECT_TRUE(says(window, QStringLiteral("No palettes yet")));
    EXPECT_TRUE(
        says(window, QStringLiteral("Organize your colors into palettes for quick access. Start "
                                    "from a built-in preset or create a blank palette to fill in "
                                    "yourself.")));
    const QString howTo =
        QStringLiteral("Tip: Set a hotkey in Settings to open Palettes from anywhere.");
    EXPECT_TRUE(says(window, howTo));
    delegate.shortcuts().setShortcut(Shortcut{96, controlKey}, shortcutNames::palettes);
    EXPECT_TRUE(says(window, QStringLiteral("Tip: Press ⌃F5 from anywhere to open Palettes.")));
    delegate.shortcuts().setShortcut(std::nullopt, shortcutNames::palettes);
    EXPECT_TRUE(says(window, howTo));
}

TEST_F(AppDelegateWindows, WhereTheDesktopHasTheKeysTheWindowTellsThatOfTheDesktop) {
    fakes.hotKeys.setAvailable(false);
    delegate.shortcuts().setShortcut(Shortcut{96, controlKey}, shortcutNames::palettes);
    delegate.paletteStore().setPalettes({});
    PalettesWindow& window = palettesWindow();
    EXPECT_TRUE(says(
        window, QStringLiteral("Tip: Set a hotkey in Settings to open Palettes from anywhere.")));
    fakes.desktopShortcuts.answer(
        {{shortcutNames::palettes.rawValue, QStringLiteral("Meta+Shift+P")}});
    EXPECT_TRUE(
        says(window, QStringLiteral("Tip: Press Meta+Shift+P from anywhere to open Palettes.")));
}

} // namespace
} // namespace dropshade
