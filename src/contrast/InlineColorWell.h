// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "contrast/ColorWellEdit.h"
#include "widgets/ColorWell.h"
#include "widgets/Popover.h"

#include <QPointer>

namespace dropshade {

/// A colour that a click edits in a popover with the selectors. The window follows live.
class InlineColorWell : public ColorWell {
    Q_OBJECT

public:
    InlineColorWell(const Look& look, ColorWellEdit::Binding binding, QWidget* parent = nullptr);

    /// Draws the binding's colour anew.
    void refresh();

    [[nodiscard]] Popover* popover() const { return m_popover; }

private:
    void openPopover();
    void fill(Popover& popover);

    ColorWellEdit::Binding m_binding;
    ColorWellEdit m_edit;
    QPointer<Popover> m_popover;
};

} // namespace dropshade
