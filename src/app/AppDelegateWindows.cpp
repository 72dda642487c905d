// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "app/AppDelegate.h"

#include "KeyboardShortcuts/ShortcutDescription.h"
#include "contrast/ContrastWindowController.h"
#include "convert/ColorPickerWindowController.h"
#include "imagepalette/ImageOffer.h"
#include "palettes/PalettesWindow.h"

#include <QApplication>
#include <QDesktopServices>

namespace dropshade {

// Every way to a window ends here: a row of the menu, a global shortcut, an action on the bus.

ColorWindowSurroundings AppDelegate::colorWindowSurroundings() {
    return {look(),
            *m_platform.defaults,
            m_settings,
            *m_platform.pasteboard,
            *m_platform.scheduler,
            m_colorPickerService,
            m_copier};
}

void AppDelegate::openColorPicker() {
    if (!m_colorPickerController)
        m_colorPickerController =
            std::make_unique<ColorPickerWindowController>(colorWindowSurroundings());
    m_colorPickerController->show();
}

/// What is stored means nothing where the desktop has the keys.
std::optional<QString> AppDelegate::palettesShortcutText() const {
    if (!m_shortcuts.isAvailable()) {
        const QString trigger = m_desktopBindings.trigger(shortcutNames::palettes);
        return trigger.isEmpty() ? std::nullopt : std::optional(trigger);
    }
    const auto shortcut = m_shortcuts.getShortcut(shortcutNames::palettes);
    return shortcut ? std::optional(description(*shortcut, *m_platform.keyboardLayout))
                    : std::nullopt;
}

/// The window is built here and not after the launch: hidden, it would be most of the memory of a
/// program that is its status item.
PalettesWindowController& AppDelegate::palettesController() {
    if (!m_palettesController) {
        m_palettesController = std::make_unique<PalettesWindowController>(
            PalettesWindowController::Surroundings{look(),
                                                   {*m_platform.defaults, *m_platform.scheduler,
                                                    m_settings, paletteStore(), m_presets, *this},
                                                   [this] { return palettesShortcutText(); }});
        connect(&m_shortcuts, &KeyboardShortcuts::shortcutByNameDidChange,
                m_palettesController.get(), &PalettesWindowController::followShortcut);
        connect(&m_desktopBindings, &DesktopBindings::didChange, m_palettesController.get(),
                &PalettesWindowController::followShortcut);
    }
    return *m_palettesController;
}

void AppDelegate::openPalettes() {
    palettesController().bringUp();
}

void AppDelegate::openContrast() {
    if (!m_contrastController)
        m_contrastController = std::make_unique<ContrastWindowController>(
            colorWindowSurroundings(), [] { QApplication::beep(); });
    m_contrastController->show();
}

NewPaletteFromImageWindowController& AppDelegate::newPaletteFromImageController() {
    if (!m_newPaletteFromImageController)
        m_newPaletteFromImageController = std::make_unique<NewPaletteFromImageWindowController>(
            NewPaletteFromImageWindowController::Surroundings{
                look(),
                *m_platform.defaults,
                paletteStore(),
                *m_platform.filePanels,
                {*m_platform.scheduler, *m_platform.backgroundQueue, *m_platform.pasteboard},
                [this](const SRGBColor& color) { copyColor(color); }});
    return *m_newPaletteFromImageController;
}

void AppDelegate::openNewPaletteFromImage(std::optional<LoadedImage> image,
                                          std::optional<QString> name) {
    openPalettes();
    newPaletteFromImageController().present(&palettesController().ensureWindow(), std::move(image),
                                            std::move(name));
}

void AppDelegate::openNewPaletteFromFile() {
    openPalettes();
    m_platform.filePanels->open(
        tr("New Palette from File", "Title of the panel that asks for a palette file"),
        {tr("Palettes", "Kind of file in a panel"),
         {QStringLiteral("ase"), QStringLiteral("clr"), QStringLiteral("json")}},
        [this](const std::optional<QString>& path) {
            if (path)
                importPalette(*path);
        });
}

void AppDelegate::importPalette(const QString& path) {
    openPalettes();
    m_paletteImports.importFile(path);
}

void AppDelegate::importPalette(const QByteArray& data, const QString& fileExtension,
                                const std::optional<QString>& suggestedName) {
    openPalettes();
    m_paletteImports.importData(data, fileExtension, suggestedName);
}

void AppDelegate::refuseImport(const QString& reason) {
    const QString title = tr("Couldn't import palette", "Import error title");
    if (m_isTerminating)
        qWarning("%s: %s", qUtf8Printable(title), qUtf8Printable(reason));
    else
        m_platform.alerts->warn(title, reason);
}

void AppDelegate::openNewPaletteFromPreset() {
    openPalettes();
    m_presetRequest = m_platform.scheduler->after(std::chrono::milliseconds(0), [this] {
        palettesController().requests().requestPresetPicker();
    });
}

// What the palettes window asks for

void AppDelegate::copyFromPalettes(const SRGBColor& color, std::optional<ColorFormat> format) {
    copyColor(color, format);
    if (m_settings.closePaletteDialogOnCopy())
        palettesController().close();
}

void AppDelegate::createPaletteFromImage() {
    openNewPaletteFromImage();
}

void AppDelegate::createPaletteFromImageFile(const QString& path) {
    loadImage([path] { return ImageLoader::loadFile(path); }, nameWithoutExtension(path));
}

void AppDelegate::createPaletteFromImageData(const QByteArray& data, const QString& name) {
    loadImage([data] { return ImageLoader::loadData(data); }, name);
}

/// Whoever has closed the palettes meanwhile doesn't want them back for the sheet over them.
void AppDelegate::loadImage(std::function<std::optional<LoadedImage>()> load, const QString& name) {
    if (!m_imageLoads)
        return;
    m_imageLoads->append(
        [this, load = std::move(load), name](const std::stop_token&) -> BackgroundQueue::Landing {
            auto image = load();
            if (!image)
                return {};
            return [this, name, image = *std::move(image)] {
                if (palettesController().isShown())
                    openNewPaletteFromImage(image, name);
            };
        });
}

void AppDelegate::createPaletteFromFile() {
    openNewPaletteFromFile();
}

void AppDelegate::importPaletteFile(const QString& path) {
    importPalette(path);
}

void AppDelegate::importPaletteData(const QByteArray& data, const QString& fileExtension,
                                    const std::optional<QString>& suggestedName) {
    importPalette(data, fileExtension, suggestedName);
}

void AppDelegate::exportPaletteTo(const Palette& palette, PaletteExportFormat format) {
    m_paletteExporter.exportPalette(palette, format);
}

void AppDelegate::openSettings() {
    settingsController().show();
}

SettingsViewController& AppDelegate::settingsController() {
    if (!m_settingsController) {
        const Platform& platform = m_platform;
        m_settingsController =
            std::make_unique<SettingsViewController>(SettingsViewController::Surroundings{
                look(),
                {*platform.defaults, *platform.scheduler, m_settings, *platform.previewPlayer,
                 *platform.loginItem, [this]() -> UpdateService& { return updateService(); },
                 [this]() -> CloudSyncEngine& { return syncEngine(); }},
                {*platform.defaults, *platform.scheduler, cloudAccounts(),
                 [this] { syncAccountDidChange(); }},
                m_shortcuts,
                m_desktopBindings,
                *platform.alerts,
                *platform.filePanels,
                *platform.instance,
                *platform.pasteboard});
    }
    return *m_settingsController;
}

void AppDelegate::openAbout() {
    aboutController().show();
}

AboutWindowController& AppDelegate::aboutController() {
    if (!m_aboutController)
        m_aboutController = std::make_unique<AboutWindowController>(
            AboutWindowController::Surroundings{look(), *m_platform.defaults, [](const QUrl& url) {
                                                    QDesktopServices::openUrl(url);
                                                }});
    return *m_aboutController;
}

} // namespace dropshade
