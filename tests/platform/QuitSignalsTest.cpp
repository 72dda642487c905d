// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/linux/QuitSignals.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QProcess>
#include <QTimer>

#include <csignal>

namespace dropshade {
namespace {

constexpr int quitSignals[] = {SIGTERM, SIGINT, SIGHUP};
constexpr int ended = 0;
constexpr int stayed = 1;

class QuitSignalsTest : public testing::Test {
protected:
    /// How the application ends, in a moment at most.
    static int run() {
        QTimer::singleShot(200, [] { QCoreApplication::exit(stayed); });
        return QCoreApplication::exec();
    }

    QuitSignals m_signals;
    int m_argumentCount = 0;
    QCoreApplication m_application{m_argumentCount, nullptr};
};

TEST_F(QuitSignalsTest, EachQuitsTheApplication) {
    m_signals.listen();
    for (const int signal : quitSignals) {
        QTimer::singleShot(0, [signal] { raise(signal); });
        EXPECT_EQ(run(), ended) << signal;
    }
    EXPECT_EQ(run(), stayed) << "none is left over";
}

TEST_F(QuitSignalsTest, OnesThatCameEarlyAreHeldForTheApplication) {
    for (const int signal : quitSignals)
        raise(signal);
    EXPECT_EQ(run(), stayed);
    m_signals.listen();
    EXPECT_EQ(run(), ended);
}

TEST_F(QuitSignalsTest, EndTheProgramsThatThisOneStartsAsEver) {
    m_signals.listen();
    for (const int signal : quitSignals) {
        QProcess process;
        process.start(QStringLiteral("sleep"), {QStringLiteral("60")});
        ASSERT_TRUE(process.waitForStarted());
        kill(pid_t(process.processId()), signal);
        EXPECT_TRUE(process.waitForFinished(5000)) << signal;
        EXPECT_EQ(process.exitStatus(), QProcess::CrashExit) << signal;
    }
}

} // namespace
} // namespace dropshade
