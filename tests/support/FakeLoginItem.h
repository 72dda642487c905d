// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/LoginItem.h"

namespace dropshade {

/// A desktop that registers the program, or refuses to.
class FakeLoginItem : public LoginItem {
public:
    [[nodiscard]] bool isRegistered() const override { return m_isRegistered; }
    [[nodiscard]] bool registerItem() override { return set(true); }
    [[nodiscard]] bool unregisterItem() override { return set(false); }

    /// What the user does elsewhere.
    void setRegistered(bool isRegistered) { m_isRegistered = isRegistered; }
    void setRefuses(bool refuses) { m_refuses = refuses; }

private:
    bool set(bool isRegistered) {
        if (!m_refuses)
            m_isRegistered = isRegistered;
        return m_isRegistered == isRegistered;
    }

    bool m_isRegistered = false;
    bool m_refuses = false;
};

} // namespace dropshade
