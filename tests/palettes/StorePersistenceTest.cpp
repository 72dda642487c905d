// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "StoreFixture.h"
#include "support/QtPrinters.h"
#include "support/SignalCount.h"
#include "json/UuidText.h"

#include <limits>

namespace dropshade {
namespace {

QSet<QUuid> idsOf(const QList<Palette>& palettes) {
    QSet<QUuid> ids;
    for (const Palette& palette : palettes)
        ids.insert(palette.id());
    return ids;
}

TEST_F(PaletteStore, LoadsWhatIsStoredAndSavesNothing) {
    expectUntouched();
    EXPECT_EQ(scheduler().pendingCount(), 0);
}

TEST_F(PaletteStore, SavesABurstOnceAQuarterOfASecondAfterItsLastChange) {
    for (int index = 0; index < 10; ++index) {
        store().renamePalette(seaId(), QString::number(index));
        scheduler().advance(200);
    }
    EXPECT_EQ(m_saves, 0);
    scheduler().advance(50);
    EXPECT_EQ(m_saves, 1);
    EXPECT_EQ(stored()->first().name(), QStringLiteral("9"));
    EXPECT_FALSE(store().hasPendingSave());
    scheduler().advance(10000);
    EXPECT_EQ(m_saves, 1);
}

TEST_F(PaletteStore, WritesOnceForAThousandEdits) {
    const int before = defaults().writeCount();
    for (int index = 0; index < 1000; ++index)
        store().addSwatch(seaId(), scaleId(0), PaletteSwatch(QString::number(index)));
    scheduler().advance(250);
    EXPECT_EQ(defaults().writeCount(), before + 1);
    EXPECT_EQ(m_saves, 1);
    EXPECT_TRUE(areSame(*stored(), store().palettes()));
}

TEST_F(PaletteStore, AnnouncesASaveOnceItCanBeRead) {
    QString seen;
    QObject::connect(&store(), &UserPaletteStore::didChange, &store(),
                     [&] { seen = stored()->first().name(); });
    store().renamePalette(seaId(), QStringLiteral("New"));
    store().flushPendingSave();
    EXPECT_EQ(seen, QStringLiteral("New"));
}

TEST_F(PaletteStore, WritesAndAnnouncesAFlushWithNothingPending) {
    const int before = defaults().writeCount();
    store().flushPendingSave();
    EXPECT_EQ(defaults().writeCount(), before + 1);
    EXPECT_EQ(m_saves, 1);
}

TEST_F(PaletteStore, ClearsThePendingSaveByAFlush) {
    store().renamePalette(seaId(), QStringLiteral("New"));
    store().flushPendingSave();
    EXPECT_FALSE(store().hasPendingSave());
    EXPECT_EQ(scheduler().pendingCount(), 0);
}

TEST_F(PaletteStore, WritesAndAnnouncesNothingThatHasNoFormInJson) {
    Palette timeless = sea();
    timeless.setLastModified(ReferenceTime{std::numeric_limits<double>::infinity()});
    store().setPalettes({timeless});
    const int before = defaults().writeCount();
    store().flushPendingSave();
    EXPECT_EQ(defaults().writeCount(), before);
    EXPECT_EQ(m_saves, 0);
    EXPECT_TRUE(areSame(*stored(), {m_sea, m_land}));
}

TEST_F(PaletteStore, AnnouncesNoSaveThatTheDiskRefused) {
    defaults().setRefusing(true);
    store().flushPendingSave();
    EXPECT_EQ(m_saves, 0);
    defaults().setRefusing(false);
    store().flushPendingSave();
    EXPECT_EQ(m_saves, 1);
}

TEST_F(PaletteStore, TriesAgainWhatTheDiskRefused) {
    defaults().setRefusing(true);
    store().renamePalette(seaId(), QStringLiteral("New"));
    scheduler().advance(250);
    EXPECT_TRUE(store().hasPendingSave());
    scheduler().advance(60'000);
    EXPECT_EQ(stored()->first().name(), QStringLiteral("Sea"));
    defaults().setRefusing(false);
    scheduler().advance(30'000);
    EXPECT_EQ(stored()->first().name(), QStringLiteral("New"));
    EXPECT_EQ(m_saves, 1);
    EXPECT_FALSE(store().hasPendingSave());
}

TEST_F(PaletteStore, ValidatesPinsAtTheSaveOnceThatIsWanted) {
    pinEverything();
    store().setPalettes({m_land});
    store().scheduleSave(UserPaletteStore::PinValidation::Wanted);
    store().scheduleSave();
    EXPECT_EQ(settings().pinnedColors().size(), 5);
    scheduler().advance(250);
    EXPECT_EQ(settings().pinnedColors().size(), 1);
}

TEST_F(PaletteStore, ValidatesPinsOnceForEachWish) {
    pinEverything();
    store().scheduleSave(UserPaletteStore::PinValidation::Wanted);
    store().flushPendingSave();
    store().setPalettes({});
    store().flushPendingSave();
    EXPECT_EQ(settings().pinnedColors().size(), 5);
}

TEST_F(PaletteStore, ValidatesPinsBeforeTheSaveIsWritten) {
    pinEverything();
    store().setPalettes({m_land});
    qsizetype pinsAtTheWrite = -1;
    QObject::connect(&defaults(), &UserDefaults::didChange, [&](const QString& key) {
        if (key == keys::userPalettes)
            pinsAtTheWrite = settings().pinnedColors().size();
    });
    store().flushPendingSave(UserPaletteStore::PinValidation::Wanted);
    EXPECT_EQ(pinsAtTheWrite, 1);
}

TEST_F(PaletteStore, ValidatesPinsThoughTheListHasNoFormInJson) {
    pinEverything();
    m_land.setLastModified(ReferenceTime{std::numeric_limits<double>::infinity()});
    store().setPalettes({m_land});
    store().scheduleSave(UserPaletteStore::PinValidation::Wanted);
    scheduler().advance(250);
    EXPECT_EQ(m_saves, 0);
    EXPECT_EQ(settings().pinnedColors().size(), 1);
}

TEST_F(PaletteStore, ValidatesPinsThoughTheDiskRefusesTheSave) {
    pinEverything();
    defaults().setRefusing(true);
    store().setPalettes({m_land});
    store().flushPendingSave(UserPaletteStore::PinValidation::Wanted);
    EXPECT_EQ(m_saves, 0);
    EXPECT_EQ(settings().pinnedColors().size(), 1);
}

TEST_F(PaletteStore, ReplacesTheListAsItIsWithNoStampAndNoSave) {
    const Palette other = makePalette("Other");
    store().setPalettes({other});
    EXPECT_TRUE(areSame(store().palettes(), {other}));
    EXPECT_EQ(m_changes, 1);
    EXPECT_FALSE(store().hasPendingSave());
}

TEST_F(PaletteStore, AppendsAPaletteAsItIsAndValidatesPinsAtItsSave) {
    pinEverything();
    store().setPalettes({m_land});
    const Palette other(m_land.name(), {}, ReferenceTime{12.5});
    store().appendPalette(other);
    EXPECT_TRUE(areSame(store().palettes(), {m_land, other})) << "last, and its name stays";
    EXPECT_EQ(settings().pinnedColors().size(), 5);
    scheduler().advance(250);
    EXPECT_EQ(settings().pinnedColors().size(), 1);
    EXPECT_TRUE(areSame(*stored(), {m_land, other}));
}

TEST_F(PaletteStore, LeavesNoWorkBehindWhenItEnds) {
    store().renamePalette(seaId(), QStringLiteral("New"));
    m_machine.kill();
    EXPECT_EQ(scheduler().pendingCount(), 0);
    scheduler().advance(1000);
    EXPECT_EQ(m_saves, 0);
}

TEST_F(PaletteStore, GivesBackAfterARestartWhatWasSaved) {
    store().addScale(landId());
    store().moveSwatch(seaId(), scaleId(0), swatchId(0, 1), scaleId(1), 0);
    scheduler().advance(250);
    const QList<Palette> before = store().palettes();
    m_machine.kill();
    EXPECT_TRUE(areSame(store().palettes(), before));
}

TEST_F(PaletteStore, RemembersWhichPalettesAreCollapsedApartFromTheirContent) {
    store().setCollapsed(seaId(), true);
    store().setCollapsed(landId(), true);
    store().setCollapsed(landId(), false);
    EXPECT_EQ(store().collapsedPaletteIds(), QSet<QUuid>{seaId()});
    EXPECT_EQ(defaults().read<QStringList>(keys::collapsedPaletteIds),
              QStringList{uuidText(seaId())});
    expectUntouched();
}

TEST_F(PaletteStore, DropsWhatIsNoIdFromTheCollapsedOnes) {
    defaults().setValue(keys::collapsedPaletteIds,
                        QStringList{QStringLiteral("junk"), uuidText(seaId()).toLower(),
                                    QLatin1Char('{') + uuidText(landId()) + QLatin1Char('}')});
    EXPECT_EQ(store().collapsedPaletteIds(), QSet<QUuid>{seaId()});
    store().setCollapsed(landId(), true);
    const auto texts = defaults().read<QStringList>(keys::collapsedPaletteIds);
    EXPECT_EQ(texts->size(), 2);
    EXPECT_TRUE(texts->contains(uuidText(seaId())));
}

TEST_F(PaletteStore, HasNoneCollapsedWhereTheStoredValueIsNoList) {
    defaults().setValue(keys::collapsedPaletteIds, QStringLiteral("junk"));
    EXPECT_TRUE(store().collapsedPaletteIds().isEmpty());
    defaults().remove(keys::collapsedPaletteIds);
    EXPECT_TRUE(store().collapsedPaletteIds().isEmpty());
}

// From here on, each test starts a machine of its own.

QString namesOf(const QList<Palette>& palettes) {
    QStringList names;
    for (const Palette& palette : palettes)
        names.append(palette.name());
    return names.join(QLatin1Char(','));
}

TEST(NewPaletteStore, IsSeededWithTheDefaultPresetsAllCollapsed) {
    Machine machine;
    const QList<Palette>& palettes = machine.store().palettes();
    EXPECT_EQ(namesOf(palettes), QStringLiteral("Mantine,Open Color,Tailwind"));
    EXPECT_EQ(machine.store().collapsedPaletteIds(), idsOf(palettes));
    EXPECT_FALSE(machine.defaults().contains(keys::userPalettes));
    machine.scheduler().advance(250);
    EXPECT_TRUE(areSame(
        *decodedPalettes(*machine.defaults().read<QByteArray>(keys::userPalettes), {}), palettes));
}

TEST(NewPaletteStore, IsSeededWithFreshCopies) {
    Machine machine;
    PalettePresets presets(machine.scheduler());
    EXPECT_FALSE(idsOf(machine.store().palettes()).intersects(idsOf(presets.defaults())));
    const QList<Palette> first = machine.store().palettes();
    machine.kill();
    EXPECT_FALSE(idsOf(machine.store().palettes()).intersects(idsOf(first)));
}

TEST(NewPaletteStore, ReplacesWhatItCannotReadAfterAQuarterOfASecond) {
    for (const DefaultsValue& junk :
         {DefaultsValue(QByteArray("junk")), DefaultsValue(QByteArray()),
          DefaultsValue(QByteArray(R"([{"name":"a","scales":[{"name":"b","swatches":[]}]}])")),
          DefaultsValue(QStringLiteral("[]"))}) {
        Machine machine;
        machine.defaults().setValue(keys::userPalettes, junk);
        machine.defaults().setValue(keys::collapsedPaletteIds, QStringList());
        EXPECT_EQ(machine.store().palettes().size(), 3);
        EXPECT_EQ(machine.store().collapsedPaletteIds(), idsOf(machine.store().palettes()));
        EXPECT_EQ(machine.defaults().value(keys::userPalettes), junk);
        machine.scheduler().advance(250);
        EXPECT_NE(machine.defaults().value(keys::userPalettes), junk);
    }
}

TEST(NewPaletteStore, DropsPinsOfPalettesThatTheSeedReplaced) {
    Machine machine;
    const PaletteScale scale = makeScale("s", {"red"});
    machine.settings().pinSwatch(scale.swatches().at(0), makePalette("gone", {scale}), scale);
    static_cast<void>(machine.store());
    EXPECT_EQ(machine.settings().pinnedColors().size(), 1);
    machine.scheduler().advance(250);
    EXPECT_TRUE(machine.settings().pinnedColors().isEmpty());
}

TEST(NewPaletteStore, StaysEmptyWhereAnEmptyListIsStored) {
    Machine machine;
    machine.defaults().setValue(keys::userPalettes, QByteArray("[]"));
    EXPECT_TRUE(machine.store().palettes().isEmpty());
    EXPECT_FALSE(machine.store().hasPendingSave());
    EXPECT_EQ(machine.defaults().read<QStringList>(keys::collapsedPaletteIds), QStringList());
}

TEST(NewPaletteStore, CollapsesAllWhereTheKeyHasNeverBeenWritten) {
    Machine machine;
    const QList<Palette> palettes = {makePalette("a"), makePalette("b")};
    machine.defaults().setValue(keys::userPalettes, *encodedPalettes(palettes));
    EXPECT_EQ(machine.store().collapsedPaletteIds(), idsOf(palettes));
    EXPECT_FALSE(machine.store().hasPendingSave());
}

TEST(NewPaletteStore, LeavesAnExistingCollapsedListAlone) {
    for (const DefaultsValue& value :
         {DefaultsValue(QStringList()), DefaultsValue(QStringList{QStringLiteral("x")}),
          DefaultsValue(true)}) {
        Machine machine;
        machine.defaults().setValue(keys::userPalettes, *encodedPalettes({makePalette("a")}));
        machine.defaults().setValue(keys::collapsedPaletteIds, value);
        static_cast<void>(machine.store());
        EXPECT_EQ(machine.defaults().value(keys::collapsedPaletteIds), value);
    }
}

TEST(NewPaletteStore, KeepsBothOfTwoStoredPalettesWithOneId) {
    Machine machine;
    const Palette first = makePalette("first");
    const Palette second(first.id(), QStringLiteral("second"), {makeScale("s", {"red"})},
                         first.lastModified());
    machine.defaults().setValue(keys::userPalettes, *encodedPalettes({first, second}));
    machine.defaults().setValue(keys::collapsedPaletteIds, QStringList());
    const QList<Palette> palettes = machine.store().palettes();
    EXPECT_EQ(namesOf(palettes), QStringLiteral("first,second"));
    EXPECT_EQ(palettes.first().id(), first.id());
    EXPECT_NE(palettes.last().id(), first.id());
    machine.scheduler().advance(250);
    machine.kill();
    EXPECT_TRUE(areSame(machine.store().palettes(), palettes));
    EXPECT_FALSE(machine.store().hasPendingSave());
}

TEST(NewPaletteStore, IsSeededWithTailwindAloneWithoutTheResource) {
    Machine machine(QStringLiteral(":/none"));
    EXPECT_EQ(namesOf(machine.store().palettes()), QStringLiteral("Tailwind"));
}

TEST(NewPaletteStore, GivesAPaletteWithoutMomentThePresentOne) {
    Machine machine;
    machine.scheduler().setNow(ReferenceTime{42.5});
    machine.defaults().setValue(keys::userPalettes, QByteArray(R"([{"name":"a","scales":[]}])"));
    EXPECT_EQ(machine.store().palettes().first().lastModified(), ReferenceTime{42.5});
}

TEST(TwoMachinesInOneProcess, KeepApartAllThatTheyRemember) {
    Machine first;
    Machine second;
    static_cast<void>(second.store());
    second.scheduler().advance(250);
    const QList<Palette> before = second.store().palettes();
    const int writes = second.defaults().writeCount();
    const SignalCount saves(second.store(), &UserPaletteStore::didChange);
    const Palette tailwind = first.store().palettes().last();
    first.settings().pinSwatch(tailwind.scales().at(0).swatches().at(0), tailwind,
                               tailwind.scales().at(0));
    first.store().renamePalette(tailwind.id(), QStringLiteral("Mine"));
    first.store().setCollapsed(tailwind.id(), false);
    first.scheduler().advance(1000);
    second.scheduler().advance(1000);
    EXPECT_EQ(first.settings().pinnedColors().at(0)->paletteName, QStringLiteral("Mine"));
    EXPECT_EQ(second.defaults().writeCount(), writes);
    EXPECT_EQ(saves.count(), 0);
    EXPECT_TRUE(areSame(second.store().palettes(), before));
    EXPECT_TRUE(second.settings().pinnedColors().isEmpty());
}

} // namespace
} // namespace dropshade
