// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/linux/X11Loupe.h"

#include "platform/QtColor.h"

#include <QGuiApplication>
#include <QPainter>
#include <QScreen>

#include <X11/keysym.h>

namespace dropshade {

namespace {

constexpr int eventTypeMask = 0x7F;
constexpr int shiftedStep = 10;
/// A button that is never reported up must not keep the pointer from other programs.
constexpr std::chrono::milliseconds longestPress{1000};
constexpr std::chrono::milliseconds notPressed{0};
/// Between two attempts to take what another program holds.
constexpr std::chrono::milliseconds grabDelay{20};

enum Button : xcb_button_t { Left = 1, WheelUp = 4, WheelDown = 5 };

struct NativeScreen {
    QRect area;
    double scale = 1.0;
};

/// The screen under a native pixel. Qt keeps the native origin of each screen and divides its size.
NativeScreen screenAt(const QPoint& position) {
    NativeScreen primary;
    for (const QScreen* screen : QGuiApplication::screens()) {
        const QRect logical = screen->geometry();
        const double scale = screen->devicePixelRatio();
        const QSize size(qRound(logical.width() * scale), qRound(logical.height() * scale));
        const NativeScreen native{QRect(logical.topLeft(), size), scale};
        if (native.area.contains(position))
            return native;
        if (screen == QGuiApplication::primaryScreen())
            primary = native;
    }
    return primary;
}

QPoint direction(xcb_keysym_t keysym) {
    switch (keysym) {
    case XK_Left:
    case XK_KP_Left:
        return {-1, 0};
    case XK_Right:
    case XK_KP_Right:
        return {1, 0};
    case XK_Up:
    case XK_KP_Up:
        return {0, -1};
    case XK_Down:
    case XK_KP_Down:
        return {0, 1};
    default:
        return {};
    }
}

} // namespace

std::unique_ptr<X11Loupe> X11Loupe::open(const Theme& theme, ScreenSampler::Describe describe) {
    auto connection = XcbConnection::open();
    auto screen = connection ? X11FrozenScreen::take(*connection) : nullptr;
    if (!screen)
        return nullptr;
    screen->show();
    return std::unique_ptr<X11Loupe>(
        new X11Loupe(std::move(connection), std::move(screen), theme, std::move(describe)));
}

X11Loupe::X11Loupe(std::unique_ptr<XcbConnection> connection,
                   std::unique_ptr<X11FrozenScreen> screen, const Theme& theme,
                   ScreenSampler::Describe describe)
    : m_connection(std::move(connection)), m_screen(std::move(screen)),
      m_input(*m_connection, m_screen->bounds()),
      m_model(m_screen->bounds(), m_input.pointerPosition()), m_theme(theme),
      m_describe(std::move(describe)),
      m_notifier(xcb_get_file_descriptor(m_connection->get()), QSocketNotifier::Read) {
    const std::uint32_t rootEvents = XCB_EVENT_MASK_STRUCTURE_NOTIFY;
    xcb_change_window_attributes(m_connection->get(), m_connection->screen().root,
                                 XCB_CW_EVENT_MASK, &rootEvents);
    connect(&m_notifier, &QSocketNotifier::activated, this, &X11Loupe::readEvents);
    m_nextGrab.setSingleShot(true);
    m_nextGrab.setInterval(grabDelay);
    connect(&m_nextGrab, &QTimer::timeout, this, &X11Loupe::takeInput);
    takeInput();
}

void X11Loupe::takeInput() {
    if (!m_input.grab() && !m_isFinished)
        m_nextGrab.start();
    // Not at once: a click may already be waiting, and at first nobody listens to `finished` yet.
    readEventsSoon();
}

void X11Loupe::readEvents() {
    using Event = XcbReply<xcb_generic_event_t>;
    while (Event event{xcb_poll_for_event(m_connection->get())})
        handle(*event);
    if (xcb_connection_has_error(m_connection->get())) {
        m_notifier.setEnabled(false);
        finish(std::nullopt, notPressed);
        return;
    }
    if (!m_needsDrawing || m_isFinished)
        return;
    m_needsDrawing = false;
    draw();
    // Drawing waits for replies, and events that came before them are already off the socket.
    readEventsSoon();
}

void X11Loupe::readEventsSoon() {
    QMetaObject::invokeMethod(this, &X11Loupe::readEvents, Qt::QueuedConnection);
}

void X11Loupe::handle(const xcb_generic_event_t& event) {
    switch (event.response_type & eventTypeMask) {
    case XCB_MOTION_NOTIFY: {
        const auto& motion = reinterpret_cast<const xcb_motion_notify_event_t&>(event);
        m_model.moveTo(QPoint(motion.root_x, motion.root_y));
        m_needsDrawing = true;
        break;
    }
    case XCB_BUTTON_PRESS:
        handleButton(reinterpret_cast<const xcb_button_press_event_t&>(event));
        break;
    case XCB_KEY_PRESS:
        handleKey(reinterpret_cast<const xcb_key_press_event_t&>(event));
        break;
    case XCB_BUTTON_RELEASE:
    case XCB_KEY_RELEASE:
        if (m_isFinished)
            Q_EMIT released();
        break;
    case XCB_CONFIGURE_NOTIFY:
        // The screens were rearranged: the picture no longer shows what is there.
        if (reinterpret_cast<const xcb_configure_notify_event_t&>(event).window ==
            m_connection->screen().root)
            finish(std::nullopt, notPressed);
        break;
    default:
        break;
    }
}

void X11Loupe::handleButton(const xcb_button_press_event_t& event) {
    if (m_isFinished)
        return;
    m_model.moveTo(QPoint(event.root_x, event.root_y));
    m_needsDrawing = true;
    if (event.detail == Left)
        pick();
    else if (event.detail == WheelUp)
        m_model.zoomIn();
    else if (event.detail == WheelDown)
        m_model.zoomOut();
}

void X11Loupe::handleKey(const xcb_key_press_event_t& event) {
    if (m_isFinished)
        return;
    const xcb_keysym_t keysym = m_input.keysym(event);
    m_needsDrawing = true;
    switch (keysym) {
    case XK_Escape:
        finish(std::nullopt, longestPress);
        break;
    case XK_Return:
    case XK_KP_Enter:
        pick();
        break;
    case XK_plus:
    case XK_equal:
    case XK_KP_Add:
        m_model.zoomIn();
        break;
    case XK_minus:
    case XK_KP_Subtract:
        m_model.zoomOut();
        break;
    default:
        nudge(direction(keysym) * ((event.state & XCB_MOD_MASK_SHIFT) != 0 ? shiftedStep : 1));
        break;
    }
}

void X11Loupe::nudge(const QPoint& step) {
    if (step.isNull())
        return;
    m_model.moveTo(m_model.position() + step);
    m_input.warpPointer(m_model.position());
}

void X11Loupe::draw() {
    const NativeScreen screen = screenAt(m_model.position());
    if (!m_picture || m_picture->scale() != screen.scale)
        m_picture.emplace(m_theme, screen.scale);

    LoupeScene scene;
    scene.position = m_model.position();
    scene.screen = screen.area;
    scene.cellPixels = m_model.cellPixels(screen.scale);
    const int across = m_model.cellsAcross(screen.scale);
    scene.cells = m_screen->pixels(
        QRect(scene.position - QPoint(across / 2, across / 2), QSize(across, across)));
    const auto color = m_screen->colorAt(scene.position).value_or(SRGBColor());
    scene.color = toQColor(color);
    scene.text = m_describe(color);

    const QRect area = m_picture->extent(scene);
    QImage image = m_screen->pixels(area);
    QPainter painter(&image);
    painter.translate(-area.topLeft());
    m_picture->paint(painter, scene);
    painter.end();
    m_screen->draw(area.topLeft(), image);
}

void X11Loupe::pick() {
    finish(m_screen->colorAt(m_model.position()), longestPress);
}

void X11Loupe::finish(const std::optional<SRGBColor>& color,
                      std::chrono::milliseconds longestHold) {
    if (m_isFinished)
        return;
    m_isFinished = true;
    Q_EMIT finished(color);
    m_screen->hide();
    QTimer::singleShot(longestHold, this, &X11Loupe::released);
}

} // namespace dropshade
