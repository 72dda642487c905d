// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/StatusItem.h"

#include <QElapsedTimer>
#include <QMenu>

#include <memory>

namespace dropshade {

/// The menu under the status item, built anew for each time that it opens.
class StatusMenu : public QObject {
    Q_OBJECT

public:
    explicit StatusMenu(StatusItem& statusItem);
    ~StatusMenu() override;

    /// Opens the menu at the status item, or at the pointer where the desktop does not tell where
    /// the item is. A click that has just closed the menu does not open it again.
    void show();

    [[nodiscard]] bool isOpen() const;
    void close();

Q_SIGNALS:
    void pickColorClicked();
    void quitClicked();

private:
    [[nodiscard]] std::unique_ptr<QMenu> buildMenu();
    [[nodiscard]] QPoint origin(const QSize& menuSize) const;

    StatusItem& m_statusItem;
    std::unique_ptr<QMenu> m_menu;
    QElapsedTimer m_sinceHidden;
};

} // namespace dropshade
