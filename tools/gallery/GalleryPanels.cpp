// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "GalleryPanels.h"

#include "palettes/NamePopover.h"
#include "palettes/PaletteList.h"
#include "palettes/PalettesModel.h"
#include "widgets/AlertWindow.h"
#include "widgets/Label.h"
#include "widgets/Menu.h"
#include "widgets/Metrics.h"
#include "widgets/ToolTip.h"

#include <QApplication>
#include <QEventLoop>
#include <QMouseEvent>
#include <QPainter>
#include <QTimer>
#include <QVBoxLayout>

namespace dropshade {

namespace {

constexpr int scalesShown = 3;
const QString paletteName = QStringLiteral("Harmony");

/// The window of the program that holds a widget of that kind.
template <typename Kind>
Kind* inAWindow() {
    QApplication::processEvents();
    for (const QWidget* window : QApplication::topLevelWidgets()) {
        if (auto* found = window->findChild<Kind*>())
            return found;
    }
    return nullptr;
}

QPixmap pictureOf(QWidget& window) {
    window.activateWindow();
    QApplication::processEvents();
    return window.grab();
}

void drag(PaletteList& list, const QPointF& from, const QPointF& to) {
    const auto send = [&list](QEvent::Type type, const QPointF& point, Qt::MouseButton button) {
        QMouseEvent event(type, point, list.mapToGlobal(point), button, Qt::LeftButton,
                          Qt::NoModifier);
        QApplication::sendEvent(&list, &event);
    };
    send(QEvent::MouseButtonPress, from, Qt::LeftButton);
    for (const double share : {0.2, 0.6, 1.0})
        send(QEvent::MouseMove, from + (to - from) * share, Qt::NoButton);
}

} // namespace

GalleryPanels::GalleryPanels(AppDelegate& delegate, ManualScheduler& scheduler)
    : m_delegate(delegate), m_scheduler(scheduler), m_look(delegate.look()) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(metrics::space40, 0, metrics::space40, metrics::space24);
    row->setSpacing(metrics::space24);
    for (QVBoxLayout*& column : m_columns) {
        column = new QVBoxLayout;
        column->setSpacing(metrics::space8);
        row->addLayout(column);
    }
    addSwatches();
    addSheet();
    addAlerts();
    addPopover();
    addMenu();
    addToolTips();
    for (QVBoxLayout* column : m_columns)
        column->addStretch(1);
    row->addStretch(1);
}

void GalleryPanels::settle() {
    QEventLoop loop;
    QTimer::singleShot(std::chrono::milliseconds(200), &loop, &QEventLoop::quit);
    loop.exec();
    m_scheduler.advance(std::chrono::seconds(1));
    QApplication::processEvents();
}

void GalleryPanels::add(Column column, const QString& title, const QPixmap& picture) {
    auto* shown = new QLabel;
    shown->setPixmap(picture);
    m_columns[column]->addWidget(
        new Label(m_look, TextStyle::Overline, Label::Tone::Secondary, title));
    m_columns[column]->addWidget(shown);
    m_columns[column]->addSpacing(metrics::space8);
}

void GalleryPanels::addSwatches() {
    m_delegate.openPalettes();
    settle();
    auto* list = inAWindow<PaletteList>();
    const Palette palette = m_delegate.paletteStore().palettes().first();
    if (!list->model().isExpanded(palette.id()))
        list->model().toggleExpanded(palette.id());
    const auto swatch = [&palette](qsizetype row, qsizetype index) {
        const PaletteScale& scale = palette.scales().at(row);
        return ListElement{ListElement::Part::Swatch, palette.id(), scale.id(),
                           scale.swatches().at(index).id()};
    };
    list->model().toggleFavorite(swatch(1, 3).path());
    list->model().toggleFavorite(swatch(1, 8).path());
    settle();
    const double bottom = list->areaOf(swatch(scalesShown - 1, 0)).bottom();
    const QRect shown(0, 0, list->width(), static_cast<int>(bottom) + metrics::space4);
    list->setHovered(swatch(0, 2), list->areaOf(swatch(0, 2)).center());
    list->setPressed(swatch(0, 4));
    list->setFocus(Qt::TabFocusReason);
    list->setFocused(swatch(0, 6));
    add(Left, QStringLiteral("Swatches: hovered, pressed, focused, favourite"), list->grab(shown));
    list->setPressed({});
    list->setFocused({});
    drag(*list, list->areaOf(swatch(0, 5)).center(), list->areaOf(swatch(1, 6)).center());
    settle();
    add(Left, QStringLiteral("A swatch that is dragged"), list->grab(shown));
    list->model().drag().abandon();
}

void GalleryPanels::addSheet() {
    m_delegate.openNewPaletteFromPreset();
    settle();
    QWidget* window = inAWindow<PaletteList>()->window();
    add(Left, QStringLiteral("Sheet"), pictureOf(*window));
    window->close();
}

void GalleryPanels::addAlert(const QString& title, const Alert& alert) {
    QWidget* window = AlertWindow::ask(m_look, nullptr, alert, [](qsizetype) {});
    add(Right, title, pictureOf(*window));
    window->close();
}

void GalleryPanels::addAlerts() {
    const QList<Alert::Button> buttons{{QStringLiteral("Cancel"), Alert::Role::Cancel},
                                       {QStringLiteral("Delete"), Alert::Role::Destructive}};
    addAlert(QStringLiteral("Alert"),
             {QStringLiteral("Delete “Harmony”?"),
              QStringLiteral("This palette will be permanently removed."), buttons});
    addAlert(QStringLiteral("Alert with a colour"),
             {QStringLiteral("Delete this color?"),
              QStringLiteral("This swatch will be permanently removed."), buttons,
              QColor(0x8F, 0xC9, 0x82)});
}

void GalleryPanels::addPopover() {
    auto* popover = new NamePopover(m_look, *this,
                                    std::make_unique<NameEdit>(QStringLiteral("Palette Name"),
                                                               paletteName, [](const QString&) {}));
    popover->open(Popover::Side::Below);
    add(Right, QStringLiteral("Popover"), pictureOf(*popover));
    popover->close();
}

void GalleryPanels::addMenu() {
    Menu menu(m_look);
    menu.addRow(QStringLiteral("Rename Palette"));
    QAction* current = menu.addRow(QStringLiteral("Duplicate Palette"));
    menu.addSubmenu(QStringLiteral("Export Palette"))->addRow(QString());
    menu.addSeparator();
    menu.addRow(QStringLiteral("Add Scale"))->setEnabled(false);
    menu.addSeparator();
    menu.setDestructive(menu.addRow(QStringLiteral("Delete Palette")));
    menu.popup(QPoint());
    menu.setActiveAction(current);
    add(Right, QStringLiteral("Menu"), pictureOf(menu));
}

void GalleryPanels::addToolTips() {
    for (const QString& text :
         {QStringLiteral("Pick color from screen"),
          QStringLiteral("Normal text (16pt regular): AA 4.91:1 meets the 4.5:1 minimum.")}) {
        ToolTip plate(m_look, text, this);
        plate.showAt(QPoint());
        add(Right, QStringLiteral("Tooltip"), pictureOf(plate));
    }
}

void GalleryPanels::paintEvent(QPaintEvent*) {
    QPainter(this).fillRect(rect(), m_look.theme().surfaceWindow);
}

} // namespace dropshade
