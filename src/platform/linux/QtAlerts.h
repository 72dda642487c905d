// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Alerts.h"

#include <QObject>

namespace dropshade {

/// Message boxes of Qt's.
class QtAlerts : public Alerts {
public:
    void show(const Alert& alert, QWindow* host, Answer answer) override;

private:
    QObject m_life; ///< Alerts that are still up end with it.
};

} // namespace dropshade
