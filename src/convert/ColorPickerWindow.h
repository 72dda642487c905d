// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "app/ColorWindowSurroundings.h"
#include "convert/ColorPickerModel.h"
#include "convert/SelectorLink.h"
#include "widgets/FloatingWindow.h"

class QStackedWidget;

namespace dropshade {

class FormatList;
class IconButton;
class PreviewSwatch;
class SelectorPanel;
class TextField;

/// The convert window: selectors, a field, and the colour in every format. A view of the model,
/// which outlives it.
class ColorPickerWindow : public FloatingWindow {
    Q_OBJECT

public:
    ColorPickerWindow(const ColorWindowSurroundings& surroundings, ColorPickerModel& model);

    [[nodiscard]] TextField& input() const { return *m_input; }
    [[nodiscard]] SelectorPanel& selectors() const { return *m_selectors; }
    [[nodiscard]] FormatList& formats() const { return *m_formats; }

private:
    [[nodiscard]] QWidget* makeSelectors();
    [[nodiscard]] QWidget* makeInputRow();
    [[nodiscard]] QWidget* makeBelow();
    void connectInput();
    void connectModel();
    void showModel();
    void focusInput();

    ColorWindowSurroundings m_surroundings;
    ColorPickerModel& m_model;
    SelectorLink m_link;
    SelectorPanel* m_selectors = nullptr;
    PreviewSwatch* m_preview = nullptr;
    TextField* m_input = nullptr;
    IconButton* m_copy = nullptr;
    IconButton* m_closeOnCopy = nullptr;
    QStackedWidget* m_below = nullptr;
    QWidget* m_empty = nullptr;
    QWidget* m_scroll = nullptr;
    FormatList* m_formats = nullptr;
};

} // namespace dropshade
