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
    return m_colors.value(key);
}

void ColorList::setColor(const std::optional<SRGBColor>& color, const QString& key) {
    const qsizetype before = m_colors.size();
    m_colors.insert(key, color);
    if (m_colors.size() > before)
        m_keys.append(key);
}

} // namespace dropshade
