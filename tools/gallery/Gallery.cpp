// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT

// The whole language in one picture, every shared control in every state and what floats:
// `gallery light|dark picture.png`.
#include "GalleryPanels.h"
#include "GalleryRows.h"

#include <QApplication>
#include <QPixmap>
#include <QVBoxLayout>

#include <cstdio>

using namespace dropshade;

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() < 3) {
        std::fputs("usage: gallery light|dark picture.png\n", stderr);
        return 2;
    }
    FakePlatform desktop;
    desktop.appearance.setDark(arguments[1] == QStringLiteral("dark"));
    // The states are set, not moved to.
    desktop.appearance.setReducedMotion(true);
    AppDelegate delegate(std::move(desktop.platform));
    QWidget sheet;
    auto* rows = new GalleryRows({delegate, desktop.alerts, desktop.keyboardLayout});
    auto* lines = new QVBoxLayout(&sheet);
    lines->setContentsMargins(0, 0, 0, 0);
    lines->setSpacing(0);
    lines->addWidget(rows);
    lines->addWidget(new GalleryPanels(delegate, desktop.scheduler));
    sheet.show();
    sheet.activateWindow();
    QApplication::processEvents();
    rows->setStates();
    return sheet.grab().save(arguments[2]) ? 0 : 1;
}
