// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "app/SettingsModel.h"

#include "app/CopySound.h"
#include "app/RecentColor.h"
#include "app/SettingsReaders.h"

#include <QCoreApplication>
#include <QLocale>

#include <algorithm>
#include <cmath>
#include <utility>

namespace dropshade {
namespace {

/// Nothing unless the text is a whole number. In a double, so that a number of any size has its
/// sign and can be pinned.
std::optional<double> wholeNumber(const QString& text) {
    bool isNumber = false;
    double number = QLocale().toDouble(text.trimmed(), &isNumber);
    if (!isNumber)
        number = QLocale::c().toDouble(text.trimmed(), &isNumber);
    if (!isNumber || !std::isfinite(number) || std::floor(number) != number)
        return std::nullopt;
    return number;
}

} // namespace

SettingsModel::SettingsModel(Surroundings surroundings)
    : m_with(std::move(surroundings)), m_settings(m_with.settings),
      m_previewSoundService(m_with.defaults, m_with.previewPlayer), m_values(storedValues()) {
    connect(&m_settings, &AppSettings::menuBarIconStyleDidChange, this, &SettingsModel::didChange);
    connect(&m_settings, &AppSettings::iCloudSyncEnabledDidChange, this, [this] {
        updateSyncStatus();
        Q_EMIT didChange();
    });
    connect(&m_settings, &AppSettings::remoteChangeTickDidChange, this, &SettingsModel::reload);
    updateSyncStatus();
}

SettingsModel::~SettingsModel() = default;

SettingsModel::Values SettingsModel::storedValues() const {
    const UserDefaults& defaults = m_with.defaults;
    Values values;
    values.colorFormat = dropshade::colorFormat(defaults);
    values.useHashPrefix = dropshade::useHashPrefix(defaults);
    values.useLowercase = dropshade::useLowercase(defaults);
    values.decimalPlaces = dropshade::decimalPlaces(defaults);
    values.showRecentColors = dropshade::showRecentColors(defaults);
    values.recentColorsLimit = dropshade::recentColorsLimit(defaults);
    values.copySound = dropshade::copySound(defaults);
    values.launchAtLogin = m_with.loginItem.isRegistered();
    values.autoCheckUpdates = UpdateService::automaticallyChecksForUpdates(defaults);
    return values;
}

void SettingsModel::reload() {
    const Values stored = storedValues();
    if (stored == m_values)
        return;
    m_values = stored;
    Q_EMIT didChange();
}

void SettingsModel::store(const QString& key, const DefaultsValue& value) {
    m_with.defaults.setValue(key, value);
    reload();
}

MenuBarIconStyle SettingsModel::menuBarIconStyle() const {
    return m_settings.menuBarIconStyle();
}

void SettingsModel::setMenuBarIconStyle(MenuBarIconStyle style) {
    m_settings.setMenuBarIconStyle(style);
}

void SettingsModel::setRecentColorsLimit(qint64 limit) {
    const auto pinned = static_cast<int>(std::clamp<qint64>(limit, 0, mostRecentColors));
    dropshade::setRecentColorsLimit(m_with.defaults, pinned);
    m_values = storedValues();
    Q_EMIT didChange();
}

void SettingsModel::setRecentColorsLimitText(const QString& text) {
    if (const auto number = wholeNumber(text))
        setRecentColorsLimit(static_cast<qint64>(std::clamp(*number, -1.0, 1000.0)));
    else
        Q_EMIT didChange();
}

void SettingsModel::chooseCopySound(const QString& name) {
    store(keys::copySound, name);
    m_previewSoundService.play();
}

QString SettingsModel::copySoundTitle(const QString& name) {
    if (name == noCopySound) {
        //: Copy sound: silence
        return QCoreApplication::translate("SettingsWindow", "None");
    }
    QString title = name;
    if (!title.isEmpty())
        title[0] = title[0].toUpper();
    if (name == defaultCopySound) {
        //: Copy sound that a fresh install has; %1 is its name
        return QCoreApplication::translate("SettingsWindow", "%1 (default)").arg(title);
    }
    return title;
}

void SettingsModel::setLaunchAtLogin(bool launches) {
    const bool isDone =
        launches ? m_with.loginItem.registerItem() : m_with.loginItem.unregisterItem();
    if (isDone)
        m_values.launchAtLogin = launches;
    // Also a refusal: the toggle has moved already, and goes back.
    Q_EMIT didChange();
}

void SettingsModel::setAutoCheckUpdates(bool checks) {
    m_with.updateService().setAutomaticallyChecksForUpdates(checks);
    reload();
}

void SettingsModel::setICloudSyncEnabled(bool enabled) {
    m_settings.setICloudSyncEnabled(enabled);
}

void SettingsModel::setShown(bool isShown) {
    m_isShown = isShown;
    updateSyncStatus();
}

void SettingsModel::observeEngine() {
    if (std::exchange(m_observesEngine, true))
        return;
    const CloudSyncEngine& engine = m_with.syncEngine();
    connect(&engine, &CloudSyncEngine::statusDidChange, this, &SettingsModel::updateSyncStatus);
    connect(&engine, &CloudSyncEngine::lastSyncDateDidChange, this,
            &SettingsModel::updateSyncStatus);
    connect(&engine, &CloudSyncEngine::sizeBudgetWarningDidChange, this,
            &SettingsModel::updateSyncStatus);
}

void SettingsModel::updateSyncStatus() {
    m_nextWords.reset();
    SyncStatusLabel label;
    // Nobody builds the engine to say that it is off.
    if (m_settings.iCloudSyncEnabled()) {
        observeEngine();
        label = SyncStatusLabel::of(m_with.syncEngine(), m_with.scheduler.now());
    }
    if (m_isShown && label.validFor)
        m_nextWords = m_with.scheduler.after(*label.validFor, [this] { updateSyncStatus(); });
    if (std::exchange(m_syncStatus, label) != label)
        Q_EMIT syncStatusDidChange();
}

void SettingsModel::setColorFormatRaw(const QString& rawValue) {
    if (colorFormatFromRawValue(rawValue.toStdString()))
        store(keys::colorFormat, rawValue);
}

void SettingsModel::setUseLowercase(bool uses) {
    store(keys::useLowercase, uses);
}

void SettingsModel::setUseHashPrefix(bool uses) {
    store(keys::useHashPrefix, uses);
}

bool SettingsModel::showsHexRows() const {
    return m_values.colorFormat == ColorFormat::hex || m_values.colorFormat == ColorFormat::hexa;
}

void SettingsModel::setDecimalPlaces(int places) {
    store(keys::decimalPlaces, qint64(places));
}

bool SettingsModel::showsPrecisionRow() const {
    return m_values.colorFormat >= ColorFormat::nsColorRGB &&
           m_values.colorFormat <= ColorFormat::objcUIColorRGB;
}

} // namespace dropshade
