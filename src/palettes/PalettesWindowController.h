// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "palettes/PalettesModel.h"
#include "palettes/PalettesUIRequests.h"
#include "widgets/Look.h"

#include <functional>
#include <memory>
#include <optional>

namespace dropshade {

class PalettesWindow;

/// Owns the palettes window: built at its first use, kept when it is closed, with all of its state.
/// A close writes what still waits to be written.
class PalettesWindowController : public QObject {
    Q_OBJECT

public:
    struct Surroundings {
        const Look& look;
        PalettesModel::Surroundings model;
        std::function<std::optional<QString>()> shortcutText;
    };

    explicit PalettesWindowController(const Surroundings& surroundings);
    ~PalettesWindowController() override;

    [[nodiscard]] PalettesUIRequests& requests() { return m_requests; }
    [[nodiscard]] PalettesModel& model() { return m_model; }

    /// Builds the window, where there is none, without showing it.
    PalettesWindow& ensureWindow();
    /// In front, with the keyboard.
    void bringUp();
    void close();
    [[nodiscard]] bool isShown() const;

    /// The global shortcut that opens the window is another one.
    void followShortcut();

private:
    void flush();

    Surroundings m_surroundings;
    PalettesModel m_model;
    PalettesUIRequests m_requests;
    std::unique_ptr<PalettesWindow> m_window;
};

} // namespace dropshade
