// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

namespace dropshade {

/// Draws a pixel of `window` anew whenever the keyboard goes to another window. A compositor may
/// show a change only when all windows it told of it have drawn something since: sway waits a fifth
/// of a second for one that doesn't, and until then a new window isn't seen.
void answerFocusChanges(QWidget& window);

} // namespace dropshade
