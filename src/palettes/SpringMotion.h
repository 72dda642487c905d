// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>

namespace dropshade {

/// A number that a damped spring of mass 1 pulls to its target. It may get another target at any
/// moment and goes on with the speed that it has. The motion is exact for any step, so that a
/// dropped frame changes nothing.
class SpringMotion {
public:
    /// `response` is the time of one free swing in seconds, above 0; `dampingFraction` the share of
    /// the critical damping, above 0: from 1 on there is no overshoot.
    SpringMotion(double value, double response, double dampingFraction);

    double value() const { return m_value; }
    double target() const { return m_target; }
    /// Units a second.
    double velocity() const { return m_velocity; }
    /// At the target and still, as far as a quarter of a device pixel shows.
    [[nodiscard]] bool isAtRest() const;

    void setTarget(double target) { m_target = target; }
    /// To the target at once.
    void finish();
    /// To `value` at once, with no speed, also as the target.
    void jump(double value);
    /// To `value` at once; the target and the speed stay.
    void displace(double value) { m_value = value; }

    void advance(std::chrono::duration<double> time);

private:
    double m_value;
    double m_target;
    double m_velocity = 0.0;
    double m_frequency; ///< Of the undamped spring, radians a second.
    double m_dampingFraction;
};

} // namespace dropshade
