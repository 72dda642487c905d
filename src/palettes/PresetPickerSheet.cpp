// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "palettes/PresetPickerSheet.h"

#include "palettes/PaletteSearch.h"
#include "palettes/PopoverButtons.h"
#include "palettes/PresetChoice.h"
#include "palettes/SwatchPainting.h"
#include "widgets/FocusRing.h"
#include "widgets/Label.h"
#include "widgets/Metrics.h"
#include "widgets/Painting.h"
#include "widgets/ScrollArea.h"
#include "widgets/TextButton.h"
#include "widgets/TextField.h"
#include "widgets/TypeScale.h"

#include <QKeyEvent>
#include <QPainter>
#include <QVBoxLayout>

#include <algorithm>

namespace dropshade {
namespace {

constexpr int listPadding = 4;
constexpr int mostRowsInView = 7;
constexpr double rowPadding = 12.0;

} // namespace

PresetPickerSheet::PresetPickerSheet(const Look& look, QWidget& host,
                                     std::unique_ptr<PresetPicker> picker)
    : Sheet(look, host), m_picker(std::move(picker)) {
    build(look);
}

PresetPickerSheet::~PresetPickerSheet() = default;

void PresetPickerSheet::build(const Look& look) {
    auto* column = new QVBoxLayout(panel());
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    const auto addLabel = [&](const QString& words) {
        column->addWidget(
            new Label(look, TextStyle::FieldLabel, Label::Tone::Secondary, words, panel()));
        column->addSpacing(metrics::space4);
    };
    //: Label of the field with the new palette's name
    addLabel(tr("Name"));
    auto* name = new TextField(look, TextField::Content::Words, panel());
    name->setAccessibleName(tr("Name"));
    //: Placeholder of the field with the new palette's name
    name->setPlaceholderText(tr("New palette"));
    column->addWidget(name);
    column->addSpacing(metrics::space12);
    //: Label of the list of presets
    addLabel(tr("Preset"));
    auto* list = new PresetList(look, *m_picker, panel());
    list->setAccessibleName(tr("Preset"));
    auto* area = new ScrollArea(look, panel());
    area->setWidget(list);
    const int rows = int(std::min<qsizetype>(m_picker->presets().size(), mostRowsInView));
    const int most = list->sizeHint().height() / std::max<int>(1, int(m_picker->presets().size()));
    area->setFixedHeight(rows * most + 2 * listPadding);
    column->addWidget(area);
    column->addSpacing(metrics::space20);
    //: Default button of the sheet with the presets
    const PopoverButtons buttons = addPopoverButtons(look, *column, tr("Add"));
    connect(buttons.cancel, &QAbstractButton::clicked, this, &Sheet::closeSheet);
    connect(buttons.commit, &QAbstractButton::clicked, this, &PresetPickerSheet::add);
    connect(name, &QLineEdit::returnPressed, this, &PresetPickerSheet::add);
    connect(name, &QLineEdit::textChanged, this,
            [this](const QString& text) { m_picker->setName(text); });
    connect(list, &PresetList::chosen, this, &PresetPickerSheet::add);
}

void PresetPickerSheet::add() {
    m_picker->add();
    closeSheet();
}

PresetList::PresetList(const Look& look, PresetPicker& picker, QWidget* parent)
    : QWidget(parent), m_look(look), m_picker(picker) {
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setFocusRadius(*this, metrics::radiusControl);
    for (const Palette& preset : picker.presets())
        m_chips.append(presetChips(preset));
    connect(&look, &Look::didChange, this, qOverload<>(&QWidget::update));
}

int PresetList::rowHeight() const {
    return std::max(metrics::rowList, lineHeight(TextStyle::Body) + metrics::space16);
}

QSize PresetList::sizeHint() const {
    return {0, 2 * listPadding + rowHeight() * int(m_picker.presets().size())};
}

qsizetype PresetList::selected() const {
    const auto& id = m_picker.selectedPresetId();
    return id ? indexOfId(m_picker.presets(), *id) : -1;
}

QRectF PresetList::rowArea(qsizetype row) const {
    return {double(listPadding), listPadding + double(row) * rowHeight(),
            double(width() - 2 * listPadding), double(rowHeight())};
}

qsizetype PresetList::rowAt(const QPointF& point) const {
    const auto row = qsizetype((point.y() - listPadding) / rowHeight());
    return point.y() >= listPadding && row < m_picker.presets().size() ? row : -1;
}

void PresetList::select(qsizetype row) {
    if (row < 0 || row >= m_picker.presets().size())
        return;
    m_picker.select(m_picker.presets().at(row).id());
    setAccessibleDescription(m_picker.presets().at(row).name());
    update();
    Q_EMIT selectionDidChange();
}

void PresetList::hover(qsizetype row) {
    if (m_hovered == row)
        return;
    m_hovered = row;
    update();
}

void PresetList::mousePressEvent(QMouseEvent* event) {
    select(rowAt(event->position()));
}

void PresetList::mouseMoveEvent(QMouseEvent* event) {
    hover(rowAt(event->position()));
}

void PresetList::mouseDoubleClickEvent(QMouseEvent* event) {
    if (rowAt(event->position()) >= 0)
        Q_EMIT chosen();
}

void PresetList::leaveEvent(QEvent*) {
    hover(-1);
}

void PresetList::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Up:
        select(std::max<qsizetype>(0, selected() - 1));
        break;
    case Qt::Key_Down:
        select(selected() + 1);
        break;
    case Qt::Key_Home:
        select(0);
        break;
    case Qt::Key_End:
        select(m_picker.presets().size() - 1);
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        Q_EMIT chosen();
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}

void PresetList::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    update();
}

void PresetList::paintRow(QPainter& painter, qsizetype row) const {
    const Theme& theme = m_look.theme();
    const QRectF area = rowArea(row);
    const bool isSelected = row == selected();
    if (isSelected)
        fillRounded(painter, area, metrics::radiusControl, theme.accentSoft);
    else if (row == m_hovered)
        fillRounded(painter, area, metrics::radiusControl, theme.fillHover);
    if (isSelected)
        drawTick(painter, area, theme);
    const QList<PaletteSwatch>& chips = m_chips.at(row);
    constexpr double chip = metrics::spineChip;
    const double length = chip * double(chips.size());
    const QRectF spine(area.right() - metrics::space8 - length, area.center().y() - chip / 2.0,
                       length, chip);
    if (!chips.isEmpty())
        drawSpine(painter, spine, chips, theme);
    painter.setFont(textFont(isSelected ? TextStyle::Strong : TextStyle::Body));
    painter.setPen(theme.textPrimary);
    const QRectF words(area.left() + rowPadding, area.top(),
                       spine.left() - area.left() - rowPadding - metrics::space8, area.height());
    painter.drawText(words, Qt::AlignVCenter | Qt::TextSingleLine,
                     painter.fontMetrics().elidedText(m_picker.presets().at(row).name(),
                                                      Qt::ElideRight, int(words.width())));
}

void PresetList::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    fillRounded(painter, rect(), metrics::radiusControl, m_look.theme().surfaceField);
    strokeEdge(painter, rect(), metrics::radiusControl, m_look.theme().lineEdge);
    for (qsizetype row = 0; row < m_picker.presets().size(); ++row)
        paintRow(painter, row);
}

} // namespace dropshade
