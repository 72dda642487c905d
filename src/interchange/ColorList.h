// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "color/SRGBColor.h"

#include <QHash>
#include <QList>
#include <QString>

#include <optional>

namespace dropshade {

/// A named list of colours by key, as the colour panels of other desktops keep it. Keys stay in the
/// order in which they came; none occurs twice.
class ColorList {
public:
    explicit ColorList(const QString& name) : m_name(name) {}

    /// The list in the bytes of a file, which don't hold its name: a keyed archive, binary or XML,
    /// or a typed stream. Nothing for any other bytes. Takes time and memory in proportion to them.
    [[nodiscard]] static std::optional<ColorList> read(const QString& name,
                                                       const QByteArray& bytes);

    /// The list as a binary keyed archive.
    [[nodiscard]] QByteArray bytes() const;

    [[nodiscard]] const QString& name() const { return m_name; }
    /// In list order.
    [[nodiscard]] const QList<QString>& allKeys() const { return m_keys; }
    /// The colours of `allKeys`, in the same order.
    [[nodiscard]] const QList<std::optional<SRGBColor>>& allColors() const { return m_colors; }
    /// Nothing for a key that isn't in the list or whose colour couldn't be told.
    [[nodiscard]] std::optional<SRGBColor> colorWithKey(const QString& key) const;

    /// At the end if the key is new. A colour that can't be told leaves the key without one.
    void setColor(const std::optional<SRGBColor>& color, const QString& key);

private:
    QString m_name;
    QList<QString> m_keys;
    /// In the order of the keys.
    QList<std::optional<SRGBColor>> m_colors;
    QHash<QString, qsizetype> m_places;
};

} // namespace dropshade
