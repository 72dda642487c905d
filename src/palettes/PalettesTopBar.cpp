// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "palettes/PalettesTopBar.h"

#include "widgets/IconButton.h"
#include "widgets/Metrics.h"
#include "widgets/Painting.h"
#include "widgets/Slider.h"
#include "widgets/TextButton.h"
#include "widgets/ToolTip.h"

#include <QEvent>
#include <QPainter>

#include <algorithm>

namespace dropshade {
namespace {

constexpr int sliderWidth = 176;
constexpr int smallSquare = 8;
constexpr int largeSquare = 14;
constexpr double squareLine = 1.5;
constexpr int squareGap = 4;
/// Below this a slider between its squares is too short to be of use.
constexpr int leastSliderBetweenSquares = 96;

} // namespace

PalettesTopBar::PalettesTopBar(const Look& look, PalettesModel& model, QWidget* parent)
    : QWidget(parent), m_look(look), m_model(model),
      //: Tooltip of a slider in the palettes window
      m_size(new Slider(look, tr("Swatch size"), this)),
      //: Tooltip of a switch in the palettes window
      m_closeOnCopy(new IconButton(look, Icon::Bolt, tr("Close dialog after copying"), this)),
      //: Button in the palettes window
      m_add(new TextButton(look, TextButton::Kind::Plain, tr("New Palette"), this)),
      m_compactAdd(new IconButton(look, Icon::Add, tr("New Palette"), this)) {
    m_size->setRange(0, swatchSizeCount - 1);
    m_size->setToolTip(tr("Swatch size"));
    ToolTip::installOn(*m_size, look);
    m_size->installEventFilter(this);
    m_closeOnCopy->setCheckable(true);
    m_add->setLeadingIcon(Icon::Add);
    adoptSettings();
    AppSettings& settings = model.settings();
    connect(m_size, &QSlider::valueChanged, this,
            [&settings](int value) { settings.setSwatchSize(SwatchSize(value)); });
    connect(m_closeOnCopy, &QAbstractButton::toggled, this,
            [&settings](bool on) { settings.setClosePaletteDialogOnCopy(on); });
    connect(&settings, &AppSettings::swatchSizeDidChange, this, &PalettesTopBar::adoptSettings);
    connect(&settings, &AppSettings::closePaletteDialogOnCopyDidChange, this,
            &PalettesTopBar::adoptSettings);
    connect(m_add, &QAbstractButton::clicked, this, [this] { openAddMenu(*m_add); });
    connect(m_compactAdd, &QAbstractButton::clicked, this, [this] { openAddMenu(*m_compactAdd); });
    connect(&model, &PalettesModel::compactDidChange, this, &PalettesTopBar::arrange);
    connect(&look, &Look::didChange, this, qOverload<>(&QWidget::update));
}

QSize PalettesTopBar::sizeHint() const {
    const int content = std::max(m_add->sizeHint().height(), m_size->sizeHint().height());
    return {0, content + metrics::topBar - metrics::control};
}

void PalettesTopBar::adoptSettings() {
    m_size->setValue(int(m_model.settings().swatchSize()));
    m_closeOnCopy->setChecked(m_model.settings().closePaletteDialogOnCopy());
}

void PalettesTopBar::openAddMenu(const QWidget& button) {
    Q_EMIT addMenuRequested(
        button.mapToGlobal(QPoint(button.width(), button.height() + metrics::space4)));
}

bool PalettesTopBar::eventFilter(QObject* watched, QEvent* event) {
    if (watched == m_size && event->type() == QEvent::Enter)
        //: Status bar hint while the pointer is over the slider
        m_model.hover().setHint(tr("Adjust the size of the color swatches."));
    if (watched == m_size && event->type() == QEvent::Leave)
        m_model.hover().setHint(std::nullopt);
    return QWidget::eventFilter(watched, event);
}

void PalettesTopBar::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    arrange();
}

void PalettesTopBar::arrange() {
    const bool isCompact = m_model.isCompact();
    const int margin = isCompact ? metrics::compactMargin : metrics::windowMargin;
    QWidget* const add = isCompact ? static_cast<QWidget*>(m_compactAdd) : m_add;
    m_add->setVisible(!isCompact);
    m_compactAdd->setVisible(isCompact);
    int right = width() - margin;
    const auto putLeft = [&](QWidget& widget, int gap) {
        const QSize size = widget.sizeHint();
        widget.setGeometry(right - size.width(), (height() - size.height()) / 2, size.width(),
                           size.height());
        right -= size.width() + gap;
    };
    putLeft(*add, isCompact ? metrics::space4 : metrics::space8);
    putLeft(*m_closeOnCopy, metrics::space8);
    const int left = margin + smallSquare + squareGap;
    const int between = right - left - squareGap - largeSquare;
    m_showsSquares = between >= leastSliderBetweenSquares;
    const int start = m_showsSquares ? left : margin - metrics::space4;
    const int room = m_showsSquares ? between : right - start;
    const int high = m_size->sizeHint().height();
    m_size->setGeometry(start, (height() - high) / 2, std::min(sliderWidth, room), high);
    update();
}

void PalettesTopBar::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (!m_showsSquares)
        return;
    const double middle = height() / 2.0;
    const auto square = [&](double left, double side, double radius) {
        strokeInside(painter, QRectF(left, middle - side / 2.0, side, side), radius, squareLine,
                     m_look.theme().textSecondary);
    };
    const QRect slider = m_size->geometry();
    square(slider.left() - squareGap - smallSquare, smallSquare, 2.0);
    square(slider.right() + 1 + squareGap, largeSquare, 3.0);
}

} // namespace dropshade
