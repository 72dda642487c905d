// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "KeyboardShortcuts/TriggerField.h"

namespace dropshade {

TriggerField::TriggerField(const Look& look, const Surroundings& surroundings,
                           const ShortcutName& name, const QString& label, QWidget* parent)
    : KeyField(look, parent), m_with(surroundings), m_name(name) {
    setAccessibleName(label);
    connect(this, &QAbstractButton::clicked, this, &TriggerField::change);
    connect(&m_with.bindings, &DesktopBindings::didChange, this, &TriggerField::adopt);
    adopt();
}

void TriggerField::change() {
    if (m_with.bindings.state() != DesktopShortcuts::State::Bound || m_with.bindings.canChange())
        m_with.bindings.change();
    else
        //: Message where only the desktop can change a shortcut
        m_with.alerts.warn(tr("This shortcut is the desktop’s."),
                           //: Second line of the message
                           tr("Change it in the settings of the desktop, where it lists "
                              "Dropshade."));
}

void TriggerField::adopt() {
    const QString trigger = m_with.bindings.trigger(m_name);
    if (!trigger.isEmpty())
        showWords(Words::Keys, trigger);
    else if (m_with.bindings.state() == DesktopShortcuts::State::Asking)
        //: On the field of a shortcut, while the desktop asks the user for keys
        showWords(Words::Prompt, tr("The Desktop Asks…"));
    else if (m_with.bindings.state() == DesktopShortcuts::State::Bound)
        //: On the field of a shortcut that the desktop has given none
        showWords(Words::Placeholder, tr("No Shortcut"));
    else
        //: On the field of a shortcut: has the desktop ask for keys
        showWords(Words::Placeholder, tr("Choose Shortcut…"));
    setAccessibleDescription(words());
    // As wide as the field is, the key may be longer.
    setToolTip(trigger);
}

} // namespace dropshade
