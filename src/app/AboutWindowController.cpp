// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "app/AboutWindowController.h"

#include "app/AboutText.h"
#include "widgets/Label.h"
#include "widgets/Metrics.h"
#include "widgets/TextButton.h"

#include <QCoreApplication>
#include <QPainter>
#include <QScreen>
#include <QShortcut>
#include <QSvgRenderer>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace dropshade {
namespace {

constexpr int windowWidth = 300;
constexpr int windowHeight = 336;
constexpr int iconSide = 80;
constexpr int buttonWidth = 136;

/// The program's mark, drawn anew at each size of a pixel.
class Mark : public QWidget {
public:
    explicit Mark(QWidget* parent) : QWidget(parent) { setFixedSize(iconSide, iconSide); }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        QSvgRenderer(QStringLiteral(":/icons/app-icon.svg")).render(&painter, rect());
    }
};

} // namespace

class AboutWindowController::Window : public FloatingWindow {
public:
    Window(const Look& look, const UserDefaults& defaults) : FloatingWindow(look) {
        //: About window title
        setWindowTitle(AboutWindowController::tr("About", "About window title"));
        m_lines = new QVBoxLayout(this);
        m_lines->setContentsMargins(metrics::space8, metrics::space20, metrics::space8,
                                    metrics::space24);
        m_lines->setSpacing(0);
        m_lines->addWidget(new Mark(this), 0, Qt::AlignHCenter);
        m_lines->addSpacing(metrics::space20);
        addLabel(TextStyle::Name, Label::Tone::Primary, QStringLiteral("Dropshade"));
        addLabel(TextStyle::Caption, Label::Tone::Secondary,
                 aboutText::version(QCoreApplication::applicationVersion()));
        m_lines->addSpacing(metrics::space16);
        addLabel(TextStyle::Caption, Label::Tone::Primary, aboutText::description());
        m_lines->addSpacing(metrics::space12);
        addLabel(TextStyle::Caption, Label::Tone::Secondary, aboutText::lifetimeLine(defaults));
        m_lines->addStretch(1);
        //: About window button
        website =
            new TextButton(look, TextButton::Kind::Default,
                           AboutWindowController::tr("Visit Website", "About window button"), this);
        website->setMinimumWidth(buttonWidth);
        m_lines->addWidget(website, 0, Qt::AlignHCenter);
        for (const auto key : {Qt::Key_Return, Qt::Key_Enter})
            connect(new QShortcut(QKeySequence(key), this), &QShortcut::activated, website,
                    &QAbstractButton::click);
        const int high = m_lines->hasHeightForWidth() ? m_lines->heightForWidth(windowWidth)
                                                      : m_lines->sizeHint().height();
        setFixedSize(std::max(windowWidth, m_lines->minimumSize().width()),
                     std::max(windowHeight, high));
        setFocus();
        move(screen()->availableGeometry().center() - rect().center());
    }

    TextButton* website = nullptr;

private:
    void addLabel(TextStyle style, Label::Tone tone, const QString& words) {
        auto* label = new Label(look(), style, tone, words, this);
        label->setAlignment(Qt::AlignHCenter);
        label->setWordWrap(true);
        m_lines->addWidget(label);
    }

    QVBoxLayout* m_lines = nullptr;
};

AboutWindowController::AboutWindowController(Surroundings surroundings)
    : m_with(std::move(surroundings)) {}

AboutWindowController::~AboutWindowController() = default;

void AboutWindowController::show() {
    if (!m_window) {
        m_window = std::make_unique<Window>(m_with.look, m_with.defaults);
        connect(m_window->website, &QAbstractButton::clicked, this,
                &AboutWindowController::openWebsite);
        // In its own event the window can't go yet.
        connect(m_window.get(), &FloatingWindow::closed, this,
                [this] { m_window.release()->deleteLater(); });
    }
    m_window->present();
}

void AboutWindowController::openWebsite() {
    m_with.openUrl(aboutText::website());
    if (m_window)
        m_window->close();
}

QWidget* AboutWindowController::window() const {
    return m_window.get();
}

} // namespace dropshade
