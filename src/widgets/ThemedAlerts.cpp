// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "widgets/ThemedAlerts.h"

#include "widgets/FrontWindow.h"

#include <utility>

namespace dropshade {
ThemedAlerts::~ThemedAlerts() {
    for (const QPointer<AlertWindow>& window : m_waiting)
        delete window;
}

void ThemedAlerts::show(const Alert& alert, Answer answer) {
    if (!m_look)
        m_look = std::make_unique<Look>(m_appearance);
    m_waiting.removeAll(nullptr);
    QWidget* const host = alert.place == Alert::Place::Alone ? nullptr : frontWindow();
    m_waiting.append(AlertWindow::ask(*m_look, host, alert, std::move(answer)));
}

void ThemedAlerts::raise() {
    for (const QPointer<AlertWindow>& window : std::as_const(m_waiting)) {
        if (!window)
            continue;
        window->raise();
        window->activateWindow();
    }
}

} // namespace dropshade
