// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "interchange/ColorList.h"

#include "interchange/ArchivedColorList.h"
#include "interchange/StreamedColorList.h"

namespace dropshade {

std::optional<ColorList> ColorList::read(const QString& name, const QByteArray& bytes) {
    return isStreamedColorList(bytes) ? streamedColorList(name, bytes)
                                      : archivedColorList(name, bytes);
}

QByteArray ColorList::bytes() const {
    return archived(*this);
}

std::optional<SRGBColor> ColorList::colorWithKey(const QString& key) const {
    const auto place = m_places.constFind(key);
    return place == m_places.constEnd() ? std::nullopt : m_colors.at(*place);
}

void ColorList::setColor(const std::optional<SRGBColor>& color, const QString& key) {
    const qsizetype count = m_places.size();
    qsizetype& place = m_places[key];
    if (m_places.size() == count) {
        m_colors[place] = color;
        return;
    }
    place = count;
    m_keys.append(key);
    m_colors.append(color);
}

} // namespace dropshade
