// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "palettes/PalettesWindow.h"

#include "app/SettingsReaders.h"
#include "palettes/AccessiblePaletteList.h"
#include "palettes/ListKeys.h"
#include "palettes/ListPointer.h"
#include "palettes/MenuBuilder.h"
#include "palettes/NamePopover.h"
#include "palettes/PaletteDrop.h"
#include "palettes/PaletteDropOverlay.h"
#include "palettes/PalettesEmptyState.h"
#include "palettes/PalettesStatusBar.h"
#include "palettes/PalettesTopBar.h"
#include "palettes/PresetPickerSheet.h"
#include "palettes/SwatchPopover.h"
#include "widgets/AlertWindow.h"
#include "widgets/ColorConversion.h"
#include "widgets/Metrics.h"
#include "widgets/ScrollArea.h"
#include "widgets/ToolTip.h"

#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QMenu>
#include <QMimeData>
#include <QPainter>

namespace dropshade {
namespace {

using Part = ListElement::Part;

constexpr QSize usualSize(560, 620);
constexpr QSize leastSize(160, 280);

/// The colour itself, and its text in the format of the settings.
QMimeData* mimeDataOf(const PaletteSwatch& swatch, const UserDefaults& defaults) {
    auto* data = new QMimeData;
    data->setColorData(drawable(swatch.color()));
    data->setText(QString::fromStdString(
        formatted(swatch.color(), colorFormat(defaults), formatOptions(defaults))));
    return data;
}

} // namespace

PalettesWindow::PalettesWindow(const Look& look, const Surroundings& surroundings)
    : FloatingWindow(look), m_model(surroundings.model), m_defaults(surroundings.defaults),
      m_shortcutText(surroundings.shortcutText), m_menus(m_model), m_moves(m_model) {
    //: Title of a window
    setWindowTitle(tr("Palettes"));
    setMinimumSize(leastSize);
    setAcceptDrops(true);
    build();
    m_actions = new ListActions(m_model);
    m_actions->setParent(this);
    m_pointer =
        new ListPointer(*m_list, *m_actions, surroundings.scheduler,
                        [this](const auto& swatch) { return mimeDataOf(swatch, m_defaults); });
    m_keys = new ListKeys(*m_list, *m_actions, m_moves);
    connectModel();
    connectList();
    rememberFrame(m_defaults, QStringLiteral("PalettesWindow"), usualSize);
    followContent();
}

PalettesWindow::~PalettesWindow() {
    // A widget that is being destroyed still gets events, which these would hand to a list that is
    // a list no more.
    delete m_keys;
    delete m_pointer;
}

void PalettesWindow::build() {
    m_topBar = new PalettesTopBar(look(), m_model, this);
    m_scrollArea = new ScrollArea(look(), this);
    installAccessiblePaletteList();
    m_list = new PaletteList(look(), m_model, *m_scrollArea);
    //: Name of the list for screen readers
    m_list->setAccessibleName(tr("Palettes"));
    ToolTip::installOn(*m_list, look());
    m_emptyState = new PalettesEmptyState(look(), this);
    m_statusBar = new PalettesStatusBar(look(), m_model.hover(), this);
    m_dropOverlay = new PaletteDropOverlay(look(), this);
}

void PalettesWindow::connectModel() {
    connect(&m_model, &PalettesModel::contentDidChange, this, &PalettesWindow::followContent);
    connect(&m_model, &PalettesModel::pendingScrollDidChange, this,
            &PalettesWindow::scrollToPending);
    connect(&m_model, &PalettesModel::expansionDidChange, this, &PalettesWindow::scrollToPending);
    connect(&m_model, &PalettesModel::paletteRenameRequested, this, &PalettesWindow::renamePalette);
    connect(&m_model, &PalettesModel::scaleRenameRequested, this, &PalettesWindow::renameScale);
    connect(&m_model, &PalettesModel::presetPickerRequested, this,
            &PalettesWindow::showPresetPicker);
    connect(&m_model, &PalettesModel::deletionAsked, this, &PalettesWindow::ask);
    connect(&m_menus, &PaletteMenus::paletteRenameRequested, this, &PalettesWindow::renamePalette);
    connect(&m_menus, &PaletteMenus::scaleRenameRequested, this, &PalettesWindow::renameScale);
    connect(&m_menus, &PaletteMenus::swatchEditRequested, this, &PalettesWindow::editSwatch);
    connect(&m_moves, &PaletteMoves::announced, this, [this](const QString& text) {
        m_announcer.announce(text);
        m_model.hover().setHint(text);
    });
}

void PalettesWindow::connectList() {
    connect(m_actions, &ListActions::paletteRenameRequested, this, &PalettesWindow::renamePalette);
    connect(m_actions, &ListActions::scaleRenameRequested, this, &PalettesWindow::renameScale);
    connect(m_actions, &ListActions::swatchAddRequested, this, &PalettesWindow::addSwatch);
    connect(m_actions, &ListActions::swatchEditRequested, this, &PalettesWindow::editSwatch);
    connect(m_actions, &ListActions::menuRequested, this, &PalettesWindow::showMenu);
    const auto openMenu = [this](const ListElement& element) {
        m_list->reveal(element);
        const QPointF middle = m_list->areaOf(element).center();
        m_actions->showMenu(element, m_list->mapToGlobal(middle.toPoint()));
    };
    connect(m_list, &PaletteList::menuRequested, this, openMenu);
    connect(m_list, &PaletteList::activationRequested, this,
            [this, openMenu](const ListElement& element) {
                if (element.part == Part::Options)
                    openMenu(element);
                else
                    m_actions->activate(element);
            });
    connect(m_pointer, &ListPointer::pressed, m_keys, &ListKeys::hideRing);
    connect(m_topBar, &PalettesTopBar::addMenuRequested, this, &PalettesWindow::popUpAddMenu);
    connect(m_emptyState, &PalettesEmptyState::presetRequested, &m_model,
            &PalettesModel::requestPresetPicker);
    connect(m_emptyState, &PalettesEmptyState::scratchRequested, &m_model,
            &PalettesModel::createFromScratch);
}

// Arranging

void PalettesWindow::arrange() {
    const int top = m_topBar->sizeHint().height();
    const int bottom = m_statusBar->sizeHint().height();
    constexpr int line = int(metrics::lineHairline);
    m_topBar->setGeometry(0, 0, width(), top);
    const QRect middle(0, top + line, width(), height() - top - bottom - 2 * line);
    m_scrollArea->setGeometry(middle);
    m_emptyState->setGeometry(middle);
    m_statusBar->setGeometry(0, height() - bottom, width(), bottom);
    m_statusBar->setMargin(m_model.isCompact() ? metrics::compactMargin : metrics::windowMargin);
    m_dropOverlay->setGeometry(rect());
}

void PalettesWindow::resizeEvent(QResizeEvent* event) {
    m_model.setWidth(width());
    arrange();
    FloatingWindow::resizeEvent(event);
}

void PalettesWindow::showEvent(QShowEvent* event) {
    FloatingWindow::showEvent(event);
    followShortcut();
    if (m_model.store().palettes().isEmpty())
        m_emptyState->setFocus();
    else
        m_list->setFocus();
}

void PalettesWindow::followShortcut() {
    m_emptyState->setShortcut(m_shortcutText());
}

void PalettesWindow::dismiss() {
    if (m_sheet)
        m_sheet->closeSheet();
    else
        FloatingWindow::dismiss();
}

void PalettesWindow::paintEvent(QPaintEvent* event) {
    FloatingWindow::paintEvent(event);
    QPainter painter(this);
    const QColor& hairline = look().theme().lineHairline;
    painter.fillRect(QRectF(0, m_topBar->geometry().bottom() + 1, width(), metrics::lineHairline),
                     hairline);
    painter.fillRect(
        QRectF(0, m_statusBar->y() - metrics::lineHairline, width(), metrics::lineHairline),
        hairline);
}

void PalettesWindow::followContent() {
    const bool isEmpty = m_model.shownPalettes().isEmpty();
    m_emptyState->setVisible(isEmpty);
    m_scrollArea->setVisible(!isEmpty);
    scrollToPending();
}

void PalettesWindow::scrollToPending() {
    const auto& id = m_model.pendingScrollToId();
    if (!id)
        return;
    const auto row = m_list->rows().rowOf(*id);
    if (!row)
        return;
    const ListRow& target = m_list->rows().rows().at(*row);
    m_list->reveal({target.kind == ListRow::Kind::Scale ? Part::Label : Part::Header,
                    target.paletteId,
                    target.scaleId,
                    {}},
                   PaletteList::Anchor::Bottom);
    static_cast<void>(m_model.takePendingScrollToId());
}

// Popovers, alerts and the sheet

void PalettesWindow::openPopover(const ListElement& element,
                                 const std::function<Popover*(QWidget&)>& make) {
    m_list->reveal(element);
    QWidget* anchor = m_list->makeAnchor(element);
    Popover* popover = make(*anchor);
    if (!popover) {
        delete anchor;
        return;
    }
    connect(popover, &Popover::closed, anchor, &QObject::deleteLater);
    connect(popover, &Popover::closed, m_list, &PaletteList::letGo);
    m_list->hold(element);
    popover->open(Popover::Side::Below);
}

void PalettesWindow::renamePalette(const QUuid& id) {
    openPopover({Part::Header, id, {}, {}}, [&](QWidget& anchor) -> Popover* {
        auto edit = m_model.makePaletteRename(id);
        return edit ? new NamePopover(look(), anchor, std::move(edit)) : nullptr;
    });
}

void PalettesWindow::renameScale(const QUuid& paletteId, const QUuid& scaleId) {
    openPopover({Part::Label, paletteId, scaleId, {}}, [&](QWidget& anchor) -> Popover* {
        auto edit = m_model.makeScaleRename(paletteId, scaleId);
        return edit ? new NamePopover(look(), anchor, std::move(edit)) : nullptr;
    });
}

void PalettesWindow::addSwatch(const QUuid& paletteId, const QUuid& scaleId) {
    openPopover({Part::AddSwatch, paletteId, scaleId, {}}, [&](QWidget& anchor) -> Popover* {
        auto edit = m_model.makeSwatchAdd(paletteId, scaleId);
        return edit ? new SwatchPopover(look(), anchor, std::move(edit)) : nullptr;
    });
}

void PalettesWindow::editSwatch(const SwatchPath& path) {
    const ListElement element{Part::Swatch, path.paletteId, path.scaleId, path.swatchId};
    openPopover(element, [&](QWidget& anchor) -> Popover* {
        auto edit = m_model.makeSwatchEdit(path);
        return edit ? new SwatchPopover(look(), anchor, std::move(edit)) : nullptr;
    });
    m_list->setFocused(element);
}

void PalettesWindow::showMenu(const ListElement& element, const QPoint& at) {
    QList<MenuRow> rows;
    if (element.part == Part::Swatch)
        rows = m_menus.swatchMenu(element.path());
    else if (!element.scaleId.isNull())
        rows = m_menus.scaleMenu(element.paletteId, element.scaleId);
    else
        rows = m_menus.paletteMenu(element.paletteId);
    if (rows.isEmpty())
        return;
    QMenu* menu = makeMenu(look(), rows, this);
    connect(menu, &QMenu::aboutToHide, m_list, &PaletteList::letGo);
    m_list->hold(element);
    menu->popup(at);
}

void PalettesWindow::popUpAddMenu(const QPoint& upperRight) {
    QMenu* menu = makeMenu(look(), m_menus.addMenu(), this);
    menu->popup(upperRight - QPoint(menu->sizeHint().width(), 0));
}

void PalettesWindow::ask(const DeleteQuestion& question) {
    //: Button of an alert
    const QString cancel = tr("Cancel");
    //: Button of an alert
    const QString destroy = tr("Delete");
    Alert alert{question.title,
                question.message,
                {{cancel, Alert::Role::Cancel}, {destroy, Alert::Role::Destructive}}};
    if (question.swatch)
        alert.color = drawable(question.swatch->color());
    AlertWindow::ask(look(), this, alert, [confirmed = question.confirmed](qsizetype button) {
        if (button == 1)
            confirmed();
    });
}

void PalettesWindow::showPresetPicker() {
    if (m_sheet)
        return;
    m_sheet = new PresetPickerSheet(look(), *this, m_model.makePresetPicker());
    connect(m_sheet, &Sheet::closed, this, [this] { m_sheet.clear(); });
    m_sheet->open();
}

// Drops from other programs

void PalettesWindow::dragEnterEvent(QDragEnterEvent* event) {
    const auto kind = PaletteDrop::kindOf(*event->mimeData());
    if (m_pointer->isDragging() || !kind || m_sheet)
        return;
    m_dropOverlay->setKind(kind);
    event->setDropAction(Qt::CopyAction);
    event->accept();
}

void PalettesWindow::dragMoveEvent(QDragMoveEvent* event) {
    event->setDropAction(Qt::CopyAction);
    event->setAccepted(!m_pointer->isDragging());
}

void PalettesWindow::dragLeaveEvent(QDragLeaveEvent*) {
    m_dropOverlay->setKind(std::nullopt);
}

void PalettesWindow::dropEvent(QDropEvent* event) {
    m_dropOverlay->setKind(std::nullopt);
    const bool isTaken =
        !m_pointer->isDragging() && PaletteDrop::perform(*event->mimeData(), m_model.commands());
    event->setDropAction(Qt::CopyAction);
    event->setAccepted(isTaken);
}

} // namespace dropshade
