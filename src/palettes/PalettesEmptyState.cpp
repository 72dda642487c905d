// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "palettes/PalettesEmptyState.h"

#include "palettes/SwatchPainting.h"
#include "widgets/Label.h"
#include "widgets/Metrics.h"
#include "widgets/TextButton.h"

#include <QVBoxLayout>

namespace dropshade {
namespace {

constexpr int artSide = 48;
constexpr int textWidth = 400;
constexpr int buttonWidth = 248;

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

Label* centered(Label* label) {
    label->setAlignment(Qt::AlignCenter);
    label->setWordWrap(true);
    label->setMaximumWidth(textWidth);
    return label;
}

} // namespace

PalettesEmptyState::PalettesEmptyState(const Look& look, QWidget* parent)
    : QWidget(parent),
      m_hint(centered(new Label(look, TextStyle::Caption, Label::Tone::Tertiary, {}, this))) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(metrics::windowMargin, metrics::space8, metrics::windowMargin,
                               metrics::space8);
    column->setSpacing(0);
    column->addStretch();
    column->addWidget(new Art(look, this), 0, Qt::AlignHCenter);
    column->addSpacing(metrics::space16);
    //: Title in the palettes window without palettes
    column->addWidget(centered(
        new Label(look, TextStyle::Heading, Label::Tone::Primary, tr("No palettes yet"), this)));
    column->addSpacing(metrics::space8);
    //: Text in the palettes window without palettes
    const QString text = tr("Organize your colors into palettes for quick access. Start from a "
                            "built-in preset or create a blank palette to fill in yourself.");
    column->addWidget(
        centered(new Label(look, TextStyle::Body, Label::Tone::Secondary, text, this)), 0,
        Qt::AlignHCenter);
    column->addSpacing(metrics::space24);
    //: Button in the palettes window without palettes
    auto* preset =
        new TextButton(look, TextButton::Kind::Default, tr("Create palette from preset…"), this);
    //: Button in the palettes window without palettes
    auto* scratch =
        new TextButton(look, TextButton::Kind::Plain, tr("Create palette from scratch"), this);
    for (TextButton* button : {preset, scratch}) {
        button->setFixedWidth(std::max(buttonWidth, button->sizeHint().width()));
        column->addWidget(button, 0, Qt::AlignHCenter);
        column->addSpacing(metrics::space8);
    }
    column->addSpacing(metrics::space16);
    column->addWidget(m_hint, 0, Qt::AlignHCenter);
    column->addStretch();
    connect(preset, &QAbstractButton::clicked, this, &PalettesEmptyState::presetRequested);
    connect(scratch, &QAbstractButton::clicked, this, &PalettesEmptyState::scratchRequested);
    setShortcut(std::nullopt);
}

void PalettesEmptyState::setShortcut(const std::optional<QString>& shortcut) {
    if (shortcut) {
        //: %1 is a keyboard shortcut
        m_hint->setWords(tr("Tip: Press %1 from anywhere to open Palettes.").arg(*shortcut));
    } else {
        //: Where no keyboard shortcut is set
        m_hint->setWords(tr("Tip: Set a hotkey in Settings to open Palettes from anywhere."));
    }
}

} // namespace dropshade
