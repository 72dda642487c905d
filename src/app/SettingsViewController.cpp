// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "app/SettingsViewController.h"

#include "widgets/ScrollArea.h"

#include <QCloseEvent>
#include <QScreen>
#include <QVBoxLayout>

#include <algorithm>

namespace dropshade {
namespace {

constexpr int windowWidth = 480;
/// What the title bar and a panel may take of the screen.
constexpr int screenReserve = 64;

} // namespace

/// As high as its rows, or as the screen where that is lower.
class SettingsViewController::Window : public FloatingWindow {
public:
    Window(const Look& look, SettingsModel& model, QWidget* view)
        : FloatingWindow(look), m_model(model), m_view(view) {
        //: Title of the settings window
        setWindowTitle(SettingsViewController::tr("Dropshade Settings"));
        auto* area = new ScrollArea(look, this);
        area->setWidget(view);
        auto* lines = new QVBoxLayout(this);
        lines->setContentsMargins(0, 0, 0, 0);
        lines->addWidget(area);
        view->installEventFilter(this);
        // What a button does goes by what has been typed: the test of a server, to begin with.
        endTypingAtPresses();
        // Nothing is chosen by opening: the first Tab goes to the first control.
        setFocus();
        fit();
        move(screen()->availableGeometry().center() - rect().center());
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        // Rows come and go with the format and with sync.
        if (watched == m_view && event->type() == QEvent::LayoutRequest)
            fit();
        return FloatingWindow::eventFilter(watched, event);
    }
    void showEvent(QShowEvent* event) override {
        m_model.setShown(true);
        FloatingWindow::showEvent(event);
    }
    void hideEvent(QHideEvent* event) override {
        m_model.setShown(false);
        FloatingWindow::hideEvent(event);
    }
    void closeEvent(QCloseEvent* event) override {
        // What is typed in a field counts when the field is left, and the next show begins anew.
        setFocus();
        FloatingWindow::closeEvent(event);
    }

private:
    void fit() {
        const int most = screen()->availableGeometry().height() - screenReserve;
        const int wide = std::max(windowWidth, m_view->minimumSizeHint().width());
        const int high = m_view->heightForWidth(wide);
        setFixedSize(wide, std::min(high, most));
    }

    SettingsModel& m_model;
    QWidget* m_view;
};

SettingsViewController::SettingsViewController(const Surroundings& surroundings)
    : m_with(surroundings), m_model(surroundings.model), m_syncAccount(surroundings.syncAccount) {}

SettingsViewController::~SettingsViewController() = default;

void SettingsViewController::show() {
    m_model.reload();
    m_syncAccount.reload();
    if (!m_window) {
        auto* view = new SettingsRootView({m_with.look, m_model, m_syncAccount, m_with.shortcuts,
                                           m_with.desktopBindings, m_with.alerts, m_with.panels,
                                           m_with.instance, m_with.pasteboard});
        m_window = std::make_unique<Window>(m_with.look, m_model, view);
    }
    m_window->present();
}

QWidget* SettingsViewController::window() const {
    return m_window.get();
}

} // namespace dropshade
