// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "palettes/SpringMotion.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace dropshade {
namespace {

constexpr double stillDistance = 0.125;
constexpr double stillSpeed = 2.0;
/// What is this close to the critical damping counts as critical: the formula of the oscillation
/// divides by a frequency that vanishes there.
constexpr double criticalFraction = 1.0 - 1e-6;

} // namespace

SpringMotion::SpringMotion(double value, double response, double dampingFraction)
    : m_value(value), m_target(value), m_frequency(2.0 * std::numbers::pi / response),
      m_dampingFraction(std::min(dampingFraction, 1.0)) {}

bool SpringMotion::isAtRest() const {
    return std::abs(m_value - m_target) < stillDistance && std::abs(m_velocity) < stillSpeed;
}

void SpringMotion::finish() {
    jump(m_target);
}

void SpringMotion::jump(double value) {
    m_value = value;
    m_target = value;
    m_velocity = 0.0;
}

void SpringMotion::advance(std::chrono::duration<double> time) {
    const double t = time.count();
    const double away = m_value - m_target;
    const double decay = m_dampingFraction * m_frequency;
    const double fading = std::exp(-decay * t);
    if (m_dampingFraction >= criticalFraction) {
        const double slope = m_velocity + decay * away;
        m_value = m_target + fading * (away + slope * t);
        m_velocity = fading * (slope - decay * (away + slope * t));
        return;
    }
    const double swing = m_frequency * std::sqrt(1.0 - m_dampingFraction * m_dampingFraction);
    const double lead = (m_velocity + decay * away) / swing;
    const double cosine = std::cos(swing * t);
    const double sine = std::sin(swing * t);
    const double position = away * cosine + lead * sine;
    m_value = m_target + fading * position;
    m_velocity = fading * (swing * (lead * cosine - away * sine) - decay * position);
}

} // namespace dropshade
