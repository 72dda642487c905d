// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "app/UpdatePrompt.h"
#include "platform/Alerts.h"

#include <QCoreApplication>

namespace dropshade {

/// Tells of updates in alerts that hold nothing else up.
class UpdateDialogs : public UpdatePrompt {
    Q_DECLARE_TR_FUNCTIONS(UpdateDialogs)

public:
    /// `alerts` must outlive this object.
    explicit UpdateDialogs(Alerts& alerts) : m_alerts(alerts) {}

    void offer(const UpdateItem& item, const VersionNumber& current,
               std::function<void(Answer)> answer) override;
    void raiseOffer() override { m_alerts.raise(); }
    void tellUpToDate(const VersionNumber& current) override;
    void tellFailure(UpdateFailure failure) override;
    void openPage(const QUrl& page) override;

private:
    void tell(const QString& headline, const QString& text);

    Alerts& m_alerts;
};

} // namespace dropshade
