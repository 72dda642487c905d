// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "app/ColorWindowSurroundings.h"
#include "contrast/ContrastModel.h"
#include "widgets/FloatingWindow.h"

namespace dropshade {

class Announcer;
class ColorInputRow;
class ContrastRuler;
class Label;
class SamplePreviewCard;
class SegmentedControl;

/// The contrast window: two colours, their measure, a sample with its verdicts. A view of the
/// model.
class ContrastWindow : public FloatingWindow {
    Q_OBJECT

public:
    ContrastWindow(const ColorWindowSurroundings& surroundings, Announcer& announcer,
                   ContrastModel& model);

    [[nodiscard]] ColorInputRow& row(ContrastModel::SwatchTarget target) const;
    [[nodiscard]] SegmentedControl& algorithmPicker() const { return *m_algorithm; }

private:
    [[nodiscard]] QWidget* makeRows(Announcer& announcer);
    [[nodiscard]] QWidget* makeVerdict();
    [[nodiscard]] QWidget* makeBar();
    void showModel();
    void showAlgorithm();

    ColorWindowSurroundings m_surroundings;
    ContrastModel& m_model;
    ColorInputRow* m_background = nullptr;
    ColorInputRow* m_foreground = nullptr;
    SegmentedControl* m_algorithm = nullptr;
    Label* m_measureName = nullptr;
    Label* m_measure = nullptr;
    ContrastRuler* m_ruler = nullptr;
    SamplePreviewCard* m_card = nullptr;
};

} // namespace dropshade
