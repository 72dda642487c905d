// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/UserDefaults.h"

#include <QUrl>

namespace dropshade {

/// The words of the about window.
namespace aboutText {

[[nodiscard]] QString version(const QString& number);
[[nodiscard]] QString description();

/// How many colours were copied in all, from "totalChecksCount".
[[nodiscard]] QString lifetimeLine(const UserDefaults& defaults);

/// The project's pages, whose address the resources name.
[[nodiscard]] QUrl website();

} // namespace aboutText

} // namespace dropshade
