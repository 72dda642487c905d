// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Alerts.h"

#include <utility>

namespace dropshade {

/// A user who reads alerts and answers when the test says so, the oldest alert first.
class FakeAlerts : public Alerts {
public:
    void show(const Alert& alert, Answer answer) override {
        m_waiting.append(std::move(answer));
        m_shown.append(alert);
    }

    void raise() override { ++m_raiseCount; }

    /// All that were shown, in order.
    [[nodiscard]] const QList<Alert>& shown() const { return m_shown; }
    [[nodiscard]] qsizetype waitingCount() const { return m_waiting.size(); }

    [[nodiscard]] int raiseCount() const { return m_raiseCount; }

    void answer(qsizetype button) { m_waiting.takeFirst()(button); }

private:
    QList<Alert> m_shown;
    QList<Answer> m_waiting;
    int m_raiseCount = 0;
};

} // namespace dropshade
