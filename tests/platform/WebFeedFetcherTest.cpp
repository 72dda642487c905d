// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/linux/network/WebFeedFetcher.h"

#include "support/FeedServer.h"

#include <QTest>

#include <gtest/gtest.h>

#include <optional>

namespace dropshade {
namespace {

constexpr qint64 mostBytes = 1 << 20;
using Failure = FeedFetcher::Failure;
using Answer = std::variant<QByteArray, Failure>;

class WebFeedFetcherTest : public testing::Test {
protected:
    std::unique_ptr<FeedRequest> start(const QUrl& url) {
        m_answer.reset();
        return m_fetcher.fetch(url, mostBytes, [this](Answer answer) { m_answer = answer; });
    }

    Answer fetch(const QUrl& url) {
        const auto request = start(url);
        EXPECT_FALSE(m_answer) << "the completion came within the call";
        EXPECT_TRUE(QTest::qWaitFor([this] { return m_answer.has_value(); }, 10'000));
        return m_answer.value_or(Answer());
    }

    FeedServer m_server;
    WebFeedFetcher m_fetcher;
    std::optional<Answer> m_answer;
};

TEST_F(WebFeedFetcherTest, GivesTheDocument) {
    m_server.serve("/feed", "<rss/>");
    EXPECT_EQ(fetch(m_server.url("/feed")), Answer("<rss/>"));
}

TEST_F(WebFeedFetcherTest, GivesADocumentWithoutAStatedLengthOrInChunks) {
    m_server.answer("/open", "HTTP/1.0 200 OK\r\n\r\n<rss/>");
    m_server.answer("/chunks", "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n"
                               "4\r\n<rss\r\n2\r\n/>\r\n0\r\n\r\n");
    EXPECT_EQ(fetch(m_server.url("/open")), Answer("<rss/>"));
    EXPECT_EQ(fetch(m_server.url("/chunks")), Answer("<rss/>"));
}

TEST_F(WebFeedFetcherTest, AsksTheSameOfEveryServerForEveryUser) {
    m_server.serve("/feed", "<rss/>");
    fetch(m_server.url("/feed"));
    const QByteArray host = m_server.url("/").authority().toLatin1();
    EXPECT_EQ(m_server.requests().value(0).toStdString(), "GET /feed HTTP/1.1\r\n"
                                                          "Host: " +
                                                              host.toStdString() +
                                                              "\r\n"
                                                              "Cache-Control: no-cache\r\n"
                                                              "Pragma: no-cache\r\n"
                                                              "User-Agent: Dropshade\r\n"
                                                              "Accept-Language: en\r\n"
                                                              "Accept-Encoding: identity\r\n"
                                                              "Connection: Keep-Alive\r\n\r\n");
}

TEST_F(WebFeedFetcherTest, KeepsNoCookies) {
    m_server.reply("/feed", "200 OK", "<rss/>", "Set-Cookie: user=1; Path=/\r\n");
    fetch(m_server.url("/feed"));
    fetch(m_server.url("/feed"));
    EXPECT_EQ(m_server.requests().size(), 2);
    EXPECT_FALSE(m_server.requests().last().contains("Cookie"));
}

TEST_F(WebFeedFetcherTest, TakesAsMuchAsTheLimitAndNoMore) {
    const QByteArray exact(mostBytes, ' ');
    m_server.serve("/exact", exact);
    m_server.serve("/more", exact + ' ');
    EXPECT_EQ(fetch(m_server.url("/exact")), Answer(exact));
    EXPECT_EQ(fetch(m_server.url("/more")), Answer(Failure::TooLong));
}

TEST_F(WebFeedFetcherTest, CutsADocumentThatNeverEnds) {
    m_server.serveEndlessly("/endless");
    EXPECT_EQ(fetch(m_server.url("/endless")), Answer(Failure::TooLong));
    EXPECT_TRUE(QTest::qWaitFor([this] { return m_server.openConnections() == 0; }, 5000));
    EXPECT_LT(m_server.endlessBytes(), 64 * mostBytes);
}

TEST_F(WebFeedFetcherTest, DoesNotUnpackACompressedDocument) {
    m_server.reply("/packed", "200 OK", "\x1f\x8b\x08 packed", "Content-Encoding: gzip\r\n");
    EXPECT_EQ(fetch(m_server.url("/packed")), Answer("\x1f\x8b\x08 packed"));
}

TEST_F(WebFeedFetcherTest, FollowsRedirectsButNotInCircles) {
    m_server.serve("/feed", "<rss/>");
    m_server.redirect("/moved", m_server.url("/feed"));
    m_server.redirect("/circle", m_server.url("/circle"));
    EXPECT_EQ(fetch(m_server.url("/moved")), Answer("<rss/>"));
    EXPECT_EQ(fetch(m_server.url("/circle")), Answer(Failure::UnsafeRedirect));
    EXPECT_LE(m_server.requests().size(), 2 + 7);
}

TEST_F(WebFeedFetcherTest, FollowsNoRedirectToAnotherKindOfPlace) {
    m_server.redirect("/file", QUrl(QStringLiteral("file:///etc/hostname")));
    m_server.redirect("/data", QUrl(QStringLiteral("data:,rss")));
    for (const char* path : {"/file", "/data"})
        EXPECT_TRUE(std::holds_alternative<Failure>(fetch(m_server.url(path)))) << path;
}

TEST_F(WebFeedFetcherTest, TellsThatTheServerHasNothing) {
    m_server.reply("/gone", "410 Gone", "gone");
    m_server.reply("/busy", "503 Busy", "busy");
    for (const char* path : {"/missing", "/gone", "/busy"})
        EXPECT_EQ(fetch(m_server.url(path)), Answer(Failure::Refused)) << path;
}

TEST_F(WebFeedFetcherTest, TellsThatNobodyIsThere) {
    const QUrl url = m_server.url("/feed");
    m_server.close();
    EXPECT_EQ(fetch(url), Answer(Failure::Unreachable));
}

TEST_F(WebFeedFetcherTest, TellsThatAnAnswerBrokeOff) {
    m_server.answer("/short", "HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\n<rss/>");
    m_server.answer("/nothing", "");
    m_server.answer("/noise", "\x01\x02\x03 no HTTP at all \r\n\r\n");
    for (const char* path : {"/short", "/nothing", "/noise"})
        EXPECT_EQ(fetch(m_server.url(path)), Answer(Failure::Unreachable)) << path;
}

TEST_F(WebFeedFetcherTest, RefusesAddressesThatAreNoAddresses) {
    for (const char* url : {"", "nowhere", "https://", "gopher://x.example/"})
        EXPECT_TRUE(std::holds_alternative<Failure>(fetch(QUrl(QString::fromLatin1(url))))) << url;
}

TEST_F(WebFeedFetcherTest, GivesUpWhenTheRequestIsDestroyed) {
    m_server.handle("/slow", [](QTcpSocket&) {});
    auto request = start(m_server.url("/slow"));
    ASSERT_TRUE(QTest::qWaitFor([this] { return m_server.requests().size() == 1; }, 5000));
    request.reset();
    EXPECT_TRUE(QTest::qWaitFor([this] { return m_server.openConnections() == 0; }, 5000));
    EXPECT_FALSE(m_answer);
}

TEST_F(WebFeedFetcherTest, LetsTheCompletionDestroyTheRequest) {
    m_server.serve("/feed", "<rss/>");
    std::unique_ptr<FeedRequest> request;
    bool isDone = false;
    request = m_fetcher.fetch(m_server.url("/feed"), mostBytes, [&](const Answer&) {
        request.reset();
        isDone = true;
    });
    EXPECT_TRUE(QTest::qWaitFor([&] { return isDone; }, 5000));
    EXPECT_EQ(request, nullptr);
}

} // namespace
} // namespace dropshade
