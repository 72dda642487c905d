// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/linux/AutostartLoginItem.h"

#include "platform/linux/DesktopEntry.h"
#include "support/DefaultsFolder.h"

#include <QProcess>
#include <QStandardPaths>

#include <gtest/gtest.h>

namespace dropshade {
namespace {

class AutostartLoginItemTest : public testing::Test {
protected:
    [[nodiscard]] QString entry(const char* level) const {
        return m_home.filePath(QLatin1String(level) +
                               QStringLiteral("/autostart/org.dropshade.Dropshade.desktop"));
    }
    void write(const char* level, const QByteArray& lines) const {
        QDir().mkpath(QFileInfo(entry(level)).absolutePath());
        ASSERT_TRUE(setContent(entry(level), "[Desktop Entry]\nType=Application\n" + lines));
    }
    [[nodiscard]] AutostartLoginItem itemFor(const QString& program) const {
        return AutostartLoginItem{
            {{m_home.filePath(QStringLiteral("user")), m_home.filePath(QStringLiteral("system"))},
             {QStringLiteral("ubuntu"), QStringLiteral("GNOME")},
             program}};
    }
    /// Whether an entry of the user's with these lines counts as registered.
    [[nodiscard]] bool isStartedBy(const QByteArray& lines) const {
        write("user", lines);
        return m_item.isRegistered();
    }

    QTemporaryDir m_home;
    AutostartLoginItem m_item = itemFor(QStringLiteral("/bin/sh"));
};

TEST_F(AutostartLoginItemTest, TheStateIsWhatTheDesktopWouldDo) {
    EXPECT_TRUE(isStartedBy("Exec=/bin/sh\n"));
    EXPECT_FALSE(isStartedBy(""));
    EXPECT_FALSE(isStartedBy("Exec=/bin/sh\nHidden=true\n"));
    EXPECT_FALSE(isStartedBy("Exec=/bin/sh\nX-GNOME-Autostart-enabled=false\n"));
    EXPECT_TRUE(isStartedBy("Exec=/bin/sh\nX-GNOME-Autostart-enabled=maybe\n"));
    EXPECT_FALSE(isStartedBy("Exec=/bin/sh\nOnlyShowIn=KDE;XFCE;\n"));
    EXPECT_TRUE(isStartedBy("Exec=/bin/sh\nOnlyShowIn=KDE;GNOME\n"));
    EXPECT_FALSE(isStartedBy("Exec=/bin/sh\nNotShowIn=GNOME;\n"));
    EXPECT_FALSE(isStartedBy("Exec=/gone\nTryExec=/gone\n"));
    EXPECT_TRUE(isStartedBy("Exec=sh\nTryExec=sh\n"));
}

TEST_F(AutostartLoginItemTest, LinesOfOtherGroupsAndCommentsDoNotCount) {
    EXPECT_TRUE(isStartedBy("# Hidden=true\nExec=/bin/sh\n[Desktop Action x]\nHidden=true\n"));
}

TEST_F(AutostartLoginItemTest, AnEntryThatTheUserTurnedOffElsewhereCanBeTurnedOnAgain) {
    write("user", "Exec=/bin/sh\nHidden=true\n");
    EXPECT_TRUE(m_item.registerItem());
    EXPECT_TRUE(m_item.isRegistered());
}

TEST_F(AutostartLoginItemTest, AProgramThatHasMovedIsNotRegisteredAndCanBeAnew) {
    write("user", "Exec=\"/old/place/dropshade\"\nTryExec=/old/place/dropshade\n");
    EXPECT_FALSE(m_item.isRegistered());
    EXPECT_TRUE(m_item.registerItem());
    EXPECT_EQ(DesktopEntry::parse(contentOf(entry("user"))).string(QStringLiteral("TryExec")),
              QStringLiteral("/bin/sh"));
}

TEST_F(AutostartLoginItemTest, AnEntryOfTheSystemCountsAndIsHiddenForThisUserAlone) {
    write("system", "Exec=/bin/sh\n");
    EXPECT_TRUE(m_item.isRegistered());
    EXPECT_TRUE(m_item.unregisterItem());
    EXPECT_FALSE(m_item.isRegistered());
    EXPECT_TRUE(QFile::exists(entry("system")));
    EXPECT_TRUE(m_item.registerItem());
    EXPECT_TRUE(m_item.isRegistered());
}

TEST_F(AutostartLoginItemTest, UnregisteringLeavesNoFileOfTheUsers) {
    EXPECT_TRUE(m_item.registerItem());
    EXPECT_TRUE(QFile::exists(entry("user")));
    EXPECT_TRUE(m_item.unregisterItem());
    EXPECT_FALSE(QFile::exists(entry("user")));
}

TEST_F(AutostartLoginItemTest, AnEntryOfAnySizeIsNotRead) {
    EXPECT_FALSE(isStartedBy("Exec=/bin/sh\n" + QByteArray(70000, '#')));
}

TEST_F(AutostartLoginItemTest, APathWithEveryStrangeLetterComesBackAsItWas) {
    const QString folder = m_home.filePath(QStringLiteral("a \"b\" $c `d` \\e %f =;# ü "));
    ASSERT_TRUE(QDir().mkpath(folder));
    const QString program = folder + QStringLiteral("/drop shade ");
    ASSERT_TRUE(QFile::copy(QStringLiteral("/bin/true"), program));
    AutostartLoginItem item = itemFor(program);
    ASSERT_TRUE(item.registerItem());
    EXPECT_TRUE(item.isRegistered());
    const auto written = DesktopEntry::parse(contentOf(entry("user")));
    EXPECT_EQ(written.string(QStringLiteral("TryExec")), program);
    QString quoted = program;
    for (const char* letter : {"\\", "\"", "`", "$"})
        quoted.replace(QLatin1String(letter), QLatin1Char('\\') + QLatin1String(letter));
    quoted.replace(QLatin1Char('%'), QStringLiteral("%%"));
    EXPECT_EQ(written.string(QStringLiteral("Exec")), QLatin1Char('"') + quoted + QLatin1Char('"'));
}

TEST_F(AutostartLoginItemTest, TheFileIsOneThatDesktopsTakeAsValid) {
    const QString validator =
        QStandardPaths::findExecutable(QStringLiteral("desktop-file-validate"));
    ASSERT_FALSE(validator.isEmpty()) << "needs desktop-file-utils";
    ASSERT_TRUE(m_item.registerItem());
    EXPECT_EQ(QProcess::execute(validator, {entry("user")}), 0);
}

} // namespace
} // namespace dropshade
