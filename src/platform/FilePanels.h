// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

namespace dropshade {

/// What a panel offers to show, besides all files.
struct FileKind {
    QString name;           ///< For the user, as in "Palettes".
    QStringList extensions; ///< Without dots, in lower case.
};

/// Asks the user for one file or folder. A panel is shown at once and answers once, later: with a
/// path, or with nothing where the user cancels. It belongs to the window in front while it is up,
/// or stands alone where the program shows no window.
class FilePanels {
public:
    using Answer = std::function<void(const std::optional<QString>& path)>;

    virtual ~FilePanels() = default;

    /// Asks for a file that exists; any extension may be chosen.
    virtual void open(const QString& title, const FileKind& kind, Answer answer) = 0;

    /// Asks for a folder that exists, or that the user makes there.
    virtual void openFolder(const QString& title, Answer answer) = 0;

    /// Asks where to write. `name` is offered with the first extension of `kind`; the user may end
    /// with another one, and has agreed where the file exists already.
    virtual void save(const QString& title, const QString& name, const FileKind& kind,
                      Answer answer) = 0;
};

} // namespace dropshade
