// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "app/AppSettings.h"
#include "palettes/HoverState.h"
#include "palettes/NameEdit.h"
#include "palettes/PaletteCommands.h"
#include "palettes/PaletteDragController.h"
#include "palettes/PresetPicker.h"
#include "palettes/SwatchEdit.h"
#include "palettes/UserPaletteStore.h"

#include <QHash>
#include <QObject>

#include <functional>
#include <memory>
#include <optional>

namespace dropshade {

/// A swatch by the ids of all that it is in.
struct SwatchPath {
    QUuid paletteId;
    QUuid scaleId;
    QUuid swatchId;

    friend bool operator==(const SwatchPath&, const SwatchPath&) = default;
};

/// A question before something is destroyed: "Delete", which runs `confirmed`, or "Cancel".
struct DeleteQuestion {
    QString title;
    QString message;
    /// Shown with the question.
    std::optional<PaletteSwatch> swatch;
    std::function<void()> confirmed;
};

/// The palettes window without the window: what it shows, and what each of its commands does.
class PalettesModel : public QObject {
    Q_OBJECT

public:
    struct Surroundings {
        UserDefaults& defaults;
        Scheduler& scheduler;
        AppSettings& settings;
        UserPaletteStore& store;
        PalettePresets& presets;
        PaletteCommands& commands;
    };

    /// Everything in `surroundings` must outlive this object.
    explicit PalettesModel(const Surroundings& surroundings);
    ~PalettesModel() override;

    [[nodiscard]] HoverState& hover() { return m_hover; }
    [[nodiscard]] PaletteDragController& drag() { return m_drag; }
    [[nodiscard]] const PaletteDragController& drag() const { return m_drag; }
    [[nodiscard]] AppSettings& settings() { return m_settings; }
    [[nodiscard]] UserPaletteStore& store() { return m_store; }
    [[nodiscard]] PaletteCommands& commands() { return m_commands; }

    // What is shown

    /// In the arrangement of a drag while there is one.
    [[nodiscard]] const QList<Palette>& shownPalettes() const;
    [[nodiscard]] const QList<PaletteScale>& shownScales(const Palette& palette) const;
    [[nodiscard]] std::optional<Palette> palette(QUuid id) const;
    [[nodiscard]] std::optional<PaletteScale> scale(QUuid paletteId, QUuid scaleId) const;
    [[nodiscard]] std::optional<PaletteSwatch> swatch(const SwatchPath& path) const;
    [[nodiscard]] bool isFavorite(QUuid swatchId) const;

    // What is open. Opening one palette closes the others; all those that were open at the start
    // may stay so until then.

    /// The palette that was opened last.
    [[nodiscard]] const std::optional<QUuid>& lastExpandedId() const { return m_lastExpandedId; }
    [[nodiscard]] bool isExpanded(QUuid paletteId) const;
    /// Follows `isExpanded` a turn of the event loop later when a palette opens, and at once when
    /// it closes.
    [[nodiscard]] bool showsScales(QUuid paletteId) const;
    void toggleExpanded(QUuid paletteId);
    void collapseAll();

    /// At 300 points or less the window has another arrangement.
    [[nodiscard]] bool isCompact() const;
    void setWidth(double width);
    /// The width of the column with the names of the scales, in rows as wide as that; 0 means not
    /// known yet.
    [[nodiscard]] static double labelWidth(double rowsWidth);

    /// Something that has been made and should be seen, until it is.
    [[nodiscard]] const std::optional<QUuid>& pendingScrollToId() const {
        return m_pendingScrollToId;
    }
    [[nodiscard]] std::optional<QUuid> takePendingScrollToId();
    [[nodiscard]] const std::optional<QUuid>& pendingRenamePaletteId() const {
        return m_pendingRenamePaletteId;
    }
    [[nodiscard]] const std::optional<QUuid>& pendingRenameScaleId() const {
        return m_pendingRenameScaleId;
    }

    // Commands

    void createFromScratch();
    void requestPresetPicker();
    [[nodiscard]] std::unique_ptr<PresetPicker> makePresetPicker();
    /// Appends the new scale, opens its palette, and has the scale shown and renamed.
    void addScale(QUuid paletteId);
    void copySwatch(const SwatchPath& path, std::optional<ColorFormat> format = std::nullopt);
    void toggleFavorite(const SwatchPath& path);
    void deletePalette(QUuid id, bool asks);
    void deleteScale(QUuid paletteId, QUuid scaleId, bool asks);
    void deleteSwatch(const SwatchPath& path, bool asks);

    // Editing; nothing where there is no such thing any more

    [[nodiscard]] std::unique_ptr<NameEdit> makePaletteRename(QUuid id);
    [[nodiscard]] std::unique_ptr<NameEdit> makeScaleRename(QUuid paletteId, QUuid scaleId);
    [[nodiscard]] std::unique_ptr<SwatchEdit> makeSwatchAdd(QUuid paletteId, QUuid scaleId);
    [[nodiscard]] std::unique_ptr<SwatchEdit> makeSwatchEdit(const SwatchPath& path);

Q_SIGNALS:
    /// Palettes, scales or swatches are others, or are arranged otherwise.
    void contentDidChange();
    /// A palette opened or closed, or shows its scales.
    void expansionDidChange();
    void compactDidChange();
    void favoritesDidChange();
    void pendingScrollDidChange();
    void paletteRenameRequested(const QUuid& id);
    void scaleRenameRequested(const QUuid& paletteId, const QUuid& scaleId);
    void presetPickerRequested();
    void deletionAsked(const dropshade::DeleteQuestion& question);

private:
    struct Group {
        bool isExpanded = false;
        bool showsScales = false;
    };

    void contentChanged();
    void syncGroups();
    void setExpanded(const QList<QUuid>& paletteIds, bool expanded);
    void expand(QUuid paletteId);
    void showScalesOfExpanded();
    void scrollTo(QUuid id);
    void renamePending();
    void addPreset(const Palette& preset, const QString& name);
    void followHoveredSwatch();

    UserDefaults& m_defaults;
    Scheduler& m_scheduler;
    AppSettings& m_settings;
    UserPaletteStore& m_store;
    PalettePresets& m_presets;
    PaletteCommands& m_commands;
    HoverState m_hover;
    PaletteDragController m_drag;
    QHash<QUuid, Group> m_groups;
    std::optional<QUuid> m_lastExpandedId;
    std::optional<QUuid> m_pendingScrollToId;
    std::optional<QUuid> m_pendingRenamePaletteId;
    std::optional<QUuid> m_pendingRenameScaleId;
    double m_width = 560.0;
    std::unique_ptr<ScheduledWork> m_showScales;
    std::unique_ptr<ScheduledWork> m_rename;
};

} // namespace dropshade
