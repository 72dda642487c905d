// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "interchange/WholeFile.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace dropshade {

QByteArray WholeFile::read(const QString& path) {
    const QString name = QFileInfo(path).fileName();
    // To open a pipe is to wait for whoever writes to it.
    if (QFileInfo(path).exists() && !QFileInfo(path).isFile())
        throw FileError(tr("“%1” is not a file.", "%1 is a file name").arg(name));
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw FileError(tr("“%1” could not be opened. %2", "%1 is a file name, %2 the reason")
                            .arg(name, file.errorString()));
    // Counted as it comes: the length that a file system tells may be of another moment.
    const QByteArray content = file.read(mostBytes + 1);
    if (file.error() != QFileDevice::NoError)
        throw FileError(tr("“%1” could not be read. %2", "%1 is a file name, %2 the reason")
                            .arg(name, file.errorString()));
    if (content.size() > mostBytes)
        throw FileError(tr("“%1” is too large for a palette.", "%1 is a file name").arg(name));
    return content;
}

void WholeFile::write(const QString& path, const QByteArray& content) {
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size() || !file.commit())
        throw FileError(tr("“%1” could not be saved. %2", "%1 is a file name, %2 the reason")
                            .arg(QFileInfo(path).fileName(), file.errorString()));
}

} // namespace dropshade
