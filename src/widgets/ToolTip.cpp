// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "widgets/ToolTip.h"

#include "widgets/Metrics.h"
#include "widgets/Painting.h"
#include "widgets/RoundedMask.h"
#include "widgets/TypeScale.h"

#include <QApplication>
#include <QEvent>
#include <QFontMetrics>
#include <QHelpEvent>
#include <QScreen>

#include <algorithm>

namespace dropshade {

namespace {

constexpr int pointerGap = 18;
constexpr std::chrono::seconds longestShown{10};
constexpr int textFlags = Qt::TextWordWrap | Qt::AlignLeft | Qt::AlignVCenter;

QSize textSize(const QString& text) {
    const QFontMetrics fontMetrics(textFont(TextStyle::Caption));
    const int widest = metrics::tooltipWidth - 2 * metrics::space8;
    return fontMetrics.boundingRect(QRect(0, 0, widest, 10000), textFlags, text).size();
}

/// Turns the events of a control into the life of its plate.
class ToolTipEvents : public QObject {
public:
    ToolTipEvents(QWidget& control, const Look& look)
        : QObject(&control), m_control(control), m_look(look) {
        control.installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        switch (event->type()) {
        case QEvent::ToolTip:
            show(static_cast<QHelpEvent*>(event)->globalPos());
            return true;
        case QEvent::Leave:
        case QEvent::Hide:
            delete m_plate;
            break;
        case QEvent::ToolTipChange:
            if (m_plate && m_plate->text() != m_control.toolTip())
                delete m_plate;
            break;
        default:
            break;
        }
        return QObject::eventFilter(watched, event);
    }

private:
    void show(const QPoint& pointer) {
        if (m_plate || m_control.toolTip().isEmpty())
            return;
        m_plate = new ToolTip(m_look, m_control.toolTip(), &m_control);
        m_plate->showAt(pointer);
    }

    QWidget& m_control;
    const Look& m_look;
    QPointer<ToolTip> m_plate;
};

} // namespace

void ToolTip::installOn(QWidget& control, const Look& look) {
    new ToolTipEvents(control, look);
}

ToolTip::ToolTip(const Look& look, const QString& text, QWidget* owner)
    : QWidget(owner, Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowTransparentForInput),
      m_look(look), m_text(text) {
    setAttribute(Qt::WA_TranslucentBackground, look.blendsWindows());
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAccessibleName(text);
    m_end.setSingleShot(true);
    qApp->installEventFilter(this);
    connect(&m_end, &QTimer::timeout, this, &QObject::deleteLater);
}

void ToolTip::showAt(const QPoint& pointer) {
    const QSize words = textSize(m_text);
    resize(words.width() + 2 * metrics::space8 + 1, words.height() + 2 * metrics::space4);
    const QScreen* screen = QGuiApplication::screenAt(pointer);
    QPoint corner = pointer + QPoint(metrics::space4, pointerGap);
    if (screen) {
        const QRect room = screen->availableGeometry();
        corner.setX(std::max(room.left(), std::min(corner.x(), room.right() - width() + 1)));
        if (corner.y() + height() > room.bottom() + 1)
            corner.setY(pointer.y() - height() - metrics::space4);
    }
    move(corner);
    maskWhereOpaque(*this, metrics::radiusControl);
    show();
    m_end.start(longestShown);
}

bool ToolTip::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::KeyPress:
    case QEvent::Wheel:
    case QEvent::ApplicationDeactivate:
        hide();
        deleteLater();
        break;
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}

void ToolTip::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const Theme& theme = m_look.theme();
    fillWhereOpaque(painter, *this, theme.surfacePlate);
    fillRounded(painter, rect(), metrics::radiusControl, theme.surfacePlate);
    strokeEdge(painter, rect(), metrics::radiusControl, theme.linePlate);
    painter.setFont(textFont(TextStyle::Caption));
    painter.setPen(theme.textOnPlate);
    painter.drawText(rect().adjusted(metrics::space8, 0, -metrics::space8 + 1, 0), textFlags,
                     m_text);
}

} // namespace dropshade
