// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "widgets/TextButton.h"

#include "widgets/Metrics.h"
#include "widgets/Painting.h"
#include "widgets/TypeScale.h"

#include <QFontMetrics>
#include <QPainter>

#include <algorithm>

namespace dropshade {

namespace {

constexpr int wordPadding = 14;
constexpr int quietPadding = 10;
constexpr int iconGap = 8;

} // namespace

TextButton::TextButton(const Look& look, Kind kind, const QString& text, QWidget* parent)
    : Button(look, parent), m_kind(kind) {
    setText(text);
    setFont(textFont(TextStyle::Control));
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void TextButton::setLeadingIcon(Icon icon) {
    m_icon = icon;
    updateGeometry();
    update();
}

int TextButton::padding() const {
    return m_kind == Kind::Quiet ? quietPadding : wordPadding;
}

QSize TextButton::sizeHint() const {
    const int words = QFontMetrics(font()).horizontalAdvance(text());
    const int icon = m_icon ? metrics::icon + iconGap : 0;
    return {words + icon + 2 * padding(),
            std::max(metrics::control, lineHeight(TextStyle::Control) + metrics::space12)};
}

QColor TextButton::ink() const {
    if (!isEnabled())
        return theme().textTertiary;
    switch (m_kind) {
    case Kind::Default:
        return theme().textOnInk;
    case Kind::Destructive:
        return theme().textOnDanger;
    case Kind::Plain:
    case Kind::Quiet:
        break;
    }
    return theme().textPrimary;
}

void TextButton::paintSurface(QPainter& painter) {
    const QRectF area = rect();
    const auto fill = [&](const QColor& rest, const QColor& hovered, const QColor& pressed) {
        fillRounded(painter, area, cornerRadius(),
                    isPressed() ? pressed : blended(rest, hovered, hoverAmount()));
    };
    if (!isEnabled()) {
        if (m_kind != Kind::Quiet)
            strokeEdge(painter, area, cornerRadius(), theme().lineEdge);
        return;
    }
    switch (m_kind) {
    case Kind::Default:
        fill(theme().inkBase, theme().inkHover, theme().inkPressed);
        break;
    case Kind::Destructive:
        fill(theme().dangerBase, theme().dangerHover, theme().dangerPressed);
        break;
    case Kind::Plain:
        fillRounded(painter, area, cornerRadius(), filled(theme().surfaceButton));
        strokeEdge(painter, area, cornerRadius(), theme().lineEdge);
        break;
    case Kind::Quiet:
        fillRounded(painter, area, cornerRadius(), filled(Qt::transparent));
        break;
    }
}

void TextButton::paint(QPainter& painter) {
    paintSurface(painter);
    const QFontMetrics fontMetrics(font());
    const int icon = m_icon ? metrics::icon + iconGap : 0;
    const int natural = fontMetrics.horizontalAdvance(text());
    const int room = width() - icon - 2 * padding();
    if (!m_icon && natural > room && height() >= 2 * fontMetrics.height()) {
        painter.setFont(font());
        painter.setPen(ink());
        painter.drawText(rect().adjusted(quietPadding, 0, -quietPadding, 0),
                         Qt::AlignCenter | Qt::TextWordWrap, text());
        return;
    }
    const int words = std::min(natural, std::max(room, 0));
    int left = (width() - words - icon) / 2;
    if (m_icon) {
        const bool isQuiet = m_kind == Kind::Quiet && isEnabled();
        const QColor color = isQuiet ? theme().textSecondary : ink();
        painter.drawPixmap(left, (height() - metrics::icon) / 2,
                           iconPixmap(*m_icon, color, metrics::icon, devicePixelRatioF()));
        left += icon;
    }
    painter.setFont(font());
    painter.setPen(ink());
    painter.drawText(QRect(left, 0, words + 1, height()), Qt::AlignVCenter | Qt::AlignLeft,
                     fontMetrics.elidedText(text(), Qt::ElideRight, words + 1));
}

} // namespace dropshade
