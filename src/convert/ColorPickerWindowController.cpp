// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "convert/ColorPickerWindowController.h"

#include "convert/ColorPickerWindow.h"

namespace dropshade {

ColorPickerWindowController::ColorPickerWindowController(
    const ColorWindowSurroundings& surroundings)
    : m_surroundings(surroundings),
      m_model(surroundings.defaults, surroundings.settings, surroundings.copier),
      m_sampling(surroundings.colorPickerService, surroundings.scheduler) {
    connect(&m_model, &ColorPickerModel::didCopy, this, [this](const QString& text) {
        //: What a screen reader says after a copy; %1 is the text that was copied
        m_announcer.announce(tr("Copied %1", "Announcement").arg(text));
    });
}

ColorPickerWindowController::~ColorPickerWindowController() = default;

void ColorPickerWindowController::show() {
    // A sample brings the window back by itself.
    if (m_sampling.isSampling())
        return;
    m_model.prefill(m_surroundings.pasteboard.text());
    if (!m_window)
        build();
    m_window->present();
    m_model.raiseFocusToken();
}

void ColorPickerWindowController::build() {
    m_window = std::make_unique<ColorPickerWindow>(m_surroundings, m_model);
    m_window->rememberFrame(m_surroundings.defaults, QStringLiteral("ConvertWindow"),
                            QSize(400, 600));
    connect(m_window.get(), &FloatingWindow::closed, this, &ColorPickerWindowController::drop);
    m_model.closeAction = [this] { m_window->close(); };
    m_model.pickAction = [this] {
        m_sampling.sample(*m_window,
                          [this](const SRGBColor& color) { m_model.applySample(color); });
    };
}

void ColorPickerWindowController::drop() {
    m_model.closeAction = nullptr;
    m_model.pickAction = nullptr;
    // Later, for the click of one of its buttons may have closed it.
    if (m_window)
        m_window.release()->deleteLater();
}

} // namespace dropshade
