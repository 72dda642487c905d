// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/UserDefaults.h"

#include <QRect>

#include <optional>

namespace dropshade {

// Where the user left each window, among the user defaults.

/// The frame stored under `name`: the place of the window with its border, the size of its content.
/// Nothing where there is none or it can't be read.
[[nodiscard]] std::optional<QRect> storedWindowFrame(const UserDefaults& defaults,
                                                     const QString& name);

void storeWindowFrame(UserDefaults& defaults, const QString& name, const QRect& frame);

/// `frame`, moved as little as brings it onto `screens`, so that a window of a screen that is gone
/// can be reached; its size is cut to what the screen holds.
[[nodiscard]] QRect onScreens(const QRect& frame, const QList<QRect>& screens);

} // namespace dropshade
