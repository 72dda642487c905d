// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "palettes/NamePopover.h"

#include "palettes/PopoverButtons.h"
#include "widgets/Label.h"
#include "widgets/Metrics.h"
#include "widgets/TextButton.h"
#include "widgets/TextField.h"

#include <QKeyEvent>
#include <QTimer>
#include <QVBoxLayout>

namespace dropshade {

NamePopover::NamePopover(const Look& look, QWidget& anchor, std::unique_ptr<NameEdit> edit)
    : Popover(look, anchor), m_edit(std::move(edit)) {
    setAccessibleName(m_edit->title());
    auto* field = new TextField(look, TextField::Content::Words, content());
    field->setText(m_edit->name());
    field->setAccessibleName(m_edit->title());
    field->setFixedWidth(popoverFieldWidth);
    auto* column = new QVBoxLayout(content());
    column->setContentsMargins(metrics::space16, metrics::space16, metrics::space16,
                               metrics::space16);
    column->setSpacing(0);
    column->addWidget(
        new Label(look, TextStyle::FieldLabel, Label::Tone::Secondary, m_edit->title(), content()));
    column->addSpacing(metrics::space4);
    column->addWidget(field);
    column->addSpacing(metrics::space16);
    //: Default button of a popover
    const PopoverButtons buttons = addPopoverButtons(look, *column, tr("Done"));
    connect(buttons.cancel, &QAbstractButton::clicked, this, &NamePopover::cancel);
    connect(buttons.commit, &QAbstractButton::clicked, this, &QWidget::close);
    connect(field, &QLineEdit::returnPressed, this, &QWidget::close);
    connect(field, &QLineEdit::textChanged, this,
            [this](const QString& name) { m_edit->setName(name); });
    connect(this, &Popover::closed, this, [this] { m_edit->dismissed(); });
    field->setFocus();
    QTimer::singleShot(0, field, &QLineEdit::selectAll);
}

NamePopover::~NamePopover() = default;

void NamePopover::cancel() {
    m_edit->cancel();
    close();
}

void NamePopover::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape)
        cancel();
    else
        Popover::keyPressEvent(event);
}

} // namespace dropshade
