// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "palettes/PalettesEmptyState.h"

#include "palettes/SwatchPainting.h"
#include "widgets/Label.h"
#include "widgets/Metrics.h"
#include "widgets/TextButton.h"

#include <QFontMetrics>
#include <QVBoxLayout>

#include <algorithm>

namespace dropshade {
namespace {

constexpr int artSide = 48;
constexpr int textWidth = 400;
constexpr int buttonWidth = 248;
constexpr int heightForArt = 360;
constexpr int heightForHint = 280;

class Art : public QWidget {
public:
    Art(const Look& look, QWidget* parent) : QWidget(parent), m_look(look) {
        setFixedSize(artSide, artSide);
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        drawIcon(painter, Icon::ColorSwatch, m_look.theme().textTertiary, QRectF(rect()).center(),
                 artSide);
    }

private:
    const Look& m_look;
};

/// Words that are too long for one line break rather than being cut short.
int heightInLines(const QAbstractButton& button, int width) {
    const QRect room(0, 0, width - 2 * metrics::controlPadding, QWIDGETSIZE_MAX);
    const int flags = Qt::AlignCenter | Qt::TextWordWrap;
    return QFontMetrics(button.font()).boundingRect(room, flags, button.text()).height() +
           metrics::space12;
}

Label* centered(Label* label) {
    label->setAlignment(Qt::AlignCenter);
    label->setWordWrap(true);
    return label;
}

} // namespace

PalettesEmptyState::PalettesEmptyState(const Look& look, QWidget* parent)
    : QWidget(parent), m_column(new QVBoxLayout(this)), m_art(new Art(look, this)),
      m_hint(centered(new Label(look, TextStyle::Caption, Label::Tone::Tertiary, {}, this))) {
    QVBoxLayout* column = m_column;
    column->setSpacing(0);
    column->addStretch();
    column->addWidget(m_art, 0, Qt::AlignHCenter);
    column->addSpacing(metrics::space16);
    //: Title in the palettes window without palettes
    column->addWidget(centered(
        new Label(look, TextStyle::Heading, Label::Tone::Primary, tr("No palettes yet"), this)));
    column->addSpacing(metrics::space8);
    //: Text in the palettes window without palettes
    const QString text = tr("Organize your colors into palettes for quick access. Start from a "
                            "built-in preset or create a blank palette to fill in yourself.");
    column->addWidget(
        centered(new Label(look, TextStyle::Body, Label::Tone::Secondary, text, this)));
    column->addSpacing(metrics::space24);
    //: Button in the palettes window without palettes
    auto* preset =
        new TextButton(look, TextButton::Kind::Default, tr("Create palette from preset…"), this);
    //: Button in the palettes window without palettes
    auto* scratch =
        new TextButton(look, TextButton::Kind::Plain, tr("Create palette from scratch"), this);
    m_buttons = {preset, scratch};
    for (QWidget* button : m_buttons) {
        column->addWidget(button, 0, Qt::AlignHCenter);
        column->addSpacing(metrics::space8);
    }
    column->addSpacing(metrics::space16);
    column->addWidget(m_hint);
    column->addStretch();
    connect(preset, &QAbstractButton::clicked, this, &PalettesEmptyState::presetRequested);
    connect(scratch, &QAbstractButton::clicked, this, &PalettesEmptyState::scratchRequested);
    setShortcut(std::nullopt);
}

/// A low window keeps what can be done, and leaves out the ornament and then the hint.
void PalettesEmptyState::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    const int side = std::max(metrics::compactMargin, (width() - textWidth) / 2);
    m_column->setContentsMargins(side, metrics::space8, side, metrics::space8);
    const int room = width() - 2 * metrics::compactMargin;
    for (QAbstractButton* button : m_buttons) {
        const QSize natural = button->sizeHint();
        button->setFixedSize(std::min(std::max(buttonWidth, natural.width()), room),
                             std::max(natural.height(), heightInLines(*button, room)));
    }
    m_art->setVisible(height() >= heightForArt);
    m_hint->setVisible(height() >= heightForHint);
}

void PalettesEmptyState::setShortcut(const std::optional<QString>& shortcut) {
    if (shortcut) {
        //: %1 is a keyboard shortcut
        m_hint->setWords(tr("Tip: Press %1 from anywhere to open Palettes.").arg(*shortcut));
        return;
    }
    //: Where no keyboard shortcut is set
    m_hint->setWords(tr("Tip: Set a hotkey in Settings to open Palettes from anywhere."));
}

} // namespace dropshade
