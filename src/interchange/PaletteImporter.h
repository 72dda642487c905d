// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "palettes/Palette.h"
#include "platform/ReferenceTime.h"

#include <QCoreApplication>
#include <QSet>

#include <optional>

namespace dropshade {

/// Why a palette file didn't come in.
class PaletteImporterError {
    Q_DECLARE_TR_FUNCTIONS(PaletteImporterError)

public:
    enum class Kind { unsupportedFormat, malformedFile };

    /// `payload` is the extension in lower case, or what is wrong with the file.
    PaletteImporterError(Kind kind, const QString& payload) : m_kind(kind), m_payload(payload) {}

    Kind kind() const { return m_kind; }
    /// A sentence or two for the user.
    [[nodiscard]] QString description() const;

private:
    Kind m_kind;
    QString m_payload;
};

/// The one door through which palette files come in. What a file is, its extension says; its
/// content is not guessed at. Everything throws `PaletteImporterError`; a file comes in whole or
/// not at all. Palettes come with new ids at all levels, modified `now`. No state: any thread may
/// ask.
class PaletteImporter {
public:
    explicit PaletteImporter(ReferenceTime now) : m_now(now) {}

    /// In lower case, without dots.
    [[nodiscard]] static const QSet<QString>& supportedExtensions();

    /// The palette in the file at `path`, with the file's name, without its extension, for its own.
    [[nodiscard]] Palette load(const QString& path) const;

    /// The palette in `data`, as a file with this extension would hold it. The name is
    /// `suggestedName` without its extension; where that is absent or says nothing, the one in the
    /// data, or else one by the format.
    [[nodiscard]] Palette decode(const QByteArray& data, const QString& fileExtension,
                                 const std::optional<QString>& suggestedName = std::nullopt) const;

private:
    ReferenceTime m_now;
};

} // namespace dropshade
