// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QUuid>

#include <cstddef>
#include <optional>
#include <string_view>

namespace dropshade {

inline constexpr std::size_t uuidTextLength = 36;

/// The 36 characters of the id: upper case, without braces.
[[nodiscard]] QString uuidText(const QUuid& id);

/// The id that this text spells in either case, or nothing. Stricter than `QUuid::fromString`,
/// which takes braces and can't tell the null id from a mistake.
[[nodiscard]] std::optional<QUuid> uuidFromText(std::string_view text);
[[nodiscard]] std::optional<QUuid> uuidFromText(const QString& text);

} // namespace dropshade
