// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/linux/CompanionFiles.h"

#include <QCoreApplication>
#include <QFile>

namespace dropshade {

QString companionFile(const QString& name) {
    const QString folder = QCoreApplication::applicationDirPath();
    for (const QString& place : {folder, folder + QStringLiteral("/../lib/dropshade")}) {
        const QString path = place + QLatin1Char('/') + name;
        if (QFile::exists(path))
            return path;
    }
    return {};
}

} // namespace dropshade
