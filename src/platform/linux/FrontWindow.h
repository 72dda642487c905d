// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

class QWidget;
class QWindow;

namespace dropshade {

/// Shows `dialog` over `host`; without one, over the window with the focus, or else any window of
/// the program that is seen; without any, alone and in front of all.
void showOver(QWidget& dialog, QWindow* host);

} // namespace dropshade
