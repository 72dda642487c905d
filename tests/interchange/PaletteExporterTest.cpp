// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "interchange/PaletteExporter.h"

#include "interchange/PaletteImporter.h"
#include "interchange/WholeFile.h"
#include "support/FakeAlerts.h"
#include "support/FakeFilePanels.h"
#include "support/ManualBackgroundQueue.h"
#include "support/ManualScheduler.h"
#include "support/Palettes.h"
#include "support/QtPrinters.h"
#include "support/RowName.h"

#include <QSet>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace dropshade {
namespace {

Palette brand() {
    return makePalette("Brand", {makeScale("Blue", {"#00f", "#0af"})});
}

class PaletteExporterTest : public testing::Test {
protected:
    [[nodiscard]] QString path(const char* name) const {
        return m_folder.filePath(QLatin1String(name));
    }
    /// Asks for the export, and lets the menu close.
    void exportAs(PaletteExportFormat format, const Palette& palette = brand()) {
        m_exporter.exportPalette(palette, format);
        m_scheduler.advance(0);
    }
    /// Answers the panel, and lets the file be written.
    void saveAs(const char* name) {
        m_panels.choose(path(name));
        m_queue.workAndLand();
    }
    /// Answers the panel for a file that can't be written.
    void exportIntoNoFolder() {
        exportAs(PaletteExportFormat::txt);
        m_panels.choose(path("vanished/a.txt"));
    }

    QTemporaryDir m_folder;
    ManualScheduler m_scheduler;
    ManualBackgroundQueue m_queue;
    FakeFilePanels m_panels;
    FakeAlerts m_alerts;
    PaletteExporter m_exporter{m_scheduler, m_queue, m_panels, m_alerts};
};

TEST_F(PaletteExporterTest, ThePanelComesWhenTheMenuHasGone) {
    m_exporter.exportPalette(brand(), PaletteExportFormat::css);
    EXPECT_TRUE(m_panels.panels().isEmpty());
    m_scheduler.advance(0);
    ASSERT_EQ(m_panels.panels().size(), 1);
    EXPECT_EQ(m_panels.panels().at(0).name, QStringLiteral("Brand.css"));
    EXPECT_EQ(m_panels.panels().at(0).kind.name, QStringLiteral("CSS Stylesheet (.css)"));
}

TEST_F(PaletteExporterTest, TwoExportsInOneTurnBothAsk) {
    m_exporter.exportPalette(brand(), PaletteExportFormat::css);
    m_exporter.exportPalette(brand(), PaletteExportFormat::txt);
    m_scheduler.advance(0);
    EXPECT_EQ(m_panels.panels().size(), 2);
}

TEST_F(PaletteExporterTest, WritesThePaletteAsItWasWhenTheUserAsked) {
    Palette palette = brand();
    m_exporter.exportPalette(palette, PaletteExportFormat::json);
    palette.setScales({});
    m_scheduler.advance(0);
    saveAs("a.json");
    EXPECT_EQ(PaletteImporter(m_scheduler.now()).load(path("a.json")).scales().size(), 1);
    EXPECT_TRUE(m_alerts.shown().isEmpty());
}

TEST_F(PaletteExporterTest, CancellingDoesNothing) {
    exportAs(PaletteExportFormat::pdf);
    m_panels.cancel();
    EXPECT_TRUE(m_alerts.shown().isEmpty());
}

TEST_F(PaletteExporterTest, TheFormatIsTheChosenOneWhateverTheExtension) {
    exportAs(PaletteExportFormat::html);
    saveAs("page.txt");
    EXPECT_TRUE(WholeFile::read(path("page.txt")).startsWith("<!DOCTYPE html>"));
}

TEST_F(PaletteExporterTest, AFailedWriteIsToldInTheWordsOfTheFileSystem) {
    exportIntoNoFolder();
    m_queue.work();
    EXPECT_TRUE(m_alerts.shown().isEmpty());
    m_queue.land();
    ASSERT_EQ(m_alerts.shown().size(), 1);
    EXPECT_EQ(m_alerts.shown().at(0).title, QStringLiteral("Couldn't export palette"));
    EXPECT_TRUE(m_alerts.shown().at(0).text.contains(QStringLiteral("No such file or directory")))
        << m_alerts.shown().at(0).text.toStdString();
}

TEST_F(PaletteExporterTest, APaletteThatCannotBeDrawnIsToldInTheGenericSentence) {
    const QList<PaletteSwatch> swatches(2000, PaletteSwatch(QStringLiteral("#f00")));
    const QList<PaletteScale> scales(2000, PaletteScale(QString(), swatches));
    exportAs(PaletteExportFormat::png, makePalette("Huge", scales));
    WholeFile::write(path("old.png"), "old");
    saveAs("old.png");
    ASSERT_EQ(m_alerts.shown().size(), 1);
    EXPECT_EQ(m_alerts.shown().at(0).text,
              QStringLiteral("The operation couldn't be completed. (PaletteExporterError)"));
    EXPECT_EQ(WholeFile::read(path("old.png")), "old");
}

TEST_F(PaletteExporterTest, ANameTooLongForAFormatIsToldAndEndsNothing) {
    const PaletteSwatch swatch(QStringLiteral("#f00"), QString(65'535, u'x'));
    const Palette palette = makePalette("A", {PaletteScale(QString(), {swatch})});
    exportAs(PaletteExportFormat::ase, palette);
    saveAs("a.ase");
    EXPECT_EQ(m_alerts.shown().size(), 1);
    EXPECT_FALSE(QFile::exists(path("a.ase")));
}

TEST_F(PaletteExporterTest, AFileOfAnyFormatIsMadeBesideTheMainThread) {
    for (const PaletteExportFormat format : exportMenuOrder()) {
        exportAs(format);
        m_panels.choose(path("a"));
        EXPECT_FALSE(QFile::exists(path("a")));
        m_queue.workAndLand();
        EXPECT_TRUE(QFile::remove(path("a")));
    }
}

TEST_F(PaletteExporterTest, OfTwoExportsToOnePathTheLaterStays) {
    exportAs(PaletteExportFormat::css);
    exportAs(PaletteExportFormat::html);
    m_panels.choose(path("a"));
    m_panels.choose(path("a"));
    EXPECT_EQ(m_queue.waiting(), 1);
    m_queue.workAndLand();
    EXPECT_TRUE(WholeFile::read(path("a")).startsWith("/* "));
    m_queue.workAndLand();
    EXPECT_TRUE(WholeFile::read(path("a")).startsWith("<!DOCTYPE html>"));
    m_queue.workAndLand();
    EXPECT_EQ(m_queue.runs(), 2);
}

TEST_F(PaletteExporterTest, AFailureDoesNotKeepTheNextFileBack) {
    exportIntoNoFolder();
    exportAs(PaletteExportFormat::css);
    m_panels.choose(path("a.css"));
    m_queue.workAndLand();
    m_queue.workAndLand();
    EXPECT_EQ(m_alerts.shown().size(), 1);
    EXPECT_TRUE(QFile::exists(path("a.css")));
}

TEST_F(PaletteExporterTest, WhoeverWaitsForTheFilesIsCalledAfterTheLastOfThem) {
    int calls = 0;
    m_exporter.whenWritten([&calls] { ++calls; });
    EXPECT_EQ(calls, 1);
    exportAs(PaletteExportFormat::css);
    exportAs(PaletteExportFormat::txt);
    m_panels.choose(path("a.css"));
    m_panels.choose(path("a.txt"));
    m_exporter.whenWritten([&calls] { ++calls; });
    m_queue.workAndLand();
    EXPECT_EQ(calls, 1);
    m_queue.workAndLand();
    EXPECT_EQ(calls, 2);
}

TEST_F(PaletteExporterTest, WhoeverWaitsForTheFilesIsNotCalledOverTheAlertOfOneThatFails) {
    int calls = 0;
    exportIntoNoFolder();
    exportAs(PaletteExportFormat::css);
    m_panels.choose(path("a.css"));
    m_exporter.whenWritten([&calls] { ++calls; });
    m_queue.workAndLand();
    m_queue.workAndLand();
    EXPECT_EQ(calls, 0);
    EXPECT_EQ(m_alerts.waitingCount(), 1);
}

TEST_F(PaletteExporterTest, TheEndOfTheProgramWaitsForTheFilesThatAreOnTheirWay) {
    exportAs(PaletteExportFormat::css);
    exportAs(PaletteExportFormat::txt);
    m_panels.choose(path("a.css"));
    m_panels.choose(path("a.txt"));
    m_exporter.finish();
    EXPECT_TRUE(QFile::exists(path("a.css")));
    EXPECT_TRUE(QFile::exists(path("a.txt")));
}

TEST_F(PaletteExporterTest, AFailureAtTheEndOfTheProgramGoesToTheLog) {
    static QString logged;
    exportIntoNoFolder();
    const auto former = qInstallMessageHandler(
        [](QtMsgType, const QMessageLogContext&, const QString& text) { logged = text; });
    m_exporter.finish();
    qInstallMessageHandler(former);
    EXPECT_TRUE(logged.startsWith(QStringLiteral("Couldn't export palette: “a.txt”")))
        << logged.toStdString();
    EXPECT_TRUE(m_alerts.shown().isEmpty());
}

struct NameRow {
    const char* name;
    const char* paletteName;
    const char* fileName;
};

class SuggestedFileName : public testing::TestWithParam<NameRow> {};

TEST_P(SuggestedFileName, HasAHyphenForEachCharacterThatFileSystemsTakeAmiss) {
    EXPECT_EQ(PaletteExporter::suggestedFileName(QString::fromUtf8(GetParam().paletteName)),
              QString::fromUtf8(GetParam().fileName));
}

INSTANTIATE_TEST_SUITE_P(
    Rows, SuggestedFileName,
    testing::Values(NameRow{"Plain", "Brand", "Brand"}, NameRow{"Reserved", "A/B: C?", "A-B- C-"},
                    NameRow{"All", "/:\\?%*|\"<>", "----------"},
                    NameRow{"Blank", " \n\t", "Palette"}, NameRow{"Ends", "  Brand\n", "Brand"},
                    NameRow{"Dots", "2024.final", "2024.final"}, NameRow{"Emoji", "🎨 色", "🎨 色"}),
    rowName);

struct FormatRow {
    const char* name;
    PaletteExportFormat format;
    const char* beginning;
};

class ExportedFile : public testing::TestWithParam<FormatRow> {};

TEST_P(ExportedFile, BeginsAsItsFormatDoes) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("a.") + fileExtension(GetParam().format));
    PaletteExporter::write(brand(), GetParam().format, path);
    EXPECT_TRUE(WholeFile::read(path).startsWith(GetParam().beginning));
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ExportedFile,
    testing::Values(FormatRow{"Ase", PaletteExportFormat::ase, "ASEF"},
                    FormatRow{"Clr", PaletteExportFormat::clr, "bplist00"},
                    FormatRow{"Json", PaletteExportFormat::json, "{\n  \"name\" : \"Brand\""},
                    FormatRow{"Txt", PaletteExportFormat::txt, "Brand\n"},
                    FormatRow{"Png", PaletteExportFormat::png, "\x89PNG"},
                    FormatRow{"Pdf", PaletteExportFormat::pdf, "%PDF-"},
                    FormatRow{"Html", PaletteExportFormat::html, "<!DOCTYPE html>"},
                    FormatRow{"Css", PaletteExportFormat::css, "/* "}),
    rowName);

TEST(PaletteExportFormatTest, TheMenuHasEveryFormatOnceInTheOrderOfTheirNames) {
    const QList<PaletteExportFormat> order = exportMenuOrder();
    QStringList extensions;
    for (const PaletteExportFormat format : order) {
        extensions.append(fileExtension(format));
        EXPECT_TRUE(menuTitle(format).endsWith(QStringLiteral("(.%1)").arg(fileExtension(format))));
    }
    EXPECT_EQ(extensions.join(u' '), QStringLiteral("ase clr css html json pdf txt png"));
}

} // namespace
} // namespace dropshade
