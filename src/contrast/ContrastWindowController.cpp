// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "contrast/ContrastWindowController.h"

#include "contrast/ContrastWindow.h"

#include <utility>

namespace dropshade {

ContrastWindowController::ContrastWindowController(const ColorWindowSurroundings& surroundings,
                                                   std::function<void()> beep)
    : m_surroundings(surroundings), m_beep(std::move(beep)),
      m_sampling(surroundings.colorPickerService, surroundings.scheduler) {}

ContrastWindowController::~ContrastWindowController() = default;

void ContrastWindowController::show() {
    // A sample brings the window back by itself.
    if (m_sampling.isSampling())
        return;
    if (!m_window)
        build();
    m_window->present();
}

void ContrastWindowController::build() {
    m_model = std::make_unique<ContrastModel>(m_last, m_beep);
    m_window = std::make_unique<ContrastWindow>(m_surroundings, m_announcer, *m_model);
    m_window->rememberFrame(m_surroundings.defaults, QStringLiteral("ContrastWindow"),
                            m_window->sizeHint());
    connect(m_window.get(), &FloatingWindow::closed, this, &ContrastWindowController::drop);
    m_model->closeAction = [this] { m_window->close(); };
    m_model->pickAction = [this](ContrastModel::SwatchTarget target) { pick(target); };
}

void ContrastWindowController::pick(ContrastModel::SwatchTarget target) {
    m_sampling.sample(*m_window, [this, target](const SRGBColor& color) {
        countCheck(m_surroundings.defaults);
        m_model->setColor(target, color);
    });
}

void ContrastWindowController::drop() {
    if (!m_window)
        return;
    m_model->closeAction = nullptr;
    m_model->pickAction = nullptr;
    // Later, for the click of one of its buttons may have closed it; the model goes with it.
    ContrastWindow* window = m_window.release();
    m_model.release()->setParent(window);
    window->deleteLater();
}

} // namespace dropshade
