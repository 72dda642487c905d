// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Alerts.h"
#include "widgets/AlertWindow.h"

#include <QPointer>

#include <memory>

namespace dropshade {

/// Alerts in the look of the program's windows.
class ThemedAlerts : public Alerts {
public:
    /// `appearance` must outlive this object; nothing is built before the first alert.
    explicit ThemedAlerts(const DesktopAppearance& appearance) : m_appearance(appearance) {}
    ~ThemedAlerts() override;

    void show(const Alert& alert, Answer answer) override;
    void raise() override;

private:
    const DesktopAppearance& m_appearance;
    std::unique_ptr<Look> m_look;
    QList<QPointer<AlertWindow>> m_waiting;
};

} // namespace dropshade
