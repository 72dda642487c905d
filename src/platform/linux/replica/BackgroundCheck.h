// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CloudAccount.h"

#include <QObject>

namespace dropshade {

/// A check that may take long, on a thread of its own. It answers on the thread that made it; one
/// given up goes on to its end, and nobody hears of it.
class BackgroundCheck : public QObject, public CloudCheck {
    Q_OBJECT

public:
    /// `work` runs on the other thread and gives the answer.
    BackgroundCheck(std::function<QString()> work, CloudAccounts::Answer answer);
};

/// That the program lacks what it needs, for the user.
[[nodiscard]] QString missingPartWords();

} // namespace dropshade
