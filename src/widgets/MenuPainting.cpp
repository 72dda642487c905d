// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "widgets/MenuPainting.h"

#include "widgets/Icon.h"
#include "widgets/Metrics.h"
#include "widgets/Painting.h"
#include "widgets/TypeScale.h"

#include <QFontMetrics>
#include <QMenu>

#include <algorithm>

namespace dropshade {

namespace {

constexpr int rowInset = 10;
constexpr int iconGap = 10;
constexpr int shortcutGap = 24;
constexpr int separatorHeight = 12;
constexpr int checkColumn = 20;

bool isHeader(const QStyleOptionMenuItem& item) {
    return item.font.pixelSize() == textFont(TextStyle::MenuHeader).pixelSize() &&
           item.font.weight() == textFont(TextStyle::MenuHeader).weight();
}

bool isDestructive(const QStyleOptionMenuItem& item) {
    // Menus have no field for it; a row says so by the colour of its words.
    return item.palette.color(QPalette::ButtonText) == item.palette.color(QPalette::BrightText);
}

/// Rows without an image keep the column of those that have one.
int imageColumn(const QStyleOptionMenuItem& item) {
    if (item.maxIconWidth > 0)
        return item.maxIconWidth > metrics::icon ? metrics::menuSwatch : metrics::iconMenu;
    return item.menuHasCheckableItems ? checkColumn - iconGap : 0;
}

QColor rowInk(const QStyleOptionMenuItem& item, const Theme& theme) {
    if (isHeader(item))
        return theme.textSecondary;
    if (!item.state.testFlag(QStyle::State_Enabled))
        return theme.textTertiary;
    return isDestructive(item) ? theme.dangerBase : theme.textPrimary;
}

void drawImage(QPainter& painter, const QStyleOptionMenuItem& item, const QRect& column,
               const Theme& theme) {
    const double ratio = painter.device()->devicePixelRatioF();
    if (item.checked && item.icon.isNull()) {
        const double middle = column.center().y() + 0.5;
        drawTick(painter, QRectF(column.left() + 4, middle - 14.0, 2.0, 28.0), theme);
        return;
    }
    if (item.icon.isNull())
        return;
    const QSize size = item.icon.actualSize(QSize(metrics::menuSwatch, metrics::menuSwatch));
    const bool isEnabled = item.state.testFlag(QStyle::State_Enabled);
    const bool isCurrent = item.state.testFlag(QStyle::State_Selected);
    const QIcon::Mode mode = !isEnabled  ? QIcon::Disabled
                             : isCurrent ? QIcon::Active
                                         : QIcon::Normal;
    const QPixmap image = item.icon.pixmap(size, ratio, mode);
    const QSizeF drawn = image.deviceIndependentSize();
    const double left = column.left() + (column.width() - drawn.width()) / 2.0;
    const double top = column.top() + (column.height() - drawn.height()) / 2.0;
    painter.drawPixmap(QPointF(left, top), image);
}

void drawWords(QPainter& painter, const QStyleOptionMenuItem& item, const QRect& area,
               const Theme& theme) {
    const QString words = item.text.section(u'\t', 0, 0);
    const QString keys = item.text.section(u'\t', 1);
    painter.setFont(item.font);
    painter.setPen(rowInk(item, theme));
    constexpr int flags = Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine |
                          Qt::TextHideMnemonic | Qt::TextDontClip;
    painter.drawText(area, flags, words);
    if (keys.isEmpty())
        return;
    if (item.state.testFlag(QStyle::State_Enabled))
        painter.setPen(theme.textSecondary);
    painter.drawText(area, Qt::AlignVCenter | Qt::AlignRight | Qt::TextSingleLine, keys);
}

} // namespace

void drawMenuPanel(QPainter& painter, const QRect& panel, const Theme& theme) {
    fillRounded(painter, panel, metrics::radiusSurface, theme.surfaceRaised);
    strokeEdge(painter, panel, metrics::radiusSurface, theme.lineEdge);
}

void drawMenuRow(QPainter& painter, const QStyleOptionMenuItem& item, const Theme& theme) {
    const QRect row = item.rect;
    if (item.menuItemType == QStyleOptionMenuItem::Separator) {
        const int middle = row.center().y();
        painter.fillRect(QRect(row.left() + 4, middle, row.width() - 8, 1), theme.lineHairline);
        return;
    }
    painter.save();
    const bool isEnabled = item.state.testFlag(QStyle::State_Enabled);
    if (isEnabled && item.state.testFlag(QStyle::State_Selected)) {
        const bool isPressed = item.state.testFlag(QStyle::State_Sunken);
        fillRounded(painter, row, metrics::radiusCell,
                    isPressed ? theme.fillPressed : theme.fillHover);
        drawTick(painter, row, theme);
    }
    const int column = isHeader(item) ? 0 : imageColumn(item);
    QRect words = row.adjusted(rowInset, 0, -rowInset, 0);
    if (column > 0) {
        drawImage(painter, item, QRect(words.left(), row.top(), column, row.height()), theme);
        words.setLeft(words.left() + column + iconGap);
    }
    if (item.menuItemType == QStyleOptionMenuItem::SubMenu) {
        const int side = metrics::iconMenu;
        painter.drawPixmap(words.right() - side + 1, row.center().y() - side / 2 + 1,
                           iconPixmap(Icon::ChevronRight,
                                      isEnabled ? theme.textSecondary : theme.textTertiary, side,
                                      painter.device()->devicePixelRatioF()));
        words.setRight(words.right() - side);
    }
    drawWords(painter, item, words, theme);
    painter.restore();
}

void drawMenuScroller(QPainter& painter, const QStyleOption& option, const Theme& theme) {
    const QRect strip = option.rect.adjusted(menuPadding, 0, -menuPadding, 0);
    painter.fillRect(strip, theme.surfaceRaised);
    const QPixmap chevron = iconPixmap(Icon::ChevronDown, theme.textSecondary, metrics::iconMenu,
                                       painter.device()->devicePixelRatioF());
    painter.save();
    painter.translate(QRectF(strip).center());
    if (!option.state.testFlag(QStyle::State_DownArrow))
        painter.rotate(180.0);
    const double half = metrics::iconMenu / 2.0;
    painter.drawPixmap(QPointF(-half, -half), chevron);
    painter.restore();
}

QSize menuRowSize(const QStyleOptionMenuItem& item, const QSize& contents) {
    if (item.menuItemType == QStyleOptionMenuItem::Separator)
        return {contents.width(), separatorHeight};
    const QFontMetrics fontMetrics(item.font);
    const QString words = item.text.section(u'\t', 0, 0);
    const QString keys = item.text.section(u'\t', 1);
    int width =
        2 * rowInset + fontMetrics.size(Qt::TextSingleLine | Qt::TextHideMnemonic, words).width();
    const int column = isHeader(item) ? 0 : imageColumn(item);
    if (column > 0)
        width += column + iconGap;
    if (!keys.isEmpty())
        width += shortcutGap + fontMetrics.horizontalAdvance(keys);
    if (item.menuItemType == QStyleOptionMenuItem::SubMenu)
        width += shortcutGap;
    return {width, std::max(metrics::rowMenu, lineHeight(TextStyle::Body) + metrics::space8)};
}

} // namespace dropshade
