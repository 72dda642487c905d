// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/StatusItem.h"
#include "platform/linux/TrayHostWatch.h"

#include <QSystemTrayIcon>

#include <optional>

namespace dropshade {

/// The status item as a tray icon, by XEmbed or as a StatusNotifierItem, whichever the desktop has.
class TrayStatusItem : public StatusItem {
    Q_OBJECT

public:
    TrayStatusItem();

    void setIcon(const QIcon& icon) override;
    [[nodiscard]] QRect geometry() const override;

private:
    bool eventFilter(QObject* watched, QEvent* event) override;
    [[nodiscard]] Qt::KeyboardModifiers modifiers() const;
    void createTrayIcon();

    QIcon m_icon;
    TrayHostWatch m_hostWatch;
    std::optional<QSystemTrayIcon> m_trayIcon;
};

} // namespace dropshade
