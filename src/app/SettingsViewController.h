// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "app/SettingsRootView.h"
#include "widgets/FloatingWindow.h"

namespace dropshade {

/// Owns the settings window and what it shows. The window is built at its first show, and the same
/// one is shown again after a close.
class SettingsViewController : public QObject {
    Q_OBJECT

public:
    struct Surroundings {
        const Look& look;
        SettingsModel::Surroundings model;
        SyncAccountModel::Surroundings syncAccount;
        KeyboardShortcuts& shortcuts;
        DesktopBindings& desktopBindings;
        Alerts& alerts;
        FilePanels& panels;
        const ApplicationInstance& instance;
        Pasteboard& pasteboard;
    };

    explicit SettingsViewController(const Surroundings& surroundings);
    ~SettingsViewController() override;

    void show();

    [[nodiscard]] SettingsModel& model() { return m_model; }
    /// Nothing before the first show.
    [[nodiscard]] QWidget* window() const;

private:
    class Window;

    Surroundings m_with;
    SettingsModel m_model;
    SyncAccountModel m_syncAccount;
    std::unique_ptr<Window> m_window;
};

} // namespace dropshade
