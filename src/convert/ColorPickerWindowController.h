// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "app/ColorWindowSurroundings.h"
#include "app/WindowSampling.h"
#include "convert/ColorPickerModel.h"
#include "widgets/Announcer.h"

#include <memory>

namespace dropshade {

class ColorPickerWindow;

/// Owns the convert window, which is built anew after each close, and its model, which stays.
class ColorPickerWindowController : public QObject {
    Q_OBJECT

public:
    explicit ColorPickerWindowController(const ColorWindowSurroundings& surroundings);
    ~ColorPickerWindowController() override;

    /// Takes over a colour from the clipboard, then builds the window or brings it to the front,
    /// with the keyboard in its field.
    void show();

    [[nodiscard]] ColorPickerModel& model() { return m_model; }
    /// Nothing while it is closed.
    [[nodiscard]] ColorPickerWindow* window() const { return m_window.get(); }

private:
    void build();
    void drop();

    ColorWindowSurroundings m_surroundings;
    ColorPickerModel m_model;
    WindowSampling m_sampling;
    Announcer m_announcer;
    std::unique_ptr<ColorPickerWindow> m_window;
};

} // namespace dropshade
