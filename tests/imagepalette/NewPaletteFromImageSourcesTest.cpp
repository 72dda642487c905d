// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
// The ways in which an image reaches the sheet: a file, the clipboard, a drop.

#include "imagepalette/ImagePaletteDesk.h"
#include "imagepalette/SampleFiles.h"
#include "support/QtPrinters.h"

#include <QFile>
#include <QTemporaryDir>
#include <QUrl>

#include <gtest/gtest.h>

#include <chrono>

namespace dropshade {
namespace {

const QString unsupported = QStringLiteral("Unsupported image format.");
const QString noImage = QStringLiteral("No image on the clipboard.");

class NewPaletteFromImageSources : public testing::Test {
protected:
    [[nodiscard]] static QByteArray png() {
        return SampleFiles::encoded(SampleFiles::picture(30, 20), "png");
    }
    [[nodiscard]] QString write(const char* name, const QByteArray& content) const {
        const QString path = m_folder.filePath(QString::fromUtf8(name));
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        return path;
    }
    [[nodiscard]] static std::unique_ptr<QMimeData> data(const char* type,
                                                         const QByteArray& bytes) {
        auto content = std::make_unique<QMimeData>();
        content->setData(QLatin1String(type), bytes);
        return content;
    }
    [[nodiscard]] static std::unique_ptr<QMimeData> files(const QStringList& paths) {
        QList<QUrl> urls;
        for (const QString& path : paths)
            urls.append(QUrl::fromLocalFile(path));
        auto content = std::make_unique<QMimeData>();
        content->setUrls(urls);
        return content;
    }
    void loadFile(const QString& path) {
        m_model.loadFile(path);
        m_desk.decode();
    }
    void drop(const QMimeData& content) {
        m_model.drop(content);
        m_desk.decode();
    }
    void paste(std::unique_ptr<QMimeData> content) {
        m_desk.pasteboard().setContent(std::move(content));
        m_model.paste();
        m_desk.decode();
    }
    [[nodiscard]] bool isUntouched() const {
        return !m_model.image() && m_model.errorMessage() == std::nullopt &&
               m_model.paletteName().isEmpty();
    }

    QTemporaryDir m_folder;
    ImagePaletteDesk m_desk;
    NewPaletteFromImageModel& m_model = m_desk.model();
};

// A file

TEST_F(NewPaletteFromImageSources, AFileLoadsUnderItsNameWithoutTheExtension) {
    loadFile(write("beach_day.2024.png", png()));
    ASSERT_TRUE(m_model.image());
    EXPECT_EQ(m_model.image()->originalSize, QSize(30, 20));
    EXPECT_EQ(m_model.sourceFilename(), QStringLiteral("beach_day.2024"));
    EXPECT_EQ(m_model.paletteName(), QStringLiteral("Beach Day.2024"));
}

TEST_F(NewPaletteFromImageSources, AFileThatIsNoImageIsToldAndTheEarlierImageStays) {
    loadFile(write("first.png", png()));
    m_desk.finish();
    const auto swatches = m_model.swatches();
    loadFile(write("notes.txt", "no image"));
    EXPECT_EQ(m_model.errorMessage(), unsupported);
    ASSERT_TRUE(m_model.image());
    EXPECT_EQ(m_model.sourceFilename(), QStringLiteral("first"));
    EXPECT_EQ(m_model.paletteName(), QStringLiteral("First"));
    EXPECT_EQ(m_model.swatches(), swatches);
    EXPECT_FALSE(m_model.isProcessing());
}

TEST_F(NewPaletteFromImageSources, AnImageClearsTheOldMessage) {
    loadFile(write("notes.txt", "no image"));
    loadFile(write("first.png", png()));
    EXPECT_EQ(m_model.errorMessage(), std::nullopt);
}

TEST_F(NewPaletteFromImageSources, AMissingFileAFolderAndAnEmptyFileAreTold) {
    for (const QString& path :
         {m_folder.filePath(QStringLiteral("none.png")), m_folder.path(), write("empty.png", {})}) {
        m_model.removeImage();
        loadFile(path);
        EXPECT_EQ(m_model.errorMessage(), unsupported) << path.toStdString();
    }
}

TEST_F(NewPaletteFromImageSources, AnImageUnderAnotherFormatsNameLoads) {
    loadFile(write("photo.jpg", png()));
    EXPECT_TRUE(m_model.image());
}

TEST_F(NewPaletteFromImageSources, HostileFilesEndInTheMessageQuickly) {
    const QByteArray whole = png();
    // A PNG of 65,535 × 65,535 in a few bytes, and ones that are cut short anywhere.
    QList<QByteArray> hostile{SampleFiles::patched(whole, 16, QByteArray("\0\0\xff\xff", 4)),
                              SampleFiles::patched(whole, 16, QByteArray("\x7f\xff\xff\xff", 4))};
    for (qsizetype length = 0; length < whole.size(); length += 7)
        hostile.append(whole.left(length));
    for (const QByteArray& file : hostile) {
        m_model.removeImage();
        const auto start = std::chrono::steady_clock::now();
        loadFile(write("hostile.png", file));
        const std::chrono::duration<double> time = std::chrono::steady_clock::now() - start;
        EXPECT_EQ(m_model.errorMessage(), unsupported) << file.size() << " bytes";
        EXPECT_LT(time.count(), 1.0);
    }
}

// Beside the main thread

TEST_F(NewPaletteFromImageSources, AFileIsDecodedBesideTheMainThread) {
    m_model.loadFile(write("first.png", png()));
    EXPECT_FALSE(m_model.image());
    m_desk.queue().work();
    EXPECT_FALSE(m_model.image());
    m_desk.queue().land();
    EXPECT_TRUE(m_model.image());
}

TEST_F(NewPaletteFromImageSources, OfTwoFilesTheLaterShows) {
    m_model.loadFile(write("first.png", png()));
    m_model.loadFile(write("second.png", png()));
    m_desk.decode();
    EXPECT_EQ(m_model.sourceFilename(), QStringLiteral("first"));
    m_desk.decode();
    EXPECT_EQ(m_model.sourceFilename(), QStringLiteral("second"));
    EXPECT_EQ(m_model.paletteName(), QStringLiteral("Second"));
}

TEST_F(NewPaletteFromImageSources, AnImageThatIsRemovedTakesTheOneOnItsWayAlong) {
    loadFile(write("first.png", png()));
    m_model.loadFile(write("second.png", png()));
    m_desk.queue().work();
    m_model.removeImage();
    m_desk.queue().land();
    EXPECT_FALSE(m_model.image());
    loadFile(write("third.png", png()));
    EXPECT_EQ(m_model.sourceFilename(), QStringLiteral("third"));
}

TEST_F(NewPaletteFromImageSources, TheEndOfTheSheetDropsTheImageOnItsWay) {
    ManualScheduler scheduler;
    ManualBackgroundQueue queue;
    const FakePasteboard pasteboard;
    auto model = std::make_unique<NewPaletteFromImageModel>(
        NewPaletteFromImageModel::Surroundings{scheduler, queue, pasteboard});
    model->loadFile(write("first.png", png()));
    model->loadFile(write("second.png", png()));
    queue.work();
    model.reset();
    queue.workAndLand();
    EXPECT_EQ(queue.runs(), 1);
    EXPECT_EQ(queue.waiting(), 0);
}

// The clipboard

TEST_F(NewPaletteFromImageSources, AnEmptyClipboardIsTold) {
    m_model.paste();
    m_desk.decode();
    EXPECT_EQ(m_model.errorMessage(), noImage);
}

TEST_F(NewPaletteFromImageSources, ACopiedTextIsNoImage) {
    paste(data("text/plain", "#FF0000"));
    EXPECT_EQ(m_model.errorMessage(), noImage);
}

TEST_F(NewPaletteFromImageSources, ACopiedImageLoadsWithoutAName) {
    m_model.setPaletteName(QString());
    paste(data("image/png", png()));
    EXPECT_TRUE(m_model.image());
    EXPECT_EQ(m_model.sourceFilename(), std::nullopt);
    EXPECT_EQ(m_model.paletteName(), QString());
    EXPECT_EQ(m_model.errorMessage(), std::nullopt);
}

TEST_F(NewPaletteFromImageSources, TheFirstOfTheCopiedFilesLoads) {
    paste(files({write("beach_day.png", png()), write("other.png", png())}));
    EXPECT_EQ(m_model.sourceFilename(), QStringLiteral("beach_day"));
    EXPECT_EQ(m_model.paletteName(), QStringLiteral("Beach Day"));
}

TEST_F(NewPaletteFromImageSources, ACopiedFileThatIsNoImageIsUnsupported) {
    paste(files({write("notes.txt", "no image")}));
    EXPECT_EQ(m_model.errorMessage(), unsupported);
}

TEST_F(NewPaletteFromImageSources, AnImageComesBeforeAFile) {
    auto content = files({write("beach_day.png", png())});
    content->setData(QStringLiteral("image/png"), png());
    paste(std::move(content));
    EXPECT_TRUE(m_model.image());
    EXPECT_EQ(m_model.sourceFilename(), std::nullopt);
}

TEST_F(NewPaletteFromImageSources, BytesThatAreNoImageLetTheFileCount) {
    auto content = files({write("beach_day.png", png())});
    content->setData(QStringLiteral("image/png"), "junk");
    paste(std::move(content));
    EXPECT_EQ(m_model.sourceFilename(), QStringLiteral("beach_day"));
}

TEST_F(NewPaletteFromImageSources, CopiedBytesThatAreNoImageAreTold) {
    paste(data("image/png", "junk"));
    EXPECT_EQ(m_model.errorMessage(), noImage);
}

// A drop

TEST_F(NewPaletteFromImageSources, FilesAndImagesAreAccepted) {
    EXPECT_TRUE(NewPaletteFromImageModel::accepts(*files({QStringLiteral("/tmp/a.txt")})));
    EXPECT_TRUE(NewPaletteFromImageModel::accepts(*data("image/jpeg", "x")));
    EXPECT_TRUE(NewPaletteFromImageModel::accepts(*data("image/bmp", "x")));
    EXPECT_FALSE(NewPaletteFromImageModel::accepts(*data("text/plain", "x")));
    EXPECT_FALSE(NewPaletteFromImageModel::accepts(QMimeData()));
}

TEST_F(NewPaletteFromImageSources, ADroppedFileComesBeforeDroppedBytes) {
    auto content = files({write("beach_day.png", png())});
    content->setData(QStringLiteral("image/png"), png());
    drop(*content);
    EXPECT_EQ(m_model.sourceFilename(), QStringLiteral("beach_day"));
}

TEST_F(NewPaletteFromImageSources, DroppedBytesLoadUnderTheSuggestedName) {
    const auto content = data("image/png", png());
    content->setUrls({QUrl(QStringLiteral("https://example.org/harbour_at-dusk.webp"))});
    drop(*content);
    EXPECT_TRUE(m_model.image());
    EXPECT_EQ(m_model.sourceFilename(), QStringLiteral("harbour_at-dusk"));
    EXPECT_EQ(m_model.paletteName(), QStringLiteral("Harbour At Dusk"));
}

TEST_F(NewPaletteFromImageSources, DroppedBytesWithoutANameLeaveTheNameAsItWas) {
    drop(*data("image/png", png()));
    EXPECT_TRUE(m_model.image());
    EXPECT_EQ(m_model.paletteName(), QString());
}

TEST_F(NewPaletteFromImageSources, DroppedBytesThatAreNoImageDoNothing) {
    drop(*data("image/png", "junk"));
    EXPECT_TRUE(isUntouched());
}

TEST_F(NewPaletteFromImageSources, ADroppedFileThatIsNoImageIsTold) {
    drop(*files({write("notes.txt", "no image")}));
    EXPECT_EQ(m_model.errorMessage(), unsupported);
}

TEST_F(NewPaletteFromImageSources, ADropOfNothingDoesNothing) {
    drop(QMimeData());
    EXPECT_TRUE(isUntouched());
}

// The formats

struct Format {
    const char* name;
    QByteArray (*make)();
};

class PromisedFormats : public testing::TestWithParam<Format> {};

TEST_P(PromisedFormats, GiveColors) {
    const QByteArray file = GetParam().make();
    ASSERT_FALSE(file.isEmpty()) << "no encoder on this system";
    ImagePaletteDesk desk;
    QMimeData content;
    content.setData(QStringLiteral("image/x-anything"), file);
    desk.model().drop(content);
    desk.decode();
    desk.finish();
    EXPECT_TRUE(desk.model().image());
    EXPECT_FALSE(desk.model().swatches().empty());
    desk.model().createPalette();
    EXPECT_EQ(desk.made().size(), 1);
}

INSTANTIATE_TEST_SUITE_P(
    All, PromisedFormats,
    testing::Values(
        Format{"Png", [] { return SampleFiles::encoded(SampleFiles::picture(64, 48), "png"); }},
        Format{"Jpeg", [] { return SampleFiles::encoded(SampleFiles::picture(64, 48), "jpeg"); }},
        Format{"Heic", [] { return SampleFiles::heic(SampleFiles::picture(64, 48)); }},
        Format{"Tiff", [] { return SampleFiles::tiff(64, 48, qRgb(1, 2, 3)); }},
        Format{"Gif", [] { return SampleFiles::gif(4, 4, qRgb(255, 0, 0), qRgb(0, 0, 255)); }},
        Format{"Bmp", [] { return SampleFiles::encoded(SampleFiles::picture(64, 48), "bmp"); }},
        Format{"WebP", [] { return SampleFiles::encoded(SampleFiles::picture(64, 48), "webp"); }},
        Format{"CmykJpeg", [] { return SampleFiles::cmykJpeg(255, 0, 0, 255); }},
        Format{"TurnedJpeg",
               [] { return SampleFiles::jpegWithOrientation(SampleFiles::picture(64, 48), 6); }}),
    [](const auto& row) { return std::string(row.param.name); });

} // namespace
} // namespace dropshade
