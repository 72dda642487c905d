// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT

// The settings and about windows as they are set up, for screenshots:
// `settings_pictures light|dark default|folder|etcd|about picture.png`.
#include "KeyboardShortcuts/RecorderCocoa.h"
#include "app/AppDelegate.h"
#include "app/SettingsReaders.h"
#include "app/Words.h"
#include "platform/ModifierKeys.h"
#include "support/FakePlatform.h"

#include <QApplication>
#include <QDir>
#include <QPixmap>

#include <cstdio>

using namespace dropshade;

namespace {

constexpr std::uint32_t space = 49;
constexpr std::uint32_t keyC = 8;
constexpr std::uint32_t keyP = 35;
constexpr std::uint32_t keyF5 = 96;

void setUpSync(FakePlatform& desktop, CloudAccount::Kind kind) {
    CloudAccount account;
    account.kind = kind;
    account.folder = QDir::homePath() + QStringLiteral("/Nextcloud/Dropshade");
    account.address = QStringLiteral("https://etcd.home.arpa:2379");
    account.user = QStringLiteral("dropshade");
    account.authority = QDir::homePath() + QStringLiteral("/.config/home-ca.pem");
    account.write(desktop.defaults);
    desktop.defaults.setValue(keys::iCloudSyncEnabled, true);
    desktop.keyboardLayout.setCharacter(keyC, QStringLiteral("c"));
    desktop.keyboardLayout.setCharacter(keyP, QStringLiteral("p"));
}

void setUp(FakePlatform& desktop, const QString& scene) {
    desktop.defaults.setValue(keys::totalChecksCount, qint64(1284));
    desktop.loginItem.setRegistered(true);
    desktop.defaults.setValue(keys::automaticallyChecksForUpdates, true);
    if (scene == QStringLiteral("folder")) {
        setUpSync(desktop, CloudAccount::Kind::Folder);
        desktop.defaults.setValue(keys::colorFormat, QStringLiteral("nsColorRGB"));
        desktop.defaults.setValue(keys::decimalPlaces, qint64(3));
    }
    if (scene == QStringLiteral("etcd")) {
        setUpSync(desktop, CloudAccount::Kind::Etcd);
        desktop.defaults.setValue(keys::colorFormat, QStringLiteral("cssRGBA"));
    }
}

void bindShortcuts(KeyboardShortcuts& shortcuts, const QString& scene) {
    constexpr std::uint32_t both = controlKey | optionKey;
    if (scene == QStringLiteral("default"))
        return;
    shortcuts.setShortcut(Shortcut{space, both}, shortcutNames::pickColor);
    shortcuts.setShortcut(Shortcut{keyP, both}, shortcutNames::palettes);
    if (scene == QStringLiteral("etcd")) {
        shortcuts.setShortcut(Shortcut{keyC, both}, shortcutNames::convert);
        shortcuts.setShortcut(Shortcut{keyF5, both | shiftKey}, shortcutNames::checkContrast);
    }
}

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setApplicationVersion(QStringLiteral("1.0.0"));
    QTranslator words;
    if (loadWords(words))
        QApplication::installTranslator(&words);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() < 4) {
        std::fputs("usage: settings_pictures light|dark default|folder|etcd|about picture.png\n",
                   stderr);
        return 2;
    }
    const QString& scene = arguments[2];
    FakePlatform desktop;
    desktop.appearance.setDark(arguments[1] == QStringLiteral("dark"));
    desktop.appearance.setReducedMotion(true);
    setUp(desktop, scene);
    AppDelegate delegate(std::move(desktop.platform));
    delegate.applicationDidFinishLaunching();
    bindShortcuts(delegate.shortcuts(), scene);
    desktop.scheduler.advance(1000);
    desktop.scheduler.advance(125000);
    if (scene == QStringLiteral("about"))
        delegate.openAbout();
    else
        delegate.openSettings();
    QWidget* window = scene == QStringLiteral("about") ? delegate.aboutController().window()
                                                       : delegate.settingsController().window();
    QApplication::processEvents();
    const auto recorders = window->findChildren<RecorderCocoa*>();
    if (scene == QStringLiteral("folder") && recorders.size() > 1)
        recorders[1]->setFocus(Qt::TabFocusReason);
    QApplication::processEvents();
    return window->grab().save(arguments[3]) ? 0 : 1;
}
