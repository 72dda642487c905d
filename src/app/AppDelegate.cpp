// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "app/AppDelegate.h"

#include "KeyboardShortcuts/ShortcutActions.h"
#include "app/LegacyPreferences.h"
#include "app/SettingsReaders.h"
#include "contrast/ContrastWindowController.h"
#include "convert/ColorPickerWindowController.h"
#include "widgets/Theme.h"
#include "widgets/TintedIcon.h"

#include <QCoreApplication>
#include <QDir>

#include <utility>

namespace dropshade {

namespace {

/// The windows under a menu need a moment to draw what it covered, or the loupe shows its ghost.
constexpr std::chrono::milliseconds menuFadeDelay{100};

/// At the start of a session the panel may well come after its programs.
constexpr std::chrono::seconds hostPatience{10};

/// Set once the user has been told what to do without a status area.
const QString didExplainKey = QStringLiteral("didExplainMissingStatusArea");

/// A tray takes some turns of the event loop to put the icon up, and a large library holds up one.
constexpr std::chrono::milliseconds paletteLoadDelay{500};

/// Before anybody reads a setting.
Platform withLegacyPreferences(Platform platform) {
    importLegacyPreferences(*platform.defaults, legacyPreferencesPath(QDir::homePath()));
    return platform;
}

QString statusIconResource(MenuBarIconStyle style) {
    switch (style) {
    case MenuBarIconStyle::Swatch:
        return QStringLiteral(":/icons/status-swatch.svg");
    case MenuBarIconStyle::Palette:
        return QStringLiteral(":/icons/status-palette.svg");
    case MenuBarIconStyle::Picker:
        break;
    }
    return QStringLiteral(":/icons/status-picker.svg");
}

} // namespace

AppDelegate::AppDelegate(Platform platform)
    : m_platform(withLegacyPreferences(std::move(platform))),
      m_settings(*m_platform.defaults, *m_platform.scheduler),
      m_shortcuts(*m_platform.defaults, *m_platform.hotKeys, *m_platform.keyboardLayout),
      m_desktopBindings({*m_platform.desktopShortcuts, m_shortcuts, *m_platform.defaults},
                        shortcutActions()),
      m_presets(*m_platform.scheduler),
      m_colorPickerService(*m_platform.screenSampler, *m_platform.defaults),
      m_soundService(*m_platform.defaults, *m_platform.soundPlayer),
      m_copier(*m_platform.defaults, *m_platform.pasteboard, m_soundService),
      m_statusMenu(*m_platform.statusItem, menuSources()),
      m_paletteExporter(*m_platform.scheduler, *m_platform.backgroundQueue, *m_platform.filePanels,
                        *m_platform.alerts),
      m_paletteImports(*m_platform.scheduler, *m_platform.backgroundQueue,
                       {[this](const Palette& palette) { paletteStore().addFreshPalette(palette); },
                        [this](const QString& reason) { refuseImport(reason); }}),
      m_imageLoads(std::in_place, *m_platform.backgroundQueue) {}

AppDelegate::~AppDelegate() = default;

void AppDelegate::applicationDidFinishLaunching() {
    registerShortcuts();
    connect(m_platform.statusItem.get(), &StatusItem::clicked, this,
            &AppDelegate::statusItemClicked);
    connect(m_platform.statusItem.get(), &StatusItem::hostFound, this,
            [this] { m_hostWait.reset(); });
    m_hostWait = m_platform.scheduler->after(hostPatience, [this] { explainMissingStatusArea(); });
    updateStatusIcon();
    connect(&m_settings, &AppSettings::menuBarIconStyleDidChange, this,
            &AppDelegate::updateStatusIcon);
    connect(m_platform.appearance.get(), &DesktopAppearance::didChange, this,
            &AppDelegate::updateStatusIcon);
    connect(m_platform.instance.get(), &ApplicationInstance::activated, &m_statusMenu,
            &StatusMenu::show);
    connect(m_platform.instance.get(), &ApplicationInstance::actionActivated, this,
            &AppDelegate::performAction);
    connectMenu();
    connect(&m_settings, &AppSettings::iCloudSyncEnabledDidChange, this, &AppDelegate::setSyncing);
    m_paletteLoad = m_platform.scheduler->after(paletteLoadDelay, [this] { loadPalettes(); });
    if (UpdateService::automaticallyChecksForUpdates(*m_platform.defaults))
        updateService();
}

StatusMenu::Sources AppDelegate::menuSources() {
    return {*m_platform.defaults,
            m_settings,
            m_shortcuts,
            m_desktopBindings,
            [this]() -> const QList<Palette>& { return paletteStore().palettes(); },
            [this]() -> const Look& { return look(); }};
}

void AppDelegate::connectMenu() {
    const StatusMenu* menu = &m_statusMenu;
    connect(menu, &StatusMenu::pickColorClicked, this, &AppDelegate::pickColorClicked);
    connect(menu, &StatusMenu::openColorPicker, this, &AppDelegate::openColorPicker);
    connect(menu, &StatusMenu::openPalettes, this, &AppDelegate::openPalettes);
    connect(menu, &StatusMenu::openContrast, this, &AppDelegate::openContrast);
    connect(menu, &StatusMenu::openNewPaletteFromImageMenu, this,
            [this] { openNewPaletteFromImage(); });
    connect(menu, &StatusMenu::openNewPaletteFromFileMenu, this,
            [this] { openNewPaletteFromFile(); });
    connect(menu, &StatusMenu::openNewPaletteFromPresetMenu, this,
            [this] { openNewPaletteFromPreset(); });
    // A colour that the menu keeps counts for nothing, and is no newer for a copy.
    connect(menu, &StatusMenu::pinnedColorClicked, this,
            [this](const PinnedColor& pin) { m_copier.copy(pin.cachedColor()); });
    connect(menu, &StatusMenu::recentColorClicked, this,
            [this](const RecentColor& recent) { m_copier.copy(recent.color()); });
    connect(menu, &StatusMenu::clearRecentColors, this,
            [this] { saveRecentColors(*m_platform.defaults, {}); });
    connect(menu, &StatusMenu::openSettings, this, &AppDelegate::openSettings);
    connect(menu, &StatusMenu::openAbout, this, &AppDelegate::openAbout);
    connect(menu, &StatusMenu::checkForUpdates, this,
            [this] { updateService().checkForUpdates(); });
    connect(menu, &StatusMenu::quitApp, this, &AppDelegate::quit);
}

void AppDelegate::registerShortcuts() {
    const QList<ShortcutAction> shortcuts = shortcutActions();
    for (const ShortcutAction& shortcut : shortcuts)
        m_shortcuts.onKeyUp(shortcut.name,
                            [this, action = shortcut.action] { performAction(action); });
    m_desktopBindings.start();
}

void AppDelegate::applicationWillTerminate() {
    m_pickAfterMenu.reset();
    m_paletteLoad.reset();
    m_presetRequest.reset();
    m_hostWait.reset();
    m_imageLoads.reset();
    m_isTerminating = true;
    // What the user has brought in is saved with the rest.
    m_paletteImports.finish();
    m_platform.defaults->beginLastWrites();
    // The store first: its save may bring the pins in line.
    if (m_paletteStore && m_paletteStore->hasPendingSave())
        m_paletteStore->flushPendingSave();
    if (m_settings.hasPendingPins())
        m_settings.flushPendingPins();
    // What has just been saved goes out with the rest.
    if (m_syncEngine) {
        m_syncEngine->flushPendingPushes();
        m_platform.cloudStore->close();
    }
    // Qt may wait for a clipboard manager that is slow to take the text over; nothing of the
    // program should be seen meanwhile.
    m_platform.statusItem->setIcon(QIcon());
    // Last, since a large poster takes a second.
    m_paletteExporter.finish();
}

/// Once all imports have come and all exports are written. Where one fails the program stays, so
/// that its alert is read.
void AppDelegate::quit() {
    m_paletteImports.whenImported(
        [this] { m_paletteExporter.whenWritten([this] { Q_EMIT quitRequested(); }); });
}

void AppDelegate::updateStatusIcon() {
    const auto scheme =
        m_platform.appearance->isDark() ? Theme::Scheme::Dark : Theme::Scheme::Light;
    m_platform.statusItem->setIcon(tintedStatusIcon(
        statusIconResource(m_settings.menuBarIconStyle()), Theme::of(scheme).textPrimary));
}

void AppDelegate::explainMissingStatusArea() {
    UserDefaults& defaults = *m_platform.defaults;
    if (defaults.read<bool>(didExplainKey).value_or(false))
        return;
    defaults.setValue(didExplainKey, true);
    m_platform.alerts->warn(
        //: Title of a message on a desktop with no place for the program's icon
        tr("Dropshade has no icon on this desktop"),
        //: The message; "it" is the program
        tr("This desktop has no status area. Dropshade is running: start it once more to open its "
           "menu, or bind keys of your own to its actions in the settings of the desktop."));
}

UserPaletteStore& AppDelegate::paletteStore() {
    if (!m_paletteStore)
        m_paletteStore = std::make_unique<UserPaletteStore>(
            *m_platform.defaults, *m_platform.scheduler, m_settings, m_presets);
    return *m_paletteStore;
}

/// Sync needs the palettes, so it starts with them and not before the icon is up.
void AppDelegate::loadPalettes() {
    static_cast<void>(paletteStore());
    if (m_settings.iCloudSyncEnabled())
        setSyncing(true);
}

CloudSyncEngine& AppDelegate::syncEngine() {
    if (!m_syncEngine)
        m_syncEngine = std::make_unique<CloudSyncEngine>(CloudSyncEngine::Surroundings{
            *m_platform.cloudStore, *m_platform.defaults, *m_platform.scheduler, m_settings,
            paletteStore(), *m_platform.backgroundQueue});
    return *m_syncEngine;
}

void AppDelegate::setSyncing(bool enabled) {
    if (enabled)
        syncEngine().start();
    else if (m_syncEngine)
        m_syncEngine->stop();
}

void AppDelegate::syncAccountDidChange() {
    if (m_syncEngine && m_syncEngine->isStarted()) {
        m_syncEngine->stop();
        m_syncEngine->start();
    }
}

void AppDelegate::statusItemClicked(const StatusItemClick& click) {
    // Some panels keep the right click to themselves, so the middle one picks as well.
    const bool isQuickPick =
        click.button != Qt::LeftButton || click.modifiers.testFlag(Qt::ControlModifier);
    if (isQuickPick)
        startPick();
    else
        m_statusMenu.toggle();
}

void AppDelegate::pickColorClicked() {
    m_pickAfterMenu = m_platform.scheduler->after(menuFadeDelay, [this] { startPick(); });
}

void AppDelegate::startPickFromAnywhere() {
    if (!m_statusMenu.isOpen()) {
        startPick();
        return;
    }
    m_statusMenu.close();
    pickColorClicked();
}

void AppDelegate::performAction(ApplicationAction action) {
    if (action == ApplicationAction::QuickPick) {
        startPickFromAnywhere();
        return;
    }
    m_statusMenu.close();
    if (action == ApplicationAction::Convert)
        openColorPicker();
    else if (action == ApplicationAction::Palettes)
        openPalettes();
    else
        openContrast();
}

void AppDelegate::startPick() {
    if (m_isPicking)
        return;
    m_isPicking = true;
    m_colorPickerService.pickColor([this](const auto& color) { finishPick(color); });
}

void AppDelegate::finishPick(const std::optional<SRGBColor>& color) {
    if (color)
        copyColor(*color);
    m_isPicking = false;
}

void AppDelegate::copyColor(const SRGBColor& color, std::optional<ColorFormat> format) {
    m_copier.copyAndRecord(color, format);
}

const Look& AppDelegate::look() {
    if (!m_look)
        m_look = std::make_unique<Look>(*m_platform.appearance);
    return *m_look;
}

UpdateService& AppDelegate::updateService() {
    if (!m_updateService) {
        m_updateDialogs = std::make_unique<UpdateDialogs>(*m_platform.alerts);
        m_updateService = std::make_unique<UpdateService>(
            UpdateService::Surroundings{*m_platform.defaults, *m_platform.scheduler,
                                        *m_platform.feedFetcher, *m_updateDialogs},
            VersionNumber::parse(QCoreApplication::applicationVersion()).value_or(VersionNumber()));
    }
    return *m_updateService;
}

} // namespace dropshade
