// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "KeyboardShortcuts/DesktopBindings.h"
#include "KeyboardShortcuts/RecorderModel.h"
#include "KeyboardShortcuts/ShortcutActions.h"
#include "app/SettingsForm.h"
#include "app/SettingsModel.h"
#include "app/SyncAccountModel.h"
#include "platform/ApplicationInstance.h"
#include "platform/FilePanels.h"
#include "platform/Pasteboard.h"

namespace dropshade {

class CloudSyncStatusLabel;
class MenuBarIconPicker;
class Picker;
class SegmentedControl;
class SyncAccountView;
class TextField;
class Toggle;

/// The form of all settings: what its models hold, and nothing of its own.
class SettingsRootView : public SettingsForm {
    Q_OBJECT

public:
    /// All of it must outlive the view.
    struct Surroundings {
        const Look& look;
        SettingsModel& model;
        SyncAccountModel& syncAccount;
        KeyboardShortcuts& shortcuts;
        DesktopBindings& desktopBindings;
        Alerts& alerts;
        FilePanels& panels;
        const ApplicationInstance& instance;
        Pasteboard& pasteboard;
    };

    explicit SettingsRootView(const Surroundings& surroundings);

private:
    void buildGeneral();
    void buildSync();
    void buildFormat();
    void buildHotkeys();
    Toggle* addToggle(const QString& name, void (SettingsModel::*set)(bool),
                      SettingsRow** row = nullptr);
    void addRecorder(const ShortcutAction& shortcut);
    void addDesktopKey(const ShortcutAction& shortcut);
    [[nodiscard]] QWidget* makeCommandButton(const ShortcutAction& shortcut);
    void showDesktopKeys();
    void showValues();
    void showSyncStatus();

    Surroundings m_with;
    SettingsModel& m_model;
    MenuBarIconPicker* m_icon = nullptr;
    TextField* m_recentColors = nullptr;
    Picker* m_sound = nullptr;
    Toggle* m_login = nullptr;
    Toggle* m_updates = nullptr;
    Toggle* m_sync = nullptr;
    CloudSyncStatusLabel* m_syncStatus = nullptr;
    SyncAccountView* m_syncAccount = nullptr;
    Picker* m_format = nullptr;
    Toggle* m_lowercase = nullptr;
    SettingsRow* m_lowercaseRow = nullptr;
    Toggle* m_prefix = nullptr;
    SettingsRow* m_prefixRow = nullptr;
    SegmentedControl* m_precision = nullptr;
    SettingsRow* m_precisionRow = nullptr;
    Label* m_hotkeyFooter = nullptr;
    // Of each action one, where the desktop has the keys.
    QList<QWidget*> m_triggerFields;
    QList<QWidget*> m_commandButtons;
};

} // namespace dropshade
