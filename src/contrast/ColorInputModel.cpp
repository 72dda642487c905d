// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "contrast/ColorInputModel.h"

#include "color/ColorParser.h"

namespace dropshade {

ColorInputModel::ColorInputModel(SwatchTarget target, ContrastModel& model,
                                 const ColorCopier& copier)
    : m_target(target), m_model(model), m_copier(copier), m_text(copier.text(model.color(target))),
      m_shown(model.color(target)) {
    connect(&model, &ContrastModel::colorsDidChange, this, [this] {
        // The other colour's change leaves what the user is at here alone.
        if (m_model.color(m_target) == m_shown)
            return;
        m_shown = m_model.color(m_target);
        if (!m_focused)
            refresh();
    });
}

void ColorInputModel::refresh() {
    const QString text = m_copier.text(m_model.color(m_target));
    const bool isNew = text != m_text;
    m_text = text;
    if (isNew)
        Q_EMIT textDidChange();
    setInvalid(false);
}

void ColorInputModel::edit(const QString& text) {
    m_text = text;
    if (!m_focused)
        return;
    if (const auto color = parseColor(text.toStdString())) {
        m_model.setColor(m_target, *color);
        setInvalid(false);
    }
}

void ColorInputModel::submit() {
    if (const auto color = parseColor(m_text.toStdString())) {
        m_model.setColor(m_target, *color);
        setInvalid(false);
    } else if (m_text != m_copier.text(m_model.color(m_target))) {
        setInvalid(true);
    }
}

void ColorInputModel::setFocused(bool focused) {
    if (focused == m_focused)
        return;
    m_focused = focused;
    if (!focused)
        submit();
}

void ColorInputModel::setInvalid(bool invalid) {
    if (invalid == m_invalid)
        return;
    m_invalid = invalid;
    Q_EMIT invalidDidChange();
}

} // namespace dropshade
