// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "KeyboardShortcuts/DesktopBindings.h"
#include "KeyboardShortcuts/KeyboardShortcuts.h"
#include "app/AboutWindowController.h"
#include "app/AppSettings.h"
#include "app/ColorCopier.h"
#include "app/ColorPickerService.h"
#include "app/ColorWindowSurroundings.h"
#include "app/SettingsViewController.h"
#include "app/SoundService.h"
#include "app/StatusMenu.h"
#include "app/UpdateDialogs.h"
#include "app/UpdateService.h"
#include "color/ColorFormat.h"
#include "imagepalette/NewPaletteFromImageWindowController.h"
#include "interchange/PaletteExporter.h"
#include "interchange/PaletteImports.h"
#include "palettes/PalettesWindowController.h"
#include "palettes/UserPaletteStore.h"
#include "platform/Platform.h"
#include "sync/CloudSyncEngine.h"
#include "widgets/Look.h"

#include <QObject>

#include <functional>
#include <memory>
#include <optional>

namespace dropshade {

class ColorPickerWindowController;
class ContrastWindowController;

/// The program's one controller: it owns a service and a window controller of each kind, and
/// carries the main flow, from a sample on the screen to its text on the clipboard.
class AppDelegate : public QObject, private PaletteCommands {
    Q_OBJECT

public:
    explicit AppDelegate(Platform platform);
    ~AppDelegate() override;

    /// Puts up the status item and begins to listen. Once, when the application is about to run.
    void applicationDidFinishLaunching();

    /// Writes what is still waiting, and ends the rest. Once, when the application is about to end.
    void applicationWillTerminate();

    /// Samples the screen and copies the colour. Does nothing while a sample is up.
    void startPick();

    /// The same from anywhere: the menu, if it is open, is off the screen first.
    void startPickFromAnywhere();

    // The windows, each built at its first use and brought to the front at every one.

    void openColorPicker();
    void openPalettes();
    void openContrast();
    /// Brings up the palettes, then the sheet that turns an image into one. `name` is that of the
    /// image's file without its extension.
    void openNewPaletteFromImage(std::optional<LoadedImage> image = std::nullopt,
                                 std::optional<QString> name = std::nullopt);
    /// Brings up the palettes, then the panel that asks for a file.
    void openNewPaletteFromFile();
    /// Brings up the palettes and puts the file's palette in front of them as soon as it is read,
    /// or tells why not.
    void importPalette(const QString& path);
    /// The same for what a drop brings: see `PaletteImporter::decode`.
    void importPalette(const QByteArray& data, const QString& fileExtension,
                       const std::optional<QString>& suggestedName);
    /// Brings up the palettes, then the choice of presets.
    void openNewPaletteFromPreset();
    void openSettings();
    void openAbout();

    /// True from the start of a sample until its flow has ended.
    bool isPicking() const { return m_isPicking; }

    /// Counts the copy, puts the colour's text on the clipboard, in `format` or else in the format
    /// of the settings, remembers the colour among the recent ones if the settings want it, and
    /// plays their sound.
    void copyColor(const SRGBColor& color, std::optional<ColorFormat> format = std::nullopt);

    [[nodiscard]] AppSettings& settings() { return m_settings; }

    [[nodiscard]] KeyboardShortcuts& shortcuts() { return m_shortcuts; }

    /// Loaded at the first call, or soon after the launch.
    [[nodiscard]] UserPaletteStore& paletteStore();

    /// The look of every window and menu; made at the first call.
    [[nodiscard]] const Look& look();

    PaletteExporter& paletteExporter() { return m_paletteExporter; }

    /// Comes into being at the first call; started where the settings say so.
    CloudSyncEngine& syncEngine();

    /// The settings have another account, or another password of it, for sync to use from now on.
    void syncAccountDidChange();

    /// What a window needs to set up that account.
    CloudAccounts& cloudAccounts() { return *m_platform.cloudAccounts; }

    /// The updater; it and what it needs come into being at the first call.
    UpdateService& updateService();

    // The owners of the windows, made at the first call.

    SettingsViewController& settingsController();
    AboutWindowController& aboutController();

Q_SIGNALS:
    /// The user asked for the end of the program.
    void quitRequested();

private:
    [[nodiscard]] StatusMenu::Sources menuSources();
    void connectMenu();
    void registerShortcuts();
    void statusItemClicked(const StatusItemClick& click);
    void pickColorClicked();
    void performAction(ApplicationAction action);
    void quit();
    void updateStatusIcon();
    void explainMissingStatusArea();
    void loadPalettes();
    void setSyncing(bool enabled);
    [[nodiscard]] ColorWindowSurroundings colorWindowSurroundings();
    void finishPick(const std::optional<SRGBColor>& color);
    void refuseImport(const QString& reason);
    void loadImage(std::function<std::optional<LoadedImage>()> load, const QString& name);
    [[nodiscard]] std::optional<QString> palettesShortcutText() const;
    PalettesWindowController& palettesController();
    NewPaletteFromImageWindowController& newPaletteFromImageController();

    // What the palettes window asks for
    void copyFromPalettes(const SRGBColor& color, std::optional<ColorFormat> format) override;
    void createPaletteFromImage() override;
    void createPaletteFromImageFile(const QString& path) override;
    void createPaletteFromImageData(const QByteArray& data, const QString& name) override;
    void createPaletteFromFile() override;
    void importPaletteFile(const QString& path) override;
    void importPaletteData(const QByteArray& data, const QString& fileExtension,
                           const std::optional<QString>& suggestedName) override;
    void exportPaletteTo(const Palette& palette, PaletteExportFormat format) override;

    Platform m_platform;
    AppSettings m_settings;
    std::unique_ptr<Look> m_look;
    KeyboardShortcuts m_shortcuts;
    DesktopBindings m_desktopBindings;
    PalettePresets m_presets;
    std::unique_ptr<UserPaletteStore> m_paletteStore;
    std::unique_ptr<CloudSyncEngine> m_syncEngine;
    ColorPickerService m_colorPickerService;
    SoundService m_soundService;
    ColorCopier m_copier;
    StatusMenu m_statusMenu;
    PaletteExporter m_paletteExporter;
    PaletteImports m_paletteImports;
    /// Images on their way to the sheet. Nobody needs one that hasn't come when the program ends.
    std::optional<BackgroundLine> m_imageLoads;
    std::unique_ptr<ColorPickerWindowController> m_colorPickerController;
    std::unique_ptr<ContrastWindowController> m_contrastController;
    std::unique_ptr<UpdateDialogs> m_updateDialogs;
    std::unique_ptr<UpdateService> m_updateService;
    std::unique_ptr<PalettesWindowController> m_palettesController;
    std::unique_ptr<NewPaletteFromImageWindowController> m_newPaletteFromImageController;
    std::unique_ptr<ScheduledWork> m_presetRequest;
    std::unique_ptr<SettingsViewController> m_settingsController;
    std::unique_ptr<AboutWindowController> m_aboutController;
    std::unique_ptr<ScheduledWork> m_pickAfterMenu;
    std::unique_ptr<ScheduledWork> m_paletteLoad;
    /// Waits for a status area to come up, as long as there is none.
    std::unique_ptr<ScheduledWork> m_hostWait;
    bool m_isPicking = false;
    bool m_isTerminating = false;
};

} // namespace dropshade
