// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/UserDefaults.h"
#include "widgets/FloatingWindow.h"

#include <QUrl>

#include <functional>
#include <memory>

namespace dropshade {

/// Owns the about window. It is built at each show after a close, so that it tells the count of
/// copies as it is then.
class AboutWindowController : public QObject {
    Q_OBJECT

public:
    struct Surroundings {
        const Look& look;
        const UserDefaults& defaults;
        /// Has the desktop open an address.
        std::function<void(const QUrl&)> openUrl;
    };

    explicit AboutWindowController(Surroundings surroundings);
    ~AboutWindowController() override;

    void show();
    /// Opens the project's pages and closes the window.
    void openWebsite();

    /// Nothing while it is closed.
    [[nodiscard]] QWidget* window() const;

private:
    class Window;

    Surroundings m_with;
    std::unique_ptr<Window> m_window;
};

} // namespace dropshade
