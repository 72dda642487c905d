// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/ScreenSampler.h"
#include "platform/linux/PortalRequest.h"

#include <memory>

namespace dropshade {

/// Asks the desktop portal to have the user pick a colour: the one way to read the screen where
/// programs can't see each other. What the user sees meanwhile is the desktop's own, so the
/// description of colours isn't used.
class PortalScreenSampler : public ScreenSampler {
public:
    void sample(Describe describe, Completion completion) override;

private:
    /// While the user picks.
    std::unique_ptr<PortalRequest> m_request;
};

} // namespace dropshade
