// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

namespace dropshade {

/// What the program does when the desktop asks for it by name.
enum class ApplicationAction { QuickPick, Convert, Palettes, Contrast };

/// Keeps the program to one process for each session of the user.
class ApplicationInstance : public QObject {
    Q_OBJECT

public:
    enum class Role {
        First,     ///< This process is the program.
        HandedOver ///< Another process is, and has been told; this one ends.
    };

    /// Claims the program's name, or hands over to the process that has it. Where the session has
    /// no means to tell, every process is the first.
    [[nodiscard]] virtual Role claim() = 0;

    /// What the user gives a desktop to run, so that a key of the desktop asks for the action.
    [[nodiscard]] virtual QString commandFor(ApplicationAction action) const = 0;

Q_SIGNALS:
    /// Somebody started the program once more.
    void activated();
    /// The desktop asks for one thing alone: a key that the user bound there, a row of a launcher.
    void actionActivated(dropshade::ApplicationAction action);
};

} // namespace dropshade
