// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "widgets/HoverAmount.h"

#include "widgets/Metrics.h"

#include <QEvent>

namespace dropshade {

void HoverAmount::follow(const QEvent& event) {
    switch (event.type()) {
    case QEvent::HoverEnter:
        m_amount.moveTo(m_widget.isEnabled() ? 1.0 : 0.0, m_look.duration(metrics::hover));
        break;
    case QEvent::HoverLeave:
    case QEvent::Hide:
        m_amount.moveTo(0.0, m_look.duration(metrics::hover));
        break;
    case QEvent::EnabledChange:
        m_amount.moveTo(m_widget.isEnabled() && m_widget.underMouse() ? 1.0 : 0.0,
                        m_look.duration(metrics::hover));
        break;
    default:
        break;
    }
}

} // namespace dropshade
