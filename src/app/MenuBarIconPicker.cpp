// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "app/MenuBarIconPicker.h"

#include "widgets/Icon.h"
#include "widgets/Metrics.h"
#include "widgets/Painting.h"
#include "widgets/RadioButton.h"

#include <QHBoxLayout>

namespace dropshade {
namespace {

constexpr int drawingSide = 18;

Icon drawing(MenuBarIconStyle style) {
    switch (style) {
    case MenuBarIconStyle::Swatch:
        return Icon::StatusSwatch;
    case MenuBarIconStyle::Palette:
        return Icon::StatusPalette;
    case MenuBarIconStyle::Picker:
        break;
    }
    return Icon::StatusPicker;
}

QString title(MenuBarIconStyle style) {
    switch (style) {
    case MenuBarIconStyle::Swatch:
        //: Menu bar icon style
        return MenuBarIconPicker::tr("Swatch", "Menu bar icon style");
    case MenuBarIconStyle::Palette:
        //: Menu bar icon style
        return MenuBarIconPicker::tr("Palette", "Menu bar icon style");
    case MenuBarIconStyle::Picker:
        break;
    }
    //: Menu bar icon style
    return MenuBarIconPicker::tr("Default", "Menu bar icon style");
}

/// One of the choices. Its fill tells its state, and an edge the selected one.
class Tile : public RadioButton {
public:
    Tile(const Look& look, MenuBarIconStyle style, QWidget* parent)
        : RadioButton(look, parent), m_drawing(drawing(style)) {
        setAccessibleName(title(style));
        setToolTip(title(style));
        setFixedSize(metrics::tileWidth, metrics::tileHeight);
    }

protected:
    void paint(QPainter& painter) override {
        fillRounded(painter, rect(), metrics::radiusControl,
                    isChecked() ? theme().fillTileSelected : restOrHover());
        if (isChecked())
            strokeInside(painter, rect(), metrics::radiusControl, metrics::lineSelected,
                         theme().accentBase);
        const QPoint corner((width() - drawingSide) / 2, (height() - drawingSide) / 2);
        painter.drawPixmap(
            corner, iconPixmap(m_drawing, isChecked() ? theme().accentBase : theme().textPrimary,
                               drawingSide, devicePixelRatioF()));
    }

private:
    [[nodiscard]] QColor restOrHover() const {
        const double over = isPressed() ? 1.0 : hoverAmount();
        QColor fill = theme().fillTileHover;
        fill.setAlphaF(static_cast<float>(theme().fillTileRest.alphaF() * (1.0 - over) +
                                          fill.alphaF() * over));
        return fill;
    }

    Icon m_drawing;
};

} // namespace

MenuBarIconPicker::MenuBarIconPicker(const Look& look, const QString& name, QWidget* parent)
    : QWidget(parent) {
    setAccessibleName(name);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(metrics::space8);
    for (const MenuBarIconStyleInfo& info : menuBarIconStyles) {
        auto* tile = new Tile(look, info.style, this);
        row->addWidget(tile);
        m_tiles.append(tile);
        connect(tile, &QAbstractButton::toggled, this, [this, style = info.style](bool on) {
            if (on)
                Q_EMIT picked(style);
        });
    }
}

void MenuBarIconPicker::setIconStyle(MenuBarIconStyle style) {
    QAbstractButton* tile = m_tiles.at(static_cast<int>(style));
    const QSignalBlocker block(tile);
    tile->setChecked(true);
    for (QAbstractButton* each : std::as_const(m_tiles))
        each->update();
}

} // namespace dropshade
