// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "palettes/PalettePresets.h"

#include "support/ManualScheduler.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>

namespace dropshade {
namespace {

QStringList namesOf(const QList<Palette>& palettes) {
    QStringList names;
    for (const Palette& palette : palettes)
        names.append(palette.name());
    return names;
}

QStringList scaleNamesOf(const Palette& palette) {
    QStringList names;
    for (const PaletteScale& scale : palette.scales())
        names.append(scale.name());
    return names;
}

/// The values of the shades 50, 500 and 950.
QString tellingRow(const Palette& palette, const char* scaleName) {
    for (const PaletteScale& scale : palette.scales()) {
        if (scale.name() == QLatin1String(scaleName))
            return QStringList{scale.swatches().at(0).value(), scale.swatches().at(5).value(),
                               scale.swatches().at(10).value()}
                .join(QLatin1Char(' '));
    }
    return {};
}

class Presets : public testing::Test {
protected:
    QString resource(const QByteArray& json) {
        QFile file(m_folder.filePath(QStringLiteral("presets.json")));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(json);
        return file.fileName();
    }

    QTemporaryDir m_folder;
    ManualScheduler m_clock;
    PalettePresets m_presets{m_clock};
};

TEST_F(Presets, HaveTailwindWithItsTwentySixScalesOfElevenShades) {
    const Palette& tailwind = m_presets.tailwind();
    EXPECT_EQ(tailwind.name(), QStringLiteral("Tailwind"));
    EXPECT_EQ(scaleNamesOf(tailwind).join(QStringLiteral(", ")),
              QStringLiteral("Red, Orange, Amber, Yellow, Lime, Green, Emerald, Teal, Cyan, Sky, "
                             "Blue, Indigo, Violet, Purple, Fuchsia, Pink, Rose, Slate, Gray, "
                             "Zinc, Neutral, Stone, Mauve, Olive, Mist, Taupe"));
    for (const PaletteScale& scale : tailwind.scales())
        EXPECT_EQ(scale.swatches().size(), 11);
}

TEST_F(Presets, HaveThePublishedColorsOfTailwind) {
    const std::pair<const char*, const char*> rows[] = {
        {"Red", "#fef2f2 #ef4444 #450a0a"},   {"Blue", "#eff6ff #3b82f6 #172554"},
        {"Slate", "#f8fafc #64748b #020617"}, {"Mauve", "#fafafa #79697b #0c090c"},
        {"Olive", "#fbfbf9 #7c7c67 #0c0c09"}, {"Mist", "#f9fbfb #67787c #090b0c"},
        {"Taupe", "#fbfaf9 #7c6d67 #0c0a09"}};
    for (const auto& [scale, values] : rows)
        EXPECT_EQ(tellingRow(m_presets.tailwind(), scale), QLatin1String(values));
}

TEST_F(Presets, HaveHarmonyWithTheFirstTwentyTwoScaleNamesOfTailwind) {
    const Palette& harmony = m_presets.harmony();
    EXPECT_EQ(harmony.name(), QStringLiteral("Harmony"));
    EXPECT_EQ(scaleNamesOf(harmony), scaleNamesOf(m_presets.tailwind()).first(22));
    for (const PaletteScale& scale : harmony.scales())
        EXPECT_EQ(scale.swatches().size(), 11);
}

TEST_F(Presets, HaveThePublishedColorsOfHarmony) {
    const std::pair<const char*, const char*> rows[] = {{"Red", "#fefafa #fc8083 #240c0d"},
                                                        {"Blue", "#f8fcfe #2caff9 #011523"},
                                                        {"Stone", "#fefbf5 #aaa6a1 #171411"}};
    for (const auto& [scale, values] : rows)
        EXPECT_EQ(tellingRow(m_presets.harmony(), scale), QLatin1String(values));
}

TEST_F(Presets, LabelBuiltSwatchesWithScaleAndShade) {
    const auto& swatches = m_presets.tailwind().scales().at(0).swatches();
    EXPECT_EQ(swatches.first().label(), QStringLiteral("red-50"));
    EXPECT_EQ(swatches.at(5).label(), QStringLiteral("red-500"));
    EXPECT_EQ(swatches.last().label(), QStringLiteral("red-950"));
    EXPECT_EQ(m_presets.harmony().scales().last().swatches().first().label(),
              QStringLiteral("stone-50"));
}

TEST_F(Presets, HaveColorsThatParseInSixLowerCaseDigits) {
    static const QRegularExpression form(QStringLiteral("^#[0-9a-f]{6}$"));
    for (const Palette& preset : m_presets.all()) {
        EXPECT_FALSE(preset.scales().isEmpty()) << preset.name().toStdString();
        for (const PaletteScale& scale : preset.scales()) {
            EXPECT_FALSE(scale.swatches().isEmpty());
            for (const PaletteSwatch& swatch : scale.swatches()) {
                EXPECT_TRUE(form.match(swatch.value()).hasMatch()) << swatch.value().toStdString();
                EXPECT_TRUE(swatch.label().has_value());
            }
        }
    }
}

TEST_F(Presets, AreElevenInTheOrderOfTheirNames) {
    EXPECT_EQ(namesOf(m_presets.all()).join(QStringLiteral(", ")),
              QStringLiteral(u"Ant Design, Carbon, Catppuccin, Harmony, Mantine, Material, Open "
                             u"Color, Radix Colors, Radix Colors Dark, Rosé Pine, Tailwind"));
}

TEST_F(Presets, CarryTheLicenceOfEachSource) {
    const QStringList licences = QDir(QStringLiteral(":/presets/licences")).entryList();
    EXPECT_EQ(licences.size(), 10);
    for (const QString& name : licences) {
        QFile file(QStringLiteral(":/presets/licences/") + name);
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        EXPECT_GT(file.size(), 500) << name.toStdString();
    }
}

TEST_F(Presets, SeedWithMantineOpenColorAndTailwind) {
    EXPECT_EQ(namesOf(m_presets.defaults()),
              (QStringList{QStringLiteral("Mantine"), QStringLiteral("Open Color"),
                           QStringLiteral("Tailwind")}));
    const Palette& mantine = m_presets.defaults().at(0);
    EXPECT_EQ(mantine.scales().size(), 14);
    EXPECT_EQ(mantine.scales().at(0).swatches().at(0).value(), QStringLiteral("#c9c9c9"));
    const Palette& openColor = m_presets.defaults().at(1);
    EXPECT_EQ(openColor.scales().size(), 13);
    EXPECT_EQ(openColor.scales().at(1).swatches().at(9).value(), QStringLiteral("#c92a2a"));
}

TEST_F(Presets, AreBuiltOnce) {
    EXPECT_EQ(m_presets.all().constData(), m_presets.all().constData());
    EXPECT_EQ(m_presets.defaults().last().id(), m_presets.tailwind().id());
    const QUuid id = m_presets.harmony().id();
    EXPECT_EQ(m_presets.harmony().id(), id);
    PalettePresets others(m_clock);
    EXPECT_NE(others.harmony().id(), id);
}

TEST_F(Presets, AreHarmonyAndTailwindWithoutAResource) {
    for (const QString& path :
         {m_folder.filePath(QStringLiteral("none.json")), m_folder.path(), resource("junk"),
          resource("[{}]"), resource("{}"), resource(R"([{"name":"a","scales":[{"name":"b"}]}])"),
          resource(R"([{"name":"a","scales":[]},{"name":"b"}])")}) {
        PalettePresets presets(m_clock, path);
        EXPECT_EQ(namesOf(presets.all()),
                  (QStringList{QStringLiteral("Harmony"), QStringLiteral("Tailwind")}));
        EXPECT_EQ(namesOf(presets.defaults()), QStringList{QStringLiteral("Tailwind")});
    }
}

TEST_F(Presets, ReadOnlyTheKeysTheyKnowAndTakeNewIdsAtEveryLevel) {
    m_clock.setNow(ReferenceTime{123.5});
    PalettePresets presets(m_clock, resource(R"([{"name": "A", "id": 1, "scales": [{"name": "S",
        "swatches": [{"value": "red", "label": "x", "y": []}, {"value": "?"}]}]}])"));
    const Palette preset = presets.all().first();
    EXPECT_EQ(preset.name(), QStringLiteral("A"));
    EXPECT_EQ(preset.lastModified(), ReferenceTime{123.5});
    const auto& swatches = preset.scales().at(0).swatches();
    EXPECT_EQ(swatches.at(0).label(), QStringLiteral("x"));
    EXPECT_FALSE(swatches.at(1).label());
    const QSet<QUuid> ids = {preset.id(), preset.scales().at(0).id(), swatches.at(0).id(),
                             swatches.at(1).id()};
    EXPECT_EQ(ids.size(), 4);
    EXPECT_FALSE(ids.contains(QUuid()));
}

TEST_F(Presets, JoinTheSeedByTheirExactNameAndTheFirstOfThemOnly) {
    PalettePresets presets(m_clock, resource(R"([{"name":"Mantine ","scales":[]},
        {"name":"mantine","scales":[]},{"name":"Open Color","scales":[]},
        {"name":"Open Color","scales":[{"name":"b","swatches":[]}]}])"));
    EXPECT_EQ(namesOf(presets.defaults()),
              (QStringList{QStringLiteral("Open Color"), QStringLiteral("Tailwind")}));
    EXPECT_TRUE(presets.defaults().first().scales().isEmpty());
}

TEST_F(Presets, SortWithoutRegardToCaseAndKeepTheOrderOfEqualNames) {
    PalettePresets presets(m_clock, resource(R"([{"name":"zebra","scales":[]},
        {"name":"alpha","scales":[{"name":"first","swatches":[]}]},
        {"name":"Alpha","scales":[{"name":"second","swatches":[]}]},
        {"name":"Beta","scales":[]}])"));
    const auto& all = presets.all();
    EXPECT_EQ(namesOf(all).join(QLatin1Char(' ')),
              QStringLiteral("alpha Alpha Beta Harmony Tailwind zebra"));
}

} // namespace
} // namespace dropshade
