// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "imagepalette/PreviewStrip.h"

#include "imagepalette/StripSwatch.h"
#include "widgets/Metrics.h"
#include "widgets/Painting.h"
#include "widgets/TypeScale.h"

#include <QKeyEvent>

#include <algorithm>
#include <utility>

namespace dropshade {

namespace {

constexpr int oneRow = 28;
constexpr int twoRows = 60;
constexpr int firstCountOfTwoRows = 13;
constexpr int gap = 4;
constexpr double ringGap = 1.0;
constexpr int usualCount = 24;

} // namespace

PreviewStrip::PreviewStrip(const Look& look, std::function<QString(const QuantizedColor&)> nameOf,
                           QWidget* parent)
    : QWidget(parent), m_look(look), m_nameOf(std::move(nameOf)) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    // At once, so that Tab comes to them where they stand and not after all that was made before.
    while (m_swatches.size() < usualCount)
        addSwatch();
    setColors({});
    connect(&look, &Look::didChange, this, qOverload<>(&QWidget::update));
}

void PreviewStrip::addSwatch() {
    auto* swatch = new StripSwatch(m_look, m_nameOf, this);
    connect(swatch, &QAbstractButton::clicked, this,
            [this, swatch] { Q_EMIT picked(swatch->color()); });
    m_swatches.append(swatch);
}

void PreviewStrip::setColors(const std::vector<QuantizedColor>& colors) {
    const int before = heightOfRows();
    m_count = static_cast<int>(colors.size());
    while (m_swatches.size() < m_count)
        addSwatch();
    bool isReachable = false;
    for (int index = 0; index < m_swatches.size(); ++index) {
        StripSwatch* swatch = m_swatches[index];
        if (index < m_count)
            swatch->setColor(colors[static_cast<std::size_t>(index)]);
        else
            swatch->setFocusPolicy(Qt::NoFocus);
        isReachable = isReachable || swatch->focusPolicy() != Qt::NoFocus;
        swatch->setVisible(index < m_count);
    }
    if (!isReachable && m_count > 0)
        m_swatches.first()->setFocusPolicy(Qt::TabFocus);
    if (m_count > 0) {
        //: Name of the colours of the new palette for screen readers
        setAccessibleName(tr("Preview"));
    } else {
        //: Stands in place of the colours while there are none
        setAccessibleName(tr("Load an image to generate a palette."));
    }
    if (heightOfRows() != before)
        updateGeometry();
    arrange();
    update();
}

int PreviewStrip::heightOfRows() const {
    return m_count < firstCountOfTwoRows ? oneRow : twoRows;
}

int PreviewStrip::columns() const {
    return m_count < firstCountOfTwoRows ? m_count : (m_count + 1) / 2;
}

QSize PreviewStrip::sizeHint() const {
    return {metrics::sheetWidth, heightOfRows() + 2 * metrics::focusReach};
}

void PreviewStrip::arrange() {
    if (m_count == 0)
        return;
    const QRect area = rect().adjusted(metrics::focusReach, metrics::focusReach,
                                       -metrics::focusReach, -metrics::focusReach);
    const double pitch = (area.width() + gap) / static_cast<double>(columns());
    for (int index = 0; index < m_count; ++index) {
        const int column = index % columns();
        // On whole pixels: each cell is as wide as the others, or a pixel wider.
        const int left = area.left() + qRound(column * pitch);
        const int right = area.left() + qRound((column + 1) * pitch) - gap;
        const int top = area.top() + index / columns() * (oneRow + gap);
        m_swatches[index]->setGeometry(left, top, right - left, oneRow);
    }
}

void PreviewStrip::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    arrange();
}

void PreviewStrip::focusSwatch(int index) {
    for (StripSwatch* swatch : std::as_const(m_swatches))
        swatch->setFocusPolicy(Qt::NoFocus);
    m_swatches[index]->setFocusPolicy(Qt::TabFocus);
    m_swatches[index]->setFocus(Qt::TabFocusReason);
}

void PreviewStrip::keyPressEvent(QKeyEvent* event) {
    int step = 0;
    switch (event->key()) {
    case Qt::Key_Left:
        step = -1;
        break;
    case Qt::Key_Right:
        step = 1;
        break;
    case Qt::Key_Up:
        step = -columns();
        break;
    case Qt::Key_Down:
        step = columns();
        break;
    default:
        QWidget::keyPressEvent(event);
        return;
    }
    for (int index = 0; index < m_count; ++index) {
        if (m_swatches[index]->hasFocus()) {
            if (index + step >= 0 && index + step < m_count)
                focusSwatch(index + step);
            return;
        }
    }
}

void PreviewStrip::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const Theme& theme = m_look.theme();
    if (m_count == 0) {
        const QRect area = rect().adjusted(metrics::focusReach, metrics::focusReach,
                                           -metrics::focusReach, -metrics::focusReach);
        fillRounded(painter, area, metrics::radiusControl, theme.surfaceSunken);
        painter.setFont(textFont(TextStyle::Caption));
        painter.setPen(theme.textSecondary);
        painter.drawText(area, Qt::AlignCenter, accessibleName());
        return;
    }
    const double reach = ringGap + metrics::lineSelected;
    for (int index = 0; index < m_count; ++index) {
        const StripSwatch* swatch = m_swatches[index];
        if (swatch->ringOpacity() <= 0.0)
            continue;
        QColor ink = theme.textPrimary;
        ink.setAlphaF(static_cast<float>(swatch->ringOpacity()));
        strokeInside(painter, QRectF(swatch->geometry()).adjusted(-reach, -reach, reach, reach),
                     metrics::radiusCell + reach, metrics::lineSelected, ink);
    }
}

} // namespace dropshade
