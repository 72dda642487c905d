// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "app/SoundService.h"

#include "app/CopySound.h"
#include "app/SettingsReaders.h"
#include "support/FakeSoundPlayer.h"
#include "support/MemoryDefaults.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace dropshade {
namespace {

QString resource(const QString& name) {
    return QStringLiteral(":/sounds/%1.aiff").arg(name);
}

class SoundServiceTest : public testing::Test {
protected:
    void choose(const char* name) {
        m_defaults.setValue(keys::copySound, QString::fromLatin1(name));
    }

    MemoryDefaults m_defaults;
    FakeSoundPlayer m_player;
};

TEST_F(SoundServiceTest, LoadsTheSoundOfTheSettingsWhenItIsMade) {
    choose("ding");
    const SoundService service(m_defaults, m_player);
    EXPECT_EQ(service.loadedSound(), QStringLiteral("ding"));
    EXPECT_EQ(m_player.prepared(), QStringList{resource(QStringLiteral("ding"))});
    EXPECT_TRUE(m_player.played().isEmpty());
}

TEST_F(SoundServiceTest, PlaysADropUnlessTheSettingsSayOtherwise) {
    SoundService service(m_defaults, m_player);
    service.play();
    EXPECT_EQ(m_player.played(), QStringList{resource(QStringLiteral("drop"))});
}

TEST_F(SoundServiceTest, PlaysTwiceForTwoCopiesAndPreparesOnce) {
    SoundService service(m_defaults, m_player);
    service.play();
    service.play();
    EXPECT_EQ(m_player.played().size(), 2);
    EXPECT_EQ(m_player.prepared().size(), 1);
}

TEST_F(SoundServiceTest, FollowsAChangeOfTheSettingAtTheNextCopy) {
    SoundService service(m_defaults, m_player);
    choose("pop");
    EXPECT_EQ(service.loadedSound(), QStringLiteral("drop"));
    service.play();
    EXPECT_EQ(service.loadedSound(), QStringLiteral("pop"));
    EXPECT_EQ(m_player.played(), QStringList{resource(QStringLiteral("pop"))});
}

TEST_F(SoundServiceTest, TouchesNoPlayerForNone) {
    choose("none");
    SoundService service(m_defaults, m_player);
    service.play();
    EXPECT_EQ(service.loadedSound(), QStringLiteral("none"));
    EXPECT_TRUE(m_player.prepared().isEmpty());
    EXPECT_TRUE(m_player.played().isEmpty());
}

TEST_F(SoundServiceTest, IsSilentWhileTheSettingIsNoneAndThenGoesOn) {
    SoundService service(m_defaults, m_player);
    choose("none");
    service.play();
    EXPECT_TRUE(m_player.played().isEmpty());
    EXPECT_EQ(service.loadedSound(), QStringLiteral("drop"));
    choose("drop");
    service.play();
    EXPECT_EQ(m_player.played().size(), 1);
}

TEST_F(SoundServiceTest, UnloadsByLoadingNone) {
    SoundService service(m_defaults, m_player);
    service.load(QStringLiteral("none"));
    EXPECT_EQ(service.loadedSound(), QStringLiteral("none"));
    service.play();
    EXPECT_EQ(m_player.prepared().size(), 2);
    EXPECT_EQ(m_player.played().size(), 1);
}

TEST_F(SoundServiceTest, PlaysTheFormerSoundWhereAFileIsMissingAndTriesAgainAtEachCopy) {
    const QTemporaryDir folder;
    const auto add = [&folder](const char* name) {
        QFile file(folder.filePath(QString::fromLatin1(name)));
        return file.open(QIODevice::WriteOnly);
    };
    ASSERT_TRUE(add("drop.aiff"));
    SoundService service(m_defaults, m_player, folder.path());
    choose("retro");
    service.play();
    EXPECT_EQ(service.loadedSound(), QStringLiteral("drop"));
    EXPECT_EQ(m_player.played(), QStringList{folder.filePath(QStringLiteral("drop.aiff"))});
    ASSERT_TRUE(add("retro.aiff"));
    service.play();
    EXPECT_EQ(service.loadedSound(), QStringLiteral("retro"));
    EXPECT_EQ(m_player.played().last(), folder.filePath(QStringLiteral("retro.aiff")));
}

TEST_F(SoundServiceTest, IsSilentWhereNoFileWasEverFound) {
    SoundService service(m_defaults, m_player, QStringLiteral(":/nowhere"));
    service.play();
    EXPECT_EQ(service.loadedSound(), std::nullopt);
    EXPECT_TRUE(m_player.played().isEmpty());
}

TEST_F(SoundServiceTest, StaysSilentWhereTheFileIsMissingAfterNone) {
    choose("none");
    SoundService service(m_defaults, m_player, QStringLiteral(":/nowhere"));
    choose("coin");
    service.play();
    EXPECT_EQ(service.loadedSound(), QStringLiteral("none"));
    EXPECT_TRUE(m_player.played().isEmpty());
}

TEST(CopySounds, EachHaveAResourceOfTheProgram) {
    for (const QLatin1StringView name : copySounds)
        EXPECT_TRUE(QFile::exists(resource(name))) << name.data();
}

} // namespace
} // namespace dropshade
