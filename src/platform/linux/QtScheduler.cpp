// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/linux/QtScheduler.h"

#include <QBasicTimer>
#include <QObject>

#include <algorithm>
#include <limits>
#include <utility>

namespace dropshade {
namespace {

class TimerWork : public ScheduledWork, private QObject {
public:
    TimerWork(int milliseconds, std::function<void()> action) : m_action(std::move(action)) {
        m_timer.start(milliseconds, Qt::PreciseTimer, this);
    }

private:
    void timerEvent(QTimerEvent*) override {
        // Stopped first, for the action may run an event loop of its own; and taken out, for the
        // action may destroy this object: nothing of it is touched after the call.
        m_timer.stop();
        const auto action = std::exchange(m_action, nullptr);
        action();
    }

    QBasicTimer m_timer;
    std::function<void()> m_action;
};

} // namespace

std::unique_ptr<ScheduledWork> QtScheduler::after(std::chrono::milliseconds delay,
                                                  std::function<void()> action) {
    // Qt counts milliseconds in an int: 24 days, far above any delay of this program.
    constexpr std::chrono::milliseconds longest{std::numeric_limits<int>::max()};
    const auto bounded = std::clamp(delay, std::chrono::milliseconds(0), longest);
    return std::make_unique<TimerWork>(static_cast<int>(bounded.count()), std::move(action));
}

ReferenceTime QtScheduler::now() const {
    using std::chrono::microseconds;
    // Subtracted as integers, so that the double spends its bits on the smaller number.
    constexpr auto reference = microseconds(std::chrono::seconds(978307200));
    static_assert(std::chrono::duration<double>(reference).count() == unixSecondsOfReference);
    const auto sinceUnix = std::chrono::duration_cast<microseconds>(
        std::chrono::system_clock::now().time_since_epoch());
    return ReferenceTime{static_cast<double>((sinceUnix - reference).count()) / 1e6};
}

} // namespace dropshade
