// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/Look.h"

#include <QBoxLayout>

namespace dropshade {

class TextButton;

/// The width of a field in the popovers of the palettes window.
inline constexpr int popoverFieldWidth = 232;

struct PopoverButtons {
    TextButton* cancel;
    TextButton* commit;
};

/// Adds "Cancel" and the default button at the lower right.
PopoverButtons addPopoverButtons(const Look& look, QVBoxLayout& column, const QString& commit);

} // namespace dropshade
