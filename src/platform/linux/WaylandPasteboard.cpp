// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/linux/WaylandPasteboard.h"

#include <QGuiApplication>
#include <QProcess>
#include <QStandardPaths>

namespace dropshade {

void WaylandPasteboard::setText(const QString& text) {
    const QString program = QStandardPaths::findExecutable(QStringLiteral("wl-copy"));
    if (QGuiApplication::focusWindow() != nullptr || program.isEmpty()) {
        QtPasteboard::setText(text);
        return;
    }
    auto* process = new QProcess(qGuiApp);
    // It leaves a child behind that holds the text, and that must not hold our pipes.
    process->setStandardOutputFile(QProcess::nullDevice());
    process->setStandardErrorFile(QProcess::nullDevice());
    QObject::connect(process, &QProcess::finished, process, &QObject::deleteLater);
    QObject::connect(process, &QProcess::errorOccurred, process, &QObject::deleteLater);
    process->start(program, {QStringLiteral("--type"), QStringLiteral("text/plain")});
    process->write(text.toUtf8());
    process->closeWriteChannel();
}

} // namespace dropshade
