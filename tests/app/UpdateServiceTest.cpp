// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "app/UpdateService.h"

#include "support/Appcast.h"
#include "support/FakeFeedFetcher.h"
#include "support/FakeUpdatePrompt.h"
#include "support/ManualScheduler.h"
#include "support/MemoryDefaults.h"

#include <gtest/gtest.h>

#include <limits>

namespace dropshade {
namespace {

using std::chrono::hours;
using std::chrono::milliseconds;
using std::chrono::minutes;
using std::chrono::seconds;
using State = UpdateService::State;
using Answer = UpdatePrompt::Answer;

class UpdateServiceTest : public testing::Test {
protected:
    std::unique_ptr<UpdateService> makeService() {
        return std::make_unique<UpdateService>(
            UpdateService::Surroundings{m_defaults, m_scheduler, m_fetcher, m_prompt},
            *VersionNumber::parse(QStringLiteral("1.2")));
    }

    std::unique_ptr<UpdateService> makeAutomaticService() {
        m_defaults.setValue(keys::automaticallyChecksForUpdates, true);
        return makeService();
    }

    /// Lets a check that is due happen and answers it with these versions.
    void settleAndAnswer(const QByteArray& document) {
        m_scheduler.advance(seconds(15));
        EXPECT_TRUE(m_fetcher.isWaiting());
        m_fetcher.answer(document);
    }

    MemoryDefaults m_defaults;
    ManualScheduler m_scheduler;
    FakeFeedFetcher m_fetcher;
    FakeUpdatePrompt m_prompt;
    const QByteArray m_newer = appcast(appcastItem("1.1") + appcastItem("1.3"));
    const QByteArray m_older = appcast(appcastItem("1.1") + appcastItem("1.2-rc.1"));
};

TEST_F(UpdateServiceTest, StaysOffUnlessTheUserTurnsItOn) {
    const auto service = makeService();
    EXPECT_FALSE(service->automaticallyChecksForUpdates());
    EXPECT_EQ(m_scheduler.pendingCount(), 0);
    m_scheduler.advance(hours(72));
    EXPECT_EQ(m_fetcher.fetchCount(), 0);
}

TEST_F(UpdateServiceTest, AsksTheFeedOfTheProductForAMebibyteAtMost) {
    const auto service = makeService();
    service->checkForUpdates();
    EXPECT_EQ(m_fetcher.url(), UpdateService::feedOfTheProduct());
    EXPECT_EQ(m_fetcher.url().scheme(), QStringLiteral("https"));
    EXPECT_FALSE(m_fetcher.url().host().isEmpty());
    EXPECT_EQ(m_fetcher.mostBytes(), 1048576);
}

TEST_F(UpdateServiceTest, ChecksOnceADayByItself) {
    const auto service = makeAutomaticService();
    EXPECT_EQ(m_fetcher.fetchCount(), 0);
    settleAndAnswer(m_older);
    for (int day = 1; day <= 3; ++day) {
        m_scheduler.advance(hours(24) - milliseconds(1));
        EXPECT_EQ(m_fetcher.fetchCount(), day);
        m_scheduler.advance(milliseconds(1));
        EXPECT_EQ(m_fetcher.fetchCount(), day + 1);
        m_fetcher.answer(m_older);
    }
    EXPECT_EQ(m_prompt.interruptionCount(), 0);
}

TEST_F(UpdateServiceTest, RemembersTheLastCheckOverARestart) {
    auto service = makeAutomaticService();
    settleAndAnswer(m_older);
    service.reset();
    EXPECT_EQ(m_scheduler.pendingCount(), 0);
    m_scheduler.advance(hours(23));
    service = makeService();
    m_scheduler.advance(minutes(59));
    EXPECT_EQ(m_fetcher.fetchCount(), 1);
    m_scheduler.advance(minutes(1));
    EXPECT_EQ(m_fetcher.fetchCount(), 2);
}

TEST_F(UpdateServiceTest, CatchesUpAfterTheComputerHasSlept) {
    const auto service = makeAutomaticService();
    settleAndAnswer(m_older);
    m_scheduler.setNow({m_scheduler.now().seconds + 40.0 * 60.0 * 60.0});
    m_scheduler.advance(hours(4));
    EXPECT_EQ(m_fetcher.fetchCount(), 2);
}

TEST_F(UpdateServiceTest, IsNotHeldUpByAClockThatWasWrong) {
    for (const double last : {1e18, std::numeric_limits<double>::infinity(),
                              -std::numeric_limits<double>::infinity(), std::nan("")}) {
        m_defaults.setValue(keys::lastUpdateCheck, last);
        const auto service = makeAutomaticService();
        const int before = m_fetcher.fetchCount();
        settleAndAnswer(m_older);
        EXPECT_EQ(m_fetcher.fetchCount(), before + 1) << last;
    }
}

TEST_F(UpdateServiceTest, FollowsTheSettingAtOnce) {
    const auto service = makeService();
    service->setAutomaticallyChecksForUpdates(true);
    EXPECT_TRUE(service->automaticallyChecksForUpdates());
    EXPECT_EQ(m_scheduler.pendingCount(), 1);
    service->setAutomaticallyChecksForUpdates(false);
    EXPECT_EQ(m_scheduler.pendingCount(), 0);
}

TEST_F(UpdateServiceTest, HeedsAnotherProcessThatTurnedTheSettingOff) {
    const auto service = makeAutomaticService();
    m_defaults.setFromAnotherProcess(keys::automaticallyChecksForUpdates, false);
    m_scheduler.advance(hours(30));
    EXPECT_EQ(m_fetcher.fetchCount(), 0);
    EXPECT_EQ(m_scheduler.pendingCount(), 0);
}

TEST_F(UpdateServiceTest, OffersTheNewestVersion) {
    const auto service = makeAutomaticService();
    settleAndAnswer(m_newer);
    ASSERT_TRUE(m_prompt.isOffering());
    EXPECT_EQ(service->state(), State::Offering);
    EXPECT_EQ(m_prompt.offers()[0].version.text(), QStringLiteral("1.3"));
    EXPECT_EQ(m_prompt.offers()[0].notes, QStringLiteral("New in 1.3"));
    EXPECT_EQ(m_scheduler.pendingCount(), 0);
}

TEST_F(UpdateServiceTest, OpensThePageAndDownloadsNothing) {
    const auto service = makeAutomaticService();
    settleAndAnswer(m_newer);
    m_prompt.answer(Answer::OpenDownloadPage);
    EXPECT_EQ(m_prompt.pages(), QList{QUrl(QStringLiteral("https://dropshade.example/1.3"))});
    EXPECT_EQ(m_fetcher.fetchCount(), 1);
    EXPECT_EQ(service->state(), State::Idle);
}

TEST_F(UpdateServiceTest, OffersAgainTheNextDayAfterLater) {
    const auto service = makeAutomaticService();
    settleAndAnswer(m_newer);
    m_prompt.answer(Answer::Later);
    m_scheduler.advance(hours(24));
    m_fetcher.answer(m_newer);
    EXPECT_EQ(m_prompt.offers().size(), 2);
    EXPECT_TRUE(m_prompt.pages().isEmpty());
}

TEST_F(UpdateServiceTest, IsSilentAboutASkippedVersionUntilThereIsANewerOne) {
    const auto service = makeAutomaticService();
    settleAndAnswer(m_newer);
    m_prompt.answer(Answer::SkipVersion);
    m_scheduler.advance(hours(24));
    m_fetcher.answer(m_newer);
    EXPECT_EQ(m_prompt.offers().size(), 1);
    m_scheduler.advance(hours(24));
    m_fetcher.answer(appcast(appcastItem("1.3") + appcastItem("1.4")));
    EXPECT_EQ(m_prompt.offers().size(), 2);
    EXPECT_EQ(m_prompt.interruptionCount(), 2);
}

TEST_F(UpdateServiceTest, OffersASkippedVersionToAUserWhoAsks) {
    m_defaults.setValue(keys::skippedUpdateVersion, QStringLiteral("1.3"));
    const auto service = makeService();
    service->checkForUpdates();
    m_fetcher.answer(m_newer);
    EXPECT_TRUE(m_prompt.isOffering());
}

TEST_F(UpdateServiceTest, TellsAUserWhoAsksThatThereIsNothingNewer) {
    const auto service = makeService();
    for (const QByteArray& document : {m_older, appcast(""), appcast(appcastItem("1.2.0"))}) {
        service->checkForUpdates();
        EXPECT_EQ(service->state(), State::Checking);
        m_fetcher.answer(document);
        EXPECT_EQ(service->state(), State::Idle);
    }
    EXPECT_EQ(m_prompt.upToDate(), QStringList(3, QStringLiteral("1.2")));
    EXPECT_EQ(m_prompt.interruptionCount(), 3);
}

TEST_F(UpdateServiceTest, TellsAUserWhoAsksWhyItFailed) {
    const auto service = makeService();
    using Failure = FeedFetcher::Failure;
    for (const Failure failure :
         {Failure::Unreachable, Failure::Refused, Failure::TooLong, Failure::UnsafeRedirect}) {
        service->checkForUpdates();
        m_fetcher.fail(failure);
    }
    service->checkForUpdates();
    m_fetcher.answer("no feed");
    service->checkForUpdates();
    m_scheduler.advance(seconds(30));
    EXPECT_EQ(m_prompt.failures(), (QList{UpdateFailure::Unreachable, UpdateFailure::Refused,
                                          UpdateFailure::TooLong, UpdateFailure::UnsafeRedirect,
                                          UpdateFailure::Malformed, UpdateFailure::TimedOut}));
    EXPECT_EQ(service->state(), State::Idle);
}

TEST_F(UpdateServiceTest, BothersNobodyWhenACheckOfItsOwnFails) {
    const auto service = makeAutomaticService();
    m_scheduler.advance(seconds(15));
    m_fetcher.fail(FeedFetcher::Failure::Unreachable);
    m_scheduler.advance(hours(24));
    m_fetcher.answer("no feed");
    m_scheduler.advance(hours(24));
    m_scheduler.advance(seconds(30));
    EXPECT_EQ(m_fetcher.fetchCount(), 3);
    EXPECT_FALSE(m_fetcher.isWaiting());
    EXPECT_EQ(m_prompt.interruptionCount(), 0);
}

TEST_F(UpdateServiceTest, GivesUpAfterThirtySecondsAndIgnoresWhatComesLater) {
    const auto service = makeService();
    service->checkForUpdates();
    m_scheduler.advance(milliseconds(29'999));
    EXPECT_TRUE(m_fetcher.isWaiting());
    m_scheduler.advance(milliseconds(1));
    EXPECT_FALSE(m_fetcher.isWaiting());
    m_fetcher.answer(m_newer);
    EXPECT_FALSE(m_prompt.isOffering());
}

TEST_F(UpdateServiceTest, TurnsACheckOfItsOwnIntoTheUsers) {
    const auto service = makeAutomaticService();
    m_scheduler.advance(seconds(15));
    service->checkForUpdates();
    service->checkForUpdates();
    EXPECT_EQ(m_fetcher.fetchCount(), 1);
    m_fetcher.answer(m_older);
    EXPECT_EQ(m_prompt.upToDate().size(), 1);
}

TEST_F(UpdateServiceTest, BringsAnOfferToTheFrontWhenTheUserAsks) {
    const auto service = makeAutomaticService();
    settleAndAnswer(m_newer);
    service->checkForUpdates();
    EXPECT_EQ(m_prompt.raiseCount(), 1);
    EXPECT_EQ(m_prompt.offers().size(), 1);
    m_prompt.answer(Answer::Later);
    // What was asked has been answered: the next check is its own again.
    m_scheduler.advance(hours(24));
    m_fetcher.fail(FeedFetcher::Failure::Unreachable);
    EXPECT_TRUE(m_prompt.failures().isEmpty());
}

TEST_F(UpdateServiceTest, CountsTheUsersCheckAsTheDays) {
    const auto service = makeAutomaticService();
    service->checkForUpdates();
    m_fetcher.answer(m_older);
    m_scheduler.advance(hours(23));
    EXPECT_EQ(m_fetcher.fetchCount(), 1);
}

TEST_F(UpdateServiceTest, LeavesNothingBehindWhenItEndsDuringACheck) {
    auto service = makeService();
    service->checkForUpdates();
    service.reset();
    EXPECT_FALSE(m_fetcher.isWaiting());
    EXPECT_EQ(m_scheduler.pendingCount(), 0);
}

TEST_F(UpdateServiceTest, AnnouncesEachState) {
    const auto service = makeService();
    QList<State> states;
    QObject::connect(service.get(), &UpdateService::stateDidChange, service.get(),
                     [&] { states.append(service->state()); });
    service->checkForUpdates();
    m_fetcher.answer(m_newer);
    m_prompt.answer(Answer::Later);
    EXPECT_EQ(states, (QList{State::Checking, State::Offering, State::Idle}));
}

} // namespace
} // namespace dropshade
