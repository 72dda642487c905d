// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "app/UpdateService.h"

#include "platform/linux/network/WebFeedFetcher.h"
#include "support/Appcast.h"
#include "support/FakeUpdatePrompt.h"
#include "support/FeedServer.h"
#include "support/ManualScheduler.h"
#include "support/MemoryDefaults.h"

#include <QElapsedTimer>
#include <QTest>

#include <gtest/gtest.h>

namespace dropshade {
namespace {

using std::chrono::seconds;
using State = UpdateService::State;

/// The service over a real connection to a real server, with only time and the user made up.
class UpdateCheckTest : public testing::Test {
protected:
    UpdateCheckTest() {
        m_server.serve("/newer", appcast(appcastItem("1.1") + appcastItem("2.0")));
        m_server.serve("/same", appcast(appcastItem("1.2.0")));
        m_server.serve("/older", appcast(appcastItem("1.1")));
        m_server.serve("/malformed", "<html>It works!</html>");
        m_server.serveEndlessly("/endless");
        m_server.redirect("/redirected", m_server.url("/newer"));
        m_server.redirect("/circle", m_server.url("/circle"));
        m_server.reply("/refused", "403 Forbidden", "no");
        m_server.answer("/broken", "HTTP/1.1 200 OK\r\nContent-Length: 9999\r\n\r\n<rss>");
        m_server.handle("/slow", [](QTcpSocket& socket) { socket.write("HTTP/1.1 200 OK\r\n"); });
    }

    /// Runs one check to its end; one of its own unless the user asks for it.
    void check(const QUrl& feed, bool isAsked) {
        m_defaults.setValue(keys::automaticallyChecksForUpdates, !isAsked);
        m_defaults.remove(keys::lastUpdateCheck);
        m_service = std::make_unique<UpdateService>(
            UpdateService::Surroundings{m_defaults, m_scheduler, m_fetcher, m_prompt},
            *VersionNumber::parse(QStringLiteral("1.2")), feed);
        QElapsedTimer inCall;
        inCall.start();
        if (isAsked)
            m_service->checkForUpdates();
        else
            m_scheduler.advance(seconds(15));
        EXPECT_LT(inCall.elapsed(), 500) << "the check held the program up";
        ASSERT_EQ(m_service->state(), State::Checking);
    }

    void checkToItsEnd(const char* path, bool isAsked) {
        check(m_server.url(path), isAsked);
        waitForEnd();
    }

    void waitForEnd() {
        EXPECT_TRUE(
            QTest::qWaitFor([this] { return m_service->state() != State::Checking; }, 10'000));
    }

    FeedServer m_server;
    MemoryDefaults m_defaults;
    ManualScheduler m_scheduler;
    WebFeedFetcher m_fetcher;
    FakeUpdatePrompt m_prompt;
    std::unique_ptr<UpdateService> m_service;
};

TEST_F(UpdateCheckTest, OffersWhatIsNewerAskedOrNot) {
    for (const char* path : {"/newer", "/redirected"}) {
        for (const bool isAsked : {false, true}) {
            checkToItsEnd(path, isAsked);
            ASSERT_TRUE(m_prompt.isOffering()) << path;
            EXPECT_EQ(m_prompt.offers().last().version.text(), QStringLiteral("2.0"));
            m_prompt.answer(UpdatePrompt::Answer::Later);
        }
    }
}

TEST_F(UpdateCheckTest, SaysThatThereIsNothingNewerOnlyWhenAsked) {
    for (const char* path : {"/same", "/older"}) {
        checkToItsEnd(path, false);
        EXPECT_EQ(m_prompt.interruptionCount(), 0) << path;
    }
    for (const char* path : {"/same", "/older"})
        checkToItsEnd(path, true);
    EXPECT_EQ(m_prompt.upToDate().size(), 2);
    EXPECT_EQ(m_prompt.interruptionCount(), 2);
}

TEST_F(UpdateCheckTest, SaysWhatWentWrongOnlyWhenAsked) {
    const QList<std::pair<const char*, UpdateFailure>> failures{
        {"/malformed", UpdateFailure::Malformed},   {"/endless", UpdateFailure::TooLong},
        {"/circle", UpdateFailure::UnsafeRedirect}, {"/refused", UpdateFailure::Refused},
        {"/broken", UpdateFailure::Unreachable},    {"/missing", UpdateFailure::Refused},
    };
    for (const auto& [path, failure] : failures)
        checkToItsEnd(path, false);
    EXPECT_EQ(m_prompt.interruptionCount(), 0);
    for (const auto& [path, failure] : failures) {
        checkToItsEnd(path, true);
        EXPECT_EQ(m_prompt.failures().last(), failure) << path;
    }
    EXPECT_EQ(m_prompt.interruptionCount(), failures.size());
}

TEST_F(UpdateCheckTest, GivesUpOnAServerThatIsNotThere) {
    const QUrl feed = m_server.url("/newer");
    m_server.close();
    check(feed, false);
    waitForEnd();
    EXPECT_EQ(m_prompt.interruptionCount(), 0);
    check(feed, true);
    waitForEnd();
    EXPECT_EQ(m_prompt.failures(), QList{UpdateFailure::Unreachable});
}

TEST_F(UpdateCheckTest, GivesUpOnAServerThatIsSlow) {
    for (const bool isAsked : {false, true}) {
        const qsizetype before = m_server.requests().size();
        check(m_server.url("/slow"), isAsked);
        ASSERT_TRUE(QTest::qWaitFor([&] { return m_server.requests().size() > before; }, 5000));
        m_scheduler.advance(seconds(29));
        EXPECT_EQ(m_service->state(), State::Checking);
        m_scheduler.advance(seconds(1));
        EXPECT_EQ(m_service->state(), State::Idle);
        EXPECT_TRUE(QTest::qWaitFor([this] { return m_server.openConnections() == 0; }, 5000));
    }
    EXPECT_EQ(m_prompt.failures(), QList{UpdateFailure::TimedOut});
    EXPECT_EQ(m_prompt.interruptionCount(), 1);
}

} // namespace
} // namespace dropshade
