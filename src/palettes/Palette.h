// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "palettes/PaletteScale.h"
#include "platform/ReferenceTime.h"

namespace dropshade {

/// A named list of scales in display order; there may be none. A copy costs a pointer.
///
/// The ids of a palette, its scales and its swatches outlive renames, edits and moves: favourites
/// and other machines refer to them. What enters a store from outside enters as a fresh copy.
class Palette {
public:
    /// A palette with a new random id.
    Palette(const QString& name, const QList<PaletteScale>& scales, ReferenceTime lastModified);
    Palette(const QUuid& id, const QString& name, const QList<PaletteScale>& scales,
            ReferenceTime lastModified);

    const QUuid& id() const { return d->id; }
    /// Need not be unique.
    const QString& name() const { return d->name; }
    const QList<PaletteScale>& scales() const { return d->scales; }
    /// The moment of the last change to the palette's own content: its name, and all about its
    /// scales and swatches. Its place among other palettes and whether it is collapsed are none.
    ReferenceTime lastModified() const { return d->lastModified; }

    void setName(const QString& name) { d->name = name; }
    void setScales(const QList<PaletteScale>& scales) { d->scales = scales; }
    void setLastModified(ReferenceTime moment) { d->lastModified = moment; }

    /// The same name and content, with new ids at all three levels, modified `now`.
    [[nodiscard]] Palette freshCopy(ReferenceTime now) const;

private:
    struct Data : QSharedData {
        QUuid id;
        QString name;
        QList<PaletteScale> scales;
        ReferenceTime lastModified;
    };

    QSharedDataPointer<Data> d;
};

} // namespace dropshade

Q_DECLARE_TYPEINFO(dropshade::Palette, Q_RELOCATABLE_TYPE);
