// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "ColorSelector/SelectorPanel.h"

#include "widgets/Metrics.h"

namespace dropshade {

namespace {

constexpr int squareHeight = 144;
constexpr int barHeight = 16;
constexpr int gap = metrics::space12;
constexpr int usualWidth = 224;

} // namespace

SelectorPanel::SelectorPanel(const Look& look, Parts parts, int margin, QWidget* parent)
    : QWidget(parent), m_margin(margin), m_square(new Saturation(look, this)),
      m_hue(new HueSlider(look, this)),
      m_alpha(parts == Parts::WithAlpha ? new AlphaSlider(look, this) : nullptr) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    for (Selector* selector : findChildren<Selector*>()) {
        selector->setPointSize(metrics::thumb);
        selector->setCornerSize(metrics::radiusControl);
    }
    // The square's thumb may lie over the bars' ends.
    m_square->raise();
    listen();
    adopt(m_components);
}

void SelectorPanel::listen() {
    connect(m_square, &Saturation::valueChangedByUser, this,
            [this](double saturation, double brightness) {
                HSBComponents changed = m_components;
                changed.saturation = saturation;
                changed.brightness = brightness;
                adopt(changed);
                Q_EMIT componentsChanged(changed);
            });
    connect(m_hue, &HueSlider::hueChanged, this, [this](double hue) {
        HSBComponents changed = m_components;
        changed.hue = hue;
        adopt(changed);
        Q_EMIT componentsChanged(changed);
    });
    if (!m_alpha)
        return;
    connect(m_alpha, &AlphaSlider::alphaChanged, this, [this](double alpha) {
        HSBComponents changed = m_components;
        changed.alpha = alpha;
        adopt(changed);
        Q_EMIT componentsChanged(changed);
    });
}

void SelectorPanel::setComponents(const HSBComponents& components) {
    if (!(components == m_components))
        adopt(components);
}

void SelectorPanel::adopt(const HSBComponents& components) {
    m_components = components;
    m_square->setHue(components.hue);
    m_square->setValue(components.saturation, components.brightness);
    m_hue->setHue(components.hue);
    if (m_alpha) {
        m_alpha->setAlpha(components.alpha);
        m_alpha->setColor(components.hue, components.saturation, components.brightness);
    }
}

QSize SelectorPanel::sizeHint() const {
    const int bars = m_alpha ? 2 : 1;
    return {usualWidth + 2 * m_margin, m_margin + squareHeight + bars * (gap + barHeight)};
}

void SelectorPanel::place(Selector& selector, int top, int height) const {
    const int reach = selector.reach();
    selector.setGeometry(m_margin - reach, top - reach, width() - 2 * m_margin + 2 * reach,
                         height + 2 * reach);
}

void SelectorPanel::resizeEvent(QResizeEvent*) {
    int top = m_margin;
    place(*m_square, top, squareHeight);
    top += squareHeight + gap;
    place(*m_hue, top, barHeight);
    top += barHeight + gap;
    if (m_alpha)
        place(*m_alpha, top, barHeight);
}

} // namespace dropshade
