// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Alerts.h"

#include <utility>

namespace dropshade {

/// A user who reads alerts and answers when the test says so, the oldest alert first.
class FakeAlerts : public Alerts {
public:
    void show(const Alert& alert, QWindow* host, Answer answer) override {
        m_waiting.append({alert, host, std::move(answer)});
        m_shown.append(alert);
    }

    /// All that were shown, in order.
    [[nodiscard]] const QList<Alert>& shown() const { return m_shown; }
    [[nodiscard]] qsizetype waitingCount() const { return m_waiting.size(); }

    void answer(qsizetype button) { m_waiting.takeFirst().answer(button); }

private:
    struct Waiting {
        Alert alert;
        QWindow* host;
        Answer answer;
    };

    QList<Alert> m_shown;
    QList<Waiting> m_waiting;
};

} // namespace dropshade
