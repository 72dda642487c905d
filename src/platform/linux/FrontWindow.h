// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

namespace dropshade {

/// Shows `dialog` over the window with the focus, or else any window of the program that is seen;
/// without any, alone and in front of all.
void showOverFront(QWidget& dialog);

} // namespace dropshade
