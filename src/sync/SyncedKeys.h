// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <array>

namespace dropshade {

enum class SyncedValueKind {
    Raw,           ///< The setting is stored as it stands.
    CompressedData ///< The setting is data, stored through the value codec.
};

/// A setting that follows the user, and its name in the cloud.
struct SyncedKey {
    QString defaultsKey;
    QString kvsKey;
    SyncedValueKind kind;
};

inline constexpr std::size_t syncedKeyCount = 20;

/// In the order of a full pass. "collapsedPaletteIds" stands there as data and is none, so it never
/// leaves the machine.
[[nodiscard]] const std::array<SyncedKey, syncedKeyCount>& syncedKeys();

/// The row of a name in the cloud, or null.
[[nodiscard]] const SyncedKey* syncedKey(const QString& kvsKey);

} // namespace dropshade
