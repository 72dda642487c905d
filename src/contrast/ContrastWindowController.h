// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "app/ColorWindowSurroundings.h"
#include "app/WindowSampling.h"
#include "contrast/ContrastModel.h"
#include "widgets/Announcer.h"

#include <functional>
#include <memory>

namespace dropshade {

class ContrastWindow;

/// Owns the contrast window and its model, both built anew after each close, and the pair of
/// colours, which stays.
class ContrastWindowController : public QObject {
    Q_OBJECT

public:
    /// `beep` is the desktop's alert sound.
    ContrastWindowController(const ColorWindowSurroundings& surroundings,
                             std::function<void()> beep);
    ~ContrastWindowController() override;

    /// Builds the window or brings it to the front.
    void show();

    /// Nothing while it is closed.
    [[nodiscard]] ContrastModel* model() const { return m_model.get(); }
    [[nodiscard]] ContrastWindow* window() const { return m_window.get(); }

private:
    void build();
    void drop();
    void pick(ContrastModel::SwatchTarget target);

    ColorWindowSurroundings m_surroundings;
    std::function<void()> m_beep;
    LastContrastPair m_last;
    WindowSampling m_sampling;
    Announcer m_announcer;
    std::unique_ptr<ContrastModel> m_model;
    std::unique_ptr<ContrastWindow> m_window;
};

} // namespace dropshade
