// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/ScreenSampler.h"

#include <utility>
#include <vector>

namespace dropshade {

/// A sampler whose user is the test: each sample waits until `pick` or `cancel`.
class FakeScreenSampler : public ScreenSampler {
public:
    void sample(Describe describe, Completion completion) override {
        ++m_sampleCount;
        if (m_up) {
            m_refused.push_back(std::move(completion));
            return;
        }
        m_up = Sample{std::move(describe), std::move(completion)};
    }

    /// True while a sample is on the screen.
    [[nodiscard]] bool isUp() const { return m_up.has_value(); }

    /// How often a sample was asked for, also while another was up.
    [[nodiscard]] int sampleCount() const { return m_sampleCount; }

    /// What the loupe shows beside `color`. Only while a sample is up.
    [[nodiscard]] QString described(const SRGBColor& color) const { return m_up->describe(color); }

    /// Ends the sample that is up. Calls that came meanwhile get their nothing before it.
    void pick(const SRGBColor& color) { finish(color); }
    void cancel() { finish(std::nullopt); }

    /// Completes, with nothing, the calls that came while a sample was up.
    void completeRefused() {
        for (const Completion& completion : std::exchange(m_refused, {})) {
            completion(std::nullopt);
        }
    }

private:
    struct Sample {
        Describe describe;
        Completion completion;
    };

    void finish(const std::optional<SRGBColor>& color) {
        completeRefused();
        // Down before the completion runs: that may start the next sample.
        if (const auto sample = std::exchange(m_up, std::nullopt)) {
            sample->completion(color);
        }
    }

    std::optional<Sample> m_up;
    std::vector<Completion> m_refused;
    int m_sampleCount = 0;
};

} // namespace dropshade
