// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "palettes/PalettesWindowController.h"

#include "palettes/PalettesWindow.h"

namespace dropshade {

PalettesWindowController::PalettesWindowController(const Surroundings& surroundings)
    : m_surroundings(surroundings), m_model(surroundings.model) {
    connect(&m_requests, &PalettesUIRequests::presetPickerTokenDidChange, this,
            [this] { ensureWindow().showPresetPicker(); });
}

PalettesWindowController::~PalettesWindowController() = default;

PalettesWindow& PalettesWindowController::ensureWindow() {
    if (!m_window) {
        m_window = std::make_unique<PalettesWindow>(
            m_surroundings.look, PalettesWindow::Surroundings{
                                     m_model, m_surroundings.model.defaults,
                                     m_surroundings.model.scheduler, m_surroundings.shortcutText});
        connect(m_window.get(), &FloatingWindow::closed, this, &PalettesWindowController::flush);
    }
    return *m_window;
}

void PalettesWindowController::bringUp() {
    ensureWindow().present();
}

void PalettesWindowController::close() {
    if (m_window)
        m_window->close();
}

bool PalettesWindowController::isShown() const {
    return m_window && m_window->isVisible();
}

void PalettesWindowController::followShortcut() {
    if (m_window)
        m_window->followShortcut();
}

void PalettesWindowController::flush() {
    if (m_model.store().hasPendingSave())
        m_model.store().flushPendingSave();
    if (m_model.settings().hasPendingPins())
        m_model.settings().flushPendingPins();
}

} // namespace dropshade
