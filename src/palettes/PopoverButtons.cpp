// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "palettes/PopoverButtons.h"

#include "widgets/Metrics.h"
#include "widgets/TextButton.h"

#include <QCoreApplication>

namespace dropshade {

PopoverButtons addPopoverButtons(const Look& look, QVBoxLayout& column, const QString& commit) {
    auto* row = new QHBoxLayout;
    row->setSpacing(metrics::space8);
    row->addStretch();
    //: Button of a popover or sheet
    const QString cancelTitle = QCoreApplication::translate("PopoverButtons", "Cancel");
    QWidget* parent = column.parentWidget();
    auto* cancel = new TextButton(look, TextButton::Kind::Plain, cancelTitle, parent);
    auto* done = new TextButton(look, TextButton::Kind::Default, commit, parent);
    row->addWidget(cancel);
    row->addWidget(done);
    column.addLayout(row);
    return {cancel, done};
}

} // namespace dropshade
