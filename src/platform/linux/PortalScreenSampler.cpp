// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/linux/PortalScreenSampler.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QTimer>

#include <array>
#include <cmath>
#include <utility>

namespace dropshade {

namespace {

/// The portal takes its numbers from 8 bits, by one or the other conversion; back they are exact.
double component(double value) {
    return std::round(value * 255) / 255;
}

std::optional<SRGBColor> color(const QVariantMap& results) {
    const QVariant value = results.value(QStringLiteral("color"));
    if (value.metaType() != QMetaType::fromType<QDBusArgument>())
        return std::nullopt;
    const auto argument = value.value<QDBusArgument>();
    if (argument.currentSignature() != QStringLiteral("(ddd)"))
        return std::nullopt;
    std::array<double, 3> numbers{};
    argument.beginStructure();
    for (double& number : numbers) {
        argument >> number;
        if (!std::isfinite(number))
            return std::nullopt;
    }
    argument.endStructure();
    return SRGBColor(component(numbers[0]), component(numbers[1]), component(numbers[2]));
}

} // namespace

void PortalScreenSampler::sample(Describe, Completion completion) {
    if (m_request) {
        QTimer::singleShot(0, [waiting = std::move(completion)] { waiting(std::nullopt); });
        return;
    }
    const PortalRequest::Question question{QStringLiteral("org.freedesktop.portal.Screenshot"),
                                           QStringLiteral("PickColor"),
                                           {QString()}};
    m_request = std::make_unique<PortalRequest>(
        question, [this, completion = std::move(completion)](auto outcome, const auto& results) {
            // Before it is told, for whoever hears it may pick at once.
            m_request.reset();
            completion(outcome == PortalRequest::Outcome::Done ? color(results) : std::nullopt);
        });
}

} // namespace dropshade
