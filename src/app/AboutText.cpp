// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "app/AboutText.h"

#include "app/SettingsReaders.h"

#include <QCoreApplication>
#include <QFile>

namespace dropshade::aboutText {

QString version(const QString& number) {
    //: About window; %1 is a version number
    return QCoreApplication::translate("AboutWindow", "Version %1").arg(number);
}

QString description() {
    //: App description
    return QCoreApplication::translate("AboutWindow",
                                       "A minimal color picker for your menu bar.\nNo accounts. "
                                       "No subscriptions. No telemetry.",
                                       "App description");
}

QString lifetimeLine(const UserDefaults& defaults) {
    const qint64 count = defaults.read<qint64>(keys::totalChecksCount).value_or(0);
    if (count == 1) {
        //: About lifetime singular
        return QCoreApplication::translate("AboutWindow", "You've copied 1 color.",
                                           "About lifetime singular");
    }
    //: About lifetime plural; %d is the number
    return QCoreApplication::translate("AboutWindow", "You've copied %d colors.",
                                       "About lifetime plural")
        .replace(QStringLiteral("%d"), QString::number(count));
}

QUrl website() {
    QFile file(QStringLiteral(":/website.txt"));
    return file.open(QIODevice::ReadOnly) ? QUrl(QString::fromUtf8(file.readAll().trimmed()))
                                          : QUrl();
}

} // namespace dropshade::aboutText
