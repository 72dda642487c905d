// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "ColorSelector/AlphaSlider.h"
#include "ColorSelector/HueSlider.h"
#include "ColorSelector/Saturation.h"

#include "color/ColorConversions.h"

namespace dropshade {

/// The selectors beneath each other, the tracks in line: a square, the hue, and the alpha unless it
/// is left out. The panel's edges are those of the tracks plus its margins.
class SelectorPanel : public QWidget {
    Q_OBJECT

public:
    enum class Parts { WithAlpha, WithoutAlpha };

    /// `margin` is the room left and right of the tracks and above them; at least what thumbs need.
    SelectorPanel(const Look& look, Parts parts, int margin, QWidget* parent = nullptr);

    /// Emits nothing.
    void setComponents(const HSBComponents& components);
    [[nodiscard]] const HSBComponents& components() const { return m_components; }

    [[nodiscard]] Saturation& square() const { return *m_square; }
    [[nodiscard]] HueSlider& hueSlider() const { return *m_hue; }
    [[nodiscard]] AlphaSlider* alphaSlider() const { return m_alpha; }

    [[nodiscard]] QSize sizeHint() const override;

Q_SIGNALS:
    /// The user changed a component.
    void componentsChanged(const dropshade::HSBComponents& components);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void listen();
    void adopt(const HSBComponents& components);
    void place(Selector& selector, int top, int height) const;

    int m_margin;
    HSBComponents m_components;
    Saturation* m_square;
    HueSlider* m_hue;
    AlphaSlider* m_alpha;
};

} // namespace dropshade
