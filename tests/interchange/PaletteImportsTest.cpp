// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "interchange/PaletteImports.h"

#include "interchange/PaletteExporter.h"
#include "support/ManualBackgroundQueue.h"
#include "support/ManualScheduler.h"
#include "support/Palettes.h"
#include "support/QtPrinters.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace dropshade {
namespace {

class PaletteImportsTest : public testing::Test {
protected:
    [[nodiscard]] QString path(const char* name) const {
        return m_folder.filePath(QLatin1String(name));
    }
    [[nodiscard]] QString exported(const char* name, PaletteExportFormat format) const {
        PaletteExporter::write(makePalette("Inner", {makeScale("Blue", {"#0000ff"})}), format,
                               path(name));
        return path(name);
    }
    [[nodiscard]] QString names() const {
        QStringList names;
        for (const Palette& palette : m_added)
            names.append(palette.name());
        return names.join(QLatin1Char(' '));
    }

    QTemporaryDir m_folder;
    ManualScheduler m_clock;
    ManualBackgroundQueue m_queue;
    QList<Palette> m_added;
    QStringList m_refused;
    std::optional<PaletteImports> m_imports{
        std::in_place, m_clock, m_queue,
        PaletteImports::Landings{[this](const Palette& palette) { m_added.append(palette); },
                                 [this](const QString& reason) { m_refused.append(reason); }}};
};

TEST_F(PaletteImportsTest, AFileOfAnyFormatIsDecodedBesideTheMainThread) {
    for (const auto format :
         {PaletteExportFormat::ase, PaletteExportFormat::clr, PaletteExportFormat::json}) {
        m_added.clear();
        m_imports->importFile(
            exported(("File." + fileExtension(format).toStdString()).c_str(), format));
        EXPECT_TRUE(m_added.isEmpty());
        m_queue.work();
        EXPECT_TRUE(m_added.isEmpty());
        m_queue.land();
        ASSERT_EQ(m_added.size(), 1);
        EXPECT_EQ(m_added.first().name(), QStringLiteral("File"));
        EXPECT_EQ(m_added.first().scales().first().swatches().size(), 1);
        EXPECT_EQ(m_added.first().lastModified(), m_clock.now());
    }
}

TEST_F(PaletteImportsTest, PalettesComeInTheOrderInWhichTheyWereAskedFor) {
    m_imports->importFile(exported("One.ase", PaletteExportFormat::ase));
    m_imports->importData(R"({"name":"Inner","scales":[]})", QStringLiteral("json"),
                          QStringLiteral("Two.json"));
    m_imports->importFile(exported("Three.clr", PaletteExportFormat::clr));
    EXPECT_EQ(m_queue.waiting(), 1);
    m_imports->finish();
    EXPECT_EQ(names(), QStringLiteral("One Two Three"));
}

TEST_F(PaletteImportsTest, AFileThatFailsIsToldAndKeepsTheNextOneNotBack) {
    m_imports->importFile(path("none.ase"));
    m_imports->importFile(path("a.gpl"));
    m_imports->importFile(exported("Next.ase", PaletteExportFormat::ase));
    m_imports->finish();
    ASSERT_EQ(m_refused.size(), 2);
    EXPECT_TRUE(m_refused.first().startsWith(QStringLiteral("The file couldn't be read")));
    EXPECT_TRUE(m_refused.last().startsWith(QStringLiteral("This file type (.gpl)")));
    EXPECT_EQ(names(), QStringLiteral("Next"));
}

TEST_F(PaletteImportsTest, WhoeverWaitsIsCalledAfterTheLastPaletteAndNotOverAFailure) {
    QString seen;
    m_imports->importFile(exported("One.ase", PaletteExportFormat::ase));
    m_imports->importFile(exported("Two.ase", PaletteExportFormat::ase));
    m_imports->whenImported([&] { seen = names(); });
    m_imports->finish();
    EXPECT_EQ(seen, QStringLiteral("One Two"));
    m_imports->importFile(path("none.ase"));
    m_imports->whenImported([] { ADD_FAILURE() << "over the alert"; });
    m_imports->finish();
    EXPECT_EQ(m_refused.size(), 1);
}

TEST_F(PaletteImportsTest, TheirEndDropsWhatHasNotCome) {
    m_imports->importFile(exported("One.ase", PaletteExportFormat::ase));
    m_imports->importFile(exported("Two.ase", PaletteExportFormat::ase));
    m_queue.work();
    m_imports.reset();
    m_queue.workAndLand();
    EXPECT_TRUE(m_added.isEmpty());
    EXPECT_EQ(m_queue.runs(), 1);
}

} // namespace
} // namespace dropshade
