// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "loupe/LoupeModel.h"
#include "loupe/LoupePicture.h"
#include "platform/ScreenSampler.h"
#include "platform/linux/X11FrozenScreen.h"
#include "platform/linux/X11InputCapture.h"

#include <QObject>
#include <QSocketNotifier>
#include <QTimer>

#include <chrono>

namespace dropshade {

/// One sample on X11, from the moment the loupe shows to the pick. The wheel and the plus and minus
/// keys zoom, the arrow keys move by one pixel, with Shift by ten, a click of the left button or
/// Return picks, Escape cancels.
class X11Loupe : public QObject {
    Q_OBJECT

public:
    /// Nothing when there is no X server or its pixels cannot be read.
    [[nodiscard]] static std::unique_ptr<X11Loupe> open(const Theme& theme,
                                                        ScreenSampler::Describe describe);

Q_SIGNALS:
    /// Once, when the user has picked or cancelled; the loupe is still on the screen.
    void finished(const std::optional<dropshade::SRGBColor>& color);
    /// After `finished`, when the button or key that ended it is up again: until then the loupe
    /// keeps the pointer and the keyboard, so that no window beneath sees half a click.
    void released();

private:
    X11Loupe(std::unique_ptr<XcbConnection> connection, std::unique_ptr<X11FrozenScreen> screen,
             const Theme& theme, ScreenSampler::Describe describe);
    void takeInput();
    void readEvents();
    void readEventsSoon();
    void handle(const xcb_generic_event_t& event);
    void handleButton(const xcb_button_press_event_t& event);
    void handleKey(const xcb_key_press_event_t& event);
    void nudge(const QPoint& step);
    void draw();
    void pick();
    void finish(const std::optional<SRGBColor>& color, std::chrono::milliseconds longestHold);

    std::unique_ptr<XcbConnection> m_connection;
    std::unique_ptr<X11FrozenScreen> m_screen;
    X11InputCapture m_input;
    LoupeModel m_model;
    Theme m_theme;
    ScreenSampler::Describe m_describe;
    std::optional<LoupePicture> m_picture;
    QSocketNotifier m_notifier;
    QTimer m_nextGrab;
    bool m_needsDrawing = true;
    bool m_isFinished = false;
};

} // namespace dropshade
