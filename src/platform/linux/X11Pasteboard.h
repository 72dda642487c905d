// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/linux/QtPasteboard.h"

#include <QTimer>

namespace dropshade {

/// The clipboard of X11. The server turns down a program whose last event is older than the newest
/// copy of any program, and Qt leaves it at that; here the text is offered again until the server
/// has taken it.
class X11Pasteboard : public QtPasteboard {
public:
    X11Pasteboard();

    void setText(const QString& text) override;

private:
    void offer();

    QString m_text;
    int m_offersLeft = 0;
    QTimer m_nextOffer;
};

} // namespace dropshade
