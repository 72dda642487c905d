// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "interchange/WholeFile.h"

#include "support/QtPrinters.h"
#include "support/TinyFileSystem.h"

#include <QDir>

#include <gtest/gtest.h>

#include <sys/stat.h>

#include <functional>

namespace dropshade {
namespace {

/// What the error says, or nothing where there is none.
QString refusal(const std::function<void()>& action) {
    try {
        action();
    } catch (const FileError& error) {
        return error.description();
    }
    return QString();
}

class WholeFileTest : public testing::Test {
protected:
    [[nodiscard]] QString path(const char* name) const {
        return m_folder.filePath(QLatin1String(name));
    }
    [[nodiscard]] QStringList names() const {
        return QDir(m_folder.path())
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    QTemporaryDir m_folder;
};

TEST_F(WholeFileTest, ReadsBackWhatItWroteAndLeavesNothingElseInTheFolder) {
    const QByteArray content("a\0b\xff", 4);
    WholeFile::write(path("a.json"), "old");
    WholeFile::write(path("a.json"), content);
    EXPECT_EQ(WholeFile::read(path("a.json")), content);
    EXPECT_EQ(names(), QStringList{QStringLiteral("a.json")});
}

TEST_F(WholeFileTest, ALinkStaysALink) {
    WholeFile::write(path("target.json"), "old");
    ASSERT_TRUE(QFile::link(path("target.json"), path("link.json")));
    WholeFile::write(path("link.json"), "new");
    EXPECT_TRUE(QFileInfo(path("link.json")).isSymLink());
    EXPECT_EQ(WholeFile::read(path("target.json")), "new");
}

TEST_F(WholeFileTest, AFileThatIsMissingOrAFolderIsNamedInTheError) {
    EXPECT_TRUE(refusal([&] {
                    static_cast<void>(WholeFile::read(path("gone.json")));
                }).contains(QStringLiteral("gone.json")));
    ASSERT_TRUE(QDir(m_folder.path()).mkdir(QStringLiteral("folder.json")));
    EXPECT_FALSE(
        refusal([&] { static_cast<void>(WholeFile::read(path("folder.json"))); }).isEmpty());
    EXPECT_FALSE(refusal([&] { WholeFile::write(path("folder.json"), "x"); }).isEmpty());
}

TEST_F(WholeFileTest, APipeOrADeviceIsNotWaitedFor) {
    ASSERT_EQ(::mkfifo(QFile::encodeName(path("pipe.json")).constData(), 0600), 0);
    EXPECT_FALSE(refusal([&] { static_cast<void>(WholeFile::read(path("pipe.json"))); }).isEmpty());
    ASSERT_TRUE(QFile::link(QStringLiteral("/dev/zero"), path("zero.json")));
    EXPECT_FALSE(refusal([&] { static_cast<void>(WholeFile::read(path("zero.json"))); }).isEmpty());
}

TEST_F(WholeFileTest, AFileLongerThanTheLimitIsNotRead) {
    QFile file(path("long.json"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_TRUE(file.resize(WholeFile::mostBytes));
    EXPECT_EQ(WholeFile::read(path("long.json")).size(), WholeFile::mostBytes);
    ASSERT_TRUE(file.resize(WholeFile::mostBytes + 1));
    EXPECT_FALSE(refusal([&] { static_cast<void>(WholeFile::read(path("long.json"))); }).isEmpty());
}

TEST_F(WholeFileTest, AFolderThatHasVanishedIsAnError) {
    EXPECT_FALSE(refusal([&] { WholeFile::write(path("gone/a.json"), "x"); }).isEmpty());
    EXPECT_TRUE(names().isEmpty());
}

class FullDiskTest : public testing::Test {
protected:
    void SetUp() override {
        if (!m_disk.isMounted())
            GTEST_SKIP() << "mounting a file system takes root";
        WholeFile::write(m_path, "old");
    }

    TinyFileSystem m_disk;
    QString m_path = m_disk.filePath(QStringLiteral("a.json"));
};

TEST_F(FullDiskTest, AFullDiskIsAnErrorAndTheOldFileIsIntact) {
    EXPECT_FALSE(refusal([&] { WholeFile::write(m_path, QByteArray(100'000, 'x')); }).isEmpty());
    EXPECT_EQ(WholeFile::read(m_path), "old");
    EXPECT_EQ(QFileInfo(m_path).dir().entryList(QDir::Files | QDir::Hidden).size(), 1);
}

TEST_F(FullDiskTest, AReadOnlyFolderIsAnErrorAndTheOldFileIsIntact) {
    m_disk.makeReadOnly();
    EXPECT_FALSE(refusal([&] { WholeFile::write(m_path, "new"); }).isEmpty());
    EXPECT_EQ(WholeFile::read(m_path), "old");
}

} // namespace
} // namespace dropshade
