// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "convert/EmptyState.h"

#include "widgets/Icon.h"
#include "widgets/Label.h"
#include "widgets/Metrics.h"

#include <QPainter>
#include <QVBoxLayout>

namespace dropshade {

namespace {

constexpr int drawingSide = 40;

class Drawing : public QWidget {
public:
    explicit Drawing(const Look& look) : m_look(look) { setFixedSize(drawingSide, drawingSide); }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setOpacity(0.8);
        painter.drawPixmap(0, 0,
                           iconPixmap(Icon::StatusPicker, m_look.theme().textTertiary, drawingSide,
                                      devicePixelRatioF()));
    }

private:
    const Look& m_look;
};

} // namespace

EmptyState::EmptyState(const Look& look, QWidget* parent) : QWidget(parent) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(metrics::windowMargin, 0, metrics::windowMargin, 0);
    column->setSpacing(metrics::space4);
    auto* heading = new Label(look, TextStyle::Heading, Label::Tone::Primary,
                              tr("Pick a color to see every format", "Empty state heading"));
    auto* subtitle =
        new Label(look, TextStyle::Body, Label::Tone::Secondary,
                  tr("Then copy the format you need and carry on!", "Empty state subtitle"));
    column->addStretch(1);
    column->addWidget(new Drawing(look), 0, Qt::AlignHCenter);
    column->addSpacing(metrics::space12);
    for (Label* label : {heading, subtitle}) {
        label->setWordWrap(true);
        label->setAlignment(Qt::AlignCenter);
        column->addWidget(label);
    }
    column->addStretch(1);
}

} // namespace dropshade
