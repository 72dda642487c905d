// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "palettes/PaletteSwatch.h"

#include <QList>
#include <QSharedDataPointer>

namespace dropshade {

/// A named row of swatches in display order; there may be none. A copy costs a pointer.
class PaletteScale {
public:
    /// A scale with a new random id.
    PaletteScale(const QString& name, const QList<PaletteSwatch>& swatches);
    PaletteScale(const QUuid& id, const QString& name, const QList<PaletteSwatch>& swatches);

    const QUuid& id() const { return d->id; }
    const QString& name() const { return d->name; }
    const QList<PaletteSwatch>& swatches() const { return d->swatches; }

    void setName(const QString& name) { d->name = name; }
    void setSwatches(const QList<PaletteSwatch>& swatches) { d->swatches = swatches; }

    /// The same name and swatches, with new ids for the scale and for each swatch.
    [[nodiscard]] PaletteScale freshCopy() const;

private:
    struct Data : QSharedData {
        QUuid id;
        QString name;
        QList<PaletteSwatch> swatches;
    };

    QSharedDataPointer<Data> d;
};

} // namespace dropshade

Q_DECLARE_TYPEINFO(dropshade::PaletteScale, Q_RELOCATABLE_TYPE);
