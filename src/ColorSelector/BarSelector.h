// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "ColorSelector/Selector.h"

namespace dropshade {

/// A selector of one value along a bar.
class BarSelector : public Selector {
    Q_OBJECT

public:
    [[nodiscard]] int reach() const override;
    [[nodiscard]] double mainValue() const override { return m_value; }
    void userSetMainValue(double value) override;

protected:
    using Selector::Selector;

    [[nodiscard]] double value() const { return m_value; }
    void setValue(double value);
    /// The user's value, which is never the one before.
    virtual void announce(double value) = 0;

    void pointAt(const QPointF& place) override;
    void step(double alongX, double alongY) override;
    void jump(bool toEnd) override;
    [[nodiscard]] QPointF thumbCenter() const override;

private:
    double m_value = 0.0;
};

} // namespace dropshade
