// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT

// Replicas that meet on a real etcd.

#include "platform/linux/etcd/EtcdTransport.h"

#include "platform/linux/etcd/EtcdAccounts.h"
#include "support/CloudMember.h"
#include "support/EtcdServer.h"
#include "support/LongestTurn.h"
#include "support/QtPrinters.h"

#include <QSignalSpy>

namespace dropshade {
namespace {

const QString a = QStringLiteral("palette.A");
const QString b = QStringLiteral("b");
const CloudValue one = QStringLiteral("one");
const CloudValue two = QStringLiteral("two");

class EtcdTransportTest : public testing::Test {
protected:
    void launch(const EtcdOptions& options = {}) {
        m_server = std::make_unique<EtcdServer>(options);
        ASSERT_TRUE(m_server->isUp()) << m_server->log().constData();
    }
    [[nodiscard]] CloudAccount account() const { return accountAt(m_server->address()); }
    std::unique_ptr<CloudMember> member(int number) { return member(number, account()); }
    std::unique_ptr<CloudMember> member(int number, const CloudAccount& account,
                                        const QString& password = {}) {
        return std::make_unique<CloudMember>(
            etcdTransport(account, password),
            m_base.filePath(QStringLiteral("replica%1.sqlite").arg(number)));
    }
    [[nodiscard]] static bool isTold(CloudMember& member, const char* words) {
        return QTest::qWaitFor(
            [&] { return member.store().trouble().contains(QLatin1String(words)); },
            CloudMember::patience);
    }
    void compact() {
        const auto range = etcd::rangeIn(
            postTo(account(), "/v3/kv/range", etcd::rangeRequest("x", {}, 1, 0)).body);
        ASSERT_TRUE(range);
        postTo(account(), "/v3/kv/compaction",
               R"({"revision":")" + QByteArray::number(range->revision) + R"(","physical":true})");
    }

    QTemporaryDir m_base;
    std::unique_ptr<EtcdServer> m_server;
};

TEST_F(EtcdTransportTest, WhatOneWritesTheOtherSeesAndHearsOf) {
    launch();
    const auto first = member(1);
    const auto second = member(2);
    QSignalSpy announced(&second->store(), &CloudKeyValueStore::didChangeExternally);
    first->write(a, one);
    EXPECT_TRUE(second->sees(a, one));
    EXPECT_TRUE(QTest::qWaitFor([&] { return announced.size() == 1; }));
    second->write(a, two);
    EXPECT_TRUE(first->sees(a, two));
    second->store().remove(a);
    second->store().synchronize();
    EXPECT_TRUE(first->sees(a, std::nullopt));
    EXPECT_EQ(first->store().trouble(), QString());
}

TEST_F(EtcdTransportTest, WhatHappenedMeanwhileComesWithTheNextStart) {
    launch();
    auto first = member(1);
    const auto second = member(2);
    first->write(a, one);
    first->write(b, one);
    ASSERT_TRUE(second->sees(b, one));
    first.reset();
    second->write(a, two);
    second->store().remove(b);
    second->store().synchronize();
    ASSERT_TRUE(second->hasSentAll());
    first = member(1);
    EXPECT_TRUE(first->sees(a, two));
    EXPECT_TRUE(first->sees(b, std::nullopt));
}

TEST_F(EtcdTransportTest, WhatWasCompactedMeanwhileIsListedAnew) {
    launch();
    auto first = member(1);
    const auto second = member(2);
    for (int number = 0; number < 40; ++number)
        first->store().setValue(QString::number(number), one);
    first->store().synchronize();
    ASSERT_TRUE(second->sees(QStringLiteral("39"), one));
    first.reset();
    second->store().remove(QStringLiteral("0"));
    second->write(QStringLiteral("39"), two);
    ASSERT_TRUE(second->hasSentAll());
    compact();
    first = member(1);
    EXPECT_TRUE(first->sees(QStringLiteral("39"), two));
    EXPECT_TRUE(first->sees(QStringLiteral("0"), std::nullopt));
    EXPECT_EQ(first->store().dictionaryRepresentation().size(), 39U);
}

TEST_F(EtcdTransportTest, AServerThatIsDownIsToldOfAndGetsTheRestWhenItIsBack) {
    launch();
    const auto first = member(1);
    first->write(a, one);
    ASSERT_TRUE(first->hasSentAll());
    m_server->stop();
    first->write(a, two);
    EXPECT_TRUE(isTold(*first, "The server can't be reached"));
    EXPECT_EQ(first->store().value(a), two);
    m_server->launch();
    EXPECT_TRUE(first->isInTrouble(false));
    EXPECT_TRUE(first->hasSentAll());
    EXPECT_TRUE(member(2)->sees(a, two));
}

TEST_F(EtcdTransportTest, AWipedServerGetsEverythingAgain) {
    launch();
    const auto first = member(1);
    const auto second = member(2);
    first->write(a, one);
    ASSERT_TRUE(second->sees(a, one));
    m_server->kill();
    m_server->wipe();
    m_server->launch();
    ASSERT_TRUE(m_server->isUp());
    const auto third = member(3);
    EXPECT_TRUE(third->sees(a, one));
    EXPECT_EQ(first->store().value(a), one);
}

TEST_F(EtcdTransportTest, AServerThatFallsSilentIsToldOf) {
    launch();
    const auto first = member(1);
    first->write(a, one);
    ASSERT_TRUE(first->hasSentAll());
    m_server->signal(SIGSTOP);
    EXPECT_TRUE(isTold(*first, "The server doesn't answer"));
    first->write(a, two);
    m_server->signal(SIGCONT);
    EXPECT_TRUE(first->isInTrouble(false));
    EXPECT_TRUE(first->hasSentAll());
}

TEST_F(EtcdTransportTest, UsersHaveKeysOfTheirOwnAndATokenThatEndsIsRenewed) {
    launch();
    enableUsers(account());
    CloudAccount ann = account();
    ann.user = QStringLiteral("ann");
    const auto first = member(1, ann, QStringLiteral("secret"));
    const auto second = member(2, ann, QStringLiteral("secret"));
    first->write(a, one);
    EXPECT_TRUE(second->sees(a, one));
    // Tokens live in the server's memory.
    m_server->stop();
    m_server->launch();
    ASSERT_TRUE(m_server->isUp());
    first->write(a, two);
    EXPECT_TRUE(second->sees(a, two));
    CloudAccount other = ann;
    other.prefix = QStringLiteral("bob");
    EXPECT_TRUE(isTold(*member(3, other, QStringLiteral("secret")),
                       "This user may not read or write these keys."));
    EXPECT_TRUE(isTold(*member(4, ann, QStringLiteral("wrong")),
                       "The server doesn't accept this user name and password."));
    EXPECT_TRUE(isTold(*member(5), "The server asks for a user name and a password."));
}

TEST_F(EtcdTransportTest, AnAddressThatIsNoneOrUnsafeIsToldOfAtOnce) {
    EXPECT_TRUE(isTold(*member(1, accountAt(QStringLiteral("my server"))), "isn't the address"));
    CloudAccount account = accountAt(QStringLiteral("http://192.0.2.1:2379"));
    account.user = QStringLiteral("ann");
    EXPECT_TRUE(isTold(*member(2, account, QStringLiteral("secret")), "must begin with https"));
}

TEST_F(EtcdTransportTest, ASomethingElseThatAnswersIsToldOf) {
    QTcpServer strange;
    strange.listen(QHostAddress::LocalHost);
    QObject::connect(&strange, &QTcpServer::newConnection, [&] {
        QTcpSocket* socket = strange.nextPendingConnection();
        QObject::connect(socket, &QTcpSocket::readyRead, socket, [socket] {
            socket->write("HTTP/1.1 200 OK\r\nContent-Length: 6\r\n\r\n<html>");
            socket->disconnectFromHost();
        });
    });
    const QString address = QStringLiteral("http://127.0.0.1:%1").arg(strange.serverPort());
    EXPECT_TRUE(isTold(*member(1, accountAt(address)), "doesn't answer as etcd does"));
}

TEST_F(EtcdTransportTest, WhatIsTooLargeStaysHereAndMuchGoesInParts) {
    EtcdOptions options;
    options.arguments = {QStringLiteral("--max-request-bytes"), QStringLiteral("100000")};
    launch(options);
    const auto first = member(1);
    first->store().setValue(a, QByteArray(150'000, 'x'));
    for (int number = 0; number < 20; ++number)
        first->store().setValue(QString::number(number), QByteArray(20'000, 'x'));
    first->store().synchronize();
    EXPECT_TRUE(first->hasSentAll());
    EXPECT_TRUE(isTold(*first, "too large"));
    const auto second = member(2);
    EXPECT_TRUE(second->sees(QStringLiteral("19"), CloudValue(QByteArray(20'000, 'x'))));
    EXPECT_EQ(second->store().value(a), std::nullopt);
}

TEST_F(EtcdTransportTest, AServerOverItsQuotaIsToldOfAndNothingIsLost) {
    EtcdOptions options;
    options.arguments = {QStringLiteral("--quota-backend-bytes"), QStringLiteral("1000000")};
    launch(options);
    const auto first = member(1);
    for (int number = 0; number < 8; ++number)
        first->write(QString::number(number), QByteArray(300'000, char('a' + number)));
    EXPECT_TRUE(isTold(*first, "no room left"));
    EXPECT_TRUE(first->store().hasUnsent());
    EXPECT_EQ(first->store().dictionaryRepresentation().size(), 8U);
}

TEST_F(EtcdTransportTest, ForeignBytesUnderItsKeysAreSkippedAndOverwritten) {
    launch();
    const QByteArray key = etcdPrefix(account()) + "v/b";
    const auto put = [&](const QByteArray& value) {
        postTo(account(), "/v3/kv/put",
               R"({"key":")" + key.toBase64() + R"(","value":")" + value.toBase64() + R"("})");
    };
    put("junk");
    const auto first = member(1);
    first->write(a, one);
    ASSERT_TRUE(first->hasSentAll());
    EXPECT_EQ(first->store().value(b), std::nullopt);
    const auto second = member(2);
    first->write(b, two);
    EXPECT_TRUE(second->sees(b, two));
    put(QByteArray("\0\xff", 2));
    EXPECT_TRUE(first->sees(b, std::nullopt));
    first->write(b, one);
    EXPECT_TRUE(second->sees(b, one));
}

TEST_F(EtcdTransportTest, ALibraryThatComesAndGoesNeverHoldsUpTheMainThread) {
    launch();
    const auto first = member(1);
    for (int number = 0; number < 300; ++number)
        first->store().setValue(QString::number(number), QByteArray(8000, char('a' + number % 26)));
    const LongestTurn up;
    first->store().synchronize();
    EXPECT_TRUE(first->hasSentAll());
    // Processor time, since other programs may hold up any thread.
    EXPECT_LE(up.milliseconds(), 16.0);
    const LongestTurn down;
    const auto second = member(2);
    EXPECT_TRUE(second->sees(QStringLiteral("299"), first->store().value(QStringLiteral("299"))));
    EXPECT_LE(down.milliseconds(), 16.0);
    EXPECT_GT(down.turnCount(), 20);
}

} // namespace
} // namespace dropshade
