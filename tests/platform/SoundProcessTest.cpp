// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/linux/SoundProcess.h"

#include "platform/linux/sound/SoundPipe.h"

#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

namespace dropshade {
namespace {

using std::chrono::milliseconds;

/// A shell script stands in for the sound program.
class SoundProcessTest : public testing::Test {
protected:
    void SetUp() override {
        write("sound", "a sound");
        m_sound = path("sound");
    }

    QString path(const char* name) const { return m_folder.filePath(QString::fromLatin1(name)); }

    void write(const char* name, const QByteArray& bytes) const {
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    QByteArray read(const char* name) const {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    /// Each start adds a line to the file "starts".
    void writeProgram(const QByteArray& commands) const {
        write("program", "#!/bin/sh\ncd \"$(dirname \"$0\")\"\necho $$ >>starts\n" + commands);
        QFile(path("program")).setPermissions(QFile::ReadOwner | QFile::ExeOwner);
    }

    std::function<QString()> program() const {
        return [path = path("program")] { return path; };
    }

    qsizetype startCount() const { return read("starts").count('\n'); }

    bool waitForStarts(qsizetype count) const {
        return QTest::qWaitFor([&] { return startCount() == count; }, 5000);
    }

    QTemporaryDir m_folder;
    QString m_sound;
};

TEST_F(SoundProcessTest, StartsNothingBeforeTheFirstPlay) {
    bool isAsked = false;
    SoundProcess player([&isAsked] {
        isAsked = true;
        return QString();
    });
    player.prepare(m_sound);
    EXPECT_FALSE(isAsked);
    player.play();
    EXPECT_TRUE(isAsked);
}

TEST_F(SoundProcessTest, HandsTheFileOverAtEachPlayToOneProgram) {
    writeProgram("exec cat >heard");
    SoundProcess player(program());
    player.prepare(m_sound);
    player.play();
    player.play();
    const QByteArray expected = framedSound("a sound") + framedSound("a sound");
    EXPECT_TRUE(QTest::qWaitFor([&] { return read("heard") == expected; }, 5000));
    write("other", "another");
    player.prepare(path("other"));
    player.play();
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return read("heard") == expected + framedSound("another"); }, 5000));
    EXPECT_EQ(startCount(), 1);
}

TEST_F(SoundProcessTest, StartsTheProgramAgainOnceItHasEnded) {
    writeProgram("exit 0");
    SoundProcess player(program());
    player.prepare(m_sound);
    for (qsizetype count = 1; count <= 3; ++count) {
        // The program may have ended before the player has learnt of it.
        EXPECT_TRUE(QTest::qWaitFor(
            [&] {
                player.play();
                return startCount() >= count;
            },
            5000));
    }
}

TEST_F(SoundProcessTest, RestsWhereThereIsNoDevice) {
    writeProgram("exit 3");
    SoundProcess player(program(), milliseconds(300));
    player.prepare(m_sound);
    player.play();
    ASSERT_TRUE(waitForStarts(1));
    QElapsedTimer sinceStart;
    sinceStart.start();
    EXPECT_TRUE(QTest::qWaitFor(
        [&] {
            player.play();
            return startCount() == 2;
        },
        5000));
    EXPECT_GE(sinceStart.elapsed(), 250);
}

TEST_F(SoundProcessTest, RestsWhereTheProgramIsMissing) {
    int asked = 0;
    const auto missing = [&asked, this] {
        ++asked;
        return path("missing");
    };
    SoundProcess player(missing);
    player.prepare(m_sound);
    const auto isAskedAgain = [&] {
        player.play();
        return asked > 1;
    };
    EXPECT_FALSE(QTest::qWaitFor(isAskedAgain, 100));
    EXPECT_EQ(asked, 1);
}

TEST_F(SoundProcessTest, IsSilentWithoutASoundToPlay) {
    bool isAsked = false;
    SoundProcess player([&isAsked] {
        isAsked = true;
        return QString();
    });
    player.play();
    player.prepare(path("missing"));
    player.play();
    EXPECT_FALSE(isAsked);
}

TEST_F(SoundProcessTest, ReplacesAProgramThatDoesNotRead) {
    writeProgram("exec sleep 100");
    write("sound", QByteArray(200'000, 'x'));
    SoundProcess player(program());
    player.prepare(m_sound);
    player.play();
    ASSERT_TRUE(waitForStarts(1));
    for (int count = 0; count < 5; ++count)
        player.play();
    EXPECT_TRUE(waitForStarts(2));
}

TEST_F(SoundProcessTest, EndsAProgramThatHangsWithItself) {
    writeProgram("exec sleep 100");
    {
        SoundProcess player(program());
        player.prepare(m_sound);
        player.play();
        ASSERT_TRUE(waitForStarts(1));
    }
    const QString process =
        QStringLiteral("/proc/%1").arg(QString::fromLatin1(read("starts").trimmed()));
    EXPECT_FALSE(QFile::exists(process));
}

} // namespace
} // namespace dropshade
