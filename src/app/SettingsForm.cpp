// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "app/SettingsForm.h"

#include "widgets/Metrics.h"
#include "widgets/Toggle.h"

#include <QBoxLayout>
#include <QPainter>

#include <algorithm>

namespace dropshade {
namespace {

constexpr int headingSpace = 20;

void drawHairline(QWidget& widget, const Look& look) {
    QPainter painter(&widget);
    painter.fillRect(QRectF(0.0, widget.height() - metrics::lineHairline,
                            widget.width() - SettingsRow::haloRoom, metrics::lineHairline),
                     look.theme().lineHairline);
}

} // namespace

SettingsRow::SettingsRow(const Look& look, const QString& name, QWidget& control, QWidget* parent)
    : QWidget(parent), m_look(look), m_lines(new QVBoxLayout(this)) {
    const bool isToggle = qobject_cast<Toggle*>(&control) != nullptr;
    m_lines->setContentsMargins(0, metrics::space4, 0, metrics::space4 + 1);
    m_lines->setSpacing(0);
    auto* line = new QHBoxLayout;
    line->setContentsMargins(0, 0, isToggle ? 0 : haloRoom, 0);
    line->setSpacing(metrics::space12);
    auto* label = new Label(look, TextStyle::Body, Label::Tone::Primary, name, this);
    label->setBuddy(&control);
    line->addWidget(label, 1);
    line->addWidget(&control, 0, Qt::AlignVCenter);
    m_lines->addLayout(line);
    label->setMinimumHeight(metrics::control);
    // Words that wrap may need more than the size hint, which knows of no width.
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Minimum);
}

Label* SettingsRow::addCaption(const QString& words) {
    auto* caption = new Label(m_look, TextStyle::Caption, Label::Tone::Secondary, words, this);
    caption->setWordWrap(true);
    addBelow(*caption);
    return caption;
}

void SettingsRow::addBelow(QWidget& widget) {
    auto* line = new QHBoxLayout;
    line->setContentsMargins(0, 0, haloRoom, 0);
    line->addWidget(&widget);
    m_lines->addLayout(line);
    m_lines->setContentsMargins(0, metrics::space4, 0, metrics::space8 + 1);
}

void SettingsRow::paintEvent(QPaintEvent*) {
    drawHairline(*this, m_look);
}

/// The title of a section over its first hairline.
class SettingsForm::Heading : public QWidget {
public:
    Heading(const Look& look, const QString& title, QWidget* parent)
        : QWidget(parent), m_look(look) {
        auto* line = new QVBoxLayout(this);
        line->setContentsMargins(0, headingSpace, 0, metrics::space8 + 1);
        line->addWidget(new Label(look, TextStyle::Heading, Label::Tone::Primary, title, this));
        setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    }

protected:
    void paintEvent(QPaintEvent*) override { drawHairline(*this, m_look); }

private:
    const Look& m_look;
};

SettingsForm::SettingsForm(const Look& look, QWidget* parent)
    : QWidget(parent), m_look(look), m_rows(new QVBoxLayout(this)) {
    m_rows->setContentsMargins(metrics::settingsMargin, 0,
                               metrics::settingsMargin - SettingsRow::haloRoom,
                               metrics::settingsMargin);
    m_rows->setSpacing(0);
    connect(&look, &Look::didChange, this, [this] {
        for (QWidget* row : findChildren<QWidget*>())
            row->update();
    });
}

void SettingsForm::addSection(const QString& title) {
    m_rows->addWidget(new Heading(m_look, title, this));
}

QSize SettingsForm::minimumSizeHint() const {
    const QSize least = QWidget::minimumSizeHint();
    return {least.width(), heightForWidth(std::max(width(), least.width()))};
}

SettingsRow* SettingsForm::addRow(const QString& name, QWidget* control) {
    auto* row = new SettingsRow(m_look, name, *control, this);
    m_rows->addWidget(row);
    return row;
}

Label* SettingsForm::addFooter(const QString& words) {
    m_rows->addSpacing(metrics::space8);
    auto* footer = new Label(m_look, TextStyle::Caption, Label::Tone::Secondary, words, this);
    footer->setWordWrap(true);
    m_rows->addWidget(footer);
    return footer;
}

} // namespace dropshade
