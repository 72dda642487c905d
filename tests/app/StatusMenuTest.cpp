// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "app/StatusMenu.h"

#include "KeyboardShortcuts/ShortcutRow.h"
#include "app/SettingsReaders.h"
#include "support/FakeAppearance.h"
#include "support/FakeDesktopShortcuts.h"
#include "support/FakeHotKeyRegistrar.h"
#include "support/FakeKeyboardLayout.h"
#include "support/FakeStatusItem.h"
#include "support/Machine.h"
#include "support/Palettes.h"
#include "support/QtPrinters.h"
#include "support/SignalCount.h"
#include "widgets/Metrics.h"

#include <QApplication>
#include <QMenu>
#include <QTest>
#include <QWindow>

#include <gtest/gtest.h>

namespace dropshade {
namespace {

const QString separator = QStringLiteral("--");

class StatusMenuTest : public testing::Test {
protected:
    StatusMenuTest() { layout.setCharacter(8, QStringLiteral("c")); }

    QMenu* open() {
        menu.show();
        return qobject_cast<QMenu*>(QApplication::activePopupWidget());
    }
    QMenu* reopen() {
        menu.close();
        // A click right after is the one that closed it.
        QTest::qWait(300);
        return open();
    }

    static QStringList titles(const QMenu& of) {
        QStringList all;
        for (const QAction* action : of.actions())
            all.append(action->isSeparator() ? separator : action->text());
        return all;
    }
    static QAction* row(const QMenu& of, const QString& title) {
        for (QAction* action : of.actions()) {
            if (action->text() == title)
                return action;
        }
        return nullptr;
    }
    static QMenu* submenu(const QMenu& of, const QString& title) {
        const QAction* action = row(of, title);
        return action ? QMenu::menuInAction(action) : nullptr;
    }

    static QImage image(const QAction* action) {
        return action ? action->icon().pixmap(metrics::iconMenu).toImage() : QImage();
    }
    /// As menus draw it.
    [[nodiscard]] QImage drawing(Icon icon) const {
        const Theme& theme = look.theme();
        return tintedIcon(icon, theme.textSecondary, theme.textTertiary, metrics::iconMenu)
            .pixmap(metrics::iconMenu)
            .toImage();
    }

    Palette addPalette(const char* name, std::initializer_list<const char*> values) {
        const Palette palette = makePalette(name, {makeScale("scale", values)});
        palettes.append(palette);
        return palette;
    }
    void pin(const Palette& palette, qsizetype swatch) {
        const PaletteScale& scale = palette.scales().first();
        machine.settings().pinSwatch(scale.swatches()[swatch], palette, scale);
    }

    Machine machine;
    QList<Palette> palettes;
    FakeStatusItem item;
    FakeAppearance appearance;
    Look look{appearance};
    FakeHotKeyRegistrar keys;
    FakeKeyboardLayout layout;
    KeyboardShortcuts shortcuts{machine.defaults(), keys, layout};
    FakeDesktopShortcuts desktopKeys;
    DesktopBindings desktopBindings{{desktopKeys, shortcuts, machine.defaults()},
                                    shortcutActions()};
    int paletteLoads = 0;
    StatusMenu menu{item,
                    {machine.defaults(), machine.settings(), shortcuts, desktopBindings,
                     [this]() -> const QList<Palette>& {
                         ++paletteLoads;
                         return palettes;
                     },
                     [this]() -> const Look& { return look; }}};
};

TEST_F(StatusMenuTest, HasItsRowsInOrderAndKeepsTheSeparatorsWhereThereAreNoColors) {
    const QMenu* opened = open();
    ASSERT_NE(opened, nullptr);
    EXPECT_EQ(
        titles(*opened),
        (QStringList{QStringLiteral("Control-click for quick pick"), separator,
                     QStringLiteral("Quick Pick"), QStringLiteral("Color Picker…"),
                     QStringLiteral("Palettes…"), QStringLiteral("Check Contrast…"), separator,
                     QStringLiteral("New Palette from Image…"),
                     QStringLiteral("New Palette from File… (.ase, .clr, .json)"),
                     QStringLiteral("New Palette from Preset…"), separator, separator,
                     QStringLiteral("Settings…"), QStringLiteral("About…"),
                     QStringLiteral("Check for Updates…"), separator, QStringLiteral("Quit")}));
    EXPECT_FALSE(opened->separatorsCollapsible());
    EXPECT_FALSE(opened->actions().first()->isEnabled());
    EXPECT_EQ(paletteLoads, 0);
}

TEST_F(StatusMenuTest, EachRowHasItsOwnImageAndThoseForNewPalettesNone) {
    recordRecentColor(machine.defaults(), SRGBColor(1, 0, 0));
    pin(addPalette("Web", {"#FF0000"}), 0);
    const QMenu* opened = open();
    const std::pair<const char*, Icon> rows[] = {{"Control-click for quick pick", Icon::Pointer},
                                                 {"Quick Pick", Icon::MenuBar},
                                                 {"Color Picker…", Icon::Palette},
                                                 {"Palettes…", Icon::ColorSwatch},
                                                 {"Check Contrast…", Icon::Contrast},
                                                 {"Favorites", Icon::Star},
                                                 {"Recent Colors", Icon::Clock},
                                                 {"Settings…", Icon::Settings},
                                                 {"About…", Icon::Info},
                                                 {"Check for Updates…", Icon::Refresh},
                                                 {"Quit", Icon::Quit}};
    for (const auto& [title, icon] : rows)
        EXPECT_EQ(image(row(*opened, QString::fromUtf8(title))), drawing(icon)) << title;
    EXPECT_NE(drawing(Icon::Palette), drawing(Icon::ColorSwatch));
    for (const QAction* action : opened->actions()) {
        if (action->text().startsWith(QStringLiteral("New Palette"))) {
            EXPECT_TRUE(action->icon().isNull()) << action->text().toStdString();
        }
    }
    const QMenu* recents = submenu(*opened, QStringLiteral("Recent Colors"));
    EXPECT_EQ(image(recents->actions().last()), drawing(Icon::Eraser));
}

TEST_F(StatusMenuTest, AColorIsShownOnItsRowTwentyPointsWideWithItsAlpha) {
    recordRecentColor(machine.defaults(), SRGBColor(1, 0, 0, 0.5));
    pin(addPalette("Web", {"#0000FF"}), 0);
    const QMenu* opened = open();
    const QIcon recent =
        submenu(*opened, QStringLiteral("Recent Colors"))->actions().first()->icon();
    EXPECT_EQ(recent.actualSize(QSize(100, 100)), QSize(20, 20));
    const QColor middle = recent.pixmap(20, 20).toImage().pixelColor(10, 10);
    EXPECT_NEAR(middle.alphaF(), 0.5, 0.01);
    EXPECT_GT(middle.redF(), 0.98);
    const QIcon favorite = submenu(*opened, QStringLiteral("Favorites"))->actions().last()->icon();
    EXPECT_EQ(favorite.pixmap(20, 20).toImage().pixelColor(10, 10), QColor(Qt::blue));
}

TEST_F(StatusMenuTest, KeepsItsImagesWhateverTheIconStyle) {
    const QStringList tools{QStringLiteral("Quick Pick"), QStringLiteral("Color Picker…"),
                            QStringLiteral("Palettes…")};
    const auto images = [&tools](const QMenu* opened) {
        QList<QImage> all;
        for (const QString& tool : tools)
            all.append(image(row(*opened, tool)));
        return all;
    };
    const QList<QImage> before = images(open());
    machine.settings().setMenuBarIconStyle(MenuBarIconStyle::Palette);
    EXPECT_EQ(images(reopen()), before);
}

TEST_F(StatusMenuTest, ShowsAShortcutAtTheNextOpeningAndFollowsItWhileOpen) {
    const QMenu* opened = open();
    EXPECT_EQ(keyText(*row(*opened, QStringLiteral("Quick Pick"))), QString());
    shortcuts.setShortcut(Shortcut{8, controlKey | optionKey}, shortcutNames::pickColor);
    EXPECT_EQ(keyText(*row(*opened, QStringLiteral("Quick Pick"))), QStringLiteral("⌃⌥C"));
    opened = reopen();
    EXPECT_EQ(keyText(*row(*opened, QStringLiteral("Quick Pick"))), QStringLiteral("⌃⌥C"));
    EXPECT_EQ(keyText(*row(*opened, QStringLiteral("Palettes…"))), QString());
    EXPECT_EQ(keyText(*row(*opened, QStringLiteral("Settings…"))), QStringLiteral("⌃,"));
    EXPECT_EQ(keyText(*row(*opened, QStringLiteral("Quit"))), QStringLiteral("⌃Q"));
}

TEST_F(StatusMenuTest, EachToolRowShowsTheShortcutOfItsOwnName) {
    const QList<std::pair<ShortcutName, QString>> tools{
        {shortcutNames::pickColor, QStringLiteral("Quick Pick")},
        {shortcutNames::convert, QStringLiteral("Color Picker…")},
        {shortcutNames::palettes, QStringLiteral("Palettes…")},
        {shortcutNames::checkContrast, QStringLiteral("Check Contrast…")}};
    constexpr std::uint32_t functionKeys[]{122, 120, 99, 118};
    for (qsizetype index = 0; index < tools.size(); ++index)
        shortcuts.setShortcut(Shortcut{functionKeys[index], 0}, tools[index].first);
    const QMenu* opened = open();
    for (qsizetype index = 0; index < tools.size(); ++index)
        EXPECT_EQ(keyText(*row(*opened, tools[index].second)),
                  QStringLiteral("F%1").arg(index + 1));
}

TEST_F(StatusMenuTest, WhereTheDesktopHasTheKeysItsOwnWordsForThemAreShown) {
    keys.setAvailable(false);
    shortcuts.setShortcut(Shortcut{8, controlKey}, shortcutNames::palettes);
    desktopKeys.answer({{QStringLiteral("pickColor"), QStringLiteral("Meta+Shift+C")}});
    QMenu* opened = open();
    EXPECT_EQ(keyText(*row(*opened, QStringLiteral("Quick Pick"))), QStringLiteral("Meta+Shift+C"));
    EXPECT_EQ(keyText(*row(*opened, QStringLiteral("Palettes…"))), QString());
}

TEST_F(StatusMenuTest, EachRowSaysWhatWasChosen) {
    using Signal = void (StatusMenu::*)();
    const QList<std::pair<QString, Signal>> rows{
        {QStringLiteral("Quick Pick"), &StatusMenu::pickColorClicked},
        {QStringLiteral("Color Picker…"), &StatusMenu::openColorPicker},
        {QStringLiteral("Palettes…"), &StatusMenu::openPalettes},
        {QStringLiteral("Check Contrast…"), &StatusMenu::openContrast},
        {QStringLiteral("New Palette from Image…"), &StatusMenu::openNewPaletteFromImageMenu},
        {QStringLiteral("New Palette from File… (.ase, .clr, .json)"),
         &StatusMenu::openNewPaletteFromFileMenu},
        {QStringLiteral("New Palette from Preset…"), &StatusMenu::openNewPaletteFromPresetMenu},
        {QStringLiteral("Settings…"), &StatusMenu::openSettings},
        {QStringLiteral("About…"), &StatusMenu::openAbout},
        {QStringLiteral("Check for Updates…"), &StatusMenu::checkForUpdates},
        {QStringLiteral("Quit"), &StatusMenu::quitApp}};
    const QMenu* opened = open();
    for (const auto& [title, signal] : rows) {
        const SignalCount chosen(menu, signal);
        row(*opened, title)->trigger();
        EXPECT_EQ(chosen.count(), 1) << title.toStdString();
    }
}

TEST_F(StatusMenuTest, TheKeysOfRowsWorkWhileTheMenuIsOpen) {
    const SignalCount quits(menu, &StatusMenu::quitApp);
    const SignalCount settings(menu, &StatusMenu::openSettings);
    QTest::keyClick(open(), Qt::Key_Q, Qt::ControlModifier);
    EXPECT_EQ(quits.count(), 1);
    EXPECT_FALSE(menu.isOpen());
    QTest::qWait(300);
    QTest::keyClick(open(), Qt::Key_Comma, Qt::ControlModifier);
    EXPECT_EQ(settings.count(), 1);
}

TEST_F(StatusMenuTest, TheKeysOfRowsWorkInASubmenuToo) {
    recordRecentColor(machine.defaults(), SRGBColor(1, 0, 0));
    const SignalCount quits(menu, &StatusMenu::quitApp);
    QMenu* recents = submenu(*open(), QStringLiteral("Recent Colors"));
    recents->popup(QPoint());
    QTest::keyClick(recents, Qt::Key_Q, Qt::ControlModifier);
    EXPECT_EQ(quits.count(), 1);
    EXPECT_FALSE(menu.isOpen());
}

TEST_F(StatusMenuTest, OffersRecentColorsAndTheirEnd) {
    recordRecentColor(machine.defaults(), SRGBColor(1, 0, 0));
    recordRecentColor(machine.defaults(), SRGBColor(0, 0, 1));
    const QMenu* recents = submenu(*open(), QStringLiteral("Recent Colors"));
    ASSERT_NE(recents, nullptr);
    EXPECT_EQ(titles(*recents), (QStringList{QStringLiteral("#0000FF"), QStringLiteral("#FF0000"),
                                             separator, QStringLiteral("Clear Recent Colors")}));
    std::optional<RecentColor> chosen;
    QObject::connect(&menu, &StatusMenu::recentColorClicked, &menu,
                     [&](const RecentColor& color) { chosen = color; });
    recents->actions().at(1)->trigger();
    ASSERT_TRUE(chosen);
    EXPECT_EQ(chosen->color(), SRGBColor(1, 0, 0));
    const SignalCount cleared(menu, &StatusMenu::clearRecentColors);
    recents->actions().last()->trigger();
    EXPECT_EQ(cleared.count(), 1);
}

TEST_F(StatusMenuTest, ALimitOf0HidesWhatIsStored) {
    recordRecentColor(machine.defaults(), SRGBColor(1, 0, 0));
    machine.defaults().setFromAnotherProcess(keys::recentColorsLimit, qint64(0));
    EXPECT_EQ(submenu(*open(), QStringLiteral("Recent Colors")), nullptr);
}

TEST_F(StatusMenuTest, OffersFavouritesUnderTheNamesOfTheirPalettes) {
    const Palette web = addPalette("Web & Print", {"#FF0000", "#00FF00"});
    const Palette paper = addPalette("Paper", {"#FFFFFF"});
    pin(web, 1);
    pin(paper, 0);
    pin(web, 0);
    const QMenu* favourites = submenu(*open(), QStringLiteral("Favorites"));
    ASSERT_NE(favourites, nullptr);
    EXPECT_EQ(titles(*favourites),
              (QStringList{QStringLiteral("Web && Print"), QStringLiteral("#FF0000"),
                           QStringLiteral("#00FF00"), separator, QStringLiteral("Paper"),
                           QStringLiteral("#FFFFFF")}));
    EXPECT_FALSE(favourites->actions().first()->isEnabled());
    std::optional<PinnedColor> chosen;
    QObject::connect(&menu, &StatusMenu::pinnedColorClicked, &menu,
                     [&](const PinnedColor& color) { chosen = color; });
    favourites->actions().at(2)->trigger();
    ASSERT_TRUE(chosen);
    EXPECT_EQ(chosen->cachedColor(), SRGBColor(0, 1, 0));
}

TEST_F(StatusMenuTest, ForgetsThePinsOfVanishedPalettes) {
    const Palette web = addPalette("Web", {"#FF0000"});
    const Palette paper = addPalette("Paper", {"#FFFFFF"});
    pin(web, 0);
    pin(paper, 0);
    palettes.removeLast();
    EXPECT_EQ(titles(*submenu(*open(), QStringLiteral("Favorites"))),
              (QStringList{QStringLiteral("Web"), QStringLiteral("#FF0000")}));
    EXPECT_EQ(machine.settings().pinnedColors().size(), 1);
    EXPECT_TRUE(machine.settings().hasPendingPins());
    palettes.clear();
    EXPECT_EQ(submenu(*reopen(), QStringLiteral("Favorites")), nullptr);
    EXPECT_TRUE(machine.settings().pinnedColors().isEmpty());
}

TEST_F(StatusMenuTest, AClickThatClosedTheMenuDoesNotOpenItAgain) {
    ASSERT_NE(open(), nullptr);
    menu.close();
    EXPECT_EQ(open(), nullptr);
    QTest::qWait(300);
    EXPECT_NE(open(), nullptr);
}

TEST_F(StatusMenuTest, AClickOnTheItemClosesTheMenuThatIsStillOpen) {
    menu.toggle();
    EXPECT_TRUE(menu.isOpen());
    menu.toggle();
    EXPECT_FALSE(menu.isOpen());
}

TEST_F(StatusMenuTest, ASecondStartLeavesTheOpenMenuAlone) {
    const QPointer<QMenu> opened = open();
    menu.show();
    EXPECT_TRUE(menu.isOpen());
    EXPECT_FALSE(opened.isNull());
}

TEST_F(StatusMenuTest, IsAWindowOfItsOwnWhereTheDesktopPlacesWindows) {
    appearance.setProgramsPlaceWindows(false);
    const QMenu* opened = open();
    ASSERT_NE(opened, nullptr);
    EXPECT_EQ(opened->windowHandle()->type(), Qt::Window);
    EXPECT_TRUE(opened->windowHandle()->flags().testFlag(Qt::FramelessWindowHint));
    EXPECT_EQ(opened->windowTitle(), QStringLiteral("Dropshade"));
    EXPECT_EQ(opened->minimumSize(), opened->maximumSize());
}

TEST_F(StatusMenuTest, TheMenuIsThrownAwayOnceItHasClosed) {
    const QPointer<QMenu> opened = open();
    menu.close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(opened.isNull());
    EXPECT_FALSE(menu.isOpen());
}

} // namespace
} // namespace dropshade
