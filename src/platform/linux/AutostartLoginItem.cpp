// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/linux/AutostartLoginItem.h"

#include "platform/linux/DesktopEntry.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStandardPaths>

#include <algorithm>
#include <utility>

namespace dropshade {
namespace {

/// No entry of ours is near to this; what is longer is not read.
constexpr qint64 mostBytes = 65536;

QString entryIn(const QString& configFolder) {
    return configFolder + QStringLiteral("/autostart/org.dropshade.Dropshade.desktop");
}

bool containsAny(const QStringList& list, const QStringList& wanted) {
    return std::any_of(wanted.begin(), wanted.end(),
                       [&list](const QString& name) { return list.contains(name); });
}

bool canRun(const QString& program) {
    return QDir::isAbsolutePath(program) ? QFileInfo(program).isExecutable()
                                         : !QStandardPaths::findExecutable(program).isEmpty();
}

/// Whether a desktop of these names starts what the entry is for.
bool starts(const DesktopEntry& entry, const QStringList& desktops) {
    if (entry.boolean(QStringLiteral("Hidden")).value_or(false))
        return false;
    // Several desktops turn an entry off by this key and leave the rest of it.
    if (!entry.boolean(QStringLiteral("X-GNOME-Autostart-enabled")).value_or(true))
        return false;
    const QStringList only = entry.strings(QStringLiteral("OnlyShowIn"));
    if (!only.isEmpty() && !containsAny(only, desktops))
        return false;
    if (containsAny(entry.strings(QStringLiteral("NotShowIn")), desktops))
        return false;
    if (const auto program = entry.string(QStringLiteral("TryExec")))
        return canRun(*program);
    return entry.string(QStringLiteral("Exec")).has_value();
}

} // namespace

AutostartLoginItem::AutostartLoginItem(Surroundings surroundings)
    : m_with(std::move(surroundings)) {}

AutostartLoginItem::Surroundings AutostartLoginItem::ofSession() {
    return {QStandardPaths::standardLocations(QStandardPaths::GenericConfigLocation),
            qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(QLatin1Char(':'), Qt::SkipEmptyParts),
            QCoreApplication::applicationFilePath()};
}

bool AutostartLoginItem::isRegistered() const {
    // The first file of the name decides alone: the user's own hides the system's.
    for (const QString& folder : m_with.configFolders) {
        QFile file(entryIn(folder));
        if (!file.exists())
            continue;
        return file.open(QIODevice::ReadOnly) && file.size() <= mostBytes &&
               starts(DesktopEntry::parse(file.read(mostBytes)), m_with.desktops);
    }
    return false;
}

bool AutostartLoginItem::registerItem() {
    if (isRegistered())
        return true;
    // A desktop that finds no program at TryExec takes the entry as gone, and so do we: a program
    // that has moved shows as not registered, and can be registered anew.
    const QString entry =
        QStringLiteral("[Desktop Entry]\n"
                       "Type=Application\n"
                       "Name=Dropshade\n"
                       "Icon=org.dropshade.Dropshade\n"
                       "Exec=%1\n"
                       "TryExec=%2\n"
                       "Terminal=false\n")
            .arg(desktopEntryExec(m_with.program), desktopEntryString(m_with.program));
    return write(entry.toUtf8()) && isRegistered();
}

bool AutostartLoginItem::unregisterItem() {
    if (!isRegistered())
        return true;
    // Without a file of the user's own, the system's would count again.
    if (hasSystemEntry())
        return write("[Desktop Entry]\nType=Application\nName=Dropshade\nHidden=true\n");
    return QFile::remove(ownEntry());
}

QString AutostartLoginItem::ownEntry() const {
    return entryIn(m_with.configFolders.value(0));
}

bool AutostartLoginItem::hasSystemEntry() const {
    return std::any_of(m_with.configFolders.begin() + 1, m_with.configFolders.end(),
                       [](const QString& folder) { return QFile::exists(entryIn(folder)); });
}

bool AutostartLoginItem::write(const QByteArray& entry) const {
    if (!QDir().mkpath(QFileInfo(ownEntry()).absolutePath()))
        return false;
    QSaveFile file(ownEntry());
    return file.open(QIODevice::WriteOnly) && file.write(entry) == entry.size() && file.commit();
}

} // namespace dropshade
