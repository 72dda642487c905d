// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "interchange/PalettePoster.h"

#include "interchange/WithoutBlanks.h"
#include "platform/QtColor.h"

#include <QFontDatabase>
#include <QFontMetricsF>

#include <algorithm>
#include <cmath>

namespace dropshade {
namespace {

constexpr double padding = 40;
constexpr double titleBottomSpacing = 28;
constexpr double scaleLabelGap = 16;
constexpr double swatchWidth = 112;
constexpr double swatchHeight = 76;
constexpr double swatchMargin = 10;
constexpr double labelSpacing = 2;
constexpr double rowGap = 6;

QFont font(QFontDatabase::SystemFont kind, int size, QFont::Weight weight) {
    QFont font = QFontDatabase::systemFont(kind);
    font.setPixelSize(size);
    font.setWeight(weight);
    // So that a text is as wide on paper as on pixels.
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

QString titleOf(const Palette& palette, const QString& untitled) {
    const QString name = palette.name().trimmed();
    return name.isEmpty() ? untitled : name;
}

/// A line break in a name would push the text out of its place.
QString oneLine(QString text) {
    for (QChar& character : text) {
        if (character.category() == QChar::Other_Control || character == QChar::LineSeparator ||
            character == QChar::ParagraphSeparator)
            character = u' ';
    }
    return text;
}

double widthOf(const QString& text, const QFont& font) {
    return QFontMetricsF(font).horizontalAdvance(text);
}

double lineHeight(const QFont& font) {
    return QFontMetricsF(font).height();
}

void drawLine(QPainter& painter, const QString& text, const QFont& font, const QColor& ink,
              const QPointF& topLeft) {
    painter.setFont(font);
    painter.setPen(ink);
    painter.drawText(topLeft + QPointF(0, QFontMetricsF(font).ascent()), text);
}

/// Cut with an ellipsis at its end where it is wider than the swatch leaves room.
QString cut(const QString& text, const QFont& font) {
    // Measured no further than any of it can be seen.
    constexpr qsizetype mostCharacters = 1000;
    return QFontMetricsF(font).elidedText(oneLine(text.left(mostCharacters)), Qt::ElideRight,
                                          swatchWidth - 2 * swatchMargin);
}

QColor white(double alpha) {
    return QColor::fromRgbF(1, 1, 1, static_cast<float>(alpha));
}

QColor black(double alpha) {
    return QColor::fromRgbF(0, 0, 0, static_cast<float>(alpha));
}

} // namespace

PalettePoster::PalettePoster(const Palette& palette)
    : m_titleFont(font(QFontDatabase::GeneralFont, 28, QFont::Bold)),
      m_scaleNameFont(font(QFontDatabase::GeneralFont, 13, QFont::Medium)),
      m_hexFont(font(QFontDatabase::FixedFont, 11, QFont::DemiBold)),
      m_labelFont(font(QFontDatabase::GeneralFont, 10, QFont::Normal)),
      m_title(oneLine(titleOf(palette, tr("Palette", "Title of a palette without a name")))),
      m_scales(palette.scales()), m_titleHeight(std::ceil(lineHeight(m_titleFont))) {
    for (const PaletteScale& scale : m_scales) {
        m_maxSwatches = std::max(m_maxSwatches, scale.swatches().size());
        m_scaleLabelWidth =
            std::max(m_scaleLabelWidth,
                     std::ceil(widthOf(oneLine(scale.name().trimmed()), m_scaleNameFont)));
    }
}

QSizeF PalettePoster::size() const {
    const double labelColumn = m_scaleLabelWidth > 0 ? m_scaleLabelWidth + scaleLabelGap : 0;
    const double gridWidth = swatchWidth * static_cast<double>(m_maxSwatches) + labelColumn;
    const double titleWidth = std::ceil(widthOf(m_title, m_titleFont));
    const auto scaleCount = static_cast<double>(m_scales.size());
    const double titleBlock = m_titleHeight + (m_scales.isEmpty() ? 0 : titleBottomSpacing);
    const double rows = swatchHeight * scaleCount + rowGap * std::max(scaleCount - 1, 0.0);
    return {std::ceil(2 * padding + std::max(gridWidth, titleWidth)),
            std::ceil(rows + titleBlock + 2 * padding)};
}

double PalettePoster::rowTop(qsizetype row) const {
    return padding + m_titleHeight + titleBottomSpacing +
           (swatchHeight + rowGap) * static_cast<double>(row);
}

void PalettePoster::draw(QPainter& painter, const QRectF& visible) const {
    painter.fillRect(visible, Qt::white);
    drawLine(painter, m_title, m_titleFont, QColor::fromRgbF(0.1F, 0.1F, 0.1F), {padding, padding});
    // The gap stands even where no scale has a name and the canvas has no column for one.
    const double firstX = padding + m_scaleLabelWidth + scaleLabelGap;
    for (qsizetype row = 0; row < m_scales.size(); ++row) {
        const double top = rowTop(row);
        if (top > visible.bottom() || top + swatchHeight < visible.top())
            continue;
        drawScaleName(painter, oneLine(m_scales.at(row).name().trimmed()), top);
        const QList<PaletteSwatch>& swatches = m_scales.at(row).swatches();
        for (qsizetype index = 0; index < swatches.size(); ++index) {
            const QRectF cell(firstX + swatchWidth * static_cast<double>(index), top, swatchWidth,
                              swatchHeight);
            if (cell.intersects(visible))
                drawSwatch(painter, swatches.at(index), cell);
        }
    }
}

void PalettePoster::drawScaleName(QPainter& painter, const QString& name, double rowTop) const {
    if (name.isEmpty())
        return;
    const QPointF topLeft(padding + m_scaleLabelWidth - widthOf(name, m_scaleNameFont),
                          rowTop + (swatchHeight - lineHeight(m_scaleNameFont)) / 2);
    drawLine(painter, name, m_scaleNameFont, QColor::fromRgbF(0.4F, 0.4F, 0.4F), topLeft);
}

void PalettePoster::drawSwatch(QPainter& painter, const PaletteSwatch& swatch,
                               const QRectF& cell) const {
    painter.fillRect(cell, toQColor(swatch.color()));
    const bool isLightText = swatch.prefersLightText();
    const QString value = cut(withoutBlanks(swatch.value()).toLower(), m_hexFont);
    const QString label = cut(swatch.label().value_or(QString()).trimmed(), m_labelFont);
    const double valueHeight = lineHeight(m_hexFont);
    const double blockHeight =
        valueHeight + (label.isEmpty() ? 0 : labelSpacing + lineHeight(m_labelFont));
    QPointF place(cell.left() + swatchMargin, cell.top() + (cell.height() - blockHeight) / 2);
    drawLine(painter, value, m_hexFont, isLightText ? white(0.95) : black(0.85), place);
    if (label.isEmpty())
        return;
    place.ry() += valueHeight + labelSpacing;
    drawLine(painter, label, m_labelFont, isLightText ? white(0.70) : black(0.55), place);
}

} // namespace dropshade
