// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "palettes/PalettesStatusBar.h"

#include "palettes/StatusText.h"
#include "widgets/ColorConversion.h"
#include "widgets/Metrics.h"
#include "widgets/Painting.h"
#include "widgets/TypeScale.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>

namespace dropshade {

PalettesStatusBar::PalettesStatusBar(const Look& look, HoverState& hover, QWidget* parent)
    : QWidget(parent), m_look(look), m_hover(hover), m_margin(metrics::windowMargin) {
    connect(&hover, &HoverState::didChange, this, &PalettesStatusBar::adopt);
    connect(&look, &Look::didChange, this, qOverload<>(&QWidget::update));
    adopt();
}

void PalettesStatusBar::setMargin(int margin) {
    m_margin = margin;
    update();
}

QSize PalettesStatusBar::sizeHint() const {
    return {0, std::max(metrics::statusBar, lineHeight(TextStyle::Strong) + metrics::space8)};
}

void PalettesStatusBar::adopt() {
    const auto& swatch = m_hover.swatch();
    const QString label = swatch ? swatch->label().value_or(QString()) : QString();
    const QString text =
        swatch ? (label.isEmpty() ? swatch->value() : label + QLatin1String(", ") + swatch->value())
               : m_hover.hint().value_or(QString());
    setAccessibleName(text);
    update();
}

void PalettesStatusBar::paintSwatch(QPainter& painter, const PaletteSwatch& swatch) const {
    constexpr double chip = metrics::spineChip;
    const double middle = height() / 2.0;
    drawColor(painter, QRectF(m_margin, middle - chip / 2.0, chip, chip), metrics::radiusCell,
              drawable(swatch.color()), m_look.theme());
    const QFont labelFont = textFont(TextStyle::Strong);
    const QFont valueFont = textFont(TextStyle::Value);
    const auto advance = [](const QFont& font) {
        return [font](const QString& text) { return QFontMetricsF(font).horizontalAdvance(text); };
    };
    const double left = m_margin + chip + metrics::space8;
    const double room = width() - m_margin - left;
    const StatusTextMeasure measure{advance(labelFont), advance(valueFont), metrics::space8};
    const StatusText text = fittingStatusText(swatch, room, measure);
    double x = left;
    if (!text.label.isEmpty()) {
        painter.setPen(m_look.theme().textPrimary);
        drawWords(painter, labelFont, QRectF(x, 0, room, height()), text.label);
        x += measure.label(text.label) + measure.gap;
    }
    painter.setPen(m_look.theme().textSecondary);
    drawWords(painter, valueFont, QRectF(x, 0, left + room - x, height()), text.value);
}

void PalettesStatusBar::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (const auto& swatch = m_hover.swatch()) {
        paintSwatch(painter, *swatch);
        return;
    }
    const auto& hint = m_hover.hint();
    if (!hint)
        return;
    painter.setPen(m_look.theme().textSecondary);
    drawWords(painter, textFont(TextStyle::Caption),
              QRectF(m_margin, 0, width() - 2.0 * m_margin, height()), *hint);
}

} // namespace dropshade
