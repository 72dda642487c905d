// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/SoundPlayer.h"
#include "platform/UserDefaults.h"

#include <optional>

namespace dropshade {

/// Plays the sound of a copy, the one that settings name at that moment.
class SoundService {
public:
    /// Loads the sound that settings name. The sounds are `folder`/name.aiff.
    SoundService(const UserDefaults& defaults, SoundPlayer& player,
                 const QString& folder = QStringLiteral(":/sounds"));

    /// Plays the sound of the settings from its start; nothing for "none".
    void play();

    /// Prepares the sound of that name. "none" unloads; a name without a file leaves the sound that
    /// was loaded before.
    void load(const QString& name);

    /// What is loaded: a sound's name, "none", or nothing yet.
    [[nodiscard]] const std::optional<QString>& loadedSound() const { return m_loadedSound; }

private:
    const UserDefaults& m_defaults;
    SoundPlayer& m_player;
    QString m_folder;
    std::optional<QString> m_loadedSound;
    bool m_isPrepared = false;
};

} // namespace dropshade
