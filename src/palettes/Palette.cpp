// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "palettes/Palette.h"

namespace dropshade {

Palette::Palette(const QString& name, const QList<PaletteScale>& scales, ReferenceTime lastModified)
    : Palette(QUuid::createUuid(), name, scales, lastModified) {}

Palette::Palette(const QUuid& id, const QString& name, const QList<PaletteScale>& scales,
                 ReferenceTime lastModified)
    : d(new Data) {
    d->id = id;
    d->name = name;
    d->scales = scales;
    d->lastModified = lastModified;
}

Palette Palette::freshCopy(ReferenceTime now) const {
    QList<PaletteScale> copies;
    copies.reserve(scales().size());
    for (const PaletteScale& scale : scales())
        copies.append(scale.freshCopy());
    return Palette(name(), copies, now);
}

} // namespace dropshade
