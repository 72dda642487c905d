// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "palettes/MenuRow.h"
#include "palettes/PalettesModel.h"

#include <QObject>

namespace dropshade {

/// The menus of the palettes window, and what each row does. A row that edits asks the window for
/// the popover by a signal. A menu of what is gone has no rows.
class PaletteMenus : public QObject {
    Q_OBJECT

public:
    explicit PaletteMenus(PalettesModel& model) : m_model(model) {}

    /// "New Palette".
    [[nodiscard]] QList<MenuRow> addMenu();
    [[nodiscard]] QList<MenuRow> paletteMenu(QUuid id);
    [[nodiscard]] QList<MenuRow> scaleMenu(QUuid paletteId, QUuid scaleId);
    [[nodiscard]] QList<MenuRow> swatchMenu(const SwatchPath& path);

Q_SIGNALS:
    void paletteRenameRequested(const QUuid& id);
    void scaleRenameRequested(const QUuid& paletteId, const QUuid& scaleId);
    void swatchEditRequested(const dropshade::SwatchPath& path);

private:
    [[nodiscard]] QList<MenuRow> exportRows(QUuid id);
    [[nodiscard]] QList<MenuRow> copyRows(const SwatchPath& path);

    PalettesModel& m_model;
};

} // namespace dropshade
