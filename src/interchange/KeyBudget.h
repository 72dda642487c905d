// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace dropshade {

/// The keys of a colour list as its file spells them. A file may say one long key many times over
/// in a few bytes each; no program writes one whose keys add up to more than itself.
class KeyBudget {
public:
    explicit KeyBudget(qsizetype fileSize) : m_left(fileSize) {}

    /// Whether a further key of this length can be genuine.
    [[nodiscard]] bool takes(const QString& key) {
        m_left -= key.size();
        return m_left >= 0;
    }

    /// The key without the stray NUL at the end that some files have.
    [[nodiscard]] static QString cleaned(QString key) {
        if (key.endsWith(QChar(u'\0')))
            key.chop(1);
        return key;
    }

private:
    qsizetype m_left;
};

} // namespace dropshade
