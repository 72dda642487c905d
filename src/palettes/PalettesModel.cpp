// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "palettes/PalettesModel.h"

#include "palettes/PaletteSearch.h"
#include "palettes/PresetChoice.h"
#include "palettes/SwatchMerge.h"

#include <algorithm>
#include <cmath>

namespace dropshade {
namespace {

constexpr double compactWidth = 300.0;
constexpr double unmeasuredLabelWidth = 110.0;
constexpr double labelShare = 0.2;
constexpr double leastLabelWidth = 80.0;
constexpr double mostLabelWidth = 200.0;
constexpr std::chrono::milliseconds nextTurn{0};

/// An editor that was only opened takes back no name that came from elsewhere meanwhile.
bool isRename(const QString& before, const QString& present, const QString& to) {
    return present == before || to != before.trimmed();
}

} // namespace

PalettesModel::PalettesModel(const Surroundings& surroundings)
    : m_defaults(surroundings.defaults), m_scheduler(surroundings.scheduler),
      m_settings(surroundings.settings), m_store(surroundings.store),
      m_presets(surroundings.presets), m_commands(surroundings.commands),
      m_hover(surroundings.scheduler), m_drag(surroundings.store) {
    syncGroups();
    connect(&m_store, &UserPaletteStore::palettesDidChange, this, &PalettesModel::contentChanged);
    connect(&m_drag, &PaletteDragController::arrangementDidChange, this,
            &PalettesModel::contentDidChange);
    connect(&m_drag, &PaletteDragController::paletteDragDidEnd, this, &PalettesModel::collapseAll);
    connect(&m_settings, &AppSettings::pinnedSwatchIdsDidChange, this,
            &PalettesModel::favoritesDidChange);
}

PalettesModel::~PalettesModel() = default;

// What is shown

const QList<Palette>& PalettesModel::shownPalettes() const {
    return m_drag.localPalettes() ? *m_drag.localPalettes() : m_store.palettes();
}

const QList<PaletteScale>& PalettesModel::shownScales(const Palette& palette) const {
    return m_drag.activeScalesPaletteId() == palette.id() ? m_drag.activeLocalScales()
                                                          : palette.scales();
}

std::optional<Palette> PalettesModel::palette(QUuid id) const {
    return itemWithId(m_store.palettes(), id);
}

std::optional<PaletteScale> PalettesModel::scale(QUuid paletteId, QUuid scaleId) const {
    const auto found = palette(paletteId);
    return found ? itemWithId(found->scales(), scaleId) : std::nullopt;
}

std::optional<PaletteSwatch> PalettesModel::swatch(const SwatchPath& path) const {
    const auto found = scale(path.paletteId, path.scaleId);
    return found ? itemWithId(found->swatches(), path.swatchId) : std::nullopt;
}

bool PalettesModel::isFavorite(QUuid swatchId) const {
    return m_settings.pinnedSwatchIds().contains(swatchId);
}

void PalettesModel::contentChanged() {
    syncGroups();
    followHoveredSwatch();
    Q_EMIT contentDidChange();
}

/// An edit replaces the swatch that the status bar describes; a deletion takes it away.
void PalettesModel::followHoveredSwatch() {
    const auto shown = m_hover.swatch();
    if (!shown)
        return;
    for (const Palette& palette : m_store.palettes()) {
        for (const PaletteScale& scale : palette.scales()) {
            const auto present = itemWithId(scale.swatches(), shown->id());
            if (!present)
                continue;
            if (present->value() != shown->value() || present->label() != shown->label())
                m_hover.refreshSwatch(present);
            return;
        }
    }
    m_hover.refreshSwatch(std::nullopt);
}

// What is open

void PalettesModel::syncGroups() {
    const QList<Palette>& palettes = m_store.palettes();
    std::optional<QSet<QUuid>> collapsed;
    QHash<QUuid, Group> groups;
    groups.reserve(palettes.size());
    for (const Palette& palette : palettes) {
        if (const auto known = m_groups.constFind(palette.id()); known != m_groups.cend()) {
            groups.insert(palette.id(), *known);
            continue;
        }
        if (!collapsed)
            collapsed = m_store.collapsedPaletteIds();
        const bool isExpanded = !collapsed->contains(palette.id());
        groups.insert(palette.id(), Group{isExpanded, isExpanded});
    }
    m_groups = groups;
}

bool PalettesModel::isExpanded(QUuid paletteId) const {
    return m_groups.value(paletteId).isExpanded;
}

bool PalettesModel::showsScales(QUuid paletteId) const {
    return m_groups.value(paletteId).showsScales;
}

void PalettesModel::setExpanded(const QList<QUuid>& paletteIds, bool expanded) {
    QSet<QUuid> changed;
    for (const QUuid& id : paletteIds) {
        const auto group = m_groups.find(id);
        if (group == m_groups.end() || group->isExpanded == expanded)
            continue;
        group->isExpanded = expanded;
        if (!expanded)
            group->showsScales = false;
        changed.insert(id);
    }
    if (changed.isEmpty())
        return;
    m_store.setCollapsed(changed, !expanded);
    if (expanded)
        m_showScales = m_scheduler.after(nextTurn, [this] { showScalesOfExpanded(); });
    Q_EMIT expansionDidChange();
}

void PalettesModel::showScalesOfExpanded() {
    m_showScales.reset();
    for (Group& group : m_groups)
        group.showsScales = group.isExpanded;
    Q_EMIT expansionDidChange();
}

void PalettesModel::expand(QUuid paletteId) {
    setExpanded({paletteId}, true);
    if (m_lastExpandedId == paletteId)
        return;
    m_lastExpandedId = paletteId;
    QList<QUuid> others = m_groups.keys();
    others.removeAll(paletteId);
    setExpanded(others, false);
}

void PalettesModel::toggleExpanded(QUuid paletteId) {
    if (isExpanded(paletteId))
        setExpanded({paletteId}, false);
    else if (m_groups.contains(paletteId))
        expand(paletteId);
}

void PalettesModel::collapseAll() {
    setExpanded(m_groups.keys(), false);
}

bool PalettesModel::isCompact() const {
    return m_width <= compactWidth;
}

void PalettesModel::setWidth(double width) {
    const bool wasCompact = isCompact();
    m_width = width;
    if (wasCompact != isCompact())
        Q_EMIT compactDidChange();
}

double PalettesModel::labelWidth(double rowsWidth) {
    if (rowsWidth <= 0.0)
        return unmeasuredLabelWidth;
    return std::round(std::clamp(labelShare * rowsWidth, leastLabelWidth, mostLabelWidth));
}

void PalettesModel::scrollTo(QUuid id) {
    m_pendingScrollToId = id;
    Q_EMIT pendingScrollDidChange();
}

std::optional<QUuid> PalettesModel::takePendingScrollToId() {
    return std::exchange(m_pendingScrollToId, std::nullopt);
}

// Commands

void PalettesModel::createFromScratch() {
    //: Name of a palette that the user has just created
    const Palette palette(
        tr("New Palette"),
        //: Name of a scale that the user has just created
        {PaletteScale(tr("Untitled"), {PaletteSwatch(QStringLiteral("#ffffff")),
                                       PaletteSwatch(QStringLiteral("#808080")),
                                       PaletteSwatch(QStringLiteral("#000000"))})},
        m_scheduler.now());
    m_pendingRenamePaletteId = palette.id();
    m_store.appendPalette(palette);
    scrollTo(palette.id());
    m_rename = m_scheduler.after(nextTurn, [this] { renamePending(); });
}

/// The popover comes a turn after what it belongs to.
void PalettesModel::renamePending() {
    m_rename.reset();
    if (const auto id = std::exchange(m_pendingRenamePaletteId, std::nullopt)) {
        if (palette(*id))
            Q_EMIT paletteRenameRequested(*id);
        return;
    }
    const auto id = std::exchange(m_pendingRenameScaleId, std::nullopt);
    if (!id)
        return;
    for (const Palette& palette : m_store.palettes()) {
        if (indexOfId(palette.scales(), *id) >= 0) {
            Q_EMIT scaleRenameRequested(palette.id(), *id);
            return;
        }
    }
}

void PalettesModel::requestPresetPicker() {
    Q_EMIT presetPickerRequested();
}

std::unique_ptr<PresetPicker> PalettesModel::makePresetPicker() {
    return std::make_unique<PresetPicker>(
        m_presets.all(),
        [this](const Palette& preset, const QString& name) { addPreset(preset, name); });
}

void PalettesModel::addPreset(const Palette& preset, const QString& name) {
    const Palette palette = presetCopy(preset, name, m_scheduler.now());
    m_store.appendPalette(palette);
    scrollTo(palette.id());
}

void PalettesModel::addScale(QUuid paletteId) {
    const auto scaleId = m_store.addScale(paletteId);
    if (!scaleId)
        return;
    if (!isExpanded(paletteId))
        expand(paletteId);
    m_pendingRenameScaleId = *scaleId;
    scrollTo(*scaleId);
    m_rename = m_scheduler.after(nextTurn, [this] { renamePending(); });
}

void PalettesModel::copySwatch(const SwatchPath& path, std::optional<ColorFormat> format) {
    if (const auto found = swatch(path))
        m_commands.copyFromPalettes(found->color(), format);
}

void PalettesModel::toggleFavorite(const SwatchPath& path) {
    const auto inPalette = palette(path.paletteId);
    const auto inScale = scale(path.paletteId, path.scaleId);
    const auto found = swatch(path);
    if (!found)
        return;
    if (isFavorite(path.swatchId))
        m_settings.unpinSwatch(path.swatchId);
    else
        m_settings.pinSwatch(*found, *inPalette, *inScale);
}

void PalettesModel::deletePalette(QUuid id, bool asks) {
    const auto doomed = palette(id);
    if (!doomed)
        return;
    const auto confirmed = [this, id] { m_store.deletePalette(id); };
    if (!asks)
        confirmed();
    else
        //: Title of an alert; %1 is a palette's or a scale's name
        Q_EMIT deletionAsked({tr("Delete “%1”?").arg(doomed->name()),
                              //: Text of the alert before a palette is deleted
                              tr("This palette will be permanently removed."), std::nullopt,
                              confirmed});
}

void PalettesModel::deleteScale(QUuid paletteId, QUuid scaleId, bool asks) {
    const auto doomed = scale(paletteId, scaleId);
    if (!doomed)
        return;
    const auto confirmed = [this, paletteId, scaleId] { m_store.deleteScale(paletteId, scaleId); };
    if (!asks)
        confirmed();
    else
        //: Title of an alert; %1 is a palette's or a scale's name
        Q_EMIT deletionAsked({tr("Delete “%1”?").arg(doomed->name()),
                              //: Text of the alert before a scale is deleted
                              tr("This scale and its colors will be permanently removed."),
                              std::nullopt, confirmed});
}

void PalettesModel::deleteSwatch(const SwatchPath& path, bool asks) {
    const auto doomed = swatch(path);
    if (!doomed)
        return;
    const auto confirmed = [this, path] {
        m_store.deleteSwatch(path.paletteId, path.scaleId, path.swatchId);
    };
    if (!asks)
        confirmed();
    else
        //: Title of the alert before a color is deleted
        Q_EMIT deletionAsked({tr("Delete this color?"),
                              //: Text of the alert before a color is deleted
                              tr("This swatch will be permanently removed."), doomed, confirmed});
}

// Editing

std::unique_ptr<NameEdit> PalettesModel::makePaletteRename(QUuid id) {
    const auto renamed = palette(id);
    if (!renamed)
        return nullptr;
    return std::make_unique<NameEdit>(
        //: Title of the popover that renames a palette
        tr("Palette Name"), renamed->name(),
        [this, id, before = renamed->name()](const QString& name) {
            const auto present = palette(id);
            if (present && isRename(before, present->name(), name))
                m_store.renamePalette(id, name);
        });
}

std::unique_ptr<NameEdit> PalettesModel::makeScaleRename(QUuid paletteId, QUuid scaleId) {
    const auto renamed = scale(paletteId, scaleId);
    if (!renamed)
        return nullptr;
    return std::make_unique<NameEdit>(
        //: Title of the popover that renames a scale
        tr("Scale Name"), renamed->name(),
        [this, paletteId, scaleId, before = renamed->name()](const QString& name) {
            const auto present = scale(paletteId, scaleId);
            if (present && isRename(before, present->name(), name))
                m_store.renameScale(paletteId, scaleId, name);
        });
}

std::unique_ptr<SwatchEdit> PalettesModel::makeSwatchAdd(QUuid paletteId, QUuid scaleId) {
    if (!scale(paletteId, scaleId))
        return nullptr;
    return std::make_unique<SwatchEdit>(m_defaults,
                                        [this, paletteId, scaleId](const PaletteSwatch& swatch) {
                                            m_store.addSwatch(paletteId, scaleId, swatch);
                                        });
}

std::unique_ptr<SwatchEdit> PalettesModel::makeSwatchEdit(const SwatchPath& path) {
    const auto edited = swatch(path);
    if (!edited)
        return nullptr;
    const auto merge = std::make_shared<std::optional<SwatchMerge>>();
    auto edit = std::make_unique<SwatchEdit>(
        m_defaults, *edited, [this, path, merge](const PaletteSwatch& changed) {
            if (const auto present = swatch(path))
                m_store.updateSwatch(path.paletteId, path.scaleId,
                                     (*merge)->merged(changed, *present));
        });
    merge->emplace(*edited, edit->builtSwatch());
    return edit;
}

} // namespace dropshade
