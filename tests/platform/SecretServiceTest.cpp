// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT

// Passwords with a real secret service, on a private bus.

#include "platform/linux/etcd/PasswordKeeper.h"
#include "support/ChildProcess.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

namespace dropshade {
namespace {

class SecretService : public testing::Test {
protected:
    SecretService() {
        const QByteArray home = QFile::encodeName(m_home.path());
        for (const char* name : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR"})
            qputenv(name, home);
        // One that starts no service by itself: it would start a second keyring, which is locked.
        QFile bus(m_home.filePath(QStringLiteral("bus.conf")));
        EXPECT_TRUE(bus.open(QIODevice::WriteOnly));
        bus.write("<busconfig><type>session</type><listen>unix:tmpdir=/tmp</listen>"
                  "<policy context=\"default\"><allow send_destination=\"*\"/>"
                  "<allow receive_sender=\"*\"/><allow own=\"*\"/></policy></busconfig>");
        bus.close();
        endWithThisThread(m_bus);
        endWithThisThread(m_keyring);
        m_bus.start(QStringLiteral("dbus-daemon"),
                    {QStringLiteral("--config-file=") + bus.fileName(), QStringLiteral("--nofork"),
                     QStringLiteral("--print-address")});
        EXPECT_TRUE(m_bus.waitForReadyRead());
        qputenv("DBUS_SESSION_BUS_ADDRESS", m_bus.readLine().trimmed());
        m_keyring.start(QStringLiteral("gnome-keyring-daemon"),
                        {QStringLiteral("--foreground"), QStringLiteral("--unlock"),
                         QStringLiteral("--components=secrets")});
        EXPECT_TRUE(m_keyring.waitForStarted());
        m_keyring.write("a password\n");
        EXPECT_TRUE(m_keyring.waitForBytesWritten());
        m_keyring.closeWriteChannel();
    }
    ~SecretService() override {
        for (QProcess* process : {&m_keyring, &m_bus}) {
            process->kill();
            process->waitForFinished();
        }
    }

    [[nodiscard]] QStringList passwordFiles() const {
        return QDir(m_home.filePath(QStringLiteral("dropshade"))).entryList(QDir::Files);
    }

    QTemporaryDir m_home;
    QProcess m_bus;
    QProcess m_keyring;
};

TEST_F(SecretService, KeepsAPasswordForEachServerAndUserAndLeavesNoFile) {
    CloudAccount account;
    account.address = QStringLiteral("https://example.org:2379");
    account.user = QStringLiteral("ann");
    // The service comes up some moments after its process.
    ASSERT_TRUE(QTest::qWaitFor(
        [&] {
            return keepPassword(account, QStringLiteral("sécret")).isEmpty() &&
                   passwordFiles().isEmpty();
        },
        10'000));
    EXPECT_EQ(keptPassword(account), QStringLiteral("sécret"));
    EXPECT_EQ(keepPassword(account, QStringLiteral("another")), QString());
    EXPECT_EQ(keptPassword(account), QStringLiteral("another"));
    account.user = QStringLiteral("bob");
    EXPECT_EQ(keptPassword(account), QString());
    EXPECT_EQ(passwordFiles(), QStringList());
}

} // namespace
} // namespace dropshade
