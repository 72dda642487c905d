// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "convert/SelectorLink.h"

namespace dropshade {

namespace {

constexpr double deadBand = 0.001;

} // namespace

SelectorLink::SelectorLink(ColorPickerModel& model, Scheduler& scheduler)
    : m_model(model), m_scheduler(scheduler) {
    connect(&model, &ColorPickerModel::parsedDidChange, this, &SelectorLink::syncHSB);
    syncHSB();
}

void SelectorLink::setFields(const HSBComponents& fields) {
    if (fields == m_fields)
        return;
    m_fields = fields;
    m_step = m_scheduler.after(std::chrono::milliseconds(0), [this] { applyFields(); });
}

void SelectorLink::syncHSB() {
    // No step back to the colour from here: what a dead band keeps would change the text under the
    // user's fingers.
    if (!m_model.parsed())
        return;
    const HSBComponents followed = followingColor(m_fields, *m_model.parsed(), deadBand);
    if (followed == m_fields)
        return;
    m_fields = followed;
    Q_EMIT fieldsDidChange();
}

void SelectorLink::applyFields() {
    const SRGBColor color =
        hsbToSRGB(m_fields.hue, m_fields.saturation, m_fields.brightness, m_fields.alpha);
    if (m_model.parsed() && nearlyMatch(color, *m_model.parsed()))
        return;
    m_model.applyColor(color);
}

} // namespace dropshade
