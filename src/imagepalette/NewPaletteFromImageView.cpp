// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "imagepalette/NewPaletteFromImageView.h"

#include "imagepalette/ImageZone.h"
#include "imagepalette/PreviewStrip.h"
#include "imagepalette/QuantizerTitles.h"
#include "widgets/ErrorSign.h"
#include "widgets/Hairline.h"
#include "widgets/Label.h"
#include "widgets/Metrics.h"
#include "widgets/Picker.h"
#include "widgets/SegmentedControl.h"
#include "widgets/Slider.h"
#include "widgets/Spinner.h"
#include "widgets/TextButton.h"
#include "widgets/TextField.h"

#include <QAbstractButton>
#include <QDropEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QMimeData>
#include <QPointer>
#include <QShortcut>

#include <algorithm>

namespace dropshade {

namespace {

constexpr QSize leastSize(440, 560);
constexpr QSize usualSize(460, 600);
constexpr int labelColumn = 88;
const QString labelName = QStringLiteral("rowLabel");

/// One column of labels in all rows, as wide as the longest of them needs.
void alignLabels(const QWidget& window) {
    const QList<Label*> labels = window.findChildren<Label*>(labelName);
    int widest = labelColumn;
    for (const Label* label : labels)
        widest = std::max(widest, label->sizeHint().width() + metrics::space8);
    for (Label* label : labels)
        label->setMinimumWidth(widest);
}
constexpr int countColumn = 32;
/// The slider's widget is wider than its track by what its thumb needs.
constexpr int sliderOverhang = 4;

} // namespace

NewPaletteFromImageView::NewPaletteFromImageView(const Look& look, const Surroundings& surroundings,
                                                 NewPaletteFromImageModel& model)
    : FloatingWindow(look), m_surroundings(surroundings), m_model(model) {
    //: Title of the sheet that makes a palette from an image
    setWindowTitle(tr("New Palette from Image"));
    setMinimumSize(leastSize);
    resize(usualSize);
    setAcceptDrops(true);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, metrics::windowMargin, 0, 0);
    column->setSpacing(0);
    addZone(*column);
    addError(*column);
    column->addSpacing(metrics::space16);
    addControls(*column);
    addPreview(*column);
    addName(*column);
    addFooter(*column);
    alignLabels(*this);
    addKeys();
    follow();
}

NewPaletteFromImageView::~NewPaletteFromImageView() = default;

Label* NewPaletteFromImageView::makeLabel(const QString& words) {
    auto* label = new Label(look(), TextStyle::Body, Label::Tone::Secondary, words, this);
    label->setObjectName(labelName);
    label->setMinimumSize(labelColumn, metrics::control);
    label->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    return label;
}

void NewPaletteFromImageView::addZone(QBoxLayout& column) {
    auto* row = new QHBoxLayout;
    row->setContentsMargins(metrics::windowMargin, 0, metrics::windowMargin, 0);
    m_zone = new ImageZone(look(), this);
    row->addWidget(m_zone);
    column.addLayout(row, 1);
    connect(m_zone, &ImageZone::browseRequested, this, &NewPaletteFromImageView::browse);
    connect(m_zone, &ImageZone::removeRequested, &m_model, &NewPaletteFromImageModel::removeImage);
}

void NewPaletteFromImageView::addError(QBoxLayout& column) {
    m_errorRow = new QWidget(this);
    auto* row = new QHBoxLayout(m_errorRow);
    row->setContentsMargins(metrics::windowMargin, metrics::space8, metrics::windowMargin, 0);
    row->setSpacing(metrics::space8);
    row->addWidget(new ErrorSign(look(), m_errorRow));
    m_error = new Label(look(), TextStyle::Caption, Label::Tone::Danger, QString(), m_errorRow);
    row->addWidget(m_error, 1);
    m_errorRow->hide();
    column.addWidget(m_errorRow);
}

void NewPaletteFromImageView::addControls(QBoxLayout& column) {
    auto* grid = new QGridLayout;
    grid->setContentsMargins(metrics::windowMargin, 0, metrics::windowMargin, 0);
    grid->setHorizontalSpacing(0);
    grid->setVerticalSpacing(metrics::space8);
    grid->setColumnMinimumWidth(0, labelColumn);
    grid->setColumnStretch(1, 1);
    addCount(*grid);

    //: The way in which the colours are found
    const QString algorithm = tr("Algorithm");
    m_algorithm = new SegmentedControl(look(), algorithm, algorithmTitles(), this);
    m_algorithm->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    grid->addWidget(makeLabel(algorithm), 1, 0);
    grid->addWidget(m_algorithm, 1, 1);
    connect(m_algorithm, &SegmentedControl::picked, this, [this](int index) {
        m_model.setAlgorithm(quantizationAlgorithms[static_cast<std::size_t>(index)].value);
    });

    //: The order of the colours
    const QString order = tr("Sort by");
    auto* sortBy = new Picker(look(), order, this);
    for (const QString& title : sortOrderTitles())
        sortBy->addRow(title);
    sortBy->setCurrentIndex(static_cast<int>(m_model.sortOrder()));
    sortBy->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    grid->addWidget(makeLabel(order), 2, 0);
    grid->addWidget(sortBy, 2, 1);
    connect(sortBy, &Picker::picked, this, [this](int index) {
        m_model.setSortOrder(swatchSortOrders[static_cast<std::size_t>(index)].value);
    });
    column.addLayout(grid);
}

void NewPaletteFromImageView::addCount(QGridLayout& grid) {
    //: How many colours the palette will have
    const QString colors = tr("Colors");
    auto* left = new QHBoxLayout;
    left->setSpacing(0);
    left->addWidget(makeLabel(colors));
    //: The sign that colours are being worked out, to a screen reader
    m_spinner = new Spinner(look(), tr("Working"), this);
    auto* right = new QHBoxLayout;
    right->setContentsMargins(0, 0, 0, 0);
    right->setSpacing(0);
    m_slider = new Slider(look(), colors, this);
    m_slider->setRange(static_cast<int>(NewPaletteFromImageModel::fewestColors),
                       static_cast<int>(NewPaletteFromImageModel::mostColors));
    m_slider->setValue(static_cast<int>(m_model.colorCount()));
    m_slider->setPageStep(4);
    m_count = new Label(look(), TextStyle::ValueField, Label::Tone::Primary,
                        QString::number(m_slider->value()), this);
    m_count->setMinimumWidth(countColumn);
    m_count->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    right->addWidget(m_slider, 1);
    right->addWidget(m_count);
    // Over the end of the label's column, so that nothing moves when it shows.
    auto* cell = new QGridLayout;
    cell->setContentsMargins(0, 0, 0, 0);
    cell->addLayout(left, 0, 0);
    cell->addWidget(m_spinner, 0, 0, Qt::AlignRight | Qt::AlignVCenter);
    auto* row = new QHBoxLayout;
    row->setSpacing(0);
    row->addLayout(cell);
    row->addSpacing(-sliderOverhang);
    row->addLayout(right, 1);
    grid.addLayout(row, 0, 0, 1, 2);
    connect(m_slider, &QSlider::valueChanged, this, [this](int value) {
        m_count->setWords(QString::number(value));
        m_model.setColorCount(value);
    });
}

void NewPaletteFromImageView::addPreview(QBoxLayout& column) {
    const int margin = metrics::windowMargin - metrics::focusReach;
    auto* row = new QHBoxLayout;
    row->setContentsMargins(margin, metrics::space16 - metrics::focusReach, margin,
                            metrics::space16 - metrics::focusReach);
    m_strip = new PreviewStrip(look(), m_surroundings.nameOf, this);
    row->addWidget(m_strip);
    column.addLayout(row);
    connect(m_strip, &PreviewStrip::picked, this, [this](const QuantizedColor& color) {
        m_surroundings.copy(color);
        //: To a screen reader: a colour's text is on the clipboard
        m_announcer.announce(tr("Copied %1").arg(m_surroundings.nameOf(color)));
    });
}

void NewPaletteFromImageView::addName(QBoxLayout& column) {
    auto* row = new QHBoxLayout;
    row->setContentsMargins(metrics::windowMargin, 0, metrics::windowMargin, metrics::space16);
    row->setSpacing(0);
    //: The name of the palette to be
    const QString name = tr("Name");
    m_name = new TextField(look(), TextField::Content::Words, this);
    m_name->setAccessibleName(name);
    m_name->setPlaceholderText(NewPaletteFromImageModel::untitledPaletteName());
    m_name->setText(m_model.paletteName());
    m_name->installEventFilter(this);
    row->addWidget(makeLabel(name));
    row->addWidget(m_name, 1);
    column.addLayout(row);
    connect(m_name, &QLineEdit::textChanged, &m_model, &NewPaletteFromImageModel::setPaletteName);
}

void NewPaletteFromImageView::addFooter(QBoxLayout& column) {
    column.addWidget(new Hairline(look(), this));
    auto* row = new QHBoxLayout;
    row->setContentsMargins(metrics::windowMargin, metrics::space12, metrics::windowMargin,
                            metrics::space12);
    row->setSpacing(metrics::space8);
    //: Closes the sheet without a palette
    auto* cancel = new TextButton(look(), TextButton::Kind::Plain, tr("Cancel"), this);
    //: Makes the palette and closes the sheet
    auto* create = new TextButton(look(), TextButton::Kind::Default, tr("Create Palette"), this);
    row->addStretch();
    row->addWidget(cancel);
    row->addWidget(create);
    column.addLayout(row);
    connect(cancel, &QAbstractButton::clicked, this, &QWidget::close);
    connect(create, &QAbstractButton::clicked, &m_model, &NewPaletteFromImageModel::createPalette);
}

void NewPaletteFromImageView::addKeys() {
    // The base has Escape and Ctrl+W.
    connect(new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_S), this), &QShortcut::activated,
            &m_model, &NewPaletteFromImageModel::createPalette);
    connect(new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_V), this), &QShortcut::activated,
            &m_model, &NewPaletteFromImageModel::paste);
}

void NewPaletteFromImageView::follow() {
    m_algorithm->setCurrentIndex(static_cast<int>(m_model.algorithm()));
    connect(&m_model, &NewPaletteFromImageModel::imageDidChange, this,
            &NewPaletteFromImageView::showImage);
    connect(&m_model, &NewPaletteFromImageModel::errorMessageDidChange, this,
            &NewPaletteFromImageView::showError);
    connect(&m_model, &NewPaletteFromImageModel::swatchesDidChange, this,
            [this] { m_strip->setColors(m_model.sortedSwatches()); });
    connect(&m_model, &NewPaletteFromImageModel::paletteNameDidChange, this, [this] {
        if (m_name->text() != m_model.paletteName())
            m_name->setText(m_model.paletteName());
    });
    connect(&m_model, &NewPaletteFromImageModel::isDropTargetedDidChange, this,
            [this] { m_zone->setTargeted(m_model.isDropTargeted()); });
    connect(&m_model, &NewPaletteFromImageModel::isProcessingDidChange, this,
            [this] { m_spinner->setSpinning(m_model.isProcessing() && m_model.image()); });
}

void NewPaletteFromImageView::showImage() {
    const auto& image = m_model.image();
    //: The image that the palette comes from, to a screen reader; %1 is its file's name
    const QString named = tr("Image %1").arg(m_model.sourceFilename().value_or(QString()));
    m_zone->setImage(image ? image->image : QImage(), named.trimmed());
    // Removed in the middle of a computation, the model goes on saying that there is one.
    m_spinner->setSpinning(image && m_model.isProcessing());
}

void NewPaletteFromImageView::showError() {
    const auto& message = m_model.errorMessage();
    m_error->setWords(message.value_or(QString()));
    m_errorRow->setVisible(message.has_value());
    if (message)
        m_announcer.announce(*message);
}

void NewPaletteFromImageView::browse() {
    m_surroundings.filePanels.open(
        //: Title of the panel that asks for an image
        tr("Choose an Image"),
        //: Kind of file in a panel
        {tr("Images"), ImageLoader::fileExtensions()},
        [this, life = QPointer<QObject>(&m_life)](const std::optional<QString>& path) {
            if (life && path)
                m_model.loadFile(*path);
        });
}

void NewPaletteFromImageView::showEvent(QShowEvent* event) {
    FloatingWindow::showEvent(event);
    if (!event->spontaneous())
        m_zone->setFocus(Qt::OtherFocusReason);
    m_model.appear();
}

void NewPaletteFromImageView::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) {
        FloatingWindow::keyPressEvent(event);
        return;
    }
    // The button that has the keyboard, or else the default one.
    if (auto* button = qobject_cast<QPushButton*>(focusWidget()))
        button->click();
    else
        m_model.createPalette();
}

bool NewPaletteFromImageView::eventFilter(QObject* watched, QEvent* event) {
    if (watched == m_name && event->type() == QEvent::ShortcutOverride &&
        static_cast<QKeyEvent*>(event)->matches(QKeySequence::Paste)) {
        // The field takes what is only text; all else is for the sheet.
        const QMimeData* content = m_surroundings.pasteboard.content();
        const bool isForField =
            content && content->hasText() && !NewPaletteFromImageModel::accepts(*content);
        if (!isForField) {
            event->ignore();
            return true;
        }
    }
    return FloatingWindow::eventFilter(watched, event);
}

void NewPaletteFromImageView::dragEnterEvent(QDragEnterEvent* event) {
    if (!NewPaletteFromImageModel::accepts(*event->mimeData()))
        return;
    event->setDropAction(Qt::CopyAction);
    event->accept();
    m_model.setDropTargeted(true);
}

void NewPaletteFromImageView::dragLeaveEvent(QDragLeaveEvent*) {
    m_model.setDropTargeted(false);
}

void NewPaletteFromImageView::dropEvent(QDropEvent* event) {
    event->setDropAction(Qt::CopyAction);
    event->accept();
    m_model.setDropTargeted(false);
    m_model.drop(*event->mimeData());
}

} // namespace dropshade
