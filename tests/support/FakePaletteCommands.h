// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "palettes/PaletteCommands.h"

#include <QStringList>

#include <utility>

namespace dropshade {

/// Notes what the palettes window asks for.
class FakePaletteCommands : public PaletteCommands {
public:
    void copyFromPalettes(const SRGBColor& color, std::optional<ColorFormat> format) override {
        copies.append({color, format});
    }
    void createPaletteFromImage() override { ++imageQuestions; }
    void createPaletteFromImageFile(const QString& path) override { imageFiles.append(path); }
    void createPaletteFromImageData(const QByteArray& data, const QString& name) override {
        images.append({data, name});
    }
    void createPaletteFromFile() override { ++fileQuestions; }
    void importPaletteFile(const QString& path) override { files.append(path); }
    void importPaletteData(const QByteArray& data, const QString& fileExtension,
                           const std::optional<QString>& suggestedName) override {
        imports.append({data, fileExtension, suggestedName});
    }
    void exportPaletteTo(const Palette& palette, PaletteExportFormat format) override {
        exports.append({palette.name(), format});
    }

    struct Import {
        QByteArray data;
        QString fileExtension;
        std::optional<QString> suggestedName;
    };

    QList<std::pair<SRGBColor, std::optional<ColorFormat>>> copies;
    int imageQuestions = 0;
    QStringList imageFiles;
    QList<std::pair<QByteArray, QString>> images;
    int fileQuestions = 0;
    QStringList files;
    QList<Import> imports;
    QList<std::pair<QString, PaletteExportFormat>> exports;
};

} // namespace dropshade
