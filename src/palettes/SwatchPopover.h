// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "palettes/SwatchEdit.h"
#include "widgets/Popover.h"

#include <memory>

class QVBoxLayout;

namespace dropshade {

class ColorWell;
class SelectorPanel;
class TextField;

/// Makes or changes a swatch: a colour well, its value as text, a name. A change takes effect while
/// the popover is open; Escape and "Cancel" take it back.
class SwatchPopover : public Popover {
    Q_OBJECT

public:
    SwatchPopover(const Look& look, QWidget& anchor, std::unique_ptr<SwatchEdit> edit);
    ~SwatchPopover() override;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QVBoxLayout* addPadded(int reach = 0);
    void addValueRow(QVBoxLayout& column);
    void addNameRow(QVBoxLayout& column);
    void addLabel(QVBoxLayout& column, const QString& words);
    void toggleSelector();
    void followColor();
    void cancel();
    void commit();

    std::unique_ptr<SwatchEdit> m_edit;
    ColorWell* m_well = nullptr;
    TextField* m_value = nullptr;
    TextField* m_name = nullptr;
    QVBoxLayout* m_column = nullptr;
    SelectorPanel* m_selector = nullptr;
};

} // namespace dropshade
