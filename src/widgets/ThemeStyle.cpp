// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "widgets/ThemeStyle.h"

#include "widgets/MenuPainting.h"
#include "widgets/Metrics.h"
#include "widgets/Painting.h"

#include <QScrollBar>
#include <QStyleFactory>
#include <QStyleOption>

#include <algorithm>

namespace dropshade {

namespace {

constexpr int scrollBarWidth = 10;
constexpr double scrollBarInset = 3.0;
constexpr int smallestScrollHandle = 32;

/// The part of the groove that the handle fills.
QRect scrollHandle(const QStyleOptionSlider& bar) {
    const bool isUpright = bar.orientation == Qt::Vertical;
    const int length = isUpright ? bar.rect.height() : bar.rect.width();
    const int range = bar.maximum - bar.minimum;
    const qint64 whole = static_cast<qint64>(range) + bar.pageStep;
    if (range <= 0 || whole <= 0)
        return bar.rect;
    const int handle = std::clamp(static_cast<int>(length * qint64{bar.pageStep} / whole),
                                  std::min(smallestScrollHandle, length), length);
    const int start = QStyle::sliderPositionFromValue(bar.minimum, bar.maximum, bar.sliderPosition,
                                                      length - handle, bar.upsideDown);
    return isUpright ? QRect(bar.rect.left(), bar.rect.top() + start, bar.rect.width(), handle)
                     : QRect(bar.rect.left() + start, bar.rect.top(), handle, bar.rect.height());
}

void drawScrollBar(const QStyleOptionSlider& bar, QPainter& painter, const Theme& theme) {
    if (bar.maximum <= bar.minimum)
        return;
    const bool isHeld = bar.state.testFlag(QStyle::State_Sunken) ||
                        bar.activeSubControls.testFlag(QStyle::SC_ScrollBarSlider);
    QColor color = isHeld ? theme.textSecondary : theme.textTertiary;
    if (!isHeld)
        color.setAlphaF(0.6F);
    const double inset = scrollBarInset;
    const QRectF handle = QRectF(scrollHandle(bar)).adjusted(inset, inset, -inset, -inset);
    const double radius = std::min(handle.width(), handle.height()) / 2.0;
    fillRounded(painter, handle, radius, color);
}

} // namespace

ThemeStyle::ThemeStyle(const Theme& theme)
    : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))), m_theme(theme) {}

void ThemeStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                               QPainter* painter, const QWidget* widget) const {
    switch (element) {
    case PE_PanelMenu:
        drawMenuPanel(*painter, option->rect, m_theme);
        return;
    case PE_FrameMenu:
    case PE_PanelScrollAreaCorner:
    case PE_FrameFocusRect:
        return;
    default:
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}

void ThemeStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                             const QWidget* widget) const {
    switch (element) {
    case CE_MenuItem:
        if (const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option)) {
            drawMenuRow(*painter, *item, m_theme);
            return;
        }
        break;
    case CE_MenuScroller:
        drawMenuScroller(*painter, *option, m_theme);
        return;
    case CE_MenuEmptyArea:
    case CE_MenuHMargin:
    case CE_MenuVMargin:
        return;
    default:
        break;
    }
    QProxyStyle::drawControl(element, option, painter, widget);
}

void ThemeStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                    QPainter* painter, const QWidget* widget) const {
    const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (control == CC_ScrollBar && bar) {
        drawScrollBar(*bar, *painter, m_theme);
        return;
    }
    QProxyStyle::drawComplexControl(control, option, painter, widget);
}

QRect ThemeStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option,
                                 SubControl part, const QWidget* widget) const {
    const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (control != CC_ScrollBar || !bar)
        return QProxyStyle::subControlRect(control, option, part, widget);
    const QRect handle = scrollHandle(*bar);
    const QRect& all = bar->rect;
    const bool isUpright = bar->orientation == Qt::Vertical;
    switch (part) {
    case SC_ScrollBarSlider:
        return handle;
    case SC_ScrollBarGroove:
        return all;
    case SC_ScrollBarSubPage:
        return isUpright ? QRect(all.topLeft(), QPoint(all.right(), handle.top() - 1))
                         : QRect(all.topLeft(), QPoint(handle.left() - 1, all.bottom()));
    case SC_ScrollBarAddPage:
        return isUpright ? QRect(QPoint(all.left(), handle.bottom() + 1), all.bottomRight())
                         : QRect(QPoint(handle.right() + 1, all.top()), all.bottomRight());
    default:
        return {};
    }
}

QSize ThemeStyle::sizeFromContents(ContentsType type, const QStyleOption* option,
                                   const QSize& contents, const QWidget* widget) const {
    if (type == CT_MenuItem) {
        if (const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option))
            return menuRowSize(*item, contents);
    }
    return QProxyStyle::sizeFromContents(type, option, contents, widget);
}

int ThemeStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                            const QWidget* widget) const {
    switch (metric) {
    case PM_MenuHMargin:
    case PM_MenuVMargin:
        return menuPadding;
    case PM_MenuScrollerHeight:
        return metrics::space20;
    case PM_MenuPanelWidth:
    case PM_ScrollView_ScrollBarSpacing:
    case PM_ScrollView_ScrollBarOverlap:
        return 0;
    case PM_SubMenuOverlap:
        return -2;
    case PM_SmallIconSize:
        return metrics::menuSwatch;
    case PM_FocusFrameHMargin:
    case PM_FocusFrameVMargin:
        return metrics::focusReach;
    case PM_ScrollBarExtent:
        return scrollBarWidth;
    case PM_ScrollBarSliderMin:
        return smallestScrollHandle;
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

int ThemeStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                          QStyleHintReturn* returned) const {
    switch (hint) {
    case SH_FocusFrame_AboveWidget:
    case SH_Menu_MouseTracking:
    case SH_Menu_Scrollable:
        return 1;
    // Or the Alt key closes an open menu, in the middle of a shortcut that has it.
    case SH_MenuBar_AltKeyNavigation:
    case SH_FocusFrame_Mask:
    case SH_Menu_FlashTriggeredItem:
    case SH_Menu_FadeOutOnHide:
    case SH_ScrollBar_Transient:
        return 0;
    default:
        return QProxyStyle::styleHint(hint, option, widget, returned);
    }
}

} // namespace dropshade
