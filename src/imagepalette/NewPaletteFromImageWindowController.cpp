// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "imagepalette/NewPaletteFromImageWindowController.h"

#include "app/SettingsReaders.h"
#include "imagepalette/NewPaletteFromImageView.h"

#include <QEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QWindow>

#include <algorithm>
#include <utility>

namespace dropshade {

NewPaletteFromImageWindowController::NewPaletteFromImageWindowController(Surroundings surroundings)
    : m_surroundings(std::move(surroundings)) {}

NewPaletteFromImageWindowController::~NewPaletteFromImageWindowController() {
    // At once, for what they refer to may end with whoever ends this.
    delete m_window.release();
    delete m_model.release();
}

void NewPaletteFromImageWindowController::present(QWidget* host, std::optional<LoadedImage> image,
                                                  std::optional<QString> filename) {
    if (m_window) {
        m_window->present();
        return;
    }
    m_model.reset(
        new NewPaletteFromImageModel(m_surroundings.model, std::move(image), std::move(filename)));
    connect(m_model.get(), &NewPaletteFromImageModel::paletteMade, this,
            &NewPaletteFromImageWindowController::save);
    const auto nameOf = [this](const QuantizedColor& color) {
        UserDefaults& defaults = m_surroundings.defaults;
        return QString::fromStdString(
            formatted(colorOf(color), colorFormat(defaults), formatOptions(defaults)));
    };
    const auto copy = [this](const QuantizedColor& color) {
        m_surroundings.copyColor(colorOf(color));
    };
    m_window.reset(new NewPaletteFromImageView(
        m_surroundings.look,
        {m_surroundings.filePanels, m_surroundings.model.pasteboard, nameOf, copy}, *m_model));
    connect(m_window.get(), &FloatingWindow::closed, this,
            &NewPaletteFromImageWindowController::forget);
    if (host)
        attach(*host);
    m_window->present();
}

void NewPaletteFromImageWindowController::attach(QWidget& host) {
    m_hostWindow = host.window();
    m_hostWindow->installEventFilter(this);
    m_window->setWindowModality(Qt::WindowModal);
    static_cast<void>(m_window->winId()); // It has a window from here on.
    m_window->windowHandle()->setTransientParent(m_hostWindow->windowHandle());
    const QRect frame = m_hostWindow->frameGeometry();
    QPoint corner = frame.center() - m_window->rect().center();
    if (const QScreen* screen = m_hostWindow->screen()) {
        // A title bar above its top edge could not be reached.
        const QRect area = screen->availableGeometry();
        corner.setX(std::clamp(corner.x(), area.left(),
                               std::max(area.left(), area.right() - m_window->width())));
        corner.setY(std::clamp(corner.y(), area.top(),
                               std::max(area.top(), area.bottom() - m_window->height())));
    }
    m_window->move(corner);
}

bool NewPaletteFromImageWindowController::eventFilter(QObject* watched, QEvent* event) {
    const bool hostGoes = event->type() == QEvent::Hide && !event->spontaneous();
    if (watched == m_hostWindow && hostGoes && m_window)
        m_window->close();
    return QObject::eventFilter(watched, event);
}

void NewPaletteFromImageWindowController::save(const Palette& palette) {
    m_surroundings.store.appendPalette(palette);
    m_window->close();
}

void NewPaletteFromImageWindowController::forget() {
    if (m_hostWindow)
        m_hostWindow->removeEventFilter(this);
    m_hostWindow.clear();
    // The window is in the middle of its own event.
    m_window.reset();
    m_model.reset();
}

} // namespace dropshade
