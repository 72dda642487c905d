// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/BackgroundLine.h"

#include "support/ManualBackgroundQueue.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

namespace dropshade {
namespace {

class BackgroundLineTest : public testing::Test {
protected:
    /// A task that writes its name in small when it runs and in capitals when it lands.
    void append(char name) {
        m_line->append([this, name](const std::stop_token&) -> BackgroundQueue::Landing {
            m_log += name;
            return [this, name] { m_log += char(name - 'a' + 'A'); };
        });
    }

    std::string m_log;
    ManualBackgroundQueue m_queue;
    std::optional<BackgroundLine> m_line{std::in_place, m_queue};
};

TEST_F(BackgroundLineTest, RunsATaskWhenTheOneBeforeItHasRun) {
    append('a');
    append('b');
    append('c');
    EXPECT_EQ(m_queue.waiting(), 1);
    m_queue.work();
    EXPECT_EQ(m_log, "a");
    m_queue.land();
    m_queue.workAndLand();
    m_queue.workAndLand();
    EXPECT_EQ(m_log, "aAbBcC");
    append('d');
    m_queue.workAndLand();
    EXPECT_EQ(m_log, "aAbBcCdD");
}

TEST_F(BackgroundLineTest, GoesOnAfterATaskThatDoesNotLand) {
    m_line->append([](const std::stop_token&) -> BackgroundQueue::Landing { return {}; });
    append('a');
    m_queue.workAndLand();
    m_queue.workAndLand();
    EXPECT_EQ(m_log, "aA");
}

TEST_F(BackgroundLineTest, CallsWhoeverWaitsAfterTheLastLanding) {
    const auto note = [this] { m_log += '!'; };
    m_line->whenEmpty(note);
    EXPECT_EQ(m_log, "!");
    append('a');
    append('b');
    m_line->whenEmpty(note);
    m_queue.workAndLand();
    EXPECT_EQ(m_log, "!aA");
    m_queue.workAndLand();
    EXPECT_EQ(m_log, "!aAbB!");
    append('c');
    m_line->whenEmpty(note);
    m_line->forgetWaiting();
    m_queue.workAndLand();
    EXPECT_EQ(m_log, "!aAbB!cC");
}

TEST_F(BackgroundLineTest, HasAllRunAndLandWhereItIsFinished) {
    append('a');
    append('b');
    m_line->finish();
    EXPECT_EQ(m_log, "aAbB");
}

TEST_F(BackgroundLineTest, DropsAtItsEndWhatHasNotLanded) {
    append('a');
    append('b');
    m_queue.work();
    m_line.reset();
    m_queue.workAndLand();
    EXPECT_EQ(m_log, "a");
}

} // namespace
} // namespace dropshade
