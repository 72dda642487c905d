// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "KeyboardShortcuts/DesktopBindings.h"
#include "KeyboardShortcuts/KeyField.h"

namespace dropshade {

/// What stands in place of a recorder where the desktop has the keys: it shows the one that the
/// desktop has given to a name. Where that leads anywhere, a click has the desktop ask for another.
class TriggerField : public KeyField {
    Q_OBJECT

public:
    /// `label` is what the key is for, for screen readers. `bindings` must outlive the field.
    TriggerField(const Look& look, DesktopBindings& bindings, const ShortcutName& name,
                 const QString& label, QWidget* parent = nullptr);

private:
    void adopt();

    DesktopBindings& m_bindings;
    ShortcutName m_name;
};

} // namespace dropshade
