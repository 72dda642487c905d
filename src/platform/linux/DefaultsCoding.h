// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/UserDefaults.h"

#include <sqlite3.h>

namespace dropshade {

/// How a value lies in a row: a number for its type, and beside it the value in the form of SQLite
/// that a person can read. What such a form can't hold exactly lies there as the bytes of its
/// bits, least significant first: a real that is no number, and a string that is not well-formed
/// or begins with a byte order mark.

/// Binds bytes, also none, which are not an absent value.
[[nodiscard]] int bindBytes(sqlite3_stmt* statement, int parameter, const QByteArray& bytes);
[[nodiscard]] QByteArray bytesIn(sqlite3_stmt* statement, int column);

/// Binds `text` exactly; the result is SQLite's code.
[[nodiscard]] int bindText(sqlite3_stmt* statement, int parameter, const QString& text);

/// The text that `bindText` stored in this column of the present row.
[[nodiscard]] QString textIn(sqlite3_stmt* statement, int column);

/// Binds the type of `value` to a parameter and the value to the next one. Data is not copied: the
/// value must live for as long as it is bound.
[[nodiscard]] int bindValue(sqlite3_stmt* statement, int parameter, const DefaultsValue& value);

/// The value whose type stands in this column of the present row and whose value in the next one;
/// nothing when they are not what `bindValue` writes.
[[nodiscard]] std::optional<DefaultsValue> valueIn(sqlite3_stmt* statement, int column);

} // namespace dropshade
