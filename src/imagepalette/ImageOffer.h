// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

class QMimeData;

namespace dropshade {

/// What another program's drag or clipboard offers to whoever looks for an image. To ask for the
/// data is to have the other program send it; all else comes from lists that it has sent already.
class ImageOffer {
public:
    /// `content` must outlive this object.
    explicit ImageOffer(const QMimeData& content) : m_content(content) {}

    /// The first file on this machine that is named.
    [[nodiscard]] std::optional<QString> file() const;

    /// The type in which an image is offered: PNG, else JPEG, else TIFF, else the first other.
    [[nodiscard]] std::optional<QString> imageType() const;

    /// The image's bytes in that type; empty where there is none.
    [[nodiscard]] QByteArray imageData() const;

    /// What the thing is called, with its extension: the end of its address, as in "photo.jpeg".
    [[nodiscard]] std::optional<QString> suggestedName() const;

private:
    const QMimeData& m_content;
};

/// "photo" of "/home/me/photo.jpeg"; what stands after the last dot goes, but never all of a name.
[[nodiscard]] QString nameWithoutExtension(const QString& path);

} // namespace dropshade
