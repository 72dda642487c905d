// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/DesktopShortcuts.h"

namespace dropshade {

/// For desktops where the program has its keys itself.
class NullDesktopShortcuts : public DesktopShortcuts {
public:
    [[nodiscard]] State state() const override { return State::Unavailable; }
    void bind(const QList<Wish>&) override {}
    [[nodiscard]] QString trigger(const QString&) const override { return {}; }
    [[nodiscard]] bool canConfigure() const override { return false; }
    void configure() override {}
};

} // namespace dropshade
