// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QMimeData;

namespace dropshade {

/// The general clipboard of the desktop.
class Pasteboard {
public:
    virtual ~Pasteboard() = default;

    /// Replaces the whole content by `text` as plain text, offered in text types only.
    virtual void setText(const QString& text) = 0;

    /// The plain text on the clipboard; empty where there is none.
    [[nodiscard]] virtual QString text() const = 0;

    /// All that is on offer, in its owner's types: images by their bytes, files by their locations.
    /// Null where there is nothing. Good until the event loop runs again; to read a type is to ask
    /// the owner for it.
    [[nodiscard]] virtual const QMimeData* content() const = 0;
};

} // namespace dropshade
