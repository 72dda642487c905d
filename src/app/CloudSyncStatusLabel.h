// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "app/SyncStatusLabel.h"
#include "widgets/Label.h"

namespace dropshade {

/// The words on the state of sync, with a sign where something is wrong. It takes no room where
/// there is nothing to say.
class CloudSyncStatusLabel : public QWidget {
    Q_OBJECT

public:
    explicit CloudSyncStatusLabel(const Look& look, QWidget* parent = nullptr);

    void setStatus(const SyncStatusLabel& status);

private:
    void paintSign();

    const Look& m_look;
    QLabel* m_sign;
    Label* m_words;
    SyncStatusLabel m_status;
};

} // namespace dropshade
