// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "interchange/ColorList.h"

#include "interchange/ArchivedColorList.h"
#include "interchange/StreamedColorList.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace dropshade {

std::optional<ColorList> ColorList::load(const QString& name, const QString& path) {
    QFile file(path);
    // A device or a pipe may never end.
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        return std::nullopt;
    return read(name, bytes);
}

std::optional<ColorList> ColorList::read(const QString& name, const QByteArray& bytes) {
    return isStreamedColorList(bytes) ? streamedColorList(name, bytes)
                                      : archivedColorList(name, bytes);
}

QByteArray ColorList::bytes() const {
    return archived(*this);
}

bool ColorList::write(const QString& path) const {
    const QByteArray content = bytes();
    QSaveFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size() &&
           file.commit();
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
