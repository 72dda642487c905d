// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "palettes/PaletteHeaderWidget.h"

#include "palettes/PresetChoice.h"
#include "palettes/SwatchPainting.h"
#include "widgets/Icon.h"
#include "widgets/Metrics.h"
#include "widgets/Painting.h"
#include "widgets/TypeScale.h"

#include <QFontMetricsF>
#include <QPainter>

#include <cmath>

namespace dropshade {
namespace {

using Part = ListElement::Part;

constexpr double chevronLeft = 12.0;
constexpr double nameLeft = 36.0;
constexpr double compactChevronLeft = 8.0;
constexpr double compactNameLeft = 32.0;
constexpr double optionsRight = 12.0;
constexpr double compactOptionsRight = 4.0;
constexpr double spineChipCompact = 6.0;
constexpr double addButtonPadding = 12.0;

} // namespace

PaletteHeaderWidget::PaletteHeaderWidget(const Look& look, QWidget* list)
    : ListRowWidget(look, list) {}

void PaletteHeaderWidget::display(const Palette& palette, bool isExpanded,
                                  const ListMeasures& measures, Line line) {
    m_line = line;
    const bool isOther = m_paletteId != palette.id();
    m_turn.moveTo(isExpanded ? 1.0 : 0.0,
                  isOther ? std::chrono::milliseconds(0) : look().duration(metrics::disclosure));
    m_paletteId = palette.id();
    m_name = palette.name();
    m_spine = spineChips(palette);
    m_isExpanded = isExpanded;
    m_measures = measures;
    update();
}

ListElement PaletteHeaderWidget::element(ListElement::Part part) const {
    return {part, m_paletteId, {}, {}};
}

QRectF PaletteHeaderWidget::optionsArea() const {
    constexpr double side = metrics::iconButtonHeader;
    const double right = m_measures.isCompact ? compactOptionsRight : optionsRight;
    return {width() - right - side, lineHeight() + (m_measures.headerHeight() - side) / 2.0, side,
            side};
}

QRectF PaletteHeaderWidget::spineArea() const {
    const double chip = m_measures.isCompact ? spineChipCompact : metrics::spineChip;
    const double length = chip * double(m_spine.size());
    const double right = optionsArea().left() - metrics::space12;
    return {right - length, lineHeight() + (m_measures.headerHeight() - metrics::spineChip) / 2.0,
            length, metrics::spineChip};
}

ListElement PaletteHeaderWidget::elementAt(const QPointF& local) const {
    if (local.y() < lineHeight() || local.y() >= lineHeight() + m_measures.headerHeight())
        return {};
    return element(holds(optionsArea(), local) ? Part::Options : Part::Header);
}

QRectF PaletteHeaderWidget::areaOf(const ListElement& wanted) const {
    if (wanted == element(Part::Options))
        return optionsArea();
    constexpr double inset = metrics::focusReach + 1.0;
    return wanted == element(Part::Header)
               ? QRectF(0.0, lineHeight(), width(), m_measures.headerHeight())
                     .adjusted(inset, inset, -inset, -inset)
               : QRectF();
}

QList<ListElement> PaletteHeaderWidget::elements() const {
    return {element(Part::Header), element(Part::Options)};
}

bool PaletteHeaderWidget::hasSpine() const {
    // A narrow window has room for the name alone.
    const double name = m_measures.isCompact ? compactNameLeft : nameLeft;
    return !m_isExpanded && !m_spine.isEmpty() && spineArea().left() >= name + metrics::space40;
}

QRectF PaletteHeaderWidget::nameArea() const {
    const double left = m_measures.isCompact ? compactNameLeft : nameLeft;
    const double right = (hasSpine() ? spineArea().left() : optionsArea().left()) - metrics::space8;
    return {left, double(lineHeight()), right - left, m_measures.headerHeight()};
}

QString PaletteHeaderWidget::elidedNameOf(const ListElement& wanted) const {
    const double room = nameArea().width();
    const bool fits = QFontMetricsF(textFont(TextStyle::Strong)).horizontalAdvance(m_name) <= room;
    return wanted == element(Part::Header) && !fits ? m_name : QString();
}

void PaletteHeaderWidget::paintChevron(QPainter& painter) const {
    const double left = m_measures.isCompact ? compactChevronLeft : chevronLeft;
    const QPointF center(left + metrics::icon / 2.0,
                         lineHeight() + m_measures.headerHeight() / 2.0);
    const QColor& ink = isHovered(Part::Header) ? theme().textPrimary : theme().textSecondary;
    const double turn = m_turn.value();
    if (turn <= 0.0 || turn >= 1.0) {
        drawIcon(painter, turn > 0.0 ? Icon::ChevronDown : Icon::ChevronRight, ink, center,
                 metrics::icon);
        return;
    }
    painter.save();
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.translate(center);
    painter.rotate(90.0 * turn);
    drawIcon(painter, Icon::ChevronRight, ink, {}, metrics::icon);
    painter.restore();
}

void PaletteHeaderWidget::paintOptions(QPainter& painter) const {
    const QRectF area = optionsArea();
    const ListElement options = element(Part::Options);
    if (marks().pressed == options)
        fillRounded(painter, area, metrics::radiusControl, theme().fillPressed);
    else if (marks().hovered == options)
        fillRounded(painter, area, metrics::radiusControl, theme().fillHover);
    const bool isNear = marks().hovered == options || marks().pressed == options;
    drawIcon(painter, Icon::Options, isNear ? theme().textPrimary : theme().textSecondary,
             area.center(), metrics::icon);
    if (marks().focused == options)
        drawFocusRing(painter, area, metrics::radiusControl, theme());
}

void PaletteHeaderWidget::paint(QPainter& painter, const QRegion&) {
    if (lineHeight() > 0)
        painter.fillRect(QRectF(m_measures.margin(), 0.0, width() - 2.0 * m_measures.margin(), 1.0),
                         theme().lineHairline);
    paintChevron(painter);
    if (hasSpine())
        drawSpine(painter, spineArea(), m_spine, theme());
    paintOptions(painter);

    painter.setPen(theme().textPrimary);
    drawWords(painter, textFont(TextStyle::Strong), nameArea(), m_name);
    if (marks().focused == element(Part::Header))
        drawFocusRing(painter, areaOf(marks().focused), metrics::radiusControl, theme());
}

AddScaleWidget::AddScaleWidget(const Look& look, QWidget* list) : ListRowWidget(look, list) {}

QString AddScaleWidget::title() {
    //: Button in a palette without scales
    return tr("Add Scale");
}

void AddScaleWidget::display(QUuid paletteId, const ListMeasures& measures) {
    m_paletteId = paletteId;
    m_measures = measures;
    update();
}

QRectF AddScaleWidget::buttonArea() const {
    const double text = QFontMetricsF(textFont(TextStyle::Control)).horizontalAdvance(title());
    const double width = std::ceil(text) + metrics::icon + metrics::space8 + 2 * addButtonPadding;
    return {m_measures.margin(), metrics::space4, width, metrics::control};
}

ListElement AddScaleWidget::elementAt(const QPointF& local) const {
    return holds(buttonArea(), local) ? elements().first() : ListElement();
}

QRectF AddScaleWidget::areaOf(const ListElement& element) const {
    return element == elements().first() ? buttonArea() : QRectF();
}

QList<ListElement> AddScaleWidget::elements() const {
    return {{Part::AddScale, m_paletteId, {}, {}}};
}

void AddScaleWidget::paint(QPainter& painter, const QRegion&) {
    const QRectF area = buttonArea();
    const ListElement own = elements().first();
    fillRounded(painter, area, metrics::radiusControl, theme().surfaceButton);
    if (marks().pressed == own)
        fillRounded(painter, area, metrics::radiusControl, theme().fillPressed);
    else if (marks().hovered == own)
        fillRounded(painter, area, metrics::radiusControl, theme().fillHover);
    strokeEdge(painter, area, metrics::radiusControl, theme().lineEdge);
    const double iconCenter = area.left() + addButtonPadding + metrics::icon / 2.0;
    drawIcon(painter, Icon::Add, theme().textSecondary, QPointF(iconCenter, area.center().y()),
             metrics::icon);
    painter.setFont(textFont(TextStyle::Control));
    painter.setPen(theme().textPrimary);
    painter.drawText(area.adjusted(addButtonPadding + metrics::icon + metrics::space8, 0, 0, 0),
                     Qt::AlignVCenter | Qt::TextSingleLine, title());
    if (marks().focused == own)
        drawFocusRing(painter, area, metrics::radiusControl, theme());
}

} // namespace dropshade
