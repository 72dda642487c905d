// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace dropshade {

/// What a person reads in release notes that came as HTML from afar: their text, with a line for
/// each paragraph and a bullet before each list item. No tag, script, style or character that
/// changes how others are shown is left, and at most 4,000 characters. Text without tags stays as
/// it is but for these characters and its length.
[[nodiscard]] QString plainReleaseNotes(const QString& markup);

} // namespace dropshade
