// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "widgets/TextField.h"

#include "widgets/ErrorSign.h"
#include "widgets/FocusRing.h"
#include "widgets/IconButton.h"
#include "widgets/Menu.h"
#include "widgets/Metrics.h"
#include "widgets/Painting.h"
#include "widgets/ToolTip.h"
#include "widgets/TypeScale.h"

#include <QAction>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QEvent>
#include <QGuiApplication>

#include <algorithm>
#include <memory>

namespace dropshade {

namespace {

constexpr int textInset = 8;

} // namespace

TextField::TextField(const Look& look, Content content, QWidget* parent)
    : QLineEdit(parent), m_look(look), m_content(content), m_height(metrics::control) {
    setStyle(look.style());
    setFrame(false);
    setAttribute(Qt::WA_Hover);
    setAttribute(Qt::WA_MacShowFocusRect, false);
    setFocusRadius(*this, metrics::radiusControl);
    ToolTip::installOn(*this, look);
    adopt();
    arrange();
    connect(&look, &Look::didChange, this, &TextField::adopt);
    connect(this, &QLineEdit::textChanged, this, [this] {
        arrange();
        if (!hasFocus() && !isModified())
            showBeginning();
    });
}

void TextField::setFieldHeight(int height) {
    m_height = height;
    updateGeometry();
}

void TextField::setFailed(bool failed) {
    if (failed == m_isFailed)
        return;
    m_isFailed = failed;
    arrange();
    update();
}

void TextField::setFailure(const QString& reason) {
    if (!m_sign) {
        m_sign = new ErrorSign(m_look, this);
        m_sign->setFixedSize(metrics::iconButtonField, metrics::iconButtonField);
        m_sign->setCursor(Qt::ArrowCursor);
        ToolTip::installOn(*m_sign, m_look);
    }
    m_sign->setToolTip(reason);
    m_sign->setAccessibleName(reason);
    arrange();
}

void TextField::setClearButton(const QString& name) {
    m_clearButton = new IconButton(m_look, Icon::Close, name, metrics::iconButtonField, this);
    m_clearButton->setCursor(Qt::ArrowCursor);
    connect(m_clearButton, &QAbstractButton::clicked, this, &TextField::cleared);
    arrange();
}

QSize TextField::sizeHint() const {
    const int line = lineHeight(TextStyle::ValueField) + metrics::space12;
    return {QLineEdit::sizeHint().width(), std::max(m_height, line)};
}

QSize TextField::minimumSizeHint() const {
    return {metrics::rowPalette, sizeHint().height()};
}

bool TextField::event(QEvent* event) {
    m_hover.follow(*event);
    return QLineEdit::event(event);
}

void TextField::paintEvent(QPaintEvent* event) {
    {
        QPainter painter(this);
        const Theme& theme = m_look.theme();
        const QRectF area = rect();
        if (isEnabled())
            fillRounded(painter, area, metrics::radiusControl, theme.surfaceField);
        if (m_isFailed)
            strokeInside(painter, area, metrics::radiusControl, metrics::lineError,
                         theme.dangerEdge);
        else
            strokeEdge(painter, area, metrics::radiusControl,
                       blended(theme.lineEdge, theme.lineControl, m_hover.value()));
    }
    QLineEdit::paintEvent(event);
}

void TextField::resizeEvent(QResizeEvent* event) {
    QLineEdit::resizeEvent(event);
    arrange();
}

void TextField::focusInEvent(QFocusEvent* event) {
    QLineEdit::focusInEvent(event);
    Q_EMIT focusEntered();
}

void TextField::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    if (event->reason() == Qt::PopupFocusReason || event->reason() == Qt::ActiveWindowFocusReason)
        return;
    showBeginning();
    Q_EMIT focusLeft();
}

void TextField::contextMenuEvent(QContextMenuEvent* event) {
    auto* menu = new Menu(m_look, this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const auto add = [&](const QString& title, QKeySequence::StandardKey key, bool isEnabled,
                         auto command) {
        QAction* row =
            menu->addRow(title + u'\t' + QKeySequence(key).toString(QKeySequence::NativeText));
        row->setEnabled(isEnabled);
        connect(row, &QAction::triggered, this, command);
    };
    const bool canCopy = hasSelectedText() && echoMode() == Normal;
    const bool canPaste = !QGuiApplication::clipboard()->text().isEmpty();
    add(tr("Cut", "Edit menu item"), QKeySequence::Cut, canCopy && !isReadOnly(), &QLineEdit::cut);
    add(tr("Copy", "Edit menu item"), QKeySequence::Copy, canCopy, &QLineEdit::copy);
    add(tr("Paste", "Edit menu item"), QKeySequence::Paste, canPaste && !isReadOnly(),
        &QLineEdit::paste);
    menu->addSeparator();
    add(tr("Select All", "Edit menu item"), QKeySequence::SelectAll, !text().isEmpty(),
        &QLineEdit::selectAll);
    menu->popup(event->globalPos());
}

/// Of what is too long for the field nobody wants to read the end first.
void TextField::showBeginning() {
    setCursorPosition(0);
}

void TextField::adopt() {
    const Theme& theme = m_look.theme();
    QPalette colors = palette();
    colors.setColor(QPalette::Base, Qt::transparent);
    colors.setColor(QPalette::Text, theme.textPrimary);
    colors.setColor(QPalette::Disabled, QPalette::Text, theme.textTertiary);
    colors.setColor(QPalette::PlaceholderText, theme.textTertiary);
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        colors.setColor(group, QPalette::Highlight, blended(theme.surfaceField, theme.accentSoft));
        colors.setColor(group, QPalette::HighlightedText, theme.textPrimary);
    }
    setPalette(colors);
    update();
}

void TextField::arrange() {
    // A placeholder is words also where the text is a value.
    const bool isValue = m_content == Content::Value && !text().isEmpty();
    setFont(textFont(isValue ? TextStyle::ValueField : TextStyle::Body));
    int right = textInset;
    const auto place = [&](QWidget* accessory, bool isThere) {
        if (!accessory)
            return;
        accessory->setVisible(isThere);
        if (!isThere)
            return;
        right +=
            accessory->sizeHint().isValid() ? accessory->sizeHint().width() : accessory->width();
        accessory->move(width() - right + metrics::space4, (height() - accessory->height()) / 2);
    };
    if (m_clearButton)
        m_clearButton->resize(m_clearButton->sizeHint());
    place(m_clearButton, !text().isEmpty() && isEnabled());
    place(m_sign, m_isFailed);
    setTextMargins(textInset, 0, right, 0);
}

} // namespace dropshade
