// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/Look.h"

#include <QPointer>
#include <QVariantAnimation>
#include <QWidget>

namespace dropshade {

/// A panel over its host window, which waits under a scrim. It grows and shrinks with the host. The
/// keyboard stays inside; Escape asks for the end. It deletes itself when it has closed.
class Sheet : public QWidget {
    Q_OBJECT

public:
    Sheet(const Look& look, QWidget& host);

    /// Where the content goes; it has the panel's padding already.
    [[nodiscard]] QWidget* panel() const { return m_panel; }

    void open();
    void closeSheet();

Q_SIGNALS:
    /// Once, when it begins to close.
    void closed();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void arrange();

    const Look& m_look;
    QWidget* m_panel;
    QPointer<QWidget> m_formerFocus;
    QVariantAnimation m_presence;
    bool m_isClosing = false;
};

} // namespace dropshade
