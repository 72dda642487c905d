// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "palettes/PaletteMenus.h"

namespace dropshade {

namespace {

bool asks(MenuRow::Confirmation confirmation) {
    return confirmation == MenuRow::Confirmation::Asked;
}

} // namespace

QList<MenuRow> PaletteMenus::addMenu() {
    PalettesModel* model = &m_model;
    return {
        //: Menu item that creates a palette with a few swatches
        MenuRow::item(tr("Create from scratch"), [model] { model->createFromScratch(); }),
        MenuRow::divider(),
        //: Menu item that creates a palette
        MenuRow::item(tr("Create from image…"),
                      [model] { model->commands().createPaletteFromImage(); }),
        //: Menu item that creates a palette
        MenuRow::item(tr("Create from file… (.ase, .clr, .json)"),
                      [model] { model->commands().createPaletteFromFile(); }),
        //: Menu item that creates a palette
        MenuRow::item(tr("Create from preset…"), [model] { model->requestPresetPicker(); }),
    };
}

QList<MenuRow> PaletteMenus::exportRows(QUuid id) {
    QList<MenuRow> rows;
    PalettesModel* model = &m_model;
    for (const PaletteExportFormat format : exportMenuOrder()) {
        rows.append(MenuRow::item(menuTitle(format), [model, id, format] {
            if (const auto palette = model->palette(id))
                model->commands().exportPaletteTo(*palette, format);
        }));
    }
    return rows;
}

QList<MenuRow> PaletteMenus::paletteMenu(QUuid id) {
    PalettesModel* model = &m_model;
    if (!model->palette(id))
        return {};
    return {
        //: Menu item
        MenuRow::item(tr("Rename Palette"), [this, id] { Q_EMIT paletteRenameRequested(id); }),
        //: Menu item
        MenuRow::item(tr("Duplicate Palette"),
                      [model, id] { model->store().duplicatePalette(id); }),
        //: Title of a submenu with file formats
        MenuRow::submenu(tr("Export Palette"), exportRows(id)),
        MenuRow::divider(),
        //: Menu item
        MenuRow::item(tr("Add Scale"), [model, id] { model->addScale(id); }),
        MenuRow::divider(),
        //: Menu item
        MenuRow::destructive(
            tr("Delete Palette"),
            [model, id](auto confirmation) { model->deletePalette(id, asks(confirmation)); }),
    };
}

QList<MenuRow> PaletteMenus::scaleMenu(QUuid paletteId, QUuid scaleId) {
    PalettesModel* model = &m_model;
    if (!model->scale(paletteId, scaleId))
        return {};
    const auto sort = [model, paletteId, scaleId](UserPaletteStore::SortOrder order) {
        return [model, paletteId, scaleId, order] {
            model->store().sortSwatches(paletteId, scaleId, order);
        };
    };
    return {
        //: Menu item
        MenuRow::item(
            tr("Rename Scale"),
            [this, paletteId, scaleId] { Q_EMIT scaleRenameRequested(paletteId, scaleId); }),
        //: Menu item
        MenuRow::item(
            tr("Duplicate Scale"),
            [model, paletteId, scaleId] { model->store().duplicateScale(paletteId, scaleId); }),
        MenuRow::divider(),
        //: Menu item
        MenuRow::item(tr("Sort Light to Dark"), sort(UserPaletteStore::SortOrder::LightToDark)),
        //: Menu item
        MenuRow::item(tr("Sort Dark to Light"), sort(UserPaletteStore::SortOrder::DarkToLight)),
        MenuRow::divider(),
        //: Menu item
        MenuRow::destructive(tr("Delete Scale"),
                             [model, paletteId, scaleId](auto confirmation) {
                                 model->deleteScale(paletteId, scaleId, asks(confirmation));
                             }),
    };
}

QList<MenuRow> PaletteMenus::copyRows(const SwatchPath& path) {
    QList<MenuRow> rows;
    PalettesModel* model = &m_model;
    for (const ColorFormatGroup& group : formatGroups()) {
        rows.append(
            MenuRow::section(QString::fromUtf8(group.title.data(), qsizetype(group.title.size()))));
        for (const ColorFormat format : group.formats) {
            const std::string_view name = displayName(format);
            rows.append(MenuRow::item(QString::fromUtf8(name.data(), qsizetype(name.size())),
                                      [model, path, format] { model->copySwatch(path, format); }));
        }
    }
    return rows;
}

QList<MenuRow> PaletteMenus::swatchMenu(const SwatchPath& path) {
    PalettesModel* model = &m_model;
    if (!model->swatch(path))
        return {};
    //: Menu item of a swatch that is a favorite
    const QString remove = tr("Remove from Favorites");
    //: Menu item of a swatch that is no favorite
    const QString add = tr("Add to Favorites");
    return {
        //: Menu item
        MenuRow::item(tr("Edit Color"), [this, path] { Q_EMIT swatchEditRequested(path); }),
        MenuRow::divider(),
        MenuRow::item(model->isFavorite(path.swatchId) ? remove : add,
                      [model, path] { model->toggleFavorite(path); }),
        MenuRow::divider(),
        //: Menu item
        MenuRow::item(tr("Copy"), [model, path] { model->copySwatch(path); }),
        //: Title of a submenu with color formats
        MenuRow::submenu(tr("Copy As"), copyRows(path)),
        MenuRow::divider(),
        //: Menu item
        MenuRow::destructive(
            tr("Delete Color"),
            [model, path](auto confirmation) { model->deleteSwatch(path, asks(confirmation)); }),
    };
}

} // namespace dropshade
