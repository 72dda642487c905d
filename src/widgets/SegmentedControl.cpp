// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "widgets/SegmentedControl.h"

#include "widgets/Metrics.h"
#include "widgets/Painting.h"
#include "widgets/RadioButton.h"
#include "widgets/TypeScale.h"

#include <QFontMetrics>
#include <QHBoxLayout>

#include <algorithm>

namespace dropshade {

namespace {

constexpr int trackPadding = 2;
constexpr int segmentPadding = 14;

class Segment : public RadioButton {
public:
    Segment(const Look& look, const QString& title, QWidget* parent) : RadioButton(look, parent) {
        setText(title);
        setFont(textFont(TextStyle::Control));
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    }

    [[nodiscard]] QSize sizeHint() const override {
        return {QFontMetrics(font()).horizontalAdvance(text()) + 2 * segmentPadding,
                std::max(metrics::rowFormat, lineHeight(TextStyle::Control) + metrics::space8)};
    }
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paint(QPainter& painter) override {
        const double radius = metrics::radiusControl;
        if (isChecked()) {
            if (isEnabled())
                fillRounded(painter, rect(), radius, theme().surfaceSegment);
            strokeInside(painter, rect(), radius, metrics::lineHairline,
                         isEnabled() ? theme().lineControl : theme().lineEdge);
        } else if (isEnabled()) {
            fillRounded(painter, rect(), radius, stateFill());
        }
        const bool isStrong = isChecked() || isDown() || hoverAmount() > 0.5;
        painter.setFont(font());
        painter.setPen(!isEnabled() ? theme().textTertiary
                       : isStrong   ? theme().textPrimary
                                    : theme().textSecondary);
        painter.drawText(rect(), Qt::AlignCenter, text());
    }
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
    connect(&look, &Look::didChange, this, qOverload<>(&QWidget::update));
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
