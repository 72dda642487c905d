// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "interchange/PaletteImporter.h"

#include "interchange/PaletteExporter.h"
#include "support/ManualScheduler.h"
#include "support/Palettes.h"
#include "support/QtPrinters.h"
#include "support/RowName.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <atomic>
#include <functional>
#include <thread>

namespace dropshade {
namespace {

using Kind = PaletteImporterError::Kind;

constexpr char json[] = R"({"name":"Inner","scales":[]})";

class PaletteImporterTest : public testing::Test {
protected:
    QString write(const char* name, const QByteArray& content) {
        const QString path = m_folder.filePath(QString::fromUtf8(name));
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        return path;
    }
    QString exported(const char* name, PaletteExportFormat format) {
        const QString path = m_folder.filePath(QString::fromUtf8(name));
        PaletteExporter::write(makePalette("Inner", {makeScale("Blue", {"#0000ff"})}), format,
                               path);
        return path;
    }
    /// What the importer says, or nothing where it takes the file.
    static QString refusal(const std::function<void()>& action, Kind kind) {
        try {
            action();
        } catch (const PaletteImporterError& error) {
            EXPECT_EQ(error.kind(), kind);
            return error.description();
        }
        return QString();
    }

    QTemporaryDir m_folder;
    ManualScheduler m_clock;
    PaletteImporter m_importer{m_clock.now()};
};

TEST_F(PaletteImporterTest, TheFileNameWithoutItsExtensionIsThePalettesName) {
    EXPECT_EQ(m_importer.load(exported("Mine.ASE", PaletteExportFormat::ase)).name(),
              QStringLiteral("Mine"));
    EXPECT_EQ(m_importer.load(write("2024.final.json", json)).name(), QStringLiteral("2024.final"));
    EXPECT_EQ(m_importer.load(exported("色 🎨.json", PaletteExportFormat::json)).name(),
              QString::fromUtf8("色 🎨"));
}

TEST_F(PaletteImporterTest, AFileNamedByItsExtensionAloneKeepsTheNameInside) {
    EXPECT_EQ(m_importer.load(write(".json", json)).name(), QStringLiteral("Inner"));
}

TEST_F(PaletteImporterTest, EveryFormatComesBackWithItsColors) {
    for (const PaletteExportFormat format :
         {PaletteExportFormat::ase, PaletteExportFormat::clr, PaletteExportFormat::json}) {
        const QString path =
            exported(qPrintable(QStringLiteral("a.") + fileExtension(format)), format);
        const Palette palette = m_importer.load(path);
        ASSERT_EQ(palette.scales().size(), 1);
        EXPECT_EQ(palette.scales().at(0).name(), QStringLiteral("Blue"));
        EXPECT_EQ(palette.scales().at(0).swatches().at(0).color(), SRGBColor(0, 0, 1));
        EXPECT_EQ(palette.lastModified(), m_clock.now());
    }
}

TEST_F(PaletteImporterTest, DataWithoutANameKeepsTheOneInside) {
    EXPECT_EQ(m_importer.decode(json, QStringLiteral("JSON")).name(), QStringLiteral("Inner"));
    EXPECT_EQ(m_importer.decode(json, QStringLiteral("json"), QStringLiteral(".json")).name(),
              QStringLiteral("Inner"));
    EXPECT_EQ(
        m_importer.decode(json, QStringLiteral("json"), QStringLiteral("Dropped.json")).name(),
        QStringLiteral("Dropped"));
    EXPECT_EQ(m_importer.decode(json, QStringLiteral("json"), QStringLiteral("Dropped")).name(),
              QStringLiteral("Dropped"));
}

TEST_F(PaletteImporterTest, AnotherExtensionIsRefusedWithItsText) {
    EXPECT_EQ(refusal([&] { static_cast<void>(m_importer.load(write("a.GPL", json))); },
                      Kind::unsupportedFormat),
              QStringLiteral("This file type (.gpl) isn't supported. Try .ase, .clr, or .json."));
    EXPECT_EQ(refusal([&] { static_cast<void>(m_importer.load(write("palette", json))); },
                      Kind::unsupportedFormat),
              QStringLiteral("This file type (.) isn't supported. Try .ase, .clr, or .json."));
    EXPECT_FALSE(refusal([&] { static_cast<void>(m_importer.decode(json, QString())); },
                         Kind::unsupportedFormat)
                     .isEmpty());
}

TEST_F(PaletteImporterTest, TheContentIsNeverGuessedAt) {
    for (const char* name : {"json.ase", "json.clr"}) {
        EXPECT_TRUE(refusal([&] { static_cast<void>(m_importer.load(write(name, json))); },
                            Kind::malformedFile)
                        .startsWith(QStringLiteral("The file couldn't be read as a palette. ")))
            << name;
    }
    const QString path = exported("really.json", PaletteExportFormat::ase);
    EXPECT_FALSE(
        refusal([&] { static_cast<void>(m_importer.load(path)); }, Kind::malformedFile).isEmpty());
}

TEST_F(PaletteImporterTest, CodecErrorsWithoutWordsAreToldInTheGenericSentence) {
    EXPECT_EQ(refusal([&] { static_cast<void>(m_importer.decode("no", QStringLiteral("ase"))); },
                      Kind::malformedFile),
              QStringLiteral("The file couldn't be read as a palette. The operation couldn't be "
                             "completed. (ASECoderError)"));
    EXPECT_EQ(refusal([&] { static_cast<void>(m_importer.decode("no", QStringLiteral("clr"))); },
                      Kind::malformedFile),
              QStringLiteral("The file couldn't be read as a palette. The operation couldn't be "
                             "completed. (CLRCoderError)"));
}

TEST_F(PaletteImporterTest, AJsonFileWithoutANameFailsThoughTheFileHasOne) {
    EXPECT_FALSE(
        refusal(
            [&] { static_cast<void>(m_importer.load(write("Named.json", R"({"scales":[]})"))); },
            Kind::malformedFile)
            .isEmpty());
}

TEST_F(PaletteImporterTest, AMissingFileIsNamedInTheMessage) {
    for (const char* name : {"gone.json", "gone.ase", "gone.clr"}) {
        const QString text = refusal(
            [&] { static_cast<void>(m_importer.load(m_folder.filePath(QLatin1String(name)))); },
            Kind::malformedFile);
        EXPECT_TRUE(text.contains(QLatin1String(name))) << text.toStdString();
    }
}

TEST_F(PaletteImporterTest, ReadingLeavesNoFileBehind) {
    const QStringList before = QDir::temp().entryList({QStringLiteral("*.clr")});
    EXPECT_FALSE(refusal([&] { static_cast<void>(m_importer.decode("no", QStringLiteral("clr"))); },
                         Kind::malformedFile)
                     .isEmpty());
    EXPECT_EQ(QDir::temp().entryList({QStringLiteral("*.clr")}), before);
}

TEST_F(PaletteImporterTest, AFileThatChangesWhileItIsReadIsOneOrTheOtherOrAnError) {
    const QByteArray longer = "{\"name\":\"B\",\"scales\":[]" + QByteArray(200'000, ' ') + "}";
    const QString path = write("changing.json", json);
    std::atomic<bool> isOver = false;
    std::thread writer([&] {
        for (bool isLong = true; !isOver; isLong = !isLong) {
            QFile file(path);
            if (file.open(QIODevice::WriteOnly))
                file.write(isLong ? longer : QByteArray(json));
        }
    });
    int taken = 0;
    for (int round = 0; round < 300; ++round) {
        try {
            EXPECT_EQ(m_importer.load(path).name(), QStringLiteral("changing"));
            ++taken;
        } catch (const PaletteImporterError& error) {
            EXPECT_EQ(error.kind(), Kind::malformedFile);
        }
    }
    isOver = true;
    writer.join();
    RecordProperty("taken", taken);
}

} // namespace
} // namespace dropshade
