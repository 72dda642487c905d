// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "imagepalette/ImageOffer.h"

#include <QFileInfo>
#include <QMimeData>
#include <QUrl>

#include <array>

namespace dropshade {
namespace {

/// The other types that can be read come after the usual three, before those that can't.
const std::array<QString, 8> preferredTypes{
    QStringLiteral("image/png"),  QStringLiteral("image/jpeg"), QStringLiteral("image/tiff"),
    QStringLiteral("image/webp"), QStringLiteral("image/heic"), QStringLiteral("image/heif"),
    QStringLiteral("image/gif"),  QStringLiteral("image/bmp")};

} // namespace

std::optional<QString> ImageOffer::file() const {
    for (const QUrl& url : m_content.urls()) {
        if (url.isLocalFile())
            return url.toLocalFile();
    }
    return std::nullopt;
}

std::optional<QString> ImageOffer::imageType() const {
    const QStringList types = m_content.formats();
    for (const QString& type : preferredTypes) {
        if (types.contains(type))
            return type;
    }
    for (const QString& type : types) {
        if (type.startsWith(QLatin1String("image/")))
            return type;
    }
    return std::nullopt;
}

QByteArray ImageOffer::imageData() const {
    const auto type = imageType();
    return type ? m_content.data(*type) : QByteArray();
}

std::optional<QString> ImageOffer::suggestedName() const {
    const QList<QUrl> urls = m_content.urls();
    const QString name = urls.isEmpty() ? QString() : urls.first().fileName();
    return name.isEmpty() ? std::nullopt : std::optional(name);
}

QString nameWithoutExtension(const QString& path) {
    const QFileInfo file(path);
    const QString name = file.completeBaseName();
    return name.isEmpty() ? file.fileName() : name;
}

} // namespace dropshade
