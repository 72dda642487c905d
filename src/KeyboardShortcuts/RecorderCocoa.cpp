// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "KeyboardShortcuts/RecorderCocoa.h"

#include "widgets/IconButton.h"
#include "widgets/Metrics.h"

#include <QApplication>
#include <QKeyEvent>

namespace dropshade {
namespace {

bool isModifier(int key) {
    switch (key) {
    case Qt::Key_Shift:
    case Qt::Key_Control:
    case Qt::Key_Meta:
    case Qt::Key_Alt:
    case Qt::Key_AltGr:
    case Qt::Key_CapsLock:
    case Qt::Key_NumLock:
    case Qt::Key_ScrollLock:
    case Qt::Key_Super_L:
    case Qt::Key_Super_R:
    case Qt::Key_Hyper_L:
    case Qt::Key_Hyper_R:
    case Qt::Key_Mode_switch:
        return true;
    default:
        return false;
    }
}

} // namespace

RecorderCocoa::RecorderCocoa(const Look& look, const Surroundings& surroundings,
                             const ShortcutName& name, const QString& label, QWidget* parent)
    : KeyField(look, parent), m_layout(surroundings.shortcuts.layout()),
      m_model(
          {surroundings.shortcuts, surroundings.alerts, editMenuKeys, [] { QApplication::beep(); }},
          name),
      //: Button of a shortcut recorder; %1 is what the shortcut is for
      m_cancelButton(new IconButton(look, Icon::Close, tr("Clear the Shortcut of %1").arg(label),
                                    metrics::iconButtonField, this)) {
    setAccessibleName(label);
    setFocusPolicy(Qt::StrongFocus);
    connect(this, &QAbstractButton::clicked, &m_model, &RecorderModel::beginRecording);
    connect(m_cancelButton, &QAbstractButton::clicked, &m_model, &RecorderModel::clear);
    connect(&m_model, &RecorderModel::didChange, this, &RecorderCocoa::adopt);
    connect(&m_model, &RecorderModel::wantsFocus, this, &RecorderCocoa::takeFocus);
    adopt();
}

RecorderCocoa::~RecorderCocoa() {
    // Whoever listens to the end of the recording finds a whole widget.
    m_model.endRecording();
}

bool RecorderCocoa::event(QEvent* event) {
    if (m_model.isRecording()) {
        switch (event->type()) {
        case QEvent::ShortcutOverride:
            // No shortcut of the window comes between, not even the one that closes it.
            event->accept();
            return true;
        case QEvent::KeyPress:
            if (takesKey(*static_cast<QKeyEvent*>(event)))
                return true;
            break;
        case QEvent::KeyRelease:
            return true;
        default:
            break;
        }
    }
    return KeyField::event(event);
}

bool RecorderCocoa::takesKey(const QKeyEvent& event) {
    if (event.isAutoRepeat())
        return true;
    const RecorderKey key{m_layout.keyCode(event.nativeScanCode()), event.modifiers(),
                          isModifier(event.key())};
    return m_model.keyDown(key) == RecorderModel::Answer::Swallow;
}

void RecorderCocoa::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        m_model.beginRecording();
    else
        KeyField::keyPressEvent(event);
}

bool RecorderCocoa::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::WindowActivate:
        if (watched == window())
            m_model.windowDidBecomeKey();
        break;
    case QEvent::WindowDeactivate:
        if (watched == window())
            m_model.windowDidResignKey();
        break;
    case QEvent::MouseButtonRelease: {
        const auto* release = static_cast<QMouseEvent*>(event);
        const bool isOutside = !rect().contains(mapFromGlobal(release->globalPosition().toPoint()));
        if (m_model.isRecording() && isOutside && release->button() != Qt::MiddleButton) {
            m_model.mouseUpOutside();
            clearFocus();
        }
        break;
    }
    default:
        break;
    }
    return KeyField::eventFilter(watched, event);
}

void RecorderCocoa::showEvent(QShowEvent* event) {
    qApp->installEventFilter(this);
    if (window()->isActiveWindow())
        m_model.windowDidBecomeKey();
    KeyField::showEvent(event);
}

void RecorderCocoa::hideEvent(QHideEvent* event) {
    qApp->removeEventFilter(this);
    m_model.endRecording();
    KeyField::hideEvent(event);
}

void RecorderCocoa::resizeEvent(QResizeEvent* event) {
    KeyField::resizeEvent(event);
    const int side = m_cancelButton->sizeHint().width();
    m_cancelButton->setGeometry(width() - side - metrics::space4, (height() - side) / 2, side,
                                side);
}

void RecorderCocoa::focusInEvent(QFocusEvent* event) {
    KeyField::focusInEvent(event);
    // A window that comes back has the focus where it was, and nobody asked to record.
    if (event->reason() != Qt::ActiveWindowFocusReason && event->reason() != Qt::PopupFocusReason)
        m_model.beginRecording();
}

void RecorderCocoa::focusOutEvent(QFocusEvent* event) {
    m_model.endRecording();
    KeyField::focusOutEvent(event);
}

void RecorderCocoa::takeFocus() {
    window()->activateWindow();
    setFocus(Qt::OtherFocusReason);
}

void RecorderCocoa::adopt() {
    m_cancelButton->setVisible(m_model.hasShortcut());
    const bool showsShortcut = m_model.hasShortcut() && !m_model.isRecording();
    setAccessibleDescription(showsShortcut ? m_model.spokenText() : m_model.placeholder());
    const Words kind = m_model.isRecording() ? Words::Prompt
                       : showsShortcut       ? Words::Keys
                                             : Words::Placeholder;
    showWords(kind, showsShortcut ? m_model.text() : m_model.placeholder());
}

} // namespace dropshade
