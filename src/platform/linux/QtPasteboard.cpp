// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/linux/QtPasteboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

namespace dropshade {

void QtPasteboard::setText(const QString& text) {
    QGuiApplication::clipboard()->setText(text);
}

QString QtPasteboard::text() const {
    // QMimeData would also make up a text from copied files; only what was offered as text counts.
    const QMimeData* offered = content();
    const bool hasText = offered != nullptr && offered->hasFormat(QStringLiteral("text/plain"));
    return hasText ? offered->text() : QString();
}

const QMimeData* QtPasteboard::content() const {
    return QGuiApplication::clipboard()->mimeData();
}

} // namespace dropshade
