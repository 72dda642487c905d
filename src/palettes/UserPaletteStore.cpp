// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "palettes/UserPaletteStore.h"

#include "app/SettingsReaders.h"
#include "palettes/CollapsedPalettes.h"
#include "palettes/PaletteJson.h"
#include "palettes/PaletteSearch.h"

#include <QHash>

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace dropshade {
namespace {

constexpr std::chrono::milliseconds saveDelay{250};
/// After a save that the disk refused.
constexpr std::chrono::seconds retryDelay{30};

struct PaletteForm {
    static auto encoded(const QList<Palette>& palettes) { return encodedPalettes(palettes); }
    /// A palette that lacks its moment was modified before all others.
    static auto decoded(const QByteArray& json) { return decodedPalettes(json, {}); }
    static const QUuid& id(const Palette& palette) { return palette.id(); }
    static bool areAlike(const Palette& a, const Palette& b) {
        return a.lastModified() == b.lastModified();
    }
    static const Palette& winner(const Palette& ours, const Palette& theirs) {
        return theirs.lastModified() > ours.lastModified() ? theirs : ours;
    }
};

/// All of the items in the order of `ids`, or nothing where that leaves one out or has one twice.
template <typename Item>
std::optional<QList<Item>> ordered(const QList<Item>& items, const QList<QUuid>& ids) {
    QHash<QUuid, qsizetype> places;
    for (qsizetype index = 0; index < items.size(); ++index)
        places.insert(items.at(index).id(), index);
    QSet<QUuid> taken;
    QList<Item> result;
    for (const QUuid& id : ids) {
        const auto place = places.constFind(id);
        if (place == places.cend())
            continue;
        if (taken.contains(id))
            return std::nullopt;
        taken.insert(id);
        result.append(items.at(*place));
    }
    return result.size() == items.size() ? std::optional(result) : std::nullopt;
}

/// As `ordered`, but nothing also where that is the present order.
template <typename Item>
std::optional<QList<Item>> reordered(const QList<Item>& items, const QList<QUuid>& ids) {
    auto result = ordered(items, ids);
    return result && idsOf(*result) != idsOf(items) ? result : std::nullopt;
}

/// The weights of relative luminance on components that are not linear: what looks lighter to a
/// user who reads hexadecimal digits, not what is.
double lightness(const PaletteSwatch& swatch) {
    const SRGBColor& color = swatch.color();
    return 0.2126 * color.red() + 0.7152 * color.green() + 0.0722 * color.blue();
}

QList<PaletteSwatch> sorted(const QList<PaletteSwatch>& swatches,
                            UserPaletteStore::SortOrder order) {
    QList<PaletteSwatch> result = swatches;
    const bool isLightFirst = order == UserPaletteStore::SortOrder::LightToDark;
    std::stable_sort(result.begin(), result.end(),
                     [isLightFirst](const PaletteSwatch& a, const PaletteSwatch& b) {
                         return isLightFirst ? lightness(a) > lightness(b)
                                             : lightness(a) < lightness(b);
                     });
    return result;
}

/// `now`, or by a clock that is behind the palette's own moment one just after that: an edit is
/// later than what it edits, or the copy without it would win on every machine. How much later, the
/// odd part of this clock says, for two machines that edit one copy must not meet at one moment.
ReferenceTime momentAfter(ReferenceTime before, ReferenceTime now) {
    if (now >= before)
        return now;
    constexpr double never = std::numeric_limits<double>::infinity();
    constexpr double largestStep = 0.01;
    const double step = largestStep * (now.seconds - std::floor(now.seconds));
    return {std::max(before.seconds + step, std::nextafter(before.seconds, never))};
}

/// Gives the second palette of an id one of its own, and says whether there was one. There should
/// be none; but sync, which has one place for each id, would take either for the other and drop it.
bool separateTwins(QList<Palette>& palettes) {
    QSet<QUuid> taken;
    bool areSeparated = false;
    for (Palette& palette : palettes) {
        if (!taken.contains(palette.id())) {
            taken.insert(palette.id());
            continue;
        }
        palette =
            Palette(QUuid::createUuid(), palette.name(), palette.scales(), palette.lastModified());
        areSeparated = true;
    }
    return areSeparated;
}

QSet<QUuid> idSet(const QList<Palette>& palettes) {
    const QList<QUuid> ids = idsOf(palettes);
    return QSet<QUuid>(ids.begin(), ids.end());
}

/// The name to set, or nothing where a rename to `to` means none.
std::optional<QString> newName(const QString& present, const QString& to) {
    const QString trimmed = to.trimmed();
    return trimmed.isEmpty() || trimmed == present ? std::nullopt : std::optional(trimmed);
}

} // namespace

UserPaletteStore::UserPaletteStore(UserDefaults& defaults, Scheduler& scheduler,
                                   AppSettings& settings, PalettePresets& presets)
    : m_defaults(defaults), m_scheduler(scheduler), m_settings(settings) {
    const int refusedBefore = m_defaults.refusedReads();
    const auto json = m_defaults.read<QByteArray>(keys::userPalettes);
    const auto stored = json ? decodedPalettes(*json, m_scheduler.now()) : std::nullopt;
    if (!stored) {
        seed(presets, m_defaults.refusedReads() == refusedBefore ? Stored::Known : Stored::Unknown);
        return;
    }
    m_palettes = *stored;
    m_kept = {*stored, *json};
    if (separateTwins(m_palettes))
        scheduleSave();
    // Where the key has never been written, the program has just learnt to collapse.
    beginCollapsedIds(m_defaults, idSet(m_palettes));
}

UserPaletteStore::~UserPaletteStore() = default;

void UserPaletteStore::seed(PalettePresets& presets, Stored stored) {
    for (const Palette& preset : presets.defaults())
        m_palettes.append(preset.freshCopy(m_scheduler.now()));
    // Should there be palettes after all, which merely couldn't be read just now, the first save
    // finds them and drops these.
    m_kept.items = m_palettes;
    if (stored == Stored::Known)
        replaceCollapsedIds(m_defaults, idSet(m_palettes));
    else
        setCollapsed(idSet(m_palettes), true);
    scheduleSave(PinValidation::Wanted);
}

void UserPaletteStore::setPalettes(const QList<Palette>& palettes) {
    m_palettes = palettes;
    Q_EMIT palettesDidChange();
}

void UserPaletteStore::appendPalette(const Palette& palette) {
    setPalettes(m_palettes + QList{palette});
    scheduleSave(PinValidation::Wanted);
}

Palette UserPaletteStore::addPalette(const Palette& palette) {
    return addFreshPalette(palette.freshCopy(m_scheduler.now()));
}

Palette UserPaletteStore::addFreshPalette(Palette added) {
    added.setLastModified(m_scheduler.now());
    const QString name = added.name().isEmpty()
                             ? tr("Imported Palette", "Default name for an imported palette")
                             : added.name();
    added.setName(uniqueName(name));
    m_palettes.prepend(added);
    Q_EMIT palettesDidChange();
    scheduleSave();
    return added;
}

void UserPaletteStore::deletePalette(QUuid id) {
    const auto removed =
        m_palettes.removeIf([&id](const Palette& palette) { return palette.id() == id; });
    if (removed > 0)
        Q_EMIT palettesDidChange();
    m_settings.unpinPalette(id);
    scheduleSave();
}

void UserPaletteStore::duplicatePalette(QUuid id) {
    const qsizetype index = indexOfId(m_palettes, id);
    if (index < 0)
        return;
    Palette copy = m_palettes.at(index).freshCopy(m_scheduler.now());
    copy.setName(copy.name() + QLatin1Char(' ') + tr("copy", "Duplicate palette name suffix"));
    m_palettes.insert(index + 1, copy);
    Q_EMIT palettesDidChange();
    scheduleSave();
}

void UserPaletteStore::renamePalette(QUuid id, const QString& to) {
    QString name;
    const bool isRenamed = editPalette(id, [&](Palette& palette) {
        const auto renamed = newName(palette.name(), to);
        name = renamed.value_or(QString());
        palette.setName(name);
        return renamed.has_value();
    });
    if (!isRenamed)
        return;
    m_settings.renamePinnedPalette(id, name);
    scheduleSave();
}

void UserPaletteStore::renameScale(QUuid paletteId, QUuid scaleId, const QString& to) {
    QString name;
    const bool isRenamed = editScale(paletteId, scaleId, [&](PaletteScale& scale) {
        const auto renamed = newName(scale.name(), to);
        name = renamed.value_or(QString());
        scale.setName(name);
        return renamed.has_value();
    });
    if (!isRenamed)
        return;
    m_settings.renamePinnedScale(scaleId, name);
    scheduleSave();
}

std::optional<QUuid> UserPaletteStore::addScale(QUuid paletteId) {
    const PaletteScale scale(tr("Untitled", "Default name for new palette scale"),
                             {PaletteSwatch(QStringLiteral("#ffffff"))});
    const bool isAdded = editPalette(paletteId, [&scale](Palette& palette) {
        palette.setScales(palette.scales() + QList{scale});
        return true;
    });
    if (!isAdded)
        return std::nullopt;
    scheduleSave();
    return scale.id();
}

void UserPaletteStore::duplicateScale(QUuid paletteId, QUuid scaleId) {
    const bool isAdded = editPalette(paletteId, [&scaleId](Palette& palette) {
        QList<PaletteScale> scales = palette.scales();
        const qsizetype index = indexOfId(scales, scaleId);
        if (index < 0)
            return false;
        PaletteScale copy = scales.at(index).freshCopy();
        copy.setName(copy.name() + QLatin1Char(' ') + tr("copy", "Duplicate palette name suffix"));
        scales.insert(index + 1, copy);
        palette.setScales(scales);
        return true;
    });
    if (isAdded)
        scheduleSave();
}

void UserPaletteStore::deleteScale(QUuid paletteId, QUuid scaleId) {
    const bool isDeleted = editPalette(paletteId, [&scaleId](Palette& palette) {
        QList<PaletteScale> scales = palette.scales();
        const auto removed = scales.removeIf(
            [&scaleId](const PaletteScale& scale) { return scale.id() == scaleId; });
        palette.setScales(scales);
        return removed > 0;
    });
    if (!isDeleted)
        return;
    m_settings.unpinScale(scaleId);
    scheduleSave();
}

void UserPaletteStore::addSwatch(QUuid paletteId, QUuid scaleId, PaletteSwatch swatch) {
    const bool isAdded = editScale(paletteId, scaleId, [&swatch](PaletteScale& scale) {
        scale.setSwatches(scale.swatches() + QList{swatch});
        return true;
    });
    if (isAdded)
        scheduleSave();
}

void UserPaletteStore::updateSwatch(QUuid paletteId, QUuid scaleId, PaletteSwatch swatch) {
    const bool isUpdated = editScale(paletteId, scaleId, [&swatch](PaletteScale& scale) {
        QList<PaletteSwatch> swatches = scale.swatches();
        const qsizetype index = indexOfId(swatches, swatch.id());
        if (index < 0)
            return false;
        swatches.replace(index, swatch);
        scale.setSwatches(swatches);
        return true;
    });
    if (!isUpdated)
        return;
    m_settings.updatePinnedSwatch(swatch.id(), swatch.value(), swatch.label());
    scheduleSave();
}

void UserPaletteStore::deleteSwatch(QUuid paletteId, QUuid scaleId, QUuid swatchId) {
    const bool isKnownScale = editScale(paletteId, scaleId, [&swatchId](PaletteScale& scale) {
        QList<PaletteSwatch> swatches = scale.swatches();
        swatches.removeIf(
            [&swatchId](const PaletteSwatch& swatch) { return swatch.id() == swatchId; });
        scale.setSwatches(swatches);
        return true;
    });
    if (!isKnownScale)
        return;
    m_settings.unpinSwatch(swatchId);
    scheduleSave();
}

void UserPaletteStore::sortSwatches(QUuid paletteId, QUuid scaleId, SortOrder order) {
    const bool isSorted = editScale(paletteId, scaleId, [order](PaletteScale& scale) {
        const QList<PaletteSwatch> swatches = sorted(scale.swatches(), order);
        const bool differs = swatches != scale.swatches();
        scale.setSwatches(swatches);
        return differs;
    });
    if (isSorted)
        scheduleSave();
}

void UserPaletteStore::reorderPalettes(const QList<QUuid>& ids) {
    if (const auto palettes = ordered(m_palettes, ids)) {
        setPalettes(*palettes);
        scheduleSave();
    }
}

void UserPaletteStore::reorderScales(QUuid paletteId, const QList<QUuid>& ids) {
    const bool isReordered = editPalette(paletteId, [&ids](Palette& palette) {
        const auto scales = reordered(palette.scales(), ids);
        if (scales)
            palette.setScales(*scales);
        return scales.has_value();
    });
    if (isReordered)
        scheduleSave();
}

void UserPaletteStore::reorderSwatches(QUuid paletteId, QUuid scaleId, const QList<QUuid>& ids) {
    const bool isReordered = editScale(paletteId, scaleId, [&ids](PaletteScale& scale) {
        const auto swatches = reordered(scale.swatches(), ids);
        if (swatches)
            scale.setSwatches(*swatches);
        return swatches.has_value();
    });
    if (isReordered)
        scheduleSave();
}

void UserPaletteStore::moveSwatch(QUuid paletteId, QUuid fromScaleId, QUuid swatchId,
                                  QUuid toScaleId, qsizetype toIndex) {
    const qsizetype at = indexOfId(m_palettes, paletteId);
    if (fromScaleId == toScaleId || at < 0)
        return;
    const Palette palette = m_palettes.at(at);
    QList<PaletteScale> scales = palette.scales();
    const qsizetype from = indexOfId(scales, fromScaleId);
    const qsizetype to = indexOfId(scales, toScaleId);
    const qsizetype place = from < 0 ? -1 : indexOfId(scales.at(from).swatches(), swatchId);
    if (to < 0 || place < 0)
        return;
    QList<PaletteSwatch> source = scales.at(from).swatches();
    QList<PaletteSwatch> target = scales.at(to).swatches();
    const PaletteSwatch swatch = source.takeAt(place);
    target.insert(std::clamp<qsizetype>(toIndex, 0, target.size()), swatch);

    // Two changes for those who watch: the swatch leaves its place before it takes another.
    scales[from].setSwatches(source);
    m_palettes[at].setScales(scales);
    Q_EMIT palettesDidChange();
    scales[to].setSwatches(target);
    editPalette(paletteId, [&scales](Palette& changed) {
        changed.setScales(scales);
        return true;
    });
    m_settings.movePinnedSwatch(swatchId, toScaleId, scales.at(to).name());
    scheduleSave();
}

QString UserPaletteStore::uniqueName(const QString& name) const {
    QSet<QString> names;
    for (const Palette& palette : m_palettes)
        names.insert(palette.name());
    QString unique = name;
    for (int number = 2; names.contains(unique); ++number)
        unique = name + QStringLiteral(" (") + QString::number(number) + QLatin1Char(')');
    return unique;
}

void UserPaletteStore::scheduleSave(PinValidation pins) {
    m_isPinValidationPending = m_isPinValidationPending || pins == PinValidation::Wanted;
    m_pendingSave = m_scheduler.after(saveDelay, [this] { flushPendingSave(); });
}

void UserPaletteStore::flushPendingSave(PinValidation pins) {
    m_pendingSave.reset();
    m_isPinValidationPending = m_isPinValidationPending || pins == PinValidation::Wanted;
    validatePins();
    const auto ours = encodedPalettes(m_palettes);
    if (!ours)
        return;
    const auto stored =
        storedOver<PaletteForm>(m_kept, m_palettes, *ours, m_defaults, keys::userPalettes);
    if (!stored) {
        m_pendingSave = m_scheduler.after(retryDelay, [this] { flushPendingSave(); });
        return;
    }
    m_kept = *stored;
    const bool isOther = m_kept.json != *ours;
    if (isOther)
        setPalettes(m_kept.items);
    if (std::exchange(m_isPinValidationPending, false) || isOther)
        m_settings.validatePins(m_palettes);
    Q_EMIT didChange();
}

/// Before a save, where that is wanted, and once it is known what is stored: the seed in place of a
/// library that couldn't be read must not cost its favourites.
void UserPaletteStore::validatePins() {
    if (!m_isPinValidationPending || takeOverStored() == Stored::Unknown)
        return;
    m_isPinValidationPending = false;
    m_settings.validatePins(m_palettes);
}

/// Joins what another process has stored since the last look to what is here.
UserPaletteStore::Stored UserPaletteStore::takeOverStored() {
    const int refusedBefore = m_defaults.refusedReads();
    const auto json = m_defaults.read<QByteArray>(keys::userPalettes);
    if (m_defaults.refusedReads() != refusedBefore)
        return Stored::Unknown;
    const auto theirs = json && *json != m_kept.json ? PaletteForm::decoded(*json) : std::nullopt;
    if (theirs) {
        setPalettes(mergedLists<PaletteForm>(m_kept.items, m_palettes, *theirs));
        m_kept = {*theirs, *json};
    }
    return Stored::Known;
}

QSet<QUuid> UserPaletteStore::collapsedPaletteIds() const {
    return storedCollapsedIds(m_defaults);
}

void UserPaletteStore::setCollapsed(QUuid id, bool collapsed) {
    setCollapsed(QSet<QUuid>{id}, collapsed);
}

void UserPaletteStore::setCollapsed(const QSet<QUuid>& ids, bool collapsed) {
    amendCollapsedIds(m_defaults, ids, collapsed);
}

/// Edits a copy of the palette; where `edit` says that it has changed, stamps it and puts it in.
bool UserPaletteStore::editPalette(QUuid id, const PaletteEdit& edit) {
    const qsizetype index = indexOfId(m_palettes, id);
    if (index < 0)
        return false;
    Palette palette = m_palettes.at(index);
    if (!edit(palette))
        return false;
    palette.setLastModified(momentAfter(palette.lastModified(), m_scheduler.now()));
    m_palettes.replace(index, palette);
    Q_EMIT palettesDidChange();
    return true;
}

bool UserPaletteStore::editScale(QUuid paletteId, QUuid scaleId, const ScaleEdit& edit) {
    return editPalette(paletteId, [&](Palette& palette) {
        QList<PaletteScale> scales = palette.scales();
        const qsizetype index = indexOfId(scales, scaleId);
        if (index < 0)
            return false;
        PaletteScale scale = scales.at(index);
        if (!edit(scale))
            return false;
        scales.replace(index, scale);
        palette.setScales(scales);
        return true;
    });
}

} // namespace dropshade
