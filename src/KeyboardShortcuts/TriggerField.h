// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "KeyboardShortcuts/DesktopBindings.h"
#include "KeyboardShortcuts/KeyField.h"
#include "platform/Alerts.h"

namespace dropshade {

/// What stands in place of a recorder where the desktop has the keys: it shows the one that the
/// desktop has given to a name. A click has the desktop ask for another or, where it can't be asked
/// to, tells the user where it is changed.
class TriggerField : public KeyField {
    Q_OBJECT

public:
    /// Both must outlive the field.
    struct Surroundings {
        DesktopBindings& bindings;
        Alerts& alerts;
    };

    /// `label` is what the key is for, for screen readers.
    TriggerField(const Look& look, const Surroundings& surroundings, const ShortcutName& name,
                 const QString& label, QWidget* parent = nullptr);

private:
    void change();
    void adopt();

    Surroundings m_with;
    ShortcutName m_name;
};

} // namespace dropshade
