// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "palettes/PresetList.h"

#include "palettes/PresetChoice.h"
#include "palettes/SwatchPainting.h"
#include "widgets/Metrics.h"
#include "widgets/Painting.h"
#include "widgets/RadioButton.h"
#include "widgets/ScrollArea.h"
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

class Row : public RadioButton {
public:
    Row(const Look& look, const Palette& preset, QWidget* parent)
        : RadioButton(look, parent), m_name(preset.name()), m_chips(presetChips(preset)) {
        setAccessibleName(m_name);
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    }

    [[nodiscard]] QSize sizeHint() const override {
        return {0, std::max(metrics::rowList, lineHeight(TextStyle::Body) + metrics::space16)};
    }
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paint(QPainter& painter) override {
        const QRectF area = rect();
        fillRounded(painter, area, metrics::radiusControl,
                    isChecked() ? theme().accentSoft : stateFill());
        if (isChecked())
            drawTick(painter, area, theme());
        constexpr double chip = metrics::spineChip;
        const double length = chip * double(m_chips.size());
        const QRectF spine(area.right() - metrics::space8 - length, area.center().y() - chip / 2.0,
                           length, chip);
        if (!m_chips.isEmpty())
            drawSpine(painter, spine, m_chips, theme());
        painter.setPen(theme().textPrimary);
        drawWords(painter, textFont(isChecked() ? TextStyle::Strong : TextStyle::Body),
                  QRectF(area.left() + rowPadding, area.top(),
                         spine.left() - area.left() - rowPadding - metrics::space8, area.height()),
                  m_name);
    }

private:
    QString m_name;
    QList<PaletteSwatch> m_chips;
};

} // namespace

PresetList::PresetList(const Look& look, PresetPicker& picker, QWidget* parent)
    : QWidget(parent), m_look(look), m_picker(picker) {
    auto* column = new QWidget;
    auto* lines = new QVBoxLayout(column);
    lines->setContentsMargins(listPadding, listPadding, listPadding, listPadding);
    lines->setSpacing(0);
    for (const Palette& preset : picker.presets())
        addRow(preset, *column);
    auto* area = new ScrollArea(look, this);
    area->setWidget(column);
    auto* frame = new QVBoxLayout(this);
    // The edge lies around what scrolls.
    constexpr int edge = 1;
    frame->setContentsMargins(edge, edge, edge, edge);
    frame->addWidget(area);
    const int inView = std::min(int(m_rows.size()), mostRowsInView);
    const int rowHeight = m_rows.isEmpty() ? metrics::rowList : m_rows.first()->sizeHint().height();
    setFixedHeight(inView * rowHeight + 2 * listPadding + 2 * edge);
    connect(&look, &Look::didChange, this, qOverload<>(&QWidget::update));
}

void PresetList::addRow(const Palette& preset, QWidget& column) {
    auto* row = new Row(m_look, preset, &column);
    row->setChecked(preset.id() == m_picker.selectedPresetId());
    row->installEventFilter(this);
    // The arrow keys select without a click.
    connect(row, &QAbstractButton::toggled, this, [this, id = preset.id()](bool isOn) {
        if (isOn)
            m_picker.select(id);
    });
    column.layout()->addWidget(row);
    m_rows.append(row);
}

bool PresetList::eventFilter(QObject* watched, QEvent* event) {
    const auto choose = [watched](QAbstractButton* row) {
        row->setChecked(true);
        if (row != watched)
            row->setFocus(Qt::TabFocusReason);
    };
    if (event->type() == QEvent::MouseButtonDblClick) {
        choose(qobject_cast<QAbstractButton*>(watched));
        Q_EMIT chosen();
        return true;
    }
    if (event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    switch (static_cast<QKeyEvent*>(event)->key()) {
    case Qt::Key_Home:
        choose(m_rows.first());
        return true;
    case Qt::Key_End:
        choose(m_rows.last());
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        Q_EMIT chosen();
        return true;
    default:
        return QWidget::eventFilter(watched, event);
    }
}

void PresetList::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    fillRounded(painter, rect(), metrics::radiusControl, m_look.theme().surfaceField);
    strokeEdge(painter, rect(), metrics::radiusControl, m_look.theme().lineEdge);
}

} // namespace dropshade
