// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "contrast/ContrastWindow.h"

#include "contrast/ColorInputRow.h"
#include "contrast/ContrastDisplay.h"
#include "contrast/ContrastRuler.h"
#include "contrast/SamplePreviewCard.h"
#include "widgets/Hairline.h"
#include "widgets/Label.h"
#include "widgets/Metrics.h"
#include "widgets/SegmentedControl.h"
#include "widgets/TextButton.h"
#include "widgets/ToolTip.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace dropshade {

namespace {

constexpr int contentWidth = 420;
constexpr int pickerWidth = 160;
constexpr int doneWidth = 80;
constexpr int barMargin = 6;

// Here for the tools that collect what is to be translated; the table is below all translation.
[[maybe_unused]] constexpr const char* marked[][2] = {
    //: A way to measure contrast
    QT_TRANSLATE_NOOP3("dropshade::ContrastWindow", "WCAG 2", "Contrast algorithm"),
    //: A way to measure contrast
    QT_TRANSLATE_NOOP3("dropshade::ContrastWindow", "APCA", "Contrast algorithm"),
};

} // namespace

ContrastWindow::ContrastWindow(const ColorWindowSurroundings& surroundings, Announcer& announcer,
                               ContrastModel& model)
    : FloatingWindow(surroundings.look), m_surroundings(surroundings), m_model(model) {
    setWindowTitle(tr("Check Contrast", "Contrast window title"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->setSizeConstraint(QLayout::SetFixedSize);
    column->addWidget(makeRows(announcer));
    column->addWidget(new Hairline(look()));
    column->addWidget(makeVerdict());
    column->addWidget(new Hairline(look()));
    column->addWidget(makeBar());
    connect(&model, &ContrastModel::colorsDidChange, this, &ContrastWindow::showModel);
    connect(&surroundings.settings, &AppSettings::contrastAlgorithmDidChange, this,
            &ContrastWindow::showAlgorithm);
    // A typed text would show beside the colour that a button brings, and undo it in the end.
    endTypingAtPresses();
    showAlgorithm();
    // Nothing is marked before the first Tab, which goes to the first control.
    setFocus(Qt::OtherFocusReason);
}

ColorInputRow& ContrastWindow::row(ContrastModel::SwatchTarget target) const {
    return target == ContrastModel::SwatchTarget::background ? *m_background : *m_foreground;
}

QWidget* ContrastWindow::makeRows(Announcer& announcer) {
    auto* rows = new QWidget;
    rows->setFixedWidth(contentWidth);
    auto* column = new QVBoxLayout(rows);
    column->setContentsMargins(0, metrics::space16, 0, metrics::space16 - metrics::focusReach);
    column->setSpacing(metrics::space12 - metrics::focusReach);
    using Target = ContrastModel::SwatchTarget;
    m_background = new ColorInputRow(m_surroundings, announcer, m_model, Target::background);
    m_foreground = new ColorInputRow(m_surroundings, announcer, m_model, Target::foreground);
    column->addWidget(m_background);
    column->addWidget(m_foreground);
    return rows;
}

QWidget* ContrastWindow::makeVerdict() {
    auto* area = new QWidget;
    auto* column = new QVBoxLayout(area);
    column->setContentsMargins(metrics::windowMargin, metrics::space16 - 1, metrics::windowMargin,
                               metrics::space16);
    column->setSpacing(0);
    m_measureName = new Label(look(), TextStyle::Overline, Label::Tone::Secondary);
    m_measure = new Label(look(), TextStyle::Measure, Label::Tone::Primary);
    ToolTip::installOn(*m_measure, look());
    QStringList titles;
    for (const ContrastAlgorithmInfo& info : contrastAlgorithms)
        titles.append(tr(std::string(info.displayName).c_str(), "Contrast algorithm"));
    //: Name of the choice between WCAG 2 and APCA for screen readers
    m_algorithm =
        new SegmentedControl(look(), tr("Contrast algorithm", "Algorithm picker"), titles);
    m_algorithm->setFixedWidth(pickerWidth);
    m_algorithm->setSegmentToolTip(
        tr("Choose how contrast is measured. WCAG 2 reports a luminance ratio; APCA reports "
           "perceptual lightness contrast (Lc).",
           "Algorithm picker tooltip"));
    connect(m_algorithm, &SegmentedControl::picked, this, [this](int index) {
        m_surroundings.settings.setContrastAlgorithm(
            contrastAlgorithms[static_cast<std::size_t>(index)].algorithm);
    });
    auto* words = new QVBoxLayout;
    words->setSpacing(metrics::space4);
    words->addWidget(m_measureName);
    words->addWidget(m_measure);
    auto* top = new QHBoxLayout;
    top->addLayout(words, 1);
    top->addWidget(m_algorithm, 0, Qt::AlignTop);
    column->addLayout(top);
    m_ruler = new ContrastRuler(look());
    column->addSpacing(9);
    column->addWidget(m_ruler);
    column->addSpacing(13);
    m_card = new SamplePreviewCard(look());
    column->addWidget(m_card);
    return area;
}

QWidget* ContrastWindow::makeBar() {
    auto* bar = new QWidget;
    auto* row = new QHBoxLayout(bar);
    row->setContentsMargins(barMargin, metrics::space12, metrics::windowMargin, metrics::space12);
    auto* swap = new TextButton(look(), TextButton::Kind::Quiet, tr("Swap Colors", "Swap button"));
    swap->setLeadingIcon(Icon::Refresh);
    swap->setToolTip(tr("Swap background and foreground", "Swap tooltip"));
    auto* done = new TextButton(look(), TextButton::Kind::Default, tr("Done", "Close button"));
    done->setMinimumWidth(doneWidth);
    row->addWidget(swap);
    row->addStretch(1);
    row->addWidget(done);
    connect(swap, &QAbstractButton::clicked, &m_model, &ContrastModel::swapColors);
    connect(done, &QAbstractButton::clicked, this, [this] {
        const auto close = m_model.closeAction;
        if (close)
            close();
    });
    return bar;
}

void ContrastWindow::showAlgorithm() {
    const bool isWcag = m_surroundings.settings.contrastAlgorithm() == ContrastAlgorithm::wcag;
    m_algorithm->setCurrentIndex(isWcag ? 0 : 1);
    m_measureName->setWords(isWcag ? tr("RATIO", "Ratio label") : tr("APCA", "APCA label"));
    m_measure->setToolTip(
        isWcag ? QString()
               : tr("APCA Lc — perceptual lightness contrast (APCA-W3). Sign indicates polarity "
                    "(positive = dark text on light background).",
                    "APCA help"));
    showModel();
}

void ContrastWindow::showModel() {
    const ContrastAlgorithm algorithm = m_surroundings.settings.contrastAlgorithm();
    const double ratio = m_model.ratio();
    const double lc = m_model.lc();
    const bool isWcag = algorithm == ContrastAlgorithm::wcag;
    m_measure->setWords(QString::fromStdString(isWcag ? formatRatio(ratio) : formatLc(lc)));
    m_ruler->setMeasure(algorithm, isWcag ? ratio : lc);
    m_card->setSample(m_model.bgColor(), m_model.fgColor(),
                      ContrastVerdicts::sampleLines(algorithm, ratio, lc));
}

} // namespace dropshade
