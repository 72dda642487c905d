// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/UserDefaults.h"
#include "platform/linux/KeptDatabase.h"
#include "platform/linux/UnsavedValue.h"

#include <map>

namespace dropshade {

/// The settings on the disk: one table in one file.
class DefaultsDatabase {
public:
    /// What is to become of which key.
    using Changes = std::map<QString, UnsavedValue>;

    explicit DefaultsDatabase(const QString& path);

    /// What the disk holds under `key`. False when it can't be read; then `value` is nothing.
    [[nodiscard]] bool read(const QString& key, std::optional<DefaultsValue>& value);
    [[nodiscard]] bool readKeys(QStringList& keys);

    /// Stores all of the changes and returns true, or stores none.
    [[nodiscard]] bool write(const Changes& changes, Deadline deadline);

    /// Stores what `change` makes of what the disk holds, in one transaction.
    [[nodiscard]] bool update(const QString& key, const UserDefaults::Change& change,
                              Deadline deadline);

private:
    KeptDatabase m_database;
};

} // namespace dropshade
