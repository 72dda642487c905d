// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "app/SoundService.h"

#include "app/CopySound.h"
#include "app/SettingsReaders.h"

#include <QFile>

namespace dropshade {

SoundService::SoundService(const UserDefaults& defaults, SoundPlayer& player, const QString& folder)
    : m_defaults(defaults), m_player(player), m_folder(folder) {
    load(copySound(m_defaults));
}

void SoundService::play() {
    const QString name = copySound(m_defaults);
    if (name == noCopySound)
        return;
    if (m_loadedSound != name)
        load(name);
    if (m_isPrepared)
        m_player.play();
}

void SoundService::load(const QString& name) {
    if (name == noCopySound) {
        m_isPrepared = false;
        m_loadedSound = name;
        return;
    }
    const QString path = QStringLiteral("%1/%2.aiff").arg(m_folder, name);
    if (!QFile::exists(path))
        return;
    m_player.prepare(path);
    m_isPrepared = true;
    m_loadedSound = name;
}

} // namespace dropshade
