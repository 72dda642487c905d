// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "widgets/SegmentedControl.h"

#include "widgets/AnimatedValue.h"
#include "widgets/FocusRing.h"
#include "widgets/Metrics.h"
#include "widgets/Painting.h"
#include "widgets/ToolTip.h"
#include "widgets/TypeScale.h"

#include <QEvent>
#include <QFontMetrics>
#include <QHBoxLayout>
#include <QRadioButton>

#include <algorithm>

namespace dropshade {

namespace {

constexpr int trackPadding = 2;
constexpr int segmentPadding = 14;

class Segment : public QRadioButton {
public:
    Segment(const Look& look, const QString& title, QWidget* parent)
        : QRadioButton(title, parent), m_look(look) {
        setFont(textFont(TextStyle::Control));
        setAttribute(Qt::WA_Hover);
        setFocusPolicy(Qt::TabFocus);
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        setFocusRadius(*this, metrics::radiusControl);
        ToolTip::installOn(*this, look);
    }

    [[nodiscard]] QSize sizeHint() const override {
        return {QFontMetrics(font()).horizontalAdvance(text()) + 2 * segmentPadding,
                std::max(metrics::rowFormat, lineHeight(TextStyle::Control) + metrics::space8)};
    }
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    bool hitButton(const QPoint& position) const override { return rect().contains(position); }

    bool event(QEvent* event) override {
        if (event->type() == QEvent::HoverEnter)
            m_hover.moveTo(1.0, m_look.duration(metrics::hover));
        if (event->type() == QEvent::HoverLeave)
            m_hover.moveTo(0.0, m_look.duration(metrics::hover));
        return QRadioButton::event(event);
    }

    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        const Theme& theme = m_look.theme();
        const double radius = metrics::radiusControl;
        if (isChecked()) {
            if (isEnabled())
                fillRounded(painter, rect(), radius, theme.surfaceSegment);
            strokeInside(painter, rect(), radius, metrics::lineHairline,
                         isEnabled() ? theme.lineControl : theme.lineEdge);
        } else if (isEnabled()) {
            fillRounded(painter, rect(), radius,
                        isDown() ? theme.fillPressed
                                 : blended(Qt::transparent, theme.fillHover, m_hover.value()));
        }
        const bool isStrong = isChecked() || isDown() || m_hover.value() > 0.5;
        painter.setFont(font());
        painter.setPen(!isEnabled() ? theme.textTertiary
                       : isStrong   ? theme.textPrimary
                                    : theme.textSecondary);
        painter.drawText(rect(), Qt::AlignCenter, text());
    }

private:
    const Look& m_look;
    AnimatedValue m_hover{*this};
};

} // namespace

SegmentedControl::SegmentedControl(const Look& look, const QString& name, const QStringList& titles,
                                   QWidget* parent)
    : QWidget(parent), m_look(look) {
    setAccessibleName(name);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(trackPadding, trackPadding, trackPadding, trackPadding);
    row->setSpacing(0);
    for (const QString& title : titles) {
        auto* segment = new Segment(look, title, this);
        row->addWidget(segment);
        const int index = static_cast<int>(m_segments.size());
        // Arrow keys toggle without a click; a programme's own choice is blocked below.
        connect(segment, &QAbstractButton::toggled, this, [this, index](bool on) {
            if (on)
                Q_EMIT picked(index);
        });
        m_segments.append(segment);
    }
    connect(&look, &Look::didChange, this, [this] {
        update();
        for (QAbstractButton* segment : std::as_const(m_segments))
            segment->update();
    });
}

int SegmentedControl::currentIndex() const {
    for (int index = 0; index < m_segments.size(); ++index) {
        if (m_segments[index]->isChecked())
            return index;
    }
    return -1;
}

void SegmentedControl::setCurrentIndex(int index) {
    if (index < 0 || index >= m_segments.size() || m_segments[index]->isChecked())
        return;
    const QSignalBlocker block(m_segments[index]);
    m_segments[index]->setChecked(true);
    for (QAbstractButton* segment : std::as_const(m_segments))
        segment->update();
}

void SegmentedControl::setSegmentToolTip(const QString& text) {
    for (QAbstractButton* segment : std::as_const(m_segments))
        segment->setToolTip(text);
}

void SegmentedControl::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    fillRounded(painter, rect(), metrics::radiusControl + trackPadding,
                m_look.theme().surfaceSunken);
}

} // namespace dropshade
