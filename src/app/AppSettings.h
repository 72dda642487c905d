// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "app/MenuBarIconStyle.h"
#include "app/PinnedColor.h"
#include "app/SwatchSize.h"
#include "contrast/ContrastAlgorithm.h"
#include "palettes/KeptList.h"
#include "platform/Scheduler.h"
#include "platform/UserDefaults.h"

#include <QObject>
#include <QSet>

#include <functional>
#include <memory>

namespace dropshade {

/// The settings that windows react to, and the favourites. It mirrors the user defaults, which stay
/// the source of truth: a set writes there. A signal comes only where a value has changed, and
/// after all that goes with the change; setting an equal value wakes nobody.
class AppSettings : public QObject {
    Q_OBJECT

public:
    /// Loads from `defaults`; junk there reads as the default. Both must outlive this object.
    AppSettings(UserDefaults& defaults, Scheduler& scheduler);
    ~AppSettings() override;

    SwatchSize swatchSize() const { return m_swatchSize; }
    bool closePaletteDialogOnCopy() const { return m_closePaletteDialogOnCopy; }
    bool closeConvertDialogOnCopy() const { return m_closeConvertDialogOnCopy; }
    ContrastAlgorithm contrastAlgorithm() const { return m_contrastAlgorithm; }
    MenuBarIconStyle menuBarIconStyle() const { return m_menuBarIconStyle; }
    bool iCloudSyncEnabled() const { return m_iCloudSyncEnabled; }

    /// Oldest pin first.
    const QList<PinnedColor>& pinnedColors() const { return m_pinnedColors; }
    /// The swatches of `pinnedColors`, for the question whether a swatch is a favourite.
    const QSet<QUuid>& pinnedSwatchIds() const { return m_pinnedSwatchIds; }

    /// Counts the reloads: settings that have no field here may have changed with each.
    int remoteChangeTick() const { return m_remoteChangeTick; }

    void setSwatchSize(SwatchSize size);
    void setClosePaletteDialogOnCopy(bool closes);
    void setCloseConvertDialogOnCopy(bool closes);
    void setContrastAlgorithm(ContrastAlgorithm algorithm);
    /// These two write nothing where the value is the present one.
    void setMenuBarIconStyle(MenuBarIconStyle style);
    void setICloudSyncEnabled(bool enabled);

    /// Takes over what was written to the defaults behind this object's back, all fields but
    /// `iCloudSyncEnabled`, which is each machine's own. While the defaults can't be read all
    /// stays.
    void reloadFromDefaults();

    // Favourites. Every change is written once, 0.25 seconds after the last of a burst; where
    // nothing changes, nothing is written.

    /// Adds a pin for the swatch, unless it has one.
    void pinSwatch(const PaletteSwatch& swatch, const Palette& palette, const PaletteScale& scale);
    void unpinSwatch(QUuid swatchId);
    void unpinPalette(QUuid paletteId);
    void unpinScale(QUuid scaleId);
    /// The swatch has another value or label.
    void updatePinnedSwatch(QUuid swatchId, const QString& value,
                            const std::optional<QString>& label);
    void renamePinnedPalette(QUuid paletteId, const QString& name);
    void renamePinnedScale(QUuid scaleId, const QString& name);
    /// The swatch is in another scale.
    void movePinnedSwatch(QUuid swatchId, QUuid scaleId, const QString& scaleName);
    /// Brings the pins in line with these palettes; see `validatedPins`.
    void validatePins(const QList<Palette>& palettes);

    /// Whether a write of the pins waits.
    bool hasPendingPins() const { return m_pendingPinsPersist != nullptr; }
    /// Writes the pins now, also where nothing waits, together with what another process has made
    /// of them since the last time. What the disk refuses is tried again, for as long as it takes.
    void flushPendingPins();

Q_SIGNALS:
    void swatchSizeDidChange();
    void closePaletteDialogOnCopyDidChange();
    void closeConvertDialogOnCopyDidChange();
    void contrastAlgorithmDidChange();
    /// The new style has been stored.
    void menuBarIconStyleDidChange();
    /// The new value has been stored.
    void iCloudSyncEnabledDidChange(bool enabled);
    void pinnedColorsDidChange();
    void pinnedSwatchIdsDidChange();
    void remoteChangeTickDidChange();

private:
    using PinUpdate = std::function<void(PinRecord&)>;
    using PinTest = std::function<bool(const PinRecord&)>;

    [[nodiscard]] KeptList<PinnedColor> storedPins() const;
    void takeOverPins(const KeptList<PinnedColor>& stored);
    void setPinnedColors(const QList<PinnedColor>& pins);
    /// The same with no write to follow.
    void showPins(const QList<PinnedColor>& pins);
    void removePins(const PinTest& isGone);
    void updatePins(const PinUpdate& update);
    void schedulePinsPersist();

    UserDefaults& m_defaults;
    Scheduler& m_scheduler;
    SwatchSize m_swatchSize;
    bool m_closePaletteDialogOnCopy;
    bool m_closeConvertDialogOnCopy;
    ContrastAlgorithm m_contrastAlgorithm;
    MenuBarIconStyle m_menuBarIconStyle;
    bool m_iCloudSyncEnabled;
    /// The pins as the disk had them when they were last read or written.
    KeptList<PinnedColor> m_keptPins;
    QList<PinnedColor> m_pinnedColors;
    QSet<QUuid> m_pinnedSwatchIds;
    std::unique_ptr<ScheduledWork> m_pendingPinsPersist;
    int m_remoteChangeTick = 0;
};

} // namespace dropshade
