// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "contrast/SamplePreviewCard.h"

#include "contrast/ContrastMetrics.h"
#include "widgets/ColorConversion.h"
#include "widgets/Metrics.h"
#include "widgets/Painting.h"
#include "widgets/Pill.h"
#include "widgets/TypeScale.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace dropshade {

namespace {

constexpr int rowHeight = 32;
constexpr int pillGap = 6;

QFont sampleFont(const SampleLine& line) {
    QFont font = textFont(TextStyle::Body);
    // A point of the standards is a pixel of the web, and of this card.
    font.setPixelSize(qRound(line.sizePt));
    font.setWeight(line.weight >= fontWeight::semibold ? QFont::DemiBold : QFont::Normal);
    return font;
}

} // namespace

class SamplePreviewCard::Line : public QWidget {
public:
    Line(const Look& look, const SampleLine& line, QWidget* parent)
        : QWidget(parent), m_words(new QLabel(line.text, this)) {
        setFixedHeight(rowHeight);
        m_words->setFont(sampleFont(line));
        auto* row = new QHBoxLayout(this);
        row->setContentsMargins(0, 0, 0, 0);
        row->setSpacing(pillGap);
        row->addWidget(m_words, 1);
        for (qsizetype index = 0; index < line.pills.size(); ++index) {
            auto* pill = new Pill(look, this);
            row->addWidget(pill, 0, Qt::AlignVCenter);
            m_pills.append(pill);
        }
    }

    void show(const SampleLine& line, const QColor& ink) {
        QPalette colors = m_words->palette();
        colors.setColor(QPalette::WindowText, ink);
        m_words->setPalette(colors);
        for (qsizetype index = 0; index < m_pills.size(); ++index) {
            const PillVerdict& verdict = line.pills[index];
            m_pills[index]->setVerdict(verdict.word, verdict.passes, verdict.tooltip);
        }
    }

private:
    QLabel* m_words;
    QList<Pill*> m_pills;
};

SamplePreviewCard::SamplePreviewCard(const Look& look, QWidget* parent)
    : QWidget(parent), m_look(look), m_column(new QVBoxLayout(this)) {
    m_column->setContentsMargins(metrics::space20, metrics::space16, metrics::space12,
                                 metrics::space16);
    m_column->setSpacing(metrics::space12);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    connect(&look, &Look::didChange, this, qOverload<>(&QWidget::update));
}

void SamplePreviewCard::setSample(const SRGBColor& background, const SRGBColor& foreground,
                                  const QList<SampleLine>& lines) {
    m_background = background;
    if (lines.size() != m_lines.size())
        rebuild(lines);
    for (qsizetype index = 0; index < lines.size(); ++index)
        m_lines[index]->show(lines[index], drawable(foreground));
    update();
}

void SamplePreviewCard::rebuild(const QList<SampleLine>& lines) {
    qDeleteAll(m_lines);
    m_lines.clear();
    for (const SampleLine& line : lines) {
        m_lines.append(new Line(m_look, line, this));
        m_column->addWidget(m_lines.last());
        m_lines.last()->setVisible(true);
    }
}

void SamplePreviewCard::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    drawColor(painter, rect(), metrics::radiusSurface, drawable(m_background), m_look.theme());
}

} // namespace dropshade
