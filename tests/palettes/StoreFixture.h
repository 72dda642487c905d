// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "app/SettingsReaders.h"
#include "palettes/PaletteJson.h"
#include "support/Machine.h"
#include "support/Palettes.h"

#include <gtest/gtest.h>

namespace dropshade {

/// A store with two palettes: "Sea" with the scales "Deep" and "Shore", and "Land".
class PaletteStore : public testing::Test {
protected:
    PaletteStore() {
        m_machine.defaults().setValue(keys::userPalettes, *encodedPalettes({m_sea, m_land}));
        m_machine.defaults().setValue(keys::collapsedPaletteIds, QStringList());
        m_machine.scheduler().setNow(ReferenceTime{789012345.678901});
        QObject::connect(&store(), &UserPaletteStore::palettesDidChange, [this] { ++m_changes; });
        QObject::connect(&store(), &UserPaletteStore::didChange, [this] { ++m_saves; });
    }

    UserPaletteStore& store() { return m_machine.store(); }
    AppSettings& settings() { return m_machine.settings(); }
    MemoryDefaults& defaults() { return m_machine.defaults(); }
    ManualScheduler& scheduler() { return m_machine.scheduler(); }
    ReferenceTime now() { return m_machine.scheduler().now(); }

    /// The moment that the loaded palettes carry.
    static ReferenceTime loaded() { return ReferenceTime{700000000.5}; }

    /// The present state of the first palette, whatever its place.
    Palette sea() {
        for (const Palette& palette : store().palettes()) {
            if (palette.id() == seaId())
                return palette;
        }
        return makePalette("gone");
    }
    [[nodiscard]] QUuid seaId() const { return m_sea.id(); }
    [[nodiscard]] QUuid landId() const { return m_land.id(); }
    [[nodiscard]] QUuid scaleId(qsizetype scale) const { return m_sea.scales().at(scale).id(); }
    [[nodiscard]] QUuid swatchId(qsizetype scale, qsizetype swatch) const {
        return m_sea.scales().at(scale).swatches().at(swatch).id();
    }

    QString names() {
        QStringList names;
        for (const Palette& palette : store().palettes())
            names.append(palette.name());
        return names.join(QLatin1Char(' '));
    }
    QString scaleNames() {
        QStringList names;
        for (const PaletteScale& scale : sea().scales())
            names.append(scale.name());
        return names.join(QLatin1Char(' '));
    }
    QString values(qsizetype scale) {
        QStringList values;
        for (const PaletteSwatch& swatch : sea().scales().at(scale).swatches())
            values.append(swatch.value());
        return values.join(QLatin1Char(' '));
    }

    void setNames(std::initializer_list<const char*> names) {
        QList<Palette> palettes;
        for (const char* name : names)
            palettes.append(makePalette(name));
        store().setPalettes(palettes);
    }
    void setValues(qsizetype scaleIndex, std::initializer_list<const char*> values) {
        Palette palette = sea();
        QList<PaletteScale> scales = palette.scales();
        scales[scaleIndex].setSwatches(makeScale("", values).swatches());
        palette.setScales(scales);
        store().setPalettes({palette});
    }

    /// The three swatches of "Deep", the one of "Shore" and the one of "Land".
    void pinEverything() {
        for (const Palette& palette : store().palettes()) {
            for (const PaletteScale& scale : palette.scales()) {
                for (const PaletteSwatch& swatch : scale.swatches())
                    settings().pinSwatch(swatch, palette, scale);
            }
        }
        ASSERT_EQ(settings().pinnedColors().size(), 5);
    }

    std::optional<QList<Palette>> stored() {
        return decodedPalettes(*defaults().read<QByteArray>(keys::userPalettes), now());
    }

    void expectChangedAndSaved() {
        EXPECT_EQ(m_changes, 1);
        EXPECT_TRUE(store().hasPendingSave());
        scheduler().advance(250);
        EXPECT_EQ(m_saves, 1);
        EXPECT_TRUE(areSame(*stored(), store().palettes()));
    }
    /// As before, and only "Sea" carries the present moment.
    void expectStampedAndSaved() {
        EXPECT_EQ(sea().lastModified(), now());
        EXPECT_EQ(store().palettes().last().lastModified(), loaded());
        expectChangedAndSaved();
    }
    void expectUntouched() {
        EXPECT_EQ(m_changes, 0);
        EXPECT_FALSE(store().hasPendingSave());
        EXPECT_TRUE(areSame(store().palettes(), {m_sea, m_land}));
    }

    Palette m_sea = makePalette(
        "Sea", {makeScale("Deep", {"navy", "blue", "aqua"}), makeScale("Shore", {"tan"})});
    Palette m_land = makePalette("Land", {makeScale("Wood", {"green"})});
    Machine m_machine;
    int m_changes = 0;
    int m_saves = 0;
};

} // namespace dropshade
