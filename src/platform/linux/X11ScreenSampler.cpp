// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/linux/X11ScreenSampler.h"

#include "platform/linux/X11Loupe.h"

#include <utility>

namespace dropshade {

X11ScreenSampler::X11ScreenSampler(std::function<Theme()> theme) : m_theme(std::move(theme)) {}

X11ScreenSampler::~X11ScreenSampler() = default;

void X11ScreenSampler::sample(Describe describe, Completion completion) {
    const auto completeLater = [](const Completion& waiting) {
        QTimer::singleShot(0, [waiting] { waiting(std::nullopt); });
    };
    if (m_completion) {
        completeLater(completion);
        return;
    }
    retire(m_loupe.get());
    m_loupe = X11Loupe::open(m_theme(), std::move(describe));
    if (!m_loupe) {
        completeLater(completion);
        return;
    }
    m_completion = std::move(completion);
    X11Loupe* loupe = m_loupe.get();
    QObject::connect(loupe, &X11Loupe::finished, loupe,
                     [this](const auto& color) { complete(color); });
    QObject::connect(loupe, &X11Loupe::released, loupe, [this, loupe] { retire(loupe); });
}

void X11ScreenSampler::complete(const std::optional<SRGBColor>& color) {
    std::exchange(m_completion, nullptr)(color);
}

void X11ScreenSampler::retire(X11Loupe* loupe) {
    // The loupe may be in the middle of its own event handler.
    if (loupe && loupe == m_loupe.get())
        m_loupe.release()->deleteLater();
}

} // namespace dropshade
