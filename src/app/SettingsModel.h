// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "app/AppSettings.h"
#include "app/SoundService.h"
#include "app/SyncStatusLabel.h"
#include "app/UpdateService.h"
#include "color/ColorFormat.h"
#include "platform/LoginItem.h"

#include <functional>

namespace dropshade {

/// The settings window without the window: the values that its rows show, and what a change of each
/// does. Every change is stored at once. A change that comes from elsewhere, such as another
/// machine, shows and does nothing else.
class SettingsModel : public QObject {
    Q_OBJECT

public:
    /// All of it must outlive the model.
    struct Surroundings {
        UserDefaults& defaults;
        Scheduler& scheduler;
        AppSettings& settings;
        /// For previews alone, so that they don't touch what a copy will play.
        SoundPlayer& previewPlayer;
        LoginItem& loginItem;
        /// These come into being when they are needed.
        std::function<UpdateService&()> updateService;
        std::function<CloudSyncEngine&()> syncEngine;
    };

    explicit SettingsModel(Surroundings surroundings);
    ~SettingsModel() override;

    /// Reads every value anew. For each time that the window is shown, since the desktop's login
    /// items may have changed meanwhile.
    void reload();

    // General

    [[nodiscard]] MenuBarIconStyle menuBarIconStyle() const;
    void setMenuBarIconStyle(MenuBarIconStyle style);

    [[nodiscard]] int recentColorsLimit() const { return m_values.recentColorsLimit; }
    /// Pins the number, and cuts the recent colours to it.
    void setRecentColorsLimit(qint64 limit);
    /// The same with what the user typed, in digits of any language; what is no whole number is
    /// not taken. `didChange` comes in any case, so that the field shows what holds.
    void setRecentColorsLimitText(const QString& text);

    [[nodiscard]] const QString& copySound() const { return m_values.copySound; }
    /// Stores the sound and plays it at once, also where it is the present one.
    void chooseCopySound(const QString& name);
    [[nodiscard]] static QString copySoundTitle(const QString& name);

    [[nodiscard]] bool launchAtLogin() const { return m_values.launchAtLogin; }
    /// Where the desktop refuses, the value stays.
    void setLaunchAtLogin(bool launches);

    [[nodiscard]] bool autoCheckUpdates() const { return m_values.autoCheckUpdates; }
    void setAutoCheckUpdates(bool checks);

    [[nodiscard]] bool iCloudSyncEnabled() const { return m_settings.iCloudSyncEnabled(); }
    void setICloudSyncEnabled(bool enabled);
    /// Empty while sync is off.
    [[nodiscard]] const SyncStatusLabel& syncStatus() const { return m_syncStatus; }
    /// The words of a status that tells time go on only while somebody sees them.
    void setShown(bool isShown);

    // Format

    [[nodiscard]] ColorFormat colorFormat() const { return m_values.colorFormat; }
    /// A raw value that names no format changes nothing.
    void setColorFormatRaw(const QString& rawValue);

    [[nodiscard]] bool useLowercase() const { return m_values.useLowercase; }
    void setUseLowercase(bool uses);
    [[nodiscard]] bool useHashPrefix() const { return m_values.useHashPrefix; }
    void setUseHashPrefix(bool uses);
    /// Whether the two options above concern the selected format.
    [[nodiscard]] bool showsHexRows() const;

    /// 2, 3 or 4.
    [[nodiscard]] int decimalPlaces() const { return m_values.decimalPlaces; }
    void setDecimalPlaces(int places);
    [[nodiscard]] bool showsPrecisionRow() const;

    /// Read along with the others; no row edits it.
    [[nodiscard]] bool showRecentColors() const { return m_values.showRecentColors; }

Q_SIGNALS:
    /// Anything that is shown.
    void didChange();
    void syncStatusDidChange();

private:
    /// What has no home in `AppSettings`.
    struct Values {
        ColorFormat colorFormat = ColorFormat::hex;
        bool useHashPrefix = true;
        bool useLowercase = false;
        int decimalPlaces = 2;
        bool showRecentColors = true;
        int recentColorsLimit = 0;
        QString copySound;
        bool launchAtLogin = false;
        bool autoCheckUpdates = false;

        friend bool operator==(const Values&, const Values&) = default;
    };

    [[nodiscard]] Values storedValues() const;
    void store(const QString& key, const DefaultsValue& value);
    void observeEngine();
    void updateSyncStatus();

    Surroundings m_with;
    AppSettings& m_settings;
    SoundService m_previewSoundService;
    Values m_values;
    SyncStatusLabel m_syncStatus;
    bool m_isShown = false;
    bool m_observesEngine = false;
    std::unique_ptr<ScheduledWork> m_nextWords;
};

} // namespace dropshade
