// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>

namespace dropshade {

/// A palette's name from that of an image: "My Photo Final" from "my_photo-FINAL". Underscores and
/// hyphens part words, each of which begins with a capital. A name of nothing else stays, trimmed;
/// nothing comes of a blank one.
[[nodiscard]] std::optional<QString> tidiedName(const std::optional<QString>& fileName);

} // namespace dropshade
