// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/linux/etcd/EtcdAccounts.h"

#include "platform/linux/LazyCloudAccounts.h"
#include "platform/linux/etcd/PasswordKeeper.h"
#include "support/EtcdServer.h"
#include "support/MemoryDefaults.h"
#include "support/QtPrinters.h"

#include <QDir>
#include <QFileInfo>

namespace dropshade {
namespace {

class EtcdAccountsTest : public testing::Test {
protected:
    EtcdAccountsTest() {
        // No desktop of whoever runs the test, and no file of theirs.
        qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent");
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(m_home.path()));
    }

    std::optional<QString> check(const CloudAccount& account, const QString& password = {}) {
        std::optional<QString> answer;
        const auto check =
            m_accounts.check(account, password, [&](const QString& words) { answer = words; });
        EXPECT_FALSE(answer);
        EXPECT_TRUE(QTest::qWaitFor([&] { return answer.has_value(); }, 15'000));
        return answer;
    }

    QTemporaryDir m_home;
    LazyCloudAccounts m_accounts{[] { return QStringLiteral(ETCD_MODULE); }};
};

TEST_F(EtcdAccountsTest, AnswersInWordsWhatIsWrongWithAServer) {
    EtcdServer server;
    ASSERT_TRUE(server.isUp());
    CloudAccount account = accountAt(server.address());
    EXPECT_EQ(check(account), QString());
    enableUsers(account);
    EXPECT_EQ(check(account), QStringLiteral("The server asks for a user name and a password."));
    account.user = QStringLiteral("ann");
    EXPECT_EQ(check(account, QStringLiteral("secret")), QString());
    EXPECT_EQ(check(account, QStringLiteral("wrong")),
              QStringLiteral("The server doesn't accept this user name and password."));
    account.prefix = QStringLiteral("bob");
    EXPECT_EQ(check(account, QStringLiteral("secret")),
              QStringLiteral("This user may not read or write these keys."));
    // To check is to change nothing.
    const auto range = etcd::rangeIn(postTo(accountAt(server.address()), "/v3/kv/range",
                                            etcd::rangeRequest("dropshade/", "dropshade0", 1, 0))
                                         .body);
    EXPECT_TRUE(!range || range->keyValues.isEmpty());
    server.kill();
    EXPECT_TRUE(check(account)->contains(QLatin1String("can't be reached")));
    account.address = QStringLiteral("ftp://x");
    EXPECT_TRUE(check(account)->contains(QLatin1String("isn't the address")));
}

TEST_F(EtcdAccountsTest, LooksAtAFolder) {
    CloudAccount account;
    account.folder = m_home.filePath(QStringLiteral("new/folder"));
    EXPECT_EQ(check(account), QString());
    account.folder = QStringLiteral("/proc/nowhere");
    EXPECT_FALSE(check(account)->isEmpty());
}

TEST_F(EtcdAccountsTest, SaysSoWhereTheModuleIsMissing) {
    LazyCloudAccounts accounts([] { return QStringLiteral("/nonexistent.so"); });
    std::optional<QString> answer;
    const auto check = accounts.check(accountAt(QStringLiteral("http://127.0.0.1:1")), {},
                                      [&](const QString& words) { answer = words; });
    ASSERT_TRUE(QTest::qWaitFor([&] { return answer.has_value(); }));
    EXPECT_FALSE(answer->isEmpty());
}

TEST_F(EtcdAccountsTest, ACheckGivenUpAnswersNobody) {
    bool hasAnswered = false;
    auto given = m_accounts.check(CloudAccount(), {}, [&](const QString&) { hasAnswered = true; });
    given.reset();
    QTest::qWait(100); // More than the look at a folder takes.
    EXPECT_FALSE(hasAnswered);
}

TEST_F(EtcdAccountsTest, WithoutASecretServiceAPasswordIsInAFileOfItsUserAlone) {
    CloudAccount account = accountAt(QStringLiteral("https://example.org:2379"));
    account.user = QStringLiteral("ann");
    EXPECT_EQ(keptPassword(account), QString());
    std::optional<QString> answer;
    const auto keeping = m_accounts.keepPassword(account, QStringLiteral("sécret"),
                                                 [&](const QString& words) { answer = words; });
    ASSERT_TRUE(QTest::qWaitFor([&] { return answer.has_value(); }, 15'000));
    EXPECT_EQ(answer, QString());
    EXPECT_EQ(keptPassword(account), QStringLiteral("sécret"));
    const QDir folder(m_home.filePath(QStringLiteral("dropshade")));
    const auto files = folder.entryInfoList(QDir::Files);
    ASSERT_EQ(files.size(), 1);
    EXPECT_EQ(files.first().permissions() &
                  (QFile::ReadGroup | QFile::ReadOther | QFile::WriteGroup | QFile::WriteOther),
              QFile::Permissions());
    account.user = QStringLiteral("bob");
    EXPECT_EQ(keptPassword(account), QString());
}

TEST_F(EtcdAccountsTest, AnAccountIsWhatTheSettingsHave) {
    MemoryDefaults defaults;
    EXPECT_EQ(CloudAccount::read(defaults), CloudAccount());
    CloudAccount account = accountAt(QStringLiteral("https://a"));
    account.user = QStringLiteral("u");
    account.prefix = QStringLiteral("p");
    account.authority = QStringLiteral("/ca.pem");
    account.folder = QStringLiteral("/f");
    account.write(defaults);
    EXPECT_EQ(CloudAccount::read(defaults), account);
    EXPECT_EQ(defaults.read<QString>(QStringLiteral("syncTransport")), QStringLiteral("etcd"));
    const int writes = defaults.writeCount();
    account.write(defaults);
    EXPECT_EQ(defaults.writeCount(), writes);
    defaults.setValue(QStringLiteral("syncTransport"), QStringLiteral("pigeon"));
    EXPECT_EQ(CloudAccount::read(defaults).kind, CloudAccount::Kind::Folder);
}

} // namespace
} // namespace dropshade
