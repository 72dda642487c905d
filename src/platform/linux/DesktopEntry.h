// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QStringList>

#include <optional>

namespace dropshade {

/// The main group of a file as the Desktop Entry standard 1.5 has it. Lines that are no entry
/// count as not there; of two entries with one key the first counts, and translated ones are left
/// out.
class DesktopEntry {
public:
    [[nodiscard]] static DesktopEntry parse(const QByteArray& file);

    /// The string under `key` without its escapes.
    [[nodiscard]] std::optional<QString> string(const QString& key) const;
    /// A list; empty where there is none.
    [[nodiscard]] QStringList strings(const QString& key) const;
    /// "true" or "false"; nothing for any other value.
    [[nodiscard]] std::optional<bool> boolean(const QString& key) const;

private:
    QHash<QString, QString> m_values; ///< As they stand in the file.
};

/// `text` as the value of a string.
[[nodiscard]] QString desktopEntryString(const QString& text);

/// The value of "Exec" that runs the program at `path` without arguments.
[[nodiscard]] QString desktopEntryExec(const QString& path);

} // namespace dropshade
