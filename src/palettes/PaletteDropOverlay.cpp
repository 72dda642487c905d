// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "palettes/PaletteDropOverlay.h"

#include "palettes/SwatchPainting.h"
#include "widgets/Metrics.h"
#include "widgets/Painting.h"
#include "widgets/TypeScale.h"

#include <QEvent>
#include <QPainter>

namespace dropshade {
namespace {

constexpr int iconSide = 40;

} // namespace

PaletteDropOverlay::PaletteDropOverlay(const Look& look, QWidget* parent)
    : QWidget(parent), m_look(look) {
    setMouseTracking(true);
    hide();
}

void PaletteDropOverlay::setKind(const std::optional<PaletteDropKind>& kind) {
    m_kind = kind;
    setGeometry(parentWidget()->rect());
    setVisible(kind.has_value());
    if (kind)
        setAccessibleName(dropPrompt(*kind));
    raise();
    update();
}

bool PaletteDropOverlay::event(QEvent* event) {
    // While something is dragged the pointer tells nobody of its ways. Here it is free again, and
    // whoever dragged has gone without a word.
    if (event->type() == QEvent::MouseMove || event->type() == QEvent::MouseButtonPress)
        setKind(std::nullopt);
    return QWidget::event(event);
}

void PaletteDropOverlay::paintEvent(QPaintEvent*) {
    if (!m_kind)
        return;
    const Theme& theme = m_look.theme();
    QPainter painter(this);
    painter.fillRect(rect(), theme.surfaceWindow);
    const QRectF zone = QRectF(rect()).adjusted(metrics::space12, metrics::space12,
                                                -metrics::space12, -metrics::space12);
    drawDropZone(painter, zone, theme, true, theme.surfaceWindow);
    const QPointF middle = zone.center();
    drawIcon(painter, *m_kind == PaletteDropKind::image ? Icon::ImageDrop : Icon::FileDrop,
             theme.accentBase, middle - QPointF(0.0, iconSide / 2.0), iconSide);
    painter.setFont(textFont(TextStyle::Heading));
    painter.setPen(theme.textPrimary);
    const QRectF words(zone.left() + metrics::space8, middle.y() + metrics::space8,
                       zone.width() - metrics::space16, zone.height() / 2.0 - metrics::space8);
    painter.drawText(words, Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap,
                     dropPrompt(*m_kind));
}

} // namespace dropshade
