// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "palettes/Palette.h"

#include <optional>

namespace dropshade {

/// What a favourite stores: a snapshot of a swatch and of where it was, with its identity, so that
/// it can be shown without the palette and can follow the swatch as that changes.
struct PinRecord {
    QUuid id;
    QUuid paletteId;
    QString paletteName;
    QUuid scaleId;
    QString scaleName;
    /// The key of the pin.
    QUuid swatchId;
    QString value;
    std::optional<QString> label;
    /// When the swatch was pinned; updates keep it.
    ReferenceTime pinnedAt;

    friend bool operator==(const PinRecord&, const PinRecord&) = default;
};

/// A favourite: its record, which never changes, and the parsed colour, so that a menu needs no
/// parser. Equal when the records are.
class PinnedColor {
public:
    explicit PinnedColor(PinRecord record);

    const PinRecord& record() const { return m_record; }
    const PinRecord* operator->() const { return &m_record; }

    /// What the value means, or opaque black where it means no colour.
    const SRGBColor& cachedColor() const { return m_cachedColor; }

    friend bool operator==(const PinnedColor& a, const PinnedColor& b) {
        return a.m_record == b.m_record;
    }

private:
    PinRecord m_record;
    SRGBColor m_cachedColor;
};

/// The stored form, nothing where a moment is not finite.
[[nodiscard]] std::optional<QByteArray> encodedPins(const QList<PinnedColor>& pins);

/// Nothing for a list of which anything can't be read. Only the label may be missing.
[[nodiscard]] std::optional<QList<PinnedColor>> decodedPins(const QByteArray& json);

/// The pins as the palettes are now, in the same order: those whose palette, scale or swatch is
/// gone are left out, and the others have the present names, value and label. A swatch that has
/// moved to another scale is gone. The very same list where nothing differs.
[[nodiscard]] QList<PinnedColor> validatedPins(const QList<PinnedColor>& pins,
                                               const QList<Palette>& palettes);

} // namespace dropshade
