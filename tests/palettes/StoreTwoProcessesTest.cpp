// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT

// Several programs of one user on one file, as two sessions on one computer have them.

#include "palettes/UserPaletteStore.h"
#include "platform/linux/SqliteDatabase.h"
#include "platform/linux/SqliteDefaults.h"
#include "support/DefaultsFolder.h"
#include "support/ManualScheduler.h"
#include "support/Palettes.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

namespace dropshade {
namespace {

/// What a program has in its memory.
struct Program {
    explicit Program(const QString& path) : defaults(path) {}

    [[nodiscard]] QString names() const {
        QStringList names;
        for (const Palette& palette : store.palettes())
            names.append(palette.name());
        return names.join(QLatin1Char(','));
    }
    [[nodiscard]] Palette named(const char* name) const {
        for (const Palette& palette : store.palettes()) {
            if (palette.name() == QLatin1String(name))
                return palette;
        }
        return makePalette("none");
    }
    void pin(const char* name) {
        const Palette palette = named(name);
        const PaletteScale scale = palette.scales().first();
        settings.pinSwatch(scale.swatches().first(), palette, scale);
    }

    SqliteDefaults defaults;
    ManualScheduler scheduler;
    AppSettings settings{defaults, scheduler};
    PalettePresets presets{scheduler};
    UserPaletteStore store{defaults, scheduler, settings, presets};
};

class StoreTwoProcesses : public testing::Test {
protected:
    /// Of "Sea", "Land" and "Sky", each with a swatch.
    StoreTwoProcesses() {
        Program first(m_path);
        QList<Palette> palettes;
        for (const char* name : {"Sea", "Land", "Sky"})
            palettes.append(makePalette(name, {makeScale("Scale", {"red"})}));
        first.store.setPalettes(palettes);
        first.store.flushPendingSave();
    }

    DefaultsFolder m_folder;
    const QString m_path = m_folder.path();
};

TEST_F(StoreTwoProcesses, NeitherUndoesWhatTheOtherSaved) {
    Program one(m_path);
    Program other(m_path);
    one.store.addPalette(makePalette("New"));
    one.store.renamePalette(one.named("Sea").id(), QStringLiteral("Ocean"));
    one.store.deletePalette(one.named("Sky").id());
    one.store.flushPendingSave();
    other.store.renamePalette(other.named("Land").id(), QStringLiteral("Earth"));
    other.store.flushPendingSave();
    EXPECT_EQ(other.names(), QStringLiteral("Ocean,Earth,New"));
    EXPECT_EQ(Program(m_path).names(), other.names());
    // And so on, whoever saves next.
    one.scheduler.advance(1);
    one.store.renamePalette(one.named("New").id(), QStringLiteral("Newer"));
    one.store.flushPendingSave();
    EXPECT_EQ(one.names(), QStringLiteral("Newer,Ocean,Earth"));
    EXPECT_EQ(Program(m_path).names(), one.names());
}

TEST_F(StoreTwoProcesses, OfAPaletteThatBothChangedTheLaterCopyStays) {
    Program one(m_path);
    Program other(m_path);
    other.scheduler.setNow(ReferenceTime{2e9});
    one.scheduler.setNow(ReferenceTime{1e9});
    one.store.renamePalette(one.named("Sea").id(), QStringLiteral("Earlier"));
    other.store.renamePalette(other.named("Sea").id(), QStringLiteral("Later"));
    other.store.flushPendingSave();
    one.store.flushPendingSave();
    EXPECT_EQ(one.names(), QStringLiteral("Later,Land,Sky"));
    EXPECT_EQ(Program(m_path).names(), one.names());
}

TEST_F(StoreTwoProcesses, ADeletionTakesNothingThatTheOtherChanged) {
    Program one(m_path);
    Program other(m_path);
    one.store.deletePalette(one.named("Sea").id());
    one.store.deletePalette(one.named("Land").id());
    one.store.flushPendingSave();
    other.store.renamePalette(other.named("Sea").id(), QStringLiteral("Ocean"));
    other.store.flushPendingSave();
    EXPECT_EQ(Program(m_path).names(), QStringLiteral("Ocean,Sky"));
}

TEST_F(StoreTwoProcesses, FavoritesOfBothStay) {
    Program(m_path).pin("Sky");
    Program one(m_path);
    one.pin("Sky");
    one.settings.flushPendingPins();
    Program other(m_path);
    one.pin("Sea");
    one.settings.flushPendingPins();
    other.pin("Land");
    other.settings.unpinSwatch(other.named("Sky").scales().first().swatches().first().id());
    other.settings.flushPendingPins();
    const Program next(m_path);
    ASSERT_EQ(next.settings.pinnedColors().size(), 2);
    EXPECT_EQ(next.settings.pinnedColors(), other.settings.pinnedColors());
    EXPECT_EQ(next.settings.pinnedColors().first()->paletteName, QStringLiteral("Land"));
    EXPECT_EQ(next.settings.pinnedColors().last()->paletteName, QStringLiteral("Sea"));
}

TEST_F(StoreTwoProcesses, AValidationOfFavoritesSparesThoseOfPalettesThatTheOtherAdded) {
    Program one(m_path);
    Program other(m_path);
    other.store.addPalette(makePalette("Theirs", {makeScale("Scale", {"blue"})}));
    other.pin("Theirs");
    other.store.flushPendingSave();
    other.settings.flushPendingPins();
    one.settings.reloadFromDefaults();
    ASSERT_EQ(one.settings.pinnedColors().size(), 1);
    one.store.appendPalette(makePalette("Ours", {makeScale("Scale", {"red"})}));
    one.scheduler.advance(500);
    EXPECT_EQ(one.settings.pinnedColors().size(), 1);
    const Program next(m_path);
    EXPECT_EQ(next.settings.pinnedColors().size(), 1);
    EXPECT_EQ(next.names(), QStringLiteral("Sea,Land,Sky,Ours,Theirs"));
}

TEST_F(StoreTwoProcesses, ALibraryThatCouldNotBeReadAtTheStartIsNotReplacedByTheSeed) {
    {
        Program before(m_path);
        before.pin("Sea");
        before.settings.flushPendingPins();
    }
    auto lock = std::make_unique<SqliteDatabase>(QFile::encodeName(m_path),
                                                 SqliteDatabase::Access::ReadWrite);
    ASSERT_EQ(lock->execute("PRAGMA locking_mode = EXCLUSIVE; BEGIN EXCLUSIVE; "
                            "DELETE FROM defaults; ROLLBACK"),
              SQLITE_OK);
    Program program(m_path);
    EXPECT_EQ(program.names(), QStringLiteral("Mantine,Open Color,Tailwind"));
    program.store.addPalette(makePalette("New", {makeScale("Scale", {"red"})}));
    program.pin("New");
    program.scheduler.advance(250);
    EXPECT_TRUE(program.store.hasPendingSave());
    lock.reset();
    program.scheduler.advance(60'000);
    EXPECT_EQ(program.names(), QStringLiteral("New,Sea,Land,Sky"));
    EXPECT_EQ(program.settings.pinnedColors().size(), 2);
    const Program next(m_path);
    EXPECT_EQ(next.names(), program.names());
    EXPECT_EQ(next.settings.pinnedColors().size(), 2);
}

} // namespace
} // namespace dropshade
