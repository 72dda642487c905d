// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/KeyboardLayout.h"

#include <QHash>

namespace dropshade {

/// A keyboard with the letters that the test gives it; native scan codes are virtual key codes and
/// 8 more.
class FakeKeyboardLayout : public KeyboardLayout {
public:
    [[nodiscard]] QString character(quint32 keyCode) const override {
        return m_characters.value(keyCode);
    }

    [[nodiscard]] std::optional<quint32> keyCode(quint32 nativeScanCode) const override {
        return nativeScanCode < scanCodeOffset ? std::nullopt
                                               : std::optional(nativeScanCode - scanCodeOffset);
    }

    void setCharacter(quint32 keyCode, const QString& character) {
        m_characters.insert(keyCode, character);
    }

    static constexpr quint32 scanCodeOffset = 8;

private:
    QHash<quint32, QString> m_characters;
};

} // namespace dropshade
