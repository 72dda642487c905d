// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "palettes/PresetPicker.h"

#include "support/Palettes.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

namespace dropshade {
namespace {

class PickingAPreset : public testing::Test {
protected:
    QList<Palette> m_presets{makePalette("Harmony"), makePalette("Tailwind")};
    QString m_added;
    PresetPicker m_picker{m_presets, [this](const Palette& preset, const QString& name) {
                              m_added = preset.name() + QLatin1Char('/') + name;
                          }};
};

TEST_F(PickingAPreset, StartsWithTheFirst) {
    EXPECT_EQ(m_picker.selectedPresetId(), m_presets.first().id());
}

TEST_F(PickingAPreset, AddsTheSelectedOneUnderTheTrimmedName) {
    m_picker.select(m_presets.last().id());
    m_picker.setName(QStringLiteral(" Mine "));
    EXPECT_TRUE(m_picker.add());
    EXPECT_EQ(m_added, QStringLiteral("Tailwind/Mine"));
}

TEST_F(PickingAPreset, ABlankNameMeansItsOwn) {
    m_picker.setName(QStringLiteral("  "));
    m_picker.add();
    EXPECT_EQ(m_added, QStringLiteral("Harmony/Harmony"));
}

TEST_F(PickingAPreset, WithoutPresetsAddsNothing) {
    PresetPicker none({}, [](const Palette&, const QString&) { FAIL(); });
    EXPECT_FALSE(none.selectedPresetId());
    EXPECT_FALSE(none.add());
}

} // namespace
} // namespace dropshade
