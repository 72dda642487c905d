// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "sync/SyncedKeys.h"

#include "app/SettingsReaders.h"

#include <QHash>

namespace dropshade {
namespace {

SyncedKey raw(const QString& key) {
    return {key, QStringLiteral("pref.") + key, SyncedValueKind::Raw};
}

SyncedKey compressed(const QString& key) {
    return {key, QStringLiteral("data.") + key, SyncedValueKind::CompressedData};
}

SyncedKey hotKey(const QString& name) {
    return {QStringLiteral("KeyboardShortcuts_") + name, QStringLiteral("hotkey.") + name,
            SyncedValueKind::Raw};
}

} // namespace

const std::array<SyncedKey, syncedKeyCount>& syncedKeys() {
    static const std::array<SyncedKey, syncedKeyCount> rows = {
        raw(keys::colorFormat),
        raw(keys::useHashPrefix),
        raw(keys::useLowercase),
        raw(keys::decimalPlaces),
        raw(keys::contrastAlgorithm),
        raw(keys::swatchSizeIndex),
        raw(keys::closePaletteDialogOnCopy),
        raw(keys::closeConvertDialogOnCopy),
        raw(keys::copySound),
        raw(keys::appLanguage),
        raw(keys::showRecentColors),
        raw(keys::menuBarIconStyle),
        raw(keys::recentColorsLimit),
        compressed(keys::pinnedColors),
        compressed(keys::recentColors),
        compressed(keys::collapsedPaletteIds),
        hotKey(QStringLiteral("pickColor")),
        hotKey(QStringLiteral("checkContrast")),
        hotKey(QStringLiteral("palettes")),
        hotKey(QStringLiteral("convert")),
    };
    return rows;
}

const SyncedKey* syncedKey(const QString& kvsKey) {
    static const QHash<QString, const SyncedKey*> rows = [] {
        QHash<QString, const SyncedKey*> byName;
        for (const SyncedKey& row : syncedKeys())
            byName.insert(row.kvsKey, &row);
        return byName;
    }();
    return rows.value(kvsKey);
}

} // namespace dropshade
