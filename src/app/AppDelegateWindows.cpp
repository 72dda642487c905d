// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "app/AppDelegate.h"

#include "contrast/ContrastWindowController.h"
#include "convert/ColorPickerWindowController.h"

#include <QApplication>

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

void AppDelegate::openPalettes() {}

void AppDelegate::openContrast() {
    if (!m_contrastController)
        m_contrastController = std::make_unique<ContrastWindowController>(
            colorWindowSurroundings(), [] { QApplication::beep(); });
    m_contrastController->show();
}

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

void AppDelegate::openSettings() {}

void AppDelegate::openAbout() {}

} // namespace dropshade
