// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/UserDefaults.h"

#include <QByteArray>

#include <map>
#include <optional>

namespace dropshade {

/// The entries of a property list, XML or binary, whose root is a dictionary, each with its type;
/// nothing for any other bytes. Left out are the entries whose value no setting can hold: dates,
/// dictionaries, and arrays of anything but strings.
[[nodiscard]] std::optional<std::map<QString, DefaultsValue>>
propertyListDictionary(const QByteArray& bytes);

} // namespace dropshade
