// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT

// Every shared control in every state, for screenshots: `gallery [light|dark] picture.png [scale]`.
#include "GalleryRows.h"
#include "support/FakeAppearance.h"

#include <QApplication>
#include <QPixmap>

#include <cstdio>

using namespace dropshade;

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() < 3) {
        std::fputs("usage: gallery light|dark picture.png\n", stderr);
        return 2;
    }
    FakeAppearance appearance;
    appearance.setDark(arguments[1] == QStringLiteral("dark"));
    // The states are set, not moved to.
    appearance.setReducedMotion(true);
    const Look look(appearance);
    GalleryPage page(look);
    page.show();
    QApplication::processEvents();
    page.setStates();
    return page.grab().save(arguments[2]) ? 0 : 1;
}
