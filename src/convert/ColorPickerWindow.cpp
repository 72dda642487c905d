// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "convert/ColorPickerWindow.h"

#include "ColorSelector/SelectorPanel.h"
#include "app/SettingsReaders.h"
#include "convert/EmptyState.h"
#include "convert/FormatList.h"
#include "convert/PreviewSwatch.h"
#include "widgets/Hairline.h"
#include "widgets/IconButton.h"
#include "widgets/Metrics.h"
#include "widgets/ScrollArea.h"
#include "widgets/TextField.h"

#include <QHBoxLayout>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace dropshade {

ColorPickerWindow::ColorPickerWindow(const ColorWindowSurroundings& surroundings,
                                     ColorPickerModel& model)
    : FloatingWindow(surroundings.look), m_surroundings(surroundings), m_model(model),
      m_link(model, surroundings.scheduler) {
    setWindowTitle(tr("Color Picker", "Color picker window title"));
    setMinimumSize(380, 440);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(makeSelectors());
    column->addWidget(makeInputRow());
    column->addWidget(new Hairline(look()));
    column->addWidget(makeBelow(), 1);
    connectInput();
    connectModel();
    showModel();
    focusInput();
}

QWidget* ColorPickerWindow::makeSelectors() {
    m_selectors = new SelectorPanel(look(), SelectorPanel::Parts::WithAlpha, metrics::windowMargin);
    m_selectors->setComponents(m_link.fields());
    connect(m_selectors, &SelectorPanel::componentsChanged, &m_link, &SelectorLink::setFields);
    connect(&m_link, &SelectorLink::fieldsDidChange, this,
            [this] { m_selectors->setComponents(m_link.fields()); });
    return m_selectors;
}

QWidget* ColorPickerWindow::makeInputRow() {
    auto* bar = new QWidget;
    auto* row = new QHBoxLayout(bar);
    row->setContentsMargins(metrics::windowMargin, metrics::space12, metrics::windowMargin,
                            metrics::space12);
    row->setSpacing(0);
    m_preview = new PreviewSwatch(look());
    m_input = new TextField(look(), TextField::Content::Value);
    m_input->setFieldHeight(metrics::preview);
    m_input->setPlaceholderText(tr("Paste or type a color", "Convert input placeholder"));
    //: Name of the field for screen readers
    m_input->setAccessibleName(tr("Color", "Convert input name"));
    m_input->setClearButton(tr("Clear", "Clear input tooltip"));
    auto* sampler =
        new IconButton(look(), Icon::Sampler, tr("Pick color from screen", "Eyedropper tooltip"));
    m_copy = new IconButton(look(), Icon::Copy, tr("Copy color", "Copy button tooltip"));
    m_closeOnCopy = new IconButton(look(), Icon::Bolt,
                                   tr("Close dialog after copying", "Close-on-copy tooltip"));
    m_closeOnCopy->setCheckable(true);
    row->addWidget(m_preview);
    row->addSpacing(metrics::space8);
    row->addWidget(m_input, 1);
    row->addSpacing(metrics::space8);
    for (IconButton* button : {sampler, m_copy, m_closeOnCopy})
        row->addWidget(button);
    connect(sampler, &QAbstractButton::clicked, this, [this] {
        if (m_model.pickAction)
            m_model.pickAction();
    });
    connect(m_copy, &QAbstractButton::clicked, this, [this] { m_model.copyRowColor(); });
    return bar;
}

QWidget* ColorPickerWindow::makeBelow() {
    m_below = new QStackedWidget;
    m_empty = new EmptyState(look());
    auto* scroll = new ScrollArea(look());
    m_formats = new FormatList(look(), m_model);
    scroll->setWidget(m_formats);
    m_scroll = scroll;
    m_below->addWidget(m_empty);
    m_below->addWidget(m_scroll);
    return m_below;
}

void ColorPickerWindow::connectInput() {
    connect(m_input, &QLineEdit::textEdited, &m_model, &ColorPickerModel::setInput);
    connect(m_input, &TextField::cleared, this, [this] {
        m_model.setInput(QString());
        m_input->setFocus(Qt::OtherFocusReason);
    });
    AppSettings& settings = m_surroundings.settings;
    connect(m_closeOnCopy, &QAbstractButton::clicked, &settings,
            &AppSettings::setCloseConvertDialogOnCopy);
    const auto showToggle = [this] {
        m_closeOnCopy->setChecked(m_surroundings.settings.closeConvertDialogOnCopy());
    };
    connect(&settings, &AppSettings::closeConvertDialogOnCopyDidChange, this, showToggle);
    showToggle();
}

void ColorPickerWindow::connectModel() {
    for (const auto signal : {&ColorPickerModel::inputDidChange, &ColorPickerModel::parsedDidChange,
                              &ColorPickerModel::didParseFailDidChange})
        connect(&m_model, signal, this, &ColorPickerWindow::showModel);
    connect(&m_model, &ColorPickerModel::focusTokenDidChange, this, &ColorPickerWindow::focusInput);
    connect(&m_model, &ColorPickerModel::didCopy, this,
            [this](const QString&, std::optional<ColorFormat> format) {
                if (FormatRow* row = format ? m_formats->row(*format) : nullptr)
                    row->flash();
            });
    connect(&m_surroundings.settings, &AppSettings::remoteChangeTickDidChange, m_formats,
            &FormatList::refresh);
    connect(&m_surroundings.defaults, &UserDefaults::didChange, m_formats,
            [this](const QString& key) {
                if (key == keys::useHashPrefix || key == keys::useLowercase ||
                    key == keys::decimalPlaces)
                    m_formats->refresh();
            });
}

void ColorPickerWindow::showModel() {
    if (m_input->text() != m_model.input())
        m_input->setText(m_model.input());
    m_input->setFailed(m_model.didParseFail());
    m_preview->setColor(m_model.parsed());
    m_copy->setEnabled(m_model.rowsEnabled());
    const bool isEmpty = !m_model.parsed() && m_model.input().isEmpty();
    m_below->setCurrentWidget(isEmpty ? m_empty : m_scroll);
    if (!isEmpty)
        m_formats->refresh();
}

void ColorPickerWindow::focusInput() {
    m_input->setFocus(Qt::OtherFocusReason);
    m_input->selectAll();
}

} // namespace dropshade
