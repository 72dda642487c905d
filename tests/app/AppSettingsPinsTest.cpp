// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "app/AppSettings.h"

#include "app/SettingsReaders.h"
#include "support/ManualScheduler.h"
#include "support/MemoryDefaults.h"
#include "support/Palettes.h"
#include "support/QtPrinters.h"
#include "support/SignalCount.h"

#include <gtest/gtest.h>

namespace dropshade {
namespace {

/// Two palettes, the first with two scales, and a pin on the first swatch of each of the three.
class Favourites : public testing::Test {
protected:
    Favourites() {
        pin(m_sea, 0);
        pin(m_sea, 1);
        pin(m_land, 0);
        m_scheduler.advance(250);
    }

    void pin(const Palette& palette, qsizetype scaleIndex, qsizetype swatchIndex = 0) {
        const PaletteScale& scale = palette.scales().at(scaleIndex);
        m_settings.pinSwatch(scale.swatches().at(swatchIndex), palette, scale);
    }
    [[nodiscard]] const QUuid& swatchId(qsizetype pinIndex) const {
        return m_settings.pinnedColors().at(pinIndex)->swatchId;
    }
    [[nodiscard]] std::optional<QList<PinnedColor>> stored() const {
        return decodedPins(m_defaults.read<QByteArray>(keys::pinnedColors).value_or(QByteArray()));
    }
    /// Nothing was set and no write waits.
    void expectUntouched(const SignalCount& changes) const {
        EXPECT_EQ(changes.count(), 0);
        EXPECT_FALSE(m_settings.hasPendingPins());
    }

    Palette m_sea =
        makePalette("Sea", {makeScale("Deep", {"navy", "blue"}), makeScale("Shore", {"navy"})});
    Palette m_land = makePalette("Land", {makeScale("Wood", {"navy"})});
    MemoryDefaults m_defaults;
    ManualScheduler m_scheduler;
    AppSettings m_settings{m_defaults, m_scheduler};
};

TEST_F(Favourites, TakeASnapshotOfTheSwatchWithItsIdentity) {
    const PaletteSwatch swatch(QStringLiteral("#0f0"), QStringLiteral("leaf"));
    const PaletteScale scale(QStringLiteral("Wood"), {swatch});
    m_scheduler.setNow(ReferenceTime{789012345.678901});
    m_settings.pinSwatch(swatch, m_land, scale);
    ASSERT_EQ(m_settings.pinnedColors().size(), 4);
    const PinnedColor& pin = m_settings.pinnedColors().last();
    const PinRecord expected = {pin->id,        m_land.id(),    m_land.name(),
                                scale.id(),     scale.name(),   swatch.id(),
                                swatch.value(), swatch.label(), ReferenceTime{789012345.678901}};
    EXPECT_EQ(pin.record(), expected);
    EXPECT_FALSE(pin->id.isNull());
    EXPECT_NE(pin->id, swatch.id());
    EXPECT_EQ(pin.cachedColor(), SRGBColor(0.0, 1.0, 0.0));
}

TEST_F(Favourites, HaveOnePinForASwatchPinnedTwice) {
    const SignalCount changes(m_settings, &AppSettings::pinnedColorsDidChange);
    pin(m_sea, 0);
    EXPECT_EQ(m_settings.pinnedColors().size(), 3);
    expectUntouched(changes);
}

TEST_F(Favourites, AnswerWhetherASwatchIsOne) {
    EXPECT_EQ(m_settings.pinnedSwatchIds().size(), 3);
    EXPECT_TRUE(m_settings.pinnedSwatchIds().contains(m_sea.scales().at(0).swatches().at(0).id()));
    EXPECT_FALSE(m_settings.pinnedSwatchIds().contains(m_sea.scales().at(0).swatches().at(1).id()));
}

TEST_F(Favourites, LoseASwatchThatIsUnpinnedAndNoOther) {
    const QUuid gone = swatchId(1);
    m_settings.unpinSwatch(gone);
    EXPECT_EQ(m_settings.pinnedColors().size(), 2);
    EXPECT_FALSE(m_settings.pinnedSwatchIds().contains(gone));
}

TEST_F(Favourites, LoseEveryPinOfASwatchThatWasStoredTwice) {
    QList<PinnedColor> twice = m_settings.pinnedColors();
    PinRecord again = twice.at(0).record();
    again.id = QUuid::createUuid();
    twice.append(PinnedColor(again));
    m_defaults.setValue(keys::pinnedColors, *encodedPins(twice));
    m_settings.reloadFromDefaults();
    ASSERT_EQ(m_settings.pinnedColors().size(), 4);
    m_settings.unpinSwatch(again.swatchId);
    EXPECT_EQ(m_settings.pinnedColors().size(), 2);
}

TEST_F(Favourites, LoseExactlyThePinsOfADeletedScaleThoughOthersHaveEqualColors) {
    m_settings.unpinScale(m_sea.scales().at(1).id());
    ASSERT_EQ(m_settings.pinnedColors().size(), 2);
    EXPECT_EQ(m_settings.pinnedColors().at(0)->scaleName, QStringLiteral("Deep"));
    EXPECT_EQ(m_settings.pinnedColors().at(1)->scaleName, QStringLiteral("Wood"));
}

TEST_F(Favourites, LoseExactlyThePinsOfADeletedPalette) {
    m_settings.unpinPalette(m_sea.id());
    ASSERT_EQ(m_settings.pinnedColors().size(), 1);
    EXPECT_EQ(m_settings.pinnedColors().at(0)->paletteId, m_land.id());
}

TEST_F(Favourites, FollowTheValueAndLabelOfASwatchAndKeepIdAndMoment) {
    const PinRecord before = m_settings.pinnedColors().at(0).record();
    m_scheduler.advance(1000);
    m_settings.updatePinnedSwatch(before.swatchId, QStringLiteral("lime"), QStringLiteral("x"));
    PinRecord expected = before;
    expected.value = QStringLiteral("lime");
    expected.label = QStringLiteral("x");
    EXPECT_EQ(m_settings.pinnedColors().at(0).record(), expected);
    EXPECT_EQ(m_settings.pinnedColors().at(0).cachedColor(), SRGBColor(0.0, 1.0, 0.0));
}

TEST_F(Favourites, CountALabelFromAbsentToEmptyAsAChange) {
    const SignalCount changes(m_settings, &AppSettings::pinnedColorsDidChange);
    m_settings.updatePinnedSwatch(swatchId(0), QStringLiteral("navy"), QString());
    EXPECT_EQ(changes.count(), 1);
    EXPECT_EQ(m_settings.pinnedColors().at(0)->label, QString());
}

TEST_F(Favourites, ShowBlackForAValueThatMeansNoColorAndStay) {
    m_settings.updatePinnedSwatch(swatchId(0), QStringLiteral("?"), std::nullopt);
    EXPECT_EQ(m_settings.pinnedColors().size(), 3);
    EXPECT_EQ(m_settings.pinnedColors().at(0).cachedColor(), SRGBColor());
}

TEST_F(Favourites, FollowTheNamesOfPaletteAndScale) {
    m_settings.renamePinnedPalette(m_sea.id(), QStringLiteral("Ocean"));
    m_settings.renamePinnedScale(m_sea.scales().at(1).id(), QStringLiteral("Beach"));
    EXPECT_EQ(m_settings.pinnedColors().at(0)->paletteName, QStringLiteral("Ocean"));
    EXPECT_EQ(m_settings.pinnedColors().at(0)->scaleName, QStringLiteral("Deep"));
    EXPECT_EQ(m_settings.pinnedColors().at(1)->paletteName, QStringLiteral("Ocean"));
    EXPECT_EQ(m_settings.pinnedColors().at(1)->scaleName, QStringLiteral("Beach"));
    EXPECT_EQ(m_settings.pinnedColors().at(2)->paletteName, QStringLiteral("Land"));
}

TEST_F(Favourites, FollowASwatchToAnotherScale) {
    const QUuid scaleId = QUuid::createUuid();
    m_settings.movePinnedSwatch(swatchId(0), scaleId, QStringLiteral("New"));
    EXPECT_EQ(m_settings.pinnedColors().at(0)->scaleId, scaleId);
    EXPECT_EQ(m_settings.pinnedColors().at(0)->scaleName, QStringLiteral("New"));
    EXPECT_EQ(m_settings.pinnedColors().at(1)->scaleName, QStringLiteral("Shore"));
}

TEST_F(Favourites, AreNeitherSetNorWrittenWhereNothingChanges) {
    const SignalCount changes(m_settings, &AppSettings::pinnedColorsDidChange);
    const PaletteScale& deep = m_sea.scales().at(0);
    m_settings.unpinSwatch(QUuid::createUuid());
    m_settings.unpinPalette(QUuid::createUuid());
    m_settings.unpinScale(QUuid::createUuid());
    m_settings.updatePinnedSwatch(swatchId(0), QStringLiteral("navy"), std::nullopt);
    m_settings.updatePinnedSwatch(QUuid::createUuid(), QStringLiteral("red"), std::nullopt);
    m_settings.renamePinnedPalette(m_sea.id(), m_sea.name());
    m_settings.renamePinnedScale(deep.id(), deep.name());
    m_settings.movePinnedSwatch(swatchId(0), deep.id(), deep.name());
    m_settings.movePinnedSwatch(QUuid::createUuid(), deep.id(), QStringLiteral("x"));
    m_settings.validatePins({m_sea, m_land});
    expectUntouched(changes);
}

TEST_F(Favourites, AreBroughtInLineWithTheirPalettes) {
    m_settings.validatePins({m_land});
    ASSERT_EQ(m_settings.pinnedColors().size(), 1);
    EXPECT_TRUE(m_settings.hasPendingPins());
    m_settings.validatePins({});
    EXPECT_TRUE(m_settings.pinnedColors().isEmpty());
    EXPECT_TRUE(m_settings.pinnedSwatchIds().isEmpty());
}

TEST_F(Favourites, WakeThoseWhoAskForSwatchesOnlyWhenTheSetOfSwatchesChanges) {
    const SignalCount ids(m_settings, &AppSettings::pinnedSwatchIdsDidChange);
    m_settings.renamePinnedPalette(m_sea.id(), QStringLiteral("Ocean"));
    EXPECT_EQ(ids.count(), 0);
    m_settings.unpinPalette(m_sea.id());
    EXPECT_EQ(ids.count(), 1);
}

TEST_F(Favourites, HaveTheSetOfSwatchesInStepWhenTheListIsAnnounced) {
    QObject::connect(&m_settings, &AppSettings::pinnedColorsDidChange, &m_settings, [this] {
        EXPECT_EQ(m_settings.pinnedSwatchIds().size(), m_settings.pinnedColors().size());
    });
    pin(m_sea, 0, 1);
    m_settings.unpinPalette(m_sea.id());
}

TEST_F(Favourites, AreWrittenOnceAQuarterOfASecondAfterTheLastChangeOfABurst) {
    const int before = m_defaults.writeCount();
    for (int index = 0; index < 1000; ++index) {
        m_settings.renamePinnedPalette(m_sea.id(), QString::number(index));
        m_scheduler.advance(200);
    }
    EXPECT_EQ(m_defaults.writeCount(), before);
    m_scheduler.advance(49);
    EXPECT_EQ(m_defaults.writeCount(), before);
    m_scheduler.advance(1);
    EXPECT_EQ(m_defaults.writeCount(), before + 1);
    EXPECT_EQ(stored(), m_settings.pinnedColors());
    EXPECT_FALSE(m_settings.hasPendingPins());
    m_scheduler.advance(1000);
    EXPECT_EQ(m_defaults.writeCount(), before + 1);
}

TEST_F(Favourites, AreKeptByAFlushWithinTheQuarterSecond) {
    pin(m_sea, 0, 1);
    m_settings.flushPendingPins();
    EXPECT_EQ(stored(), m_settings.pinnedColors());
    EXPECT_FALSE(m_settings.hasPendingPins());
    EXPECT_EQ(m_scheduler.pendingCount(), 0);
    const AppSettings restarted(m_defaults, m_scheduler);
    EXPECT_EQ(restarted.pinnedColors(), m_settings.pinnedColors());
}

TEST_F(Favourites, NotWrittenYetOutliveAReloadOfTheSettings) {
    pin(m_sea, 0, 1);
    m_settings.reloadFromDefaults();
    EXPECT_EQ(m_settings.pinnedColors().size(), 4);
    m_scheduler.advance(250);
    EXPECT_EQ(stored()->size(), 4);
}

TEST_F(Favourites, NotWrittenYetJoinThoseThatCome) {
    QList<PinnedColor> foreign = m_settings.pinnedColors();
    foreign.removeFirst();
    pin(m_sea, 0, 1);
    m_defaults.setFromAnotherProcess(keys::pinnedColors, *encodedPins(foreign));
    const PinnedColor own = m_settings.pinnedColors().last();
    m_settings.reloadFromDefaults();
    EXPECT_EQ(m_settings.pinnedColors(), foreign + QList{own});
    m_scheduler.advance(250);
    EXPECT_EQ(stored(), foreign + QList{own});
    m_defaults.setFromAnotherProcess(keys::pinnedColors, *encodedPins(foreign));
    m_settings.reloadFromDefaults();
    EXPECT_EQ(m_settings.pinnedColors(), foreign);
}

TEST_F(Favourites, ThatTheDiskRefusedAreTriedAgain) {
    m_defaults.setRefusing(true);
    pin(m_sea, 0, 1);
    m_scheduler.advance(60'000);
    EXPECT_EQ(stored()->size(), 3);
    m_settings.reloadFromDefaults();
    m_defaults.setRefusing(false);
    m_scheduler.advance(30'000);
    EXPECT_EQ(stored()->size(), 4);
    EXPECT_FALSE(m_settings.hasPendingPins());
}

TEST_F(Favourites, LeaveNoWorkBehindWhenTheyEnd) {
    {
        AppSettings settings(m_defaults, m_scheduler);
        settings.unpinPalette(m_sea.id());
        EXPECT_EQ(m_scheduler.pendingCount(), 1);
    }
    const int before = m_defaults.writeCount();
    m_scheduler.advance(1000);
    EXPECT_EQ(m_defaults.writeCount(), before);
}

} // namespace
} // namespace dropshade
