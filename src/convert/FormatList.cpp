// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "convert/FormatList.h"

#include "widgets/ErrorSign.h"
#include "widgets/Hairline.h"
#include "widgets/Label.h"
#include "widgets/Metrics.h"

#include <QVBoxLayout>

#include <algorithm>

namespace dropshade {

namespace {

constexpr int margin = 8;
constexpr int inset = metrics::windowMargin - margin;
/// As high as the first line of the words beside it.
constexpr int signHeight = 20;

QWidget* indented(QWidget* content, int left, int top, int right, int bottom) {
    auto* frame = new QWidget;
    auto* layout = new QVBoxLayout(frame);
    layout->setContentsMargins(left, top, right, bottom);
    layout->addWidget(content);
    return frame;
}

} // namespace

FormatList::FormatList(const Look& look, ColorPickerModel& model, QWidget* parent)
    : QWidget(parent), m_look(look), m_model(model) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(margin, 0, margin, margin);
    column->setSpacing(0);
    addError(*column);
    for (const ColorFormatGroup& group : formatGroups())
        addGroup(group, *column);
    column->addStretch(1);
    makeTabStop(m_rows.first());
    refresh();
}

void FormatList::addError(QVBoxLayout& column) {
    auto* words = new Label(
        m_look, TextStyle::Caption, Label::Tone::Danger,
        tr("Couldn't parse this color. Try a hex (#ff0080), rgb(), hsl(), or a CSS color name.",
           "Convert parse error"));
    words->setWordWrap(true);
    auto* message = new QWidget;
    auto* row = new QHBoxLayout(message);
    row->setContentsMargins(inset, metrics::space12, inset, metrics::space12);
    row->setSpacing(metrics::space8);
    auto* sign = new ErrorSign(m_look);
    sign->setFixedHeight(signHeight);
    row->addWidget(sign, 0, Qt::AlignTop);
    row->addWidget(words, 1);
    m_error = new QWidget;
    auto* layout = new QVBoxLayout(m_error);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(message);
    layout->addWidget(indented(new Hairline(m_look), inset, 0, inset, 0));
    column.addWidget(m_error);
    m_error->hide();
}

void FormatList::addGroup(const ColorFormatGroup& group, QVBoxLayout& column) {
    if (!m_rows.isEmpty())
        column.addWidget(indented(new Hairline(m_look), inset, metrics::space8, inset, 0));
    auto* title = new Label(
        m_look, TextStyle::Overline, Label::Tone::Secondary,
        QString::fromUtf8(group.title.data(), static_cast<qsizetype>(group.title.size())));
    column.addWidget(indented(title, inset, metrics::space12, inset, metrics::space4));
    for (const ColorFormat format : group.formats) {
        auto* row = new FormatRow(m_look, format);
        row->setFocusPolicy(Qt::NoFocus);
        const int index = static_cast<int>(m_rows.size());
        connect(row, &FormatRow::moveRequested, this,
                [this, index](int by) { moveFrom(index, by); });
        connect(row, &QAbstractButton::clicked, this,
                [this, format] { m_model.copyRowColor(format); });
        column.addWidget(row);
        m_rows.append(row);
    }
}

void FormatList::refresh() {
    m_error->setVisible(m_model.didParseFail());
    for (FormatRow* row : std::as_const(m_rows))
        row->setValue(m_model.rowValue(row->format()), m_model.rowsEnabled());
}

FormatRow* FormatList::row(ColorFormat format) const {
    const auto found = std::find_if(m_rows.begin(), m_rows.end(), [format](const FormatRow* row) {
        return row->format() == format;
    });
    return found == m_rows.end() ? nullptr : *found;
}

void FormatList::moveFrom(int index, int by) {
    const int last = static_cast<int>(m_rows.size()) - 1;
    FormatRow* next = m_rows[std::clamp(index + by, 0, last)];
    makeTabStop(next);
    next->setFocus(Qt::TabFocusReason);
}

void FormatList::makeTabStop(FormatRow* row) {
    for (FormatRow* other : std::as_const(m_rows))
        other->setFocusPolicy(other == row ? Qt::TabFocus : Qt::NoFocus);
}

} // namespace dropshade
