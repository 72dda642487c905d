// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "interchange/PaletteImports.h"

#include <utility>

namespace dropshade {

void PaletteImports::importFile(const QString& path) {
    append([path](const PaletteImporter& importer) { return importer.load(path); });
}

void PaletteImports::importData(const QByteArray& data, const QString& fileExtension,
                                const std::optional<QString>& suggestedName) {
    append([data, fileExtension, suggestedName](const PaletteImporter& importer) {
        return importer.decode(data, fileExtension, suggestedName);
    });
}

void PaletteImports::append(std::function<Palette(const PaletteImporter&)> decode) {
    m_line.append([this, decode = std::move(decode), importer = PaletteImporter(m_clock.now())](
                      const std::stop_token&) -> BackgroundQueue::Landing {
        try {
            return [this, palette = decode(importer)] { m_landings.add(palette); };
        } catch (const PaletteImporterError& error) {
            return [this, reason = error.description()] {
                m_line.forgetWaiting();
                m_landings.refuse(reason);
            };
        }
    });
}

} // namespace dropshade
