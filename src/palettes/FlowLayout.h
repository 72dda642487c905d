// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QPointF>
#include <QRectF>
#include <QSizeF>

#include <functional>
#include <optional>

namespace dropshade {

/// True inside the rectangle and on its left and top edges, so that of two rectangles that touch
/// just one has the point.
[[nodiscard]] bool holds(const QRectF& rectangle, const QPointF& point);

/// Where a row put its items, for whoever searches them for the pointer. It is plain memory: a
/// write wakes nobody.
struct HoverScratch {
    /// In the row's own coordinates, in the order of the items.
    QList<QRectF> frames;
    /// The item that the pointer was last over.
    std::optional<qsizetype> lastIndex;
};

/// Lays items out in lines that wrap, from the top left. Sizes are points.
class FlowLayout {
public:
    /// What is to be laid out: so many items, each with its natural size.
    struct Subviews {
        qsizetype count = 0;
        std::function<QSizeF(qsizetype index)> naturalSize;
    };

    /// An arrangement, and what it was computed for.
    struct Cache {
        double width = -1.0; ///< Negative where nothing has been computed.
        qsizetype subviewCount = -1;
        QList<QSizeF> sizes;
        QList<QPointF> positions; ///< Top left corners, relative to the container.
        QSizeF totalSize{0.0, 0.0};
    };

    /// `spacing` lies between the items of a line and between the lines. Each placement writes its
    /// rectangles to `frameSink`, if there is one.
    explicit FlowLayout(double spacing, HoverScratch* frameSink = nullptr)
        : m_spacing(spacing), m_frameSink(frameSink) {}

    [[nodiscard]] static Cache makeCache() { return {}; }

    /// Forgets the arrangement where the number of items is another one. A change of size alone
    /// goes unseen, which is what makes this cheap: start from `makeCache` where sizes change.
    static void updateCache(Cache& cache, qsizetype subviewCount);

    /// What the items need within `width`, or on one line where none is given.
    [[nodiscard]] QSizeF sizeThatFits(std::optional<double> width, const Subviews& subviews,
                                      Cache& cache) const;

    /// The items' rectangles within `bounds`, relative to its top left corner.
    void placeSubviews(const QRectF& bounds, const Subviews& subviews, Cache& cache) const;

private:
    void ensure(double maxWidth, const Subviews& subviews, Cache& cache) const;

    double m_spacing;
    HoverScratch* m_frameSink;
};

} // namespace dropshade
