// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "KeyboardShortcuts/TriggerField.h"

namespace dropshade {

TriggerField::TriggerField(const Look& look, DesktopBindings& bindings, const ShortcutName& name,
                           const QString& label, QWidget* parent)
    : KeyField(look, parent), m_bindings(bindings), m_name(name) {
    setAccessibleName(label);
    connect(this, &QAbstractButton::clicked, &bindings, &DesktopBindings::change);
    connect(&bindings, &DesktopBindings::didChange, this, &TriggerField::adopt);
    adopt();
}

void TriggerField::adopt() {
    const QString trigger = m_bindings.trigger(m_name);
    if (!trigger.isEmpty())
        showWords(Words::Keys, trigger);
    else if (m_bindings.state() == DesktopShortcuts::State::Asking)
        //: On the field of a shortcut, while the desktop asks the user for keys
        showWords(Words::Prompt, tr("The Desktop Asks…"));
    else if (m_bindings.state() == DesktopShortcuts::State::Bound)
        //: On the field of a shortcut that the desktop has given none
        showWords(Words::Placeholder, tr("No Shortcut"));
    else
        //: On the field of a shortcut: has the desktop ask for keys
        showWords(Words::Placeholder, tr("Choose Shortcut…"));
    setAccessibleDescription(words());
    // As wide as the field is, the key may be longer.
    setToolTip(trigger);
    setEnabled(m_bindings.canChange());
}

} // namespace dropshade
