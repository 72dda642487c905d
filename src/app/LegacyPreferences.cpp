// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "app/LegacyPreferences.h"

#include "app/SettingsReaders.h"
#include "plist/PropertyList.h"

#include <QFile>
#include <QFileInfo>

namespace dropshade {
namespace {

constexpr qint64 mostBytes = 64 * 1024 * 1024;

QByteArray contentsOf(const QString& path) {
    // Anything but a plain file might never end, or never begin.
    const QFileInfo information(path);
    QFile file(path);
    if (!information.isFile() || information.size() > mostBytes || !file.open(QIODevice::ReadOnly))
        return {};
    return file.read(mostBytes);
}

} // namespace

QString legacyPreferencesPath(const QString& home) {
    return home + QStringLiteral("/Library/Containers/net.quillmoor.Dropshade/Data/Library/"
                                 "Preferences/net.quillmoor.Dropshade.plist");
}

void importLegacyPreferences(UserDefaults& defaults, const QString& path) {
    const int refusedBefore = defaults.refusedReads();
    const bool isDone = defaults.read<bool>(keys::didImportLegacyContainerPrefs).value_or(false);
    if (isDone || defaults.refusedReads() != refusedBefore)
        return;
    defaults.setValue(keys::didImportLegacyContainerPrefs, true);
    const auto entries = propertyListDictionary(contentsOf(path));
    if (!entries)
        return;
    for (const auto& [key, value] : *entries) {
        if (!defaults.contains(key))
            // What has come meanwhile, or just couldn't be read, wins too.
            defaults.amend(key, [value = value](const std::optional<DefaultsValue>& stored) {
                return stored.value_or(value);
            });
    }
}

} // namespace dropshade
