// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/linux/network/WebFeedFetcher.h"

#include "support/FeedServer.h"

#include <QProcess>
#include <QSslConfiguration>
#include <QSslKey>
#include <QSslServer>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include <optional>

namespace dropshade {
namespace {

using Failure = FeedFetcher::Failure;
using Answer = std::variant<QByteArray, Failure>;

/// A server with a certificate that nobody trusts unless a test says so.
class WebFeedFetcherTlsTest : public testing::Test {
protected:
    static void SetUpTestSuite() {
        const QTemporaryDir folder;
        const QString keyPath = folder.filePath(QStringLiteral("key.pem"));
        const QString certificatePath = folder.filePath(QStringLiteral("certificate.pem"));
        const int code = QProcess::execute(
            QStringLiteral("openssl"),
            {QStringLiteral("req"), QStringLiteral("-x509"), QStringLiteral("-newkey"),
             QStringLiteral("rsa:2048"), QStringLiteral("-nodes"), QStringLiteral("-days"),
             QStringLiteral("2"), QStringLiteral("-subj"), QStringLiteral("/CN=127.0.0.1"),
             QStringLiteral("-addext"), QStringLiteral("subjectAltName=IP:127.0.0.1"),
             QStringLiteral("-keyout"), keyPath, QStringLiteral("-out"), certificatePath});
        ASSERT_EQ(code, 0);
        QFile keyFile(keyPath);
        ASSERT_TRUE(keyFile.open(QIODevice::ReadOnly));
        s_key = QSslKey(&keyFile, QSsl::Rsa);
        s_certificates = QSslCertificate::fromPath(certificatePath);
        ASSERT_FALSE(s_key.isNull() || s_certificates.isEmpty());
    }

    static std::unique_ptr<QTcpServer> tlsServer() {
        auto server = std::make_unique<QSslServer>();
        QSslConfiguration configuration;
        configuration.setLocalCertificateChain(s_certificates);
        configuration.setPrivateKey(s_key);
        server->setSslConfiguration(configuration);
        return server;
    }

    void trust() {
        QSslConfiguration configuration = m_before;
        configuration.addCaCertificates(s_certificates);
        QSslConfiguration::setDefaultConfiguration(configuration);
    }

    void TearDown() override { QSslConfiguration::setDefaultConfiguration(m_before); }

    Answer fetch(const char* path) {
        std::optional<Answer> answer;
        const auto request = m_fetcher.fetch(m_server.url(path), 1 << 20,
                                             [&answer](Answer given) { answer = given; });
        EXPECT_TRUE(QTest::qWaitFor([&answer] { return answer.has_value(); }, 10'000));
        return answer.value_or(Answer());
    }

    inline static QSslKey s_key;
    inline static QList<QSslCertificate> s_certificates;
    QSslConfiguration m_before = QSslConfiguration::defaultConfiguration();
    FeedServer m_server{tlsServer(), "https"};
    FeedServer m_plainServer;
    WebFeedFetcher m_fetcher;
};

TEST_F(WebFeedFetcherTlsTest, GivesTheDocumentOfATrustedServer) {
    trust();
    m_server.serve("/feed", "<rss/>");
    m_server.redirect("/moved", m_server.url("/feed"));
    EXPECT_EQ(fetch("/feed"), Answer("<rss/>"));
    EXPECT_EQ(fetch("/moved"), Answer("<rss/>"));
}

TEST_F(WebFeedFetcherTlsTest, TrustsNobodyWithoutAReason) {
    m_server.serve("/feed", "<rss/>");
    EXPECT_EQ(fetch("/feed"), Answer(Failure::Unreachable));
    EXPECT_TRUE(m_server.requests().isEmpty());
}

TEST_F(WebFeedFetcherTlsTest, IsNotLedAwayFromHttps) {
    trust();
    m_plainServer.serve("/feed", "<rss/>");
    m_server.redirect("/moved", m_plainServer.url("/feed"));
    EXPECT_EQ(fetch("/moved"), Answer(Failure::UnsafeRedirect));
    EXPECT_TRUE(m_plainServer.requests().isEmpty());
}

} // namespace
} // namespace dropshade
