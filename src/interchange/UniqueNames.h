// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QString>

namespace dropshade {

/// The names that one file has used up.
class UniqueNames {
public:
    /// Makes the name with the number, which is 2 or more.
    using Numbered = QString (*)(const QString& name, qsizetype number);

    explicit UniqueNames(Numbered numbered) : m_numbered(numbered) {}

    /// `name`, or the first of those numbered 2, 3 and so on that isn't taken; takes it.
    QString take(const QString& name);

private:
    Numbered m_numbered;
    /// 2 or more for each name that is taken.
    QHash<QString, qsizetype> m_nextNumbers;
};

} // namespace dropshade
