// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

namespace dropshade {

/// What other parts of the program ask of the palettes window, also while it is just coming up.
class PalettesUIRequests : public QObject {
    Q_OBJECT

public:
    int presetPickerToken() const { return m_presetPickerToken; }

    /// Counts one more request for the preset picker.
    void requestPresetPicker() {
        ++m_presetPickerToken;
        Q_EMIT presetPickerTokenDidChange();
    }

Q_SIGNALS:
    void presetPickerTokenDidChange();

private:
    int m_presetPickerToken = 0;
};

} // namespace dropshade
