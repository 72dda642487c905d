// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "palettes/FlowLayout.h"

#include <algorithm>
#include <limits>

namespace dropshade {

bool holds(const QRectF& rectangle, const QPointF& point) {
    return point.x() >= rectangle.left() && point.x() < rectangle.right() &&
           point.y() >= rectangle.top() && point.y() < rectangle.bottom();
}

void FlowLayout::updateCache(Cache& cache, qsizetype subviewCount) {
    if (cache.subviewCount == subviewCount)
        return;
    cache.width = -1.0;
    cache.subviewCount = subviewCount;
}

void FlowLayout::ensure(double maxWidth, const Subviews& subviews, Cache& cache) const {
    const qsizetype count = subviews.count;
    if (cache.width == maxWidth && cache.subviewCount == count && cache.positions.size() == count)
        return;
    cache.sizes.clear();
    cache.positions.clear();
    cache.sizes.reserve(count);
    cache.positions.reserve(count);
    double x = 0.0;
    double y = 0.0;
    double lineHeight = 0.0;
    double usedWidth = 0.0;
    for (qsizetype index = 0; index < count; ++index) {
        const QSizeF size = subviews.naturalSize(index);
        if (x > 0.0 && x + size.width() > maxWidth) {
            usedWidth = std::max(usedWidth, x - m_spacing);
            y += lineHeight + m_spacing;
            x = 0.0;
            lineHeight = 0.0;
        }
        cache.sizes.append(size);
        cache.positions.append(QPointF(x, y));
        x += size.width() + m_spacing;
        lineHeight = std::max(lineHeight, size.height());
    }
    cache.width = maxWidth;
    cache.subviewCount = count;
    cache.totalSize = QSizeF(std::max({x - m_spacing, usedWidth, 0.0}), y + lineHeight);
}

QSizeF FlowLayout::sizeThatFits(std::optional<double> width, const Subviews& subviews,
                                Cache& cache) const {
    ensure(width.value_or(std::numeric_limits<double>::infinity()), subviews, cache);
    return cache.totalSize;
}

void FlowLayout::placeSubviews(const QRectF& bounds, const Subviews& subviews, Cache& cache) const {
    ensure(bounds.width(), subviews, cache);
    if (!m_frameSink)
        return;
    QList<QRectF> frames;
    const qsizetype count = std::min(cache.positions.size(), cache.sizes.size());
    frames.reserve(count);
    for (qsizetype index = 0; index < count; ++index)
        frames.append(QRectF(cache.positions.at(index), cache.sizes.at(index)));
    m_frameSink->frames = frames;
}

} // namespace dropshade
