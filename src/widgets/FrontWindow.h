// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

namespace dropshade {

/// The window of the program that a question to the user belongs to: the one with the keyboard, or
/// else any that is seen; none where the program shows none.
[[nodiscard]] QWidget* frontWindow();

} // namespace dropshade
