// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/StatusItem.h"

#include <vector>

namespace dropshade {

/// A status item that remembers its icons and is clicked by the test.
class FakeStatusItem : public StatusItem {
public:
    void setIcon(const QIcon& icon) override {
        m_icons.push_back(icon);
        if (m_hasHost && m_icons.size() == 1)
            Q_EMIT hostFound();
    }
    [[nodiscard]] QRect geometry() const override { return m_geometry; }

    /// Every icon that was set, in order.
    [[nodiscard]] const std::vector<QIcon>& icons() const { return m_icons; }

    /// Before the first icon: a desktop without a status area.
    void setHasHost(bool hasHost) { m_hasHost = hasHost; }

    void setGeometry(const QRect& geometry) { m_geometry = geometry; }

    void click(Qt::MouseButton button = Qt::LeftButton,
               Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        Q_EMIT clicked(StatusItemClick{button, modifiers});
    }

private:
    std::vector<QIcon> m_icons;
    QRect m_geometry;
    bool m_hasHost = true;
};

} // namespace dropshade
