// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "imagepalette/QuantizerTitles.h"

#include "imagepalette/ImageQuantizer.h"

#include <QCoreApplication>

namespace dropshade {

namespace {

// Here for the tools that collect what is to be translated; the tables are below all translation.
[[maybe_unused]] constexpr const char* marked[] = {
    //: A way to find the colours of an image
    QT_TRANSLATE_NOOP("Quantizer", "K-means"),
    //: A way to find the colours of an image
    QT_TRANSLATE_NOOP("Quantizer", "Median cut"),
    //: A way to find the colours of an image
    QT_TRANSLATE_NOOP("Quantizer", "Octree"),
    //: An order of colours: the most frequent first
    QT_TRANSLATE_NOOP("Quantizer", "Frequency"),
    //: An order of colours
    QT_TRANSLATE_NOOP("Quantizer", "Hue"),
    //: An order of colours
    QT_TRANSLATE_NOOP("Quantizer", "Light to dark"),
    //: An order of colours
    QT_TRANSLATE_NOOP("Quantizer", "Dark to light"),
};

template <typename Table>
QStringList titlesOf(const Table& table) {
    QStringList titles;
    for (const auto& row : table)
        titles.append(QCoreApplication::translate("Quantizer", row.title.data()));
    return titles;
}

} // namespace

QStringList algorithmTitles() {
    return titlesOf(quantizationAlgorithms);
}

QStringList sortOrderTitles() {
    return titlesOf(swatchSortOrders);
}

} // namespace dropshade
