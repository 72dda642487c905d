// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "palettes/PaletteScale.h"

namespace dropshade {

PaletteScale::PaletteScale(const QString& name, const QList<PaletteSwatch>& swatches)
    : PaletteScale(QUuid::createUuid(), name, swatches) {}

PaletteScale::PaletteScale(const QUuid& id, const QString& name,
                           const QList<PaletteSwatch>& swatches)
    : d(new Data) {
    d->id = id;
    d->name = name;
    d->swatches = swatches;
}

PaletteScale PaletteScale::freshCopy() const {
    QList<PaletteSwatch> copies;
    copies.reserve(swatches().size());
    for (const PaletteSwatch& swatch : swatches())
        copies.append(swatch.freshCopy());
    return PaletteScale(name(), copies);
}

} // namespace dropshade
