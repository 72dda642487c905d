// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/HotKeyRegistrar.h"

namespace dropshade {

/// For desktops that keep the keyboard to themselves. The user can bind the desktop's own keys to
/// the program's actions there.
class NullHotKeyRegistrar : public HotKeyRegistrar {
public:
    [[nodiscard]] bool isAvailable() const override { return false; }
    [[nodiscard]] Status registerHotKey(quint32, quint32, quint32) override {
        return Status::Unavailable;
    }
    void unregisterHotKey(quint32) override {}
};

} // namespace dropshade
