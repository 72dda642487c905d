// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "app/AppDelegate.h"

#include <QDesktopServices>

namespace dropshade {

// Every way to a window ends here: a row of the menu, a global shortcut, an action on the bus.

void AppDelegate::openColorPicker() {}

void AppDelegate::openPalettes() {}

void AppDelegate::openContrast() {}

void AppDelegate::openNewPaletteFromImage() {
    openPalettes();
}

void AppDelegate::openNewPaletteFromFile() {
    openPalettes();
    m_platform.filePanels->open(
        tr("New Palette from File", "Title of the panel that asks for a palette file"),
        {tr("Palettes", "Kind of file in a panel"),
         {QStringLiteral("ase"), QStringLiteral("clr"), QStringLiteral("json")}},
        nullptr, [this](const std::optional<QString>& path) {
            if (path)
                importPalette(*path);
        });
}

void AppDelegate::importPalette(const QString& path) {
    importPalette([&path](const PaletteImporter& importer) { return importer.load(path); });
}

void AppDelegate::importPalette(const QByteArray& data, const QString& fileExtension,
                                const std::optional<QString>& suggestedName) {
    importPalette([&](const PaletteImporter& importer) {
        return importer.decode(data, fileExtension, suggestedName);
    });
}

void AppDelegate::importPalette(const std::function<Palette(const PaletteImporter&)>& load) {
    openPalettes();
    try {
        paletteStore().addPalette(load(PaletteImporter(*m_platform.scheduler)));
    } catch (const PaletteImporterError& error) {
        m_platform.alerts->warn(tr("Couldn't import palette", "Import error title"),
                                error.description());
    }
}

void AppDelegate::openNewPaletteFromPreset() {
    openPalettes();
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
                *platform.alerts,
                *platform.filePanels});
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
