// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "palettes/CollapsedPalettes.h"

#include "app/SettingsReaders.h"
#include "json/UuidText.h"

namespace dropshade {
namespace {

using Stored = std::optional<DefaultsValue>;

QSet<QUuid> idsIn(const Stored& stored) {
    const QStringList* texts = stored ? std::get_if<QStringList>(&*stored) : nullptr;
    QSet<QUuid> ids;
    for (const QString& text : texts ? *texts : QStringList()) {
        if (const auto id = uuidFromText(text))
            ids.insert(*id);
    }
    return ids;
}

DefaultsValue textsOf(const QSet<QUuid>& ids) {
    QStringList texts;
    for (const QUuid& id : ids)
        texts.append(uuidText(id));
    // No order carries a meaning, but one that stays is easier on whoever compares.
    texts.sort();
    return texts;
}

} // namespace

QSet<QUuid> storedCollapsedIds(const UserDefaults& defaults) {
    return idsIn(defaults.value(keys::collapsedPaletteIds));
}

void replaceCollapsedIds(UserDefaults& defaults, const QSet<QUuid>& ids) {
    defaults.setValue(keys::collapsedPaletteIds, textsOf(ids));
}

void amendCollapsedIds(UserDefaults& defaults, const QSet<QUuid>& ids, bool collapsed) {
    defaults.amend(keys::collapsedPaletteIds, [ids, collapsed](const Stored& stored) {
        return textsOf(collapsed ? idsIn(stored) + ids : idsIn(stored) - ids);
    });
}

void beginCollapsedIds(UserDefaults& defaults, const QSet<QUuid>& ids) {
    if (defaults.contains(keys::collapsedPaletteIds))
        return;
    defaults.amend(keys::collapsedPaletteIds,
                   [texts = textsOf(ids)](const Stored& stored) { return stored.value_or(texts); });
}

} // namespace dropshade
