// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "app/AppSettings.h"

#include "app/SettingsReaders.h"

#include <utility>

namespace dropshade {
namespace {

constexpr std::chrono::milliseconds pinsPersistDelay{250};
/// After a write that the disk refused.
constexpr std::chrono::seconds retryDelay{30};

struct PinForm {
    static auto encoded(const QList<PinnedColor>& pins) { return encodedPins(pins); }
    static auto decoded(const QByteArray& json) { return decodedPins(json); }
    static const QUuid& id(const PinnedColor& pin) { return pin->swatchId; }
    static bool areAlike(const PinnedColor& a, const PinnedColor& b) { return a == b; }
    static const PinnedColor& winner(const PinnedColor& ours, const PinnedColor&) { return ours; }
};

QSet<QUuid> swatchIdsOf(const QList<PinnedColor>& pins) {
    QSet<QUuid> ids;
    ids.reserve(pins.size());
    for (const PinnedColor& pin : pins)
        ids.insert(pin->swatchId);
    return ids;
}

} // namespace

AppSettings::AppSettings(UserDefaults& defaults, Scheduler& scheduler)
    : m_defaults(defaults), m_scheduler(scheduler), m_swatchSize(dropshade::swatchSize(defaults)),
      m_closePaletteDialogOnCopy(dropshade::closePaletteDialogOnCopy(defaults)),
      m_closeConvertDialogOnCopy(dropshade::closeConvertDialogOnCopy(defaults)),
      m_contrastAlgorithm(dropshade::contrastAlgorithm(defaults)),
      m_menuBarIconStyle(dropshade::menuBarIconStyle(defaults)),
      m_iCloudSyncEnabled(dropshade::iCloudSyncEnabled(defaults)), m_keptPins(storedPins()),
      m_pinnedColors(m_keptPins.items), m_pinnedSwatchIds(swatchIdsOf(m_pinnedColors)) {}

AppSettings::~AppSettings() = default;

void AppSettings::setSwatchSize(SwatchSize size) {
    const bool differs = std::exchange(m_swatchSize, size) != size;
    m_defaults.setValue(keys::swatchSizeIndex, qint64(size) + 1);
    if (differs)
        Q_EMIT swatchSizeDidChange();
}

void AppSettings::setClosePaletteDialogOnCopy(bool closes) {
    const bool differs = std::exchange(m_closePaletteDialogOnCopy, closes) != closes;
    m_defaults.setValue(keys::closePaletteDialogOnCopy, closes);
    if (differs)
        Q_EMIT closePaletteDialogOnCopyDidChange();
}

void AppSettings::setCloseConvertDialogOnCopy(bool closes) {
    const bool differs = std::exchange(m_closeConvertDialogOnCopy, closes) != closes;
    m_defaults.setValue(keys::closeConvertDialogOnCopy, closes);
    if (differs)
        Q_EMIT closeConvertDialogOnCopyDidChange();
}

void AppSettings::setContrastAlgorithm(ContrastAlgorithm algorithm) {
    const bool differs = std::exchange(m_contrastAlgorithm, algorithm) != algorithm;
    m_defaults.setValue(keys::contrastAlgorithm, rawSetting(algorithm));
    if (differs)
        Q_EMIT contrastAlgorithmDidChange();
}

void AppSettings::setMenuBarIconStyle(MenuBarIconStyle style) {
    if (std::exchange(m_menuBarIconStyle, style) == style)
        return;
    m_defaults.setValue(keys::menuBarIconStyle, rawSetting(style));
    Q_EMIT menuBarIconStyleDidChange();
}

void AppSettings::setICloudSyncEnabled(bool enabled) {
    if (std::exchange(m_iCloudSyncEnabled, enabled) == enabled)
        return;
    m_defaults.setValue(keys::iCloudSyncEnabled, enabled);
    Q_EMIT iCloudSyncEnabledDidChange(enabled);
}

void AppSettings::reloadFromDefaults() {
    const int refusedBefore = m_defaults.refusedReads();
    const auto size = dropshade::swatchSize(m_defaults);
    const bool closesPalettes = dropshade::closePaletteDialogOnCopy(m_defaults);
    const bool closesConvert = dropshade::closeConvertDialogOnCopy(m_defaults);
    const auto algorithm = dropshade::contrastAlgorithm(m_defaults);
    const auto style = dropshade::menuBarIconStyle(m_defaults);
    const auto pins = storedPins();
    // What couldn't be read seems unset, and a set would store that over what is there.
    if (m_defaults.refusedReads() == refusedBefore) {
        // The sets write as any set does; the tests for a difference are what keeps a reload quiet.
        if (size != m_swatchSize)
            setSwatchSize(size);
        if (closesPalettes != m_closePaletteDialogOnCopy)
            setClosePaletteDialogOnCopy(closesPalettes);
        if (closesConvert != m_closeConvertDialogOnCopy)
            setCloseConvertDialogOnCopy(closesConvert);
        if (algorithm != m_contrastAlgorithm)
            setContrastAlgorithm(algorithm);
        setMenuBarIconStyle(style);
        takeOverPins(pins);
    }
    ++m_remoteChangeTick;
    Q_EMIT remoteChangeTickDidChange();
}

void AppSettings::pinSwatch(const PaletteSwatch& swatch, const Palette& palette,
                            const PaletteScale& scale) {
    if (m_pinnedSwatchIds.contains(swatch.id()))
        return;
    QList<PinnedColor> pins = m_pinnedColors;
    pins.append(
        PinnedColor({QUuid::createUuid(), palette.id(), palette.name(), scale.id(), scale.name(),
                     swatch.id(), swatch.value(), swatch.label(), m_scheduler.now()}));
    setPinnedColors(pins);
}

void AppSettings::unpinSwatch(QUuid swatchId) {
    if (m_pinnedSwatchIds.contains(swatchId))
        removePins([&swatchId](const PinRecord& pin) { return pin.swatchId == swatchId; });
}

void AppSettings::unpinPalette(QUuid paletteId) {
    removePins([&paletteId](const PinRecord& pin) { return pin.paletteId == paletteId; });
}

void AppSettings::unpinScale(QUuid scaleId) {
    removePins([&scaleId](const PinRecord& pin) { return pin.scaleId == scaleId; });
}

void AppSettings::updatePinnedSwatch(QUuid swatchId, const QString& value,
                                     const std::optional<QString>& label) {
    if (!m_pinnedSwatchIds.contains(swatchId))
        return;
    updatePins([&](PinRecord& pin) {
        if (pin.swatchId == swatchId) {
            pin.value = value;
            pin.label = label;
        }
    });
}

void AppSettings::renamePinnedPalette(QUuid paletteId, const QString& name) {
    updatePins([&](PinRecord& pin) {
        if (pin.paletteId == paletteId)
            pin.paletteName = name;
    });
}

void AppSettings::renamePinnedScale(QUuid scaleId, const QString& name) {
    updatePins([&](PinRecord& pin) {
        if (pin.scaleId == scaleId)
            pin.scaleName = name;
    });
}

void AppSettings::movePinnedSwatch(QUuid swatchId, QUuid scaleId, const QString& scaleName) {
    if (!m_pinnedSwatchIds.contains(swatchId))
        return;
    updatePins([&](PinRecord& pin) {
        if (pin.swatchId == swatchId) {
            pin.scaleId = scaleId;
            pin.scaleName = scaleName;
        }
    });
}

void AppSettings::validatePins(const QList<Palette>& palettes) {
    const QList<PinnedColor> valid = validatedPins(m_pinnedColors, palettes);
    if (valid != m_pinnedColors)
        setPinnedColors(valid);
}

void AppSettings::flushPendingPins() {
    m_pendingPinsPersist.reset();
    const auto ours = encodedPins(m_pinnedColors);
    if (!ours)
        return;
    const auto stored =
        storedOver<PinForm>(m_keptPins, m_pinnedColors, *ours, m_defaults, keys::pinnedColors);
    if (!stored) {
        m_pendingPinsPersist = m_scheduler.after(retryDelay, [this] { flushPendingPins(); });
        return;
    }
    m_keptPins = *stored;
    if (m_keptPins.items != m_pinnedColors)
        showPins(m_keptPins.items);
}

KeptList<PinnedColor> AppSettings::storedPins() const {
    const QByteArray json = m_defaults.read<QByteArray>(keys::pinnedColors).value_or(QByteArray());
    return {decodedPins(json).value_or(QList<PinnedColor>()), json};
}

/// A pin that is not on the disk yet stays: what came has been made without knowing of it.
void AppSettings::takeOverPins(const KeptList<PinnedColor>& stored) {
    if (stored.json == m_keptPins.json)
        return;
    const auto pins = hasPendingPins()
                          ? mergedLists<PinForm>(m_keptPins.items, m_pinnedColors, stored.items)
                          : stored.items;
    m_keptPins = stored;
    if (pins != m_pinnedColors)
        setPinnedColors(pins);
}

void AppSettings::setPinnedColors(const QList<PinnedColor>& pins) {
    schedulePinsPersist();
    showPins(pins);
}

void AppSettings::showPins(const QList<PinnedColor>& pins) {
    m_pinnedColors = pins;
    QSet<QUuid> ids = swatchIdsOf(pins);
    const bool differ = ids != m_pinnedSwatchIds;
    if (differ)
        m_pinnedSwatchIds = std::move(ids);
    Q_EMIT pinnedColorsDidChange();
    if (differ)
        Q_EMIT pinnedSwatchIdsDidChange();
}

void AppSettings::removePins(const PinTest& isGone) {
    QList<PinnedColor> pins = m_pinnedColors;
    const auto gone =
        pins.removeIf([&isGone](const PinnedColor& pin) { return isGone(pin.record()); });
    if (gone > 0)
        setPinnedColors(pins);
}

void AppSettings::updatePins(const PinUpdate& update) {
    QList<PinnedColor> pins;
    pins.reserve(m_pinnedColors.size());
    bool differ = false;
    for (const PinnedColor& pin : std::as_const(m_pinnedColors)) {
        PinRecord record = pin.record();
        update(record);
        const bool isUpdated = record != pin.record();
        differ = differ || isUpdated;
        pins.append(isUpdated ? PinnedColor(std::move(record)) : pin);
    }
    if (differ)
        setPinnedColors(pins);
}

void AppSettings::schedulePinsPersist() {
    m_pendingPinsPersist = m_scheduler.after(pinsPersistDelay, [this] { flushPendingPins(); });
}

} // namespace dropshade
