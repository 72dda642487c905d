// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT

// The program that StoreKillTest kills: it edits a palette store on the defaults at the path given
// and says on its standard output what has been saved. Modes:
//   flush  renames the first palette to 1, 2, 3 … and flushes; says each number once it is saved
//   burst  makes 1,000 edits, waits for their save and says so, edits on and waits to be killed

#include "palettes/UserPaletteStore.h"
#include "platform/linux/QtScheduler.h"
#include "platform/linux/SqliteDefaults.h"

#include <QCoreApplication>

#include <cstdio>
#include <string_view>

namespace {

using namespace dropshade;

void say(int number) {
    std::printf("%d\n", number);
    std::fflush(stdout);
}

void pinFirstSwatch(const UserPaletteStore& store, AppSettings& settings) {
    const Palette palette = store.palettes().first();
    const PaletteScale scale = palette.scales().first();
    settings.pinSwatch(scale.swatches().first(), palette, scale);
}

[[noreturn]] void renameForEver(UserPaletteStore& store, AppSettings& settings) {
    for (int number = 1;; ++number) {
        store.renamePalette(store.palettes().first().id(), QString::number(number));
        store.flushPendingSave();
        settings.flushPendingPins();
        say(number);
    }
}

void burst(UserPaletteStore& store) {
    const Palette palette = store.palettes().first();
    const QUuid scaleId = palette.scales().first().id();
    for (int number = 1; number <= 1000; ++number)
        store.addSwatch(palette.id(), scaleId, PaletteSwatch(QString::number(number)));
}

} // namespace

int main(int argumentCount, char** arguments) {
    QCoreApplication application(argumentCount, arguments);
    if (argumentCount != 3)
        return 2;
    SqliteDefaults defaults(QString::fromLocal8Bit(arguments[1]));
    QtScheduler scheduler;
    AppSettings settings(defaults, scheduler);
    PalettePresets presets(scheduler);
    UserPaletteStore store(defaults, scheduler, settings, presets);
    pinFirstSwatch(store, settings);
    if (std::string_view(arguments[2]) == "flush")
        renameForEver(store, settings);
    QObject::connect(&store, &UserPaletteStore::didChange, &application, [&store] {
        say(1000);
        store.renamePalette(store.palettes().first().id(), QStringLiteral("Unsaved"));
    });
    burst(store);
    return QCoreApplication::exec();
}
