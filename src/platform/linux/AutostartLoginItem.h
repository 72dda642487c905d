// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/LoginItem.h"

#include <QString>
#include <QStringList>

namespace dropshade {

/// An entry in the folder of what the desktop starts at login, by the Desktop Application
/// Autostart standard 0.5.
class AutostartLoginItem : public LoginItem {
public:
    struct Surroundings {
        /// Folders with an `autostart` folder, the user's own first.
        QStringList configFolders;
        /// What the desktop calls itself, as "GNOME".
        QStringList desktops;
        /// The path of the program.
        QString program;
    };

    explicit AutostartLoginItem(Surroundings surroundings);

    /// Those of this session.
    [[nodiscard]] static Surroundings ofSession();

    [[nodiscard]] bool isRegistered() const override;
    [[nodiscard]] bool registerItem() override;
    [[nodiscard]] bool unregisterItem() override;

private:
    [[nodiscard]] QString ownEntry() const;
    [[nodiscard]] bool hasSystemEntry() const;
    [[nodiscard]] bool write(const QByteArray& entry) const;

    Surroundings m_with;
};

} // namespace dropshade
