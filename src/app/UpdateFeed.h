// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "app/VersionNumber.h"

#include <QByteArray>
#include <QUrl>

#include <optional>
#include <vector>

namespace dropshade {

/// A version that somebody may want to have.
struct UpdateItem {
    VersionNumber version;
    QUrl downloadPage; ///< always safe to open, see `isSafeToOpen`
    QString notes;     ///< what is new, as plain text
};

/// The list of versions that the makers publish: RSS 2.0 with Sparkle's elements for the version,
/// an "appcast".
struct UpdateFeed {
    /// Longer documents are not read.
    static constexpr qsizetype mostBytes = 1 << 20;

    /// In the order of the document. An item without a version or a page that is safe is left out.
    std::vector<UpdateItem> items;

    /// Nothing when the bytes are no well-formed RSS, have a document type (it could hold
    /// entities), or are too many.
    [[nodiscard]] static std::optional<UpdateFeed> parse(const QByteArray& document);

    /// The item of the highest version; none in an empty feed.
    [[nodiscard]] const UpdateItem* newest() const;
};

/// True for an HTTPS address with a host and without a user's name.
[[nodiscard]] bool isSafeToOpen(const QUrl& page);

} // namespace dropshade
