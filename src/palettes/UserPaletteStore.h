// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "app/AppSettings.h"
#include "palettes/KeptList.h"
#include "palettes/Palette.h"
#include "palettes/PalettePresets.h"
#include "platform/Scheduler.h"
#include "platform/UserDefaults.h"

#include <QObject>
#include <QSet>

#include <functional>
#include <memory>
#include <optional>

namespace dropshade {

/// The one owner of the user's palettes: windows hold copies, name what they mean by id, and change
/// it here. It keeps the favourites in step and writes 0.25 seconds after the last change.
///
/// An operation with an unknown id does nothing. One that changes a palette's content stamps it
/// with the present moment, or with one just after its last where the clock says less; the order of
/// the palettes is content of none. Ids and swatches come by value, so that a caller may name them
/// by what lies in `palettes` itself.
class UserPaletteStore : public QObject {
    Q_OBJECT

public:
    /// Loads the stored palettes; where there are none that can be read, starts with copies of the
    /// default presets. All arguments must outlive this object; `presets` is used here only.
    UserPaletteStore(UserDefaults& defaults, Scheduler& scheduler, AppSettings& settings,
                     PalettePresets& presets);
    ~UserPaletteStore() override;

    const QList<Palette>& palettes() const { return m_palettes; }

    /// Replaces the list as it is, with no stamp and no save: for a merge. The caller schedules or
    /// flushes the save.
    void setPalettes(const QList<Palette>& palettes);

    /// Puts the palette last, as it is, and saves; the save brings the favourites in line.
    void appendPalette(const Palette& palette);

    /// Puts a fresh copy in front, under a name that no palette has, and returns it.
    Palette addPalette(const Palette& palette);
    /// The same with the palette itself, whose ids must be new at all levels, as those of a palette
    /// that was read from a file are: to copy a large one takes long.
    Palette addFreshPalette(Palette palette);
    void deletePalette(QUuid id);
    /// Puts a fresh copy, named as a copy, directly behind its source.
    void duplicatePalette(QUuid id);
    /// White space at the ends of a name doesn't count; a blank name or the present one is ignored.
    void renamePalette(QUuid id, const QString& to);
    void renameScale(QUuid paletteId, QUuid scaleId, const QString& to);

    /// Appends a scale with one white swatch; returns its id, or nothing where there is no palette.
    std::optional<QUuid> addScale(QUuid paletteId);
    void duplicateScale(QUuid paletteId, QUuid scaleId);
    void deleteScale(QUuid paletteId, QUuid scaleId);

    void addSwatch(QUuid paletteId, QUuid scaleId, PaletteSwatch swatch);
    /// Replaces the swatch that has the same id.
    void updateSwatch(QUuid paletteId, QUuid scaleId, PaletteSwatch swatch);
    /// An unknown swatch of a known scale counts as a change all the same.
    void deleteSwatch(QUuid paletteId, QUuid scaleId, QUuid swatchId);

    enum class SortOrder { LightToDark, DarkToLight };
    /// Sorts by the weighted sum of the gamma-encoded components; equals keep their order.
    void sortSwatches(QUuid paletteId, QUuid scaleId, SortOrder order);

    // An order takes effect as a whole or not at all: where it leaves an item out or names one
    // twice, nothing happens. Ids that aren't known are passed over.
    void reorderPalettes(const QList<QUuid>& ids);
    void reorderScales(QUuid paletteId, const QList<QUuid>& ids);
    void reorderSwatches(QUuid paletteId, QUuid scaleId, const QList<QUuid>& ids);

    /// Moves a swatch to another scale of its palette, to `toIndex` or the nearest place there is.
    /// It keeps its id. Within one scale, reorder instead.
    void moveSwatch(QUuid paletteId, QUuid fromScaleId, QUuid swatchId, QUuid toScaleId,
                    qsizetype toIndex);

    /// `name`, or the first of "name (2)", "name (3)" and so on that no palette has.
    [[nodiscard]] QString uniqueName(const QString& name) const;

    enum class PinValidation { Skipped, Wanted };
    /// Saves 0.25 seconds from now; a new call restarts the wait. Once validation is wanted, the
    /// next save brings the favourites in line with the palettes first, those that another process
    /// has stored among them. While nobody can read what is stored, the favourites stay.
    void scheduleSave(PinValidation pins = PinValidation::Skipped);
    [[nodiscard]] bool hasPendingSave() const { return m_pendingSave != nullptr; }
    /// Saves now, also where nothing waits. What another process has stored since the last save is
    /// taken over with it: of a palette that both have changed, the copy modified later. A list
    /// that has no form in JSON is not written; what the disk refuses is tried again, for as long
    /// as it takes.
    void flushPendingSave(PinValidation pins = PinValidation::Skipped);

    /// The palettes that show their header only; may hold ids of palettes that are gone.
    [[nodiscard]] QSet<QUuid> collapsedPaletteIds() const;
    void setCollapsed(QUuid id, bool collapsed);
    /// The same for several palettes, in one write.
    void setCollapsed(const QSet<QUuid>& ids, bool collapsed);

Q_SIGNALS:
    /// `palettes` is another list now.
    void palettesDidChange();
    /// The list has been written.
    void didChange();

private:
    using PaletteEdit = std::function<bool(Palette&)>;
    using ScaleEdit = std::function<bool(PaletteScale&)>;

    enum class Stored { Known, Unknown };

    void seed(PalettePresets& presets, Stored stored);
    void validatePins();
    Stored takeOverStored();
    bool editPalette(QUuid id, const PaletteEdit& edit);
    bool editScale(QUuid paletteId, QUuid scaleId, const ScaleEdit& edit);

    UserDefaults& m_defaults;
    Scheduler& m_scheduler;
    AppSettings& m_settings;
    QList<Palette> m_palettes;
    /// As the disk had them when they were last read or written; the seed where it had none.
    KeptList<Palette> m_kept;
    std::unique_ptr<ScheduledWork> m_pendingSave;
    bool m_isPinValidationPending = false;
};

} // namespace dropshade
