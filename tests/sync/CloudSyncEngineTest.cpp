// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "SyncFixture.h"

#include <gmock/gmock.h>

#include <limits>
#include <set>

namespace dropshade {
namespace {

using Kind = CloudSyncEngine::Status::Kind;

const QString formatKey = QStringLiteral("pref.colorFormat");
const CloudValue pins = compressedValue("[]");

class CloudSyncEngineTest : public SyncFixture {};

TEST_F(CloudSyncEngineTest, SyncsTheseTwentyKeysInThisOrder) {
    QStringList names;
    for (const SyncedKey& row : syncedKeys()) {
        names.append(row.defaultsKey + QLatin1Char('=') + row.kvsKey);
        EXPECT_EQ(syncedKey(row.kvsKey), &row);
    }
    const QString all = names.join(QLatin1Char(' '));
    EXPECT_EQ(all,
              QStringLiteral(
                  "colorFormat=pref.colorFormat useHashPrefix=pref.useHashPrefix "
                  "useLowercase=pref.useLowercase decimalPlaces=pref.decimalPlaces "
                  "contrastAlgorithm=pref.contrastAlgorithm swatchSizeIndex=pref.swatchSizeIndex "
                  "closePaletteDialogOnCopy=pref.closePaletteDialogOnCopy "
                  "closeConvertDialogOnCopy=pref.closeConvertDialogOnCopy "
                  "copySound=pref.copySound appLanguage=pref.appLanguage "
                  "showRecentColors=pref.showRecentColors menuBarIconStyle=pref.menuBarIconStyle "
                  "recentColorsLimit=pref.recentColorsLimit pinnedColors=data.pinnedColors "
                  "recentColors=data.recentColors collapsedPaletteIds=data.collapsedPaletteIds "
                  "KeyboardShortcuts_pickColor=hotkey.pickColor "
                  "KeyboardShortcuts_checkContrast=hotkey.checkContrast "
                  "KeyboardShortcuts_palettes=hotkey.palettes "
                  "KeyboardShortcuts_convert=hotkey.convert"));
    EXPECT_EQ(syncedKey(QStringLiteral("iCloudSyncEnabled")), nullptr);
}

TEST_F(CloudSyncEngineTest, StartsOffWithoutADateOrAWarning) {
    EXPECT_EQ(engine().status().kind, Kind::Off);
    EXPECT_EQ(engine().lastSyncDate(), std::nullopt);
    EXPECT_FALSE(engine().sizeBudgetWarning());
    EXPECT_FALSE(m_cloud.isOpen);
}

TEST_F(CloudSyncEngineTest, AtFirstContactTheCloudWinsAndWhatOnlyThisMachineHasGoesUp) {
    defaults().setValue(keys::colorFormat, QStringLiteral("cssHSL"));
    defaults().setValue(keys::decimalPlaces, qint64(4));
    m_cloud.values[formatKey] = QStringLiteral("hexa");
    SignalCount applied(engine(), &CloudSyncEngine::didApplyRemoteChange);
    engine().start();
    EXPECT_EQ(defaults().read<QString>(keys::colorFormat), QStringLiteral("hexa"));
    EXPECT_EQ(m_cloud.read<qint64>(QStringLiteral("pref.decimalPlaces")), 4);
    EXPECT_EQ(applied.count(), 1);
    EXPECT_EQ(settings().remoteChangeTick(), 1);
    EXPECT_EQ(engine().status().kind, Kind::Idle);
    EXPECT_EQ(engine().lastSyncDate(), ReferenceTime{start});
    EXPECT_TRUE(m_cloud.isOpen);
}

TEST_F(CloudSyncEngineTest, ShowsThatItSyncsWhileItStarts) {
    std::vector<Kind> kinds;
    QObject::connect(&engine(), &CloudSyncEngine::statusDidChange,
                     [&] { kinds.push_back(engine().status().kind); });
    engine().start();
    engine().stop();
    EXPECT_THAT(kinds, testing::ElementsAre(Kind::Syncing, Kind::Idle, Kind::Off));
}

TEST_F(CloudSyncEngineTest, ASecondStartOrStopDoesNothing) {
    engine().start();
    m_cloud.written.clear();
    engine().start();
    EXPECT_TRUE(m_cloud.written.isEmpty());
    engine().stop();
    engine().stop();
    EXPECT_EQ(m_cloud.closeCount, 1);
}

TEST_F(CloudSyncEngineTest, StoppedItWatchesNothingAndKeepsTheDate) {
    engine().start();
    defaults().setValue(keys::useLowercase, true);
    engine().stop();
    m_cloud.written.clear();
    defaults().setValue(keys::useLowercase, false);
    store().flushPendingSave();
    m_cloud.receive({{formatKey, QStringLiteral("hexa")}});
    scheduler().advance(5000);
    EXPECT_TRUE(m_cloud.written.isEmpty());
    EXPECT_FALSE(defaults().contains(keys::colorFormat));
    EXPECT_EQ(engine().lastSyncDate(), ReferenceTime{start});
    EXPECT_EQ(engine().status().kind, Kind::Off);
}

TEST_F(CloudSyncEngineTest, TurningItOffAndOnLetsTheCloudsSettingsWinAgain) {
    engine().start();
    engine().stop();
    defaults().setValue(keys::colorFormat, QStringLiteral("cssRGB"));
    m_cloud.values[formatKey] = QStringLiteral("hexa");
    engine().start();
    EXPECT_EQ(defaults().read<QString>(keys::colorFormat), QStringLiteral("hexa"));
}

TEST_F(CloudSyncEngineTest, FiveChangesHalfASecondApartLeadToOnePushASecondAfterTheLast) {
    engine().start();
    m_cloud.written.clear();
    for (int change = 0; change < 5; ++change) {
        defaults().setValue(keys::decimalPlaces, qint64(2 + change % 3));
        scheduler().advance(change < 4 ? 500 : 999);
        EXPECT_TRUE(m_cloud.written.isEmpty());
    }
    scheduler().advance(1);
    EXPECT_EQ(m_cloud.written, QStringList{QStringLiteral("pref.decimalPlaces")});
    EXPECT_EQ(engine().lastSyncDate(), ReferenceTime{start + 3.0});
}

TEST_F(CloudSyncEngineTest, AnyChangeOfADefaultCostsAPassThatWritesNothing) {
    engine().start();
    m_cloud.written.clear();
    const int before = m_cloud.synchronizeCount;
    defaults().setValue(keys::totalChecksCount, qint64(5));
    scheduler().advance(1000);
    EXPECT_EQ(m_cloud.synchronizeCount, before + 1);
    EXPECT_TRUE(m_cloud.written.isEmpty());
}

TEST_F(CloudSyncEngineTest, DataGoesThroughTheCodecAndStaysWhereItIsTheSameToTheByte) {
    const QByteArray json = QByteArray("[{\"red\":1}]").repeated(20);
    defaults().setValue(keys::recentColors, json);
    engine().start();
    const QString key = QStringLiteral("data.recentColors");
    EXPECT_EQ(m_cloud.read<QByteArray>(key), compressedValue(json));
    m_cloud.written.clear();
    defaults().setValue(keys::recentColors, json);
    scheduler().advance(1000);
    EXPECT_TRUE(m_cloud.written.isEmpty());
    m_cloud.receive({{key, QByteArray("[ ]")}});
    EXPECT_EQ(defaults().read<QByteArray>(keys::recentColors), QByteArray("[ ]"));
}

TEST_F(CloudSyncEngineTest, CollapsingAPaletteHasNoEffectElsewhere) {
    defaults().setValue(keys::collapsedPaletteIds, QStringList{QStringLiteral("x")});
    engine().start();
    EXPECT_FALSE(m_cloud.value(QStringLiteral("data.collapsedPaletteIds")));
}

TEST_F(CloudSyncEngineTest, AKeyRemovedHereStaysInTheCloud) {
    defaults().setValue(keys::appLanguage, QStringLiteral("de"));
    engine().start();
    defaults().remove(keys::appLanguage);
    scheduler().advance(1000);
    EXPECT_EQ(m_cloud.read<QString>(QStringLiteral("pref.appLanguage")), QStringLiteral("de"));
}

TEST_F(CloudSyncEngineTest, AKeyRemovedThereStaysHere) {
    defaults().setValue(keys::colorFormat, QStringLiteral("hexa"));
    engine().start();
    m_cloud.values.erase(formatKey);
    Q_EMIT m_cloud.didChangeExternally({formatKey});
    EXPECT_EQ(defaults().read<QString>(keys::colorFormat), QStringLiteral("hexa"));
}

TEST_F(CloudSyncEngineTest, NumbersAreEqualByWhatTheyCount) {
    defaults().setValue(keys::useLowercase, true);
    defaults().setValue(keys::decimalPlaces, qint64(3));
    defaults().setValue(keys::swatchSizeIndex, std::numeric_limits<double>::quiet_NaN());
    m_cloud.values[QStringLiteral("pref.useLowercase")] = qint64(1);
    m_cloud.values[QStringLiteral("pref.decimalPlaces")] = 3.0;
    m_cloud.values[QStringLiteral("pref.swatchSizeIndex")] =
        std::numeric_limits<double>::quiet_NaN();
    const int before = defaults().writeCount();
    engine().start();
    EXPECT_EQ(defaults().writeCount(), before);
    EXPECT_EQ(defaults().read<bool>(keys::useLowercase), true);
    EXPECT_FALSE(m_cloud.written.contains(QStringLiteral("pref.decimalPlaces")));
}

TEST_F(CloudSyncEngineTest, AStringIsEqualToNoNumberAndLargeIntegersDifferByOne) {
    defaults().setValue(keys::decimalPlaces, QStringLiteral("3"));
    defaults().setValue(keys::swatchSizeIndex, qint64(9'007'199'254'740'993));
    m_cloud.values[QStringLiteral("pref.decimalPlaces")] = qint64(3);
    m_cloud.values[QStringLiteral("pref.swatchSizeIndex")] = qint64(9'007'199'254'740'992);
    engine().start();
    EXPECT_EQ(defaults().read<qint64>(keys::decimalPlaces), 3);
    EXPECT_EQ(defaults().read<qint64>(keys::swatchSizeIndex), 9'007'199'254'740'992);
}

TEST_F(CloudSyncEngineTest, TakesRemoteSettingsAndReloadsWhatMirrorsThem) {
    engine().start();
    SignalCount applied(engine(), &CloudSyncEngine::didApplyRemoteChange);
    m_cloud.receive({{QStringLiteral("pref.menuBarIconStyle"), QStringLiteral("palette")},
                     {QStringLiteral("hotkey.convert"), QStringLiteral("{}")}});
    EXPECT_EQ(settings().menuBarIconStyle(), MenuBarIconStyle::Palette);
    EXPECT_EQ(defaults().read<QString>(QStringLiteral("KeyboardShortcuts_convert")),
              QStringLiteral("{}"));
    EXPECT_EQ(applied.count(), 1);
    EXPECT_EQ(settings().remoteChangeTick(), 1);
}

TEST_F(CloudSyncEngineTest, TheEchoOfAPullWritesNothing) {
    engine().start();
    m_cloud.written.clear();
    m_cloud.receive(
        {{formatKey, QStringLiteral("hexa")}, {QStringLiteral("data.pinnedColors"), pins}});
    scheduler().advance(10'000);
    EXPECT_TRUE(m_cloud.written.isEmpty());
}

TEST_F(CloudSyncEngineTest, ARemoteChangeOfUnknownKeysStillSetsTheDate) {
    engine().start();
    scheduler().advance(60'000);
    SignalCount applied(engine(), &CloudSyncEngine::didApplyRemoteChange);
    m_cloud.receive({{QStringLiteral("future.key"), true}});
    EXPECT_EQ(engine().lastSyncDate(), ReferenceTime{start + 60.0});
    EXPECT_EQ(applied.count(), 0);
    EXPECT_EQ(settings().remoteChangeTick(), 0);
}

TEST_F(CloudSyncEngineTest, ANoticeWithoutKeysPullsAllAndLeavesStatusAndDateAlone) {
    engine().start();
    scheduler().advance(60'000);
    m_cloud.values[formatKey] = QStringLiteral("hexa");
    putRemote(numberedPalette(1, 5.0));
    Q_EMIT m_cloud.didChangeExternally({});
    EXPECT_EQ(defaults().read<QString>(keys::colorFormat), QStringLiteral("hexa"));
    EXPECT_EQ(local(), QList{1});
    EXPECT_EQ(engine().lastSyncDate(), ReferenceTime{start});
}

TEST_F(CloudSyncEngineTest, UnreadableRemoteDataIsSkippedWithoutAWord) {
    defaults().setValue(keys::recentColors, QByteArray("[]"));
    engine().start();
    m_cloud.receive({{QStringLiteral("data.recentColors"), QByteArray("\x01\xff\xff")}});
    m_cloud.receive({{QStringLiteral("data.recentColors"), QStringLiteral("no data")}});
    EXPECT_EQ(defaults().read<QByteArray>(keys::recentColors), QByteArray("[]"));
    EXPECT_EQ(engine().status().kind, Kind::Idle);
}

TEST_F(CloudSyncEngineTest, AnyRawValueIsTakenAndReadAsALegalOne) {
    engine().start();
    m_cloud.receive({{QStringLiteral("pref.decimalPlaces"), QStringList{QStringLiteral("x")}},
                     {formatKey, QByteArray("\0\xff", 2)}});
    EXPECT_EQ(decimalPlaces(defaults()), 2);
    EXPECT_EQ(colorFormat(defaults()), ColorFormat::hex);
}

TEST_F(CloudSyncEngineTest, WarnsAbove900000BytesAndStopsWarningBelow) {
    SignalCount changes(engine(), &CloudSyncEngine::sizeBudgetWarningDidChange);
    engine().start();
    const auto sizeNow = [&] {
        qint64 size = 0;
        for (const auto& [key, value] : m_cloud.values)
            size +=
                std::holds_alternative<QByteArray>(value) ? std::get<QByteArray>(value).size() : 8;
        return size;
    };
    const QString filler = QStringLiteral("zz");
    const auto fillTo = [&](qint64 size) {
        m_cloud.values.erase(filler);
        m_cloud.values[filler] = QByteArray(qsizetype(size - sizeNow()), 'x');
        defaults().setValue(keys::totalChecksCount, qint64(size));
        scheduler().advance(1000);
    };
    fillTo(900'000);
    EXPECT_FALSE(engine().sizeBudgetWarning());
    fillTo(900'001);
    EXPECT_TRUE(engine().sizeBudgetWarning());
    EXPECT_EQ(changes.count(), 1);
    fillTo(900'000);
    EXPECT_FALSE(engine().sizeBudgetWarning());
    fillTo(950'000);
    engine().stop();
    EXPECT_FALSE(engine().sizeBudgetWarning());
    EXPECT_EQ(changes.count(), 4);
}

TEST_F(CloudSyncEngineTest, QuittingWithinTheDelaysStillSends) {
    engine().start();
    m_cloud.written.clear();
    defaults().setValue(keys::copySound, QStringLiteral("pop"));
    save({numberedPalette(1, 5.0)});
    engine().flushPendingPushes();
    EXPECT_EQ(m_cloud.read<QString>(QStringLiteral("pref.copySound")), QStringLiteral("pop"));
    EXPECT_TRUE(remote(1));
    m_cloud.written.clear();
    scheduler().advance(5000);
    EXPECT_TRUE(m_cloud.written.isEmpty());
}

TEST_F(CloudSyncEngineTest, AFlushSynchronizesAlsoWhereNothingWaitsAndOnlyWhenStarted) {
    engine().flushPendingPushes();
    EXPECT_EQ(m_cloud.synchronizeCount, 0);
    engine().start();
    const int before = m_cloud.synchronizeCount;
    m_cloud.written.clear();
    engine().flushPendingPushes();
    EXPECT_EQ(m_cloud.synchronizeCount, before + 1);
    EXPECT_TRUE(m_cloud.written.isEmpty());
}

TEST_F(CloudSyncEngineTest, TheTroubleOfTheStoreShowsInWordsUntilItEnds) {
    engine().start();
    m_cloud.setTrouble(QStringLiteral("wrong password"));
    EXPECT_EQ(engine().status(),
              (CloudSyncEngine::Status{Kind::Error, QStringLiteral("wrong password")}));
    const auto date = engine().lastSyncDate();
    defaults().setValue(keys::useLowercase, true);
    scheduler().advance(2000);
    EXPECT_EQ(m_cloud.read<bool>(QStringLiteral("pref.useLowercase")), true);
    EXPECT_EQ(engine().status().kind, Kind::Error);
    EXPECT_EQ(engine().lastSyncDate(), date);
    m_cloud.setTrouble({});
    EXPECT_EQ(engine().status().kind, Kind::Idle);
    EXPECT_EQ(engine().lastSyncDate(), date);
}

TEST_F(CloudSyncEngineTest, AnEngineThatIsGonePushesNothing) {
    engine().start();
    defaults().setValue(keys::useLowercase, true);
    m_engine.reset();
    m_cloud.written.clear();
    scheduler().advance(5000);
    defaults().setValue(keys::useLowercase, false);
    scheduler().advance(5000);
    EXPECT_TRUE(m_cloud.written.isEmpty());
}

} // namespace
} // namespace dropshade
