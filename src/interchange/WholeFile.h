// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QString>

namespace dropshade {

/// A file that can't be read or written. The description is for the user.
class FileError {
public:
    explicit FileError(const QString& description) : m_description(description) {}
    const QString& description() const { return m_description; }

private:
    QString m_description;
};

/// Files as one piece: read whole, written whole or not at all.
class WholeFile {
    Q_DECLARE_TR_FUNCTIONS(WholeFile)

public:
    /// What a palette file may weigh: 64 MiB, a million swatches in the wordiest format.
    static constexpr qint64 mostBytes = qint64(64) << 20;

    /// The content at the moment. Throws `FileError` for what isn't a plain file, can't be read, or
    /// is longer than `mostBytes`.
    [[nodiscard]] static QByteArray read(const QString& path);

    /// Replaces the file's content in one step, after the new one is safely on the disk: whatever
    /// happens, the path has the old content or the new. A link stays a link, and its target is
    /// replaced. Throws `FileError`.
    static void write(const QString& path, const QByteArray& content);
};

} // namespace dropshade
