// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "convert/PreviewSwatch.h"

#include "widgets/ColorConversion.h"
#include "widgets/Metrics.h"
#include "widgets/Painting.h"

namespace dropshade {

PreviewSwatch::PreviewSwatch(const Look& look, QWidget* parent) : QWidget(parent), m_look(look) {
    setFixedSize(metrics::preview, metrics::preview);
    //: Name of the large swatch of the convert window for screen readers
    setAccessibleName(tr("Color preview", "Convert window"));
    connect(&look, &Look::didChange, this, qOverload<>(&QWidget::update));
}

void PreviewSwatch::setColor(const std::optional<SRGBColor>& color) {
    m_color = color;
    setAccessibleDescription(color ? drawable(*color).name().toUpper() : QString());
    update();
}

void PreviewSwatch::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const double radius = metrics::radiusControl;
    if (m_color)
        drawColor(painter, rect(), radius, drawable(*m_color), m_look.theme());
    else
        drawNoColor(painter, rect(), radius, m_look.theme());
}

} // namespace dropshade
