// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/AnimatedValue.h"
#include "widgets/Look.h"

namespace dropshade {

/// How far the picture of a control under the pointer has come, from 0 to 1. Its widget has
/// `Qt::WA_Hover`, and hands on its events.
class HoverAmount {
public:
    HoverAmount(const Look& look, QWidget& widget) : m_look(look), m_widget(widget) {}

    [[nodiscard]] double value() const { return m_amount.value(); }

    void follow(const QEvent& event);

private:
    const Look& m_look;
    QWidget& m_widget;
    AnimatedValue m_amount{m_widget};
};

} // namespace dropshade
