// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "contrast/InlineColorWell.h"

#include "ColorSelector/SelectorPanel.h"
#include "widgets/ColorConversion.h"
#include "widgets/Metrics.h"
#include "widgets/TextButton.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace dropshade {

namespace {

constexpr int popoverPadding = 12;
constexpr int popoverWidth = 248;
/// How much of the window the popover may cover: not its verdict.
constexpr int overlap = 16;

} // namespace

InlineColorWell::InlineColorWell(const Look& look, ColorWellEdit::Binding binding, QWidget* parent)
    : ColorWell(look, tr("Edit color", "Color picker tooltip"), metrics::control, parent),
      m_binding(binding), m_edit(std::move(binding)) {
    connect(this, &QAbstractButton::clicked, this, &InlineColorWell::openPopover);
    refresh();
}

void InlineColorWell::refresh() {
    setColor(drawable(m_binding.read()));
}

void InlineColorWell::openPopover() {
    if (m_popover)
        return;
    m_edit.open();
    m_popover = new Popover(look(), *this);
    //: Name of the popover that edits a color, for screen readers
    m_popover->setAccessibleName(tr("Edit color", "Color picker tooltip"));
    fill(*m_popover);
    connect(m_popover, &Popover::closed, this, [this] {
        setOpen(false);
        m_edit.didClose();
    });
    setOpen(true);
    const QWidget* host = window();
    const QRect verdict =
        QRect(host->mapToGlobal(QPoint(0, 0)), host->size()).adjusted(overlap, 0, -overlap, 0);
    m_popover->open(Popover::Side::Beside, verdict);
}

void InlineColorWell::fill(Popover& popover) {
    popover.content()->setFixedWidth(popoverWidth);
    auto* column = new QVBoxLayout(popover.content());
    column->setContentsMargins(0, 0, 0, popoverPadding);
    column->setSpacing(metrics::space16);
    auto* panel = new SelectorPanel(look(), SelectorPanel::Parts::WithoutAlpha, popoverPadding);
    panel->setComponents(m_edit.fields());
    connect(panel, &SelectorPanel::componentsChanged, this,
            [this](const HSBComponents& components) { m_edit.setFields(components); });
    column->addWidget(panel);
    auto* row = new QHBoxLayout;
    row->setContentsMargins(popoverPadding, 0, popoverPadding, 0);
    row->setSpacing(metrics::space8);
    row->addStretch(1);
    auto* cancel =
        new TextButton(look(), TextButton::Kind::Plain, tr("Cancel", "Color picker cancel"));
    auto* done =
        new TextButton(look(), TextButton::Kind::Default, tr("Done", "Color picker confirm"));
    row->addWidget(cancel);
    row->addWidget(done);
    column->addLayout(row);
    connect(cancel, &QAbstractButton::clicked, &popover, [this, &popover] {
        m_edit.cancel();
        popover.close();
    });
    connect(done, &QAbstractButton::clicked, &popover, &QWidget::close);
    panel->square().setFocus(Qt::PopupFocusReason);
}

} // namespace dropshade
