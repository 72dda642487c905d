// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

namespace dropshade {

/// Whether a property list is in the binary form.
[[nodiscard]] bool isBinaryPropertyList(const QByteArray& bytes);

/// Whether a property list, binary or XML, can be handed to a recursive reader: not so large,
/// nested so deep or shared so often among its own parts that reading it would exhaust the stack,
/// the memory or the user's patience, and without keys that trip one up. Says nothing else about
/// whether it is well-formed.
[[nodiscard]] bool isReasonablePropertyList(const QByteArray& bytes);

} // namespace dropshade
