// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "app/AppDelegate.h"
#include "app/Words.h"
#include "platform/linux/Factory.h"
#include "platform/linux/LargeMemory.h"
#include "platform/linux/QuitSignals.h"
#include "widgets/QtFilePanels.h"
#include "widgets/ThemedAlerts.h"

#include <QApplication>

int main(int argc, char** argv) {
    using namespace dropshade;

    giveLargeMemoryBack();
    QuitSignals quitSignals;
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("dropshade"));
    QApplication::setApplicationVersion(QStringLiteral(DROPSHADE_VERSION));
    QApplication::setDesktopFileName(QStringLiteral("org.dropshade.Dropshade"));
    // The program is its status item: it goes on without a window.
    QApplication::setQuitOnLastWindowClosed(false);

    Platform platform = makePlatform();
    if (platform.instance->claim() == ApplicationInstance::Role::HandedOver)
        return 0;
    QTranslator words;
    QTranslator toolkitWords;
    if (loadWords(words)) {
        if (loadToolkitWords(toolkitWords, words))
            QApplication::installTranslator(&toolkitWords);
        // Later, and so asked first.
        QApplication::installTranslator(&words);
    }
    platform.filePanels = std::make_unique<QtFilePanels>(*platform.appearance);
    platform.alerts = std::make_unique<ThemedAlerts>(*platform.appearance);
    AppDelegate delegate(std::move(platform));
    QObject::connect(&delegate, &AppDelegate::quitRequested, &application, &QApplication::quit);
    QObject::connect(&application, &QApplication::aboutToQuit, &delegate,
                     &AppDelegate::applicationWillTerminate);
    delegate.applicationDidFinishLaunching();
    quitSignals.listen();
    return QApplication::exec();
}
