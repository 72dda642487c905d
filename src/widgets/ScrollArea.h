// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/Look.h"

#include <QScrollArea>

namespace dropshade {

/// Scrolls its content up and down, with a thin bar over the content's right margin, and keeps the
/// control that has the keyboard in view.
class ScrollArea : public QScrollArea {
    Q_OBJECT

public:
    explicit ScrollArea(const Look& look, QWidget* parent = nullptr);

protected:
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void arrange();

    QScrollBar* m_bar;
};

} // namespace dropshade
