// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT

// Three etcd servers with TLS and users, and the leader killed in the midst of writes.

#include "support/CloudMember.h"
#include "support/EtcdServer.h"
#include "support/QtPrinters.h"

#include <array>

namespace dropshade {
namespace {

/// An authority, and a certificate of it for 127.0.0.1.
class Certificates {
public:
    Certificates() {
        run({QStringLiteral("req"), QStringLiteral("-x509"), QStringLiteral("-newkey"),
             QStringLiteral("rsa:2048"), QStringLiteral("-nodes"), QStringLiteral("-days"),
             QStringLiteral("2"), QStringLiteral("-subj"), QStringLiteral("/CN=authority"),
             QStringLiteral("-keyout"), path("ca.key"), QStringLiteral("-out"), path("ca.pem")});
        run({QStringLiteral("req"), QStringLiteral("-newkey"), QStringLiteral("rsa:2048"),
             QStringLiteral("-nodes"), QStringLiteral("-subj"), QStringLiteral("/CN=127.0.0.1"),
             QStringLiteral("-keyout"), path("server.key"), QStringLiteral("-out"),
             path("server.csr")});
        QFile extensions(path("extensions"));
        EXPECT_TRUE(extensions.open(QIODevice::WriteOnly));
        // The gateway is a client of the server too.
        extensions.write("subjectAltName=IP:127.0.0.1\nextendedKeyUsage=serverAuth,clientAuth\n");
        extensions.close();
        run({QStringLiteral("x509"), QStringLiteral("-req"), QStringLiteral("-in"),
             path("server.csr"), QStringLiteral("-CA"), path("ca.pem"), QStringLiteral("-CAkey"),
             path("ca.key"), QStringLiteral("-CAcreateserial"), QStringLiteral("-days"),
             QStringLiteral("2"), QStringLiteral("-extfile"), path("extensions"),
             QStringLiteral("-out"), path("server.pem")});
    }
    [[nodiscard]] QString path(const char* name) const {
        return m_folder.filePath(QString::fromLatin1(name));
    }

private:
    static void run(const QStringList& arguments) {
        QProcess process;
        process.start(QStringLiteral("openssl"), arguments);
        EXPECT_TRUE(process.waitForFinished() && process.exitCode() == 0);
    }

    QTemporaryDir m_folder;
};

class EtcdClusterTest : public testing::Test {
protected:
    EtcdClusterTest() {
        std::array<EtcdOptions, 3> options;
        QStringList cluster;
        for (std::size_t number = 0; number < options.size(); ++number) {
            options[number].name = QStringLiteral("node%1").arg(number);
            options[number].certificate = m_certificates.path("server.pem");
            options[number].key = m_certificates.path("server.key");
            cluster.append(options[number].name + QLatin1Char('=') +
                           EtcdServer::peerUrl(options[number].peerPort));
        }
        for (auto& option : options) {
            option.cluster = cluster.join(QLatin1Char(','));
            m_servers.push_back(std::make_unique<EtcdServer>(option));
        }
        QStringList addresses;
        for (const auto& server : m_servers) {
            EXPECT_TRUE(server->isUp()) << server->log().constData();
            addresses.append(server->address());
        }
        m_account = accountAt(addresses.join(QLatin1Char(',')));
        m_account.authority = m_certificates.path("ca.pem");
        EXPECT_TRUE(QTest::qWaitFor([this] { return leader() >= 0; }, 20'000));
    }

    /// The number of the server that leads, or -1.
    int leader() {
        for (std::size_t number = 0; number < m_servers.size(); ++number) {
            CloudAccount account = accountAt(m_servers[number]->address());
            account.authority = m_account.authority;
            const QByteArray body = postTo(account, "/v3/maintenance/status", "{}").body;
            const auto field = [&body](const char* name) {
                const QByteArray begin = QByteArray("\"") + name + "\":\"";
                const qsizetype at = body.indexOf(begin);
                return at < 0 ? QByteArray() : body.mid(at + begin.size()).split('"').first();
            };
            if (!field("leader").isEmpty() && field("leader") == field("member_id"))
                return int(number);
        }
        return -1;
    }
    std::unique_ptr<CloudMember> member(int number, const CloudAccount& account) {
        return std::make_unique<CloudMember>(
            etcdTransport(account, QStringLiteral("secret")),
            m_base.filePath(QStringLiteral("replica%1.sqlite").arg(number)));
    }

    Certificates m_certificates;
    std::vector<std::unique_ptr<EtcdServer>> m_servers;
    CloudAccount m_account;
    QTemporaryDir m_base;
};

TEST_F(EtcdClusterTest, LosesNothingWhenTheLeaderIsKilledInTheMidstOfWrites) {
    const int leading = leader();
    enableUsers(m_account);
    CloudAccount ann = m_account;
    ann.user = QStringLiteral("ann");
    const auto first = member(1, ann);
    // The second begins at another server.
    CloudAccount turned = ann;
    const QStringList addresses = ann.address.split(QLatin1Char(','));
    turned.address =
        QStringList{addresses.at(2), addresses.at(0), addresses.at(1)}.join(QLatin1Char(','));
    const auto second = member(2, turned);
    constexpr int count = 400;
    for (int number = 0; number < count; ++number) {
        const auto& writer = number % 2 == 0 ? first : second;
        writer->write(QString::number(number % 50) + QLatin1Char(number % 2 == 0 ? 'x' : 'y'),
                      qint64(number));
        if (number == count / 2)
            m_servers[std::size_t(leading)]->kill();
        QTest::qWait(3);
    }
    EXPECT_TRUE(first->hasSentAll());
    EXPECT_TRUE(second->hasSentAll());
    EXPECT_TRUE(second->sees(QStringLiteral("48x"), qint64(398)));
    EXPECT_TRUE(first->sees(QStringLiteral("49y"), qint64(399)));
    EXPECT_TRUE(QTest::qWaitFor(
        [&] {
            return first->store().dictionaryRepresentation() ==
                   second->store().dictionaryRepresentation();
        },
        CloudMember::patience));
    EXPECT_EQ(first->store().dictionaryRepresentation().size(), 50U);
    // The machine that comes last finds all of it.
    const auto third = member(3, ann);
    EXPECT_TRUE(QTest::qWaitFor(
        [&] {
            return third->store().dictionaryRepresentation() ==
                   first->store().dictionaryRepresentation();
        },
        CloudMember::patience));

    // Without an authority that they know, nobody is let in.
    CloudAccount untrusting = ann;
    untrusting.authority.clear();
    const auto fourth = member(4, untrusting);
    EXPECT_TRUE(QTest::qWaitFor(
        [&] {
            return fourth->store().trouble().contains(QLatin1String("certificate isn't trusted"));
        },
        CloudMember::patience));
}

} // namespace
} // namespace dropshade
