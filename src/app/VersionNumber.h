// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <compare>
#include <optional>
#include <vector>

namespace dropshade {

/// A version such as "1.10.2" or "2.0-beta.1". Order: number by number, where a missing one is 0;
/// a pre-release comes before its release; pre-releases by the rules of Semantic Versioning 2.0.0,
/// section 11. What follows a "+" has no part in it.
class VersionNumber {
public:
    /// Version 0, which no other comes before but its own pre-releases.
    VersionNumber() = default;

    /// Nothing for text of another form, for numbers of more than nine digits, and for text of
    /// more than 64 characters.
    [[nodiscard]] static std::optional<VersionNumber> parse(const QString& text);

    /// As it was written.
    const QString& text() const { return m_text; }

    friend std::weak_ordering operator<=>(const VersionNumber& a, const VersionNumber& b);
    friend bool operator==(const VersionNumber& a, const VersionNumber& b) {
        return (a <=> b) == std::weak_ordering::equivalent;
    }

private:
    QString m_text = QStringLiteral("0");
    std::vector<quint32> m_numbers; ///< without zeros at the end
    QStringList m_preRelease;
};

} // namespace dropshade
