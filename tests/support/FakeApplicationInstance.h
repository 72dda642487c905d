// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/ApplicationInstance.h"

namespace dropshade {

/// A session in which the test decides who came first.
class FakeApplicationInstance : public ApplicationInstance {
public:
    [[nodiscard]] Role claim() override {
        ++m_claimCount;
        return m_role;
    }

    [[nodiscard]] QString commandFor(ApplicationAction action) const override {
        return QStringLiteral("run action %1").arg(static_cast<int>(action));
    }

    /// The answer of every later claim; the first process unless set.
    void setRole(Role role) { m_role = role; }

    [[nodiscard]] int claimCount() const { return m_claimCount; }

    /// Somebody starts the program once more.
    void activate() { Q_EMIT activated(); }

    /// The desktop asks for an action.
    void activate(ApplicationAction action) { Q_EMIT actionActivated(action); }

private:
    Role m_role = Role::First;
    int m_claimCount = 0;
};

} // namespace dropshade
