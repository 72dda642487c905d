// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/linux/LazyFeedFetcher.h"

#include "support/FeedServer.h"

#include <QFile>
#include <QTest>

#include <gtest/gtest.h>

#include <optional>

namespace dropshade {
namespace {

using Failure = FeedFetcher::Failure;
using Answer = std::variant<QByteArray, Failure>;

Answer fetch(FeedFetcher& fetcher, const QUrl& url) {
    std::optional<Answer> answer;
    const auto request = fetcher.fetch(url, 1 << 20, [&answer](Answer given) { answer = given; });
    EXPECT_FALSE(answer) << "the completion came within the call";
    EXPECT_TRUE(QTest::qWaitFor([&answer] { return answer.has_value(); }, 10'000));
    return answer.value_or(Answer());
}

TEST(LazyFeedFetcher, LoadsTheModuleAtTheFirstFetchAndOnce) {
    FeedServer server;
    server.serve("/feed", "<rss/>");
    int asked = 0;
    LazyFeedFetcher fetcher([&asked] {
        ++asked;
        return QStringLiteral(NETWORK_MODULE);
    });
    EXPECT_EQ(asked, 0);
    EXPECT_EQ(fetch(fetcher, server.url("/feed")), Answer("<rss/>"));
    EXPECT_EQ(fetch(fetcher, server.url("/feed")), Answer("<rss/>"));
    EXPECT_EQ(asked, 1);
}

TEST(LazyFeedFetcher, ReachesNothingWithoutItsModule) {
    for (const QString& path :
         {QString(), QStringLiteral("/missing.so"), QStringLiteral("/etc/passwd")}) {
        LazyFeedFetcher fetcher([path] { return path; });
        EXPECT_EQ(fetch(fetcher, QUrl(QStringLiteral("http://127.0.0.1/"))),
                  Answer(Failure::Unreachable))
            << path.toStdString();
    }
}

TEST(LazyFeedFetcher, CanBeGivenUpWithoutItsModule) {
    bool isAnswered = false;
    LazyFeedFetcher fetcher([] { return QString(); });
    auto request = fetcher.fetch(QUrl(), 1, [&isAnswered](const Answer&) { isAnswered = true; });
    request.reset();
    QTest::qWait(0);
    EXPECT_FALSE(isAnswered);
    request = fetcher.fetch(QUrl(), 1, [&](const Answer&) {
        request.reset();
        isAnswered = true;
    });
    EXPECT_TRUE(QTest::qWaitFor([&isAnswered] { return isAnswered; }, 1000));
}

} // namespace
} // namespace dropshade
