// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "imagepalette/NewPaletteFromImageModel.h"

#include "imagepalette/ImagePaletteDesk.h"
#include "imagepalette/SampleFiles.h"
#include "support/QtPrinters.h"
#include "support/SignalCount.h"

#include <gmock/gmock.h>

namespace dropshade {
namespace {

using Model = NewPaletteFromImageModel;

constexpr QRgb red = 0xFFFF0000;
constexpr QRgb green = 0xFF00FF00;
constexpr QRgb blue = 0xFF0000FF;
constexpr QRgb black = 0xFF000000;
constexpr QRgb white = 0xFFFFFFFF;

LoadedImage photo() {
    return ImagePaletteDesk::imageOf(SampleFiles::picture(60, 40));
}

LoadedImage solid(QRgb color) {
    return ImagePaletteDesk::imageOf({color});
}

class NewPaletteFromImage : public testing::Test {
protected:
    void load(const LoadedImage& image, const char* filename = nullptr) {
        m_model.load(image, filename ? std::optional(QString::fromUtf8(filename)) : std::nullopt);
    }
    [[nodiscard]] std::size_t colors() const { return m_model.swatches().size(); }

    ImagePaletteDesk m_desk;
    Model& m_model = m_desk.model();
};

TEST_F(NewPaletteFromImage, BeginsWithEightColorsByKMeansInTheOrderOfFrequency) {
    EXPECT_EQ(m_model.colorCount(), 8.0);
    EXPECT_EQ(m_model.algorithm(), QuantizationAlgorithm::kMeans);
    EXPECT_EQ(m_model.sortOrder(), SwatchSortOrder::frequency);
    EXPECT_FALSE(m_model.image());
    EXPECT_TRUE(m_model.swatches().empty());
    EXPECT_EQ(m_model.paletteName(), QString());
    EXPECT_FALSE(m_model.isProcessing());
    EXPECT_EQ(m_model.errorMessage(), std::nullopt);
    EXPECT_FALSE(m_model.isDropTargeted());
}

TEST(NewPaletteFromInitialImage, LoadsItWhenTheViewComesOnScreenAndOnlyOnce) {
    ImagePaletteDesk desk(photo(), QStringLiteral("my_photo-FINAL"));
    EXPECT_EQ(desk.model().paletteName(), QStringLiteral("My Photo Final"));
    EXPECT_FALSE(desk.model().image());
    desk.model().appear();
    EXPECT_TRUE(desk.model().image());
    EXPECT_EQ(desk.model().sourceFilename(), QStringLiteral("my_photo-FINAL"));
    desk.model().removeImage();
    desk.model().appear();
    EXPECT_FALSE(desk.model().image());
}

TEST(NewPaletteFromInitialImage, ItsNameMayBeReplacedByTheNextImages) {
    ImagePaletteDesk desk(photo(), QStringLiteral("old_name"));
    desk.model().appear();
    desk.model().load(photo(), QStringLiteral("beach_day"));
    EXPECT_EQ(desk.model().paletteName(), QStringLiteral("Beach Day"));
}

TEST_F(NewPaletteFromImage, WithoutAnInitialImageNothingIsLoaded) {
    m_model.appear();
    EXPECT_FALSE(m_model.image());
    EXPECT_EQ(m_desk.scheduler().pendingCount(), 0);
}

// The computation

TEST_F(NewPaletteFromImage, AnImageGivesItsColorsOffTheMainThread) {
    load(photo());
    EXPECT_TRUE(m_model.isProcessing());
    EXPECT_EQ(colors(), 0U);
    m_desk.scheduler().advance(30);
    EXPECT_EQ(m_desk.queue().runs(), 0);
    m_desk.queue().workAndLand();
    EXPECT_EQ(colors(), 8U);
    EXPECT_FALSE(m_model.isProcessing());
}

TEST_F(NewPaletteFromImage, OfManyQuickChangesOnlyTheLastComputes) {
    load(photo());
    for (int count = 9; count <= 24; ++count) {
        m_desk.scheduler().advance(29);
        m_desk.queue().work();
        m_model.setColorCount(count);
    }
    EXPECT_EQ(m_desk.queue().runs(), 0);
    m_desk.finish();
    EXPECT_EQ(m_desk.queue().runs(), 1);
    EXPECT_EQ(colors(), 24U);
}

TEST_F(NewPaletteFromImage, AStaleResultNeverLands) {
    m_model.setAlgorithm(QuantizationAlgorithm::medianCut);
    load(photo());
    m_desk.scheduler().advance(30);
    m_desk.queue().work();
    m_model.setColorCount(3);
    m_desk.queue().land();
    EXPECT_EQ(colors(), 0U);
    EXPECT_TRUE(m_model.isProcessing());
    m_desk.finish();
    EXPECT_EQ(colors(), 3U);
    EXPECT_FALSE(m_model.isProcessing());
}

TEST_F(NewPaletteFromImage, AResultOfTheImageBeforeNeverLandsOnTheNextOne) {
    load(solid(red));
    m_desk.scheduler().advance(30);
    m_desk.queue().work();
    load(solid(blue));
    m_desk.queue().land();
    EXPECT_EQ(colors(), 0U);
    m_desk.finish();
    EXPECT_THAT(m_model.swatches(), testing::ElementsAre(QuantizedColor{0, 0, 255, 1}));
}

TEST_F(NewPaletteFromImage, TheColorsBeforeStayUntilTheNextLand) {
    load(photo());
    m_desk.finish();
    m_model.setColorCount(4);
    EXPECT_EQ(colors(), 8U);
    m_desk.finish();
    EXPECT_EQ(colors(), 4U);
}

TEST_F(NewPaletteFromImage, AChangeOfAlgorithmComputesAnew) {
    load(solid(red));
    m_desk.finish();
    EXPECT_EQ(colors(), 1U);
    m_model.setAlgorithm(QuantizationAlgorithm::medianCut);
    m_desk.finish();
    // A box of equal pixels is split as well, but a single pixel can't be.
    EXPECT_EQ(colors(), 1U);
    EXPECT_EQ(m_desk.queue().runs(), 2);
}

TEST_F(NewPaletteFromImage, WhatIsSetToWhatItIsComputesNothing) {
    load(photo());
    m_desk.finish();
    m_model.setColorCount(8);
    m_model.setAlgorithm(QuantizationAlgorithm::kMeans);
    EXPECT_FALSE(m_model.isProcessing());
    EXPECT_EQ(m_desk.scheduler().pendingCount(), 0);
}

TEST_F(NewPaletteFromImage, ACountBetweenStepsIsTruncated) {
    load(photo());
    m_model.setColorCount(5.9);
    m_desk.finish();
    EXPECT_EQ(colors(), 5U);
}

TEST_F(NewPaletteFromImage, TheCountStaysFromTwoToTwentyFour) {
    m_model.setColorCount(-1);
    EXPECT_EQ(m_model.colorCount(), 2.0);
    m_model.setColorCount(1000);
    EXPECT_EQ(m_model.colorCount(), 24.0);
}

TEST_F(NewPaletteFromImage, FewerPixelsThanColorsGiveOneColorEach) {
    m_model.setColorCount(24);
    load(ImagePaletteDesk::imageOf({red, green, blue, black, white}));
    m_desk.finish();
    EXPECT_EQ(colors(), 5U);
}

TEST_F(NewPaletteFromImage, ATransparentImageIsNoFailureAndHasNoColors) {
    load(ImagePaletteDesk::imageOf({0x00FF0000, 0x0F00FF00}));
    m_desk.finish();
    EXPECT_EQ(m_model.errorMessage(), std::nullopt);
    EXPECT_FALSE(m_model.isProcessing());
    EXPECT_EQ(colors(), 0U);
    m_model.createPalette();
    EXPECT_TRUE(m_desk.made().isEmpty());
}

TEST_F(NewPaletteFromImage, AnImageWithoutPixelsIsToldAndHasNoColors) {
    load(photo());
    m_desk.finish();
    load(LoadedImage{});
    EXPECT_EQ(m_model.errorMessage(), QStringLiteral("Couldn't read this image."));
    EXPECT_EQ(colors(), 0U);
    load(photo());
    EXPECT_EQ(m_model.errorMessage(), std::nullopt);
}

TEST_F(NewPaletteFromImage, AnImageWithoutPixelsCancelsTheComputation) {
    load(photo());
    m_desk.scheduler().advance(30);
    m_desk.queue().work();
    load(LoadedImage{});
    m_desk.queue().land();
    EXPECT_EQ(colors(), 0U);
    EXPECT_FALSE(m_model.isProcessing());
}

TEST(NewPaletteFromImageEnd, AModelThatGoesCancelsWhatIsOnItsWay) {
    ManualScheduler scheduler;
    ManualBackgroundQueue queue;
    FakePasteboard pasteboard;
    {
        Model model({scheduler, queue, pasteboard});
        model.load(photo(), std::nullopt);
        scheduler.advance(30);
        queue.work();
    }
    queue.land();
    EXPECT_EQ(scheduler.pendingCount(), 0);
}

// The order

TEST_F(NewPaletteFromImage, AChangeOfOrderKeepsTheColorsAndComputesNothing) {
    load(photo());
    m_desk.finish();
    const auto before = m_model.swatches();
    const SignalCount changes(m_model, &Model::swatchesDidChange);
    m_model.setSortOrder(SwatchSortOrder::lightToDark);
    EXPECT_EQ(changes.count(), 1);
    EXPECT_EQ(m_model.swatches(), before);
    EXPECT_EQ(m_model.sortedSwatches(),
              ImageQuantizer::sorted(before, SwatchSortOrder::lightToDark));
    EXPECT_NE(m_model.sortedSwatches(), before);
    EXPECT_EQ(m_desk.queue().runs(), 1);
    EXPECT_FALSE(m_model.isProcessing());
}

// The name

TEST_F(NewPaletteFromImage, ATypedNameIsNeverReplaced) {
    m_model.setPaletteName(QStringLiteral("Trip"));
    load(photo(), "beach_day");
    EXPECT_EQ(m_model.paletteName(), QStringLiteral("Trip"));
}

TEST_F(NewPaletteFromImage, AnAutomaticNameIsReplacedByTheNext) {
    load(photo(), "old_name");
    EXPECT_EQ(m_model.paletteName(), QStringLiteral("Old Name"));
    load(photo(), "beach_day");
    EXPECT_EQ(m_model.paletteName(), QStringLiteral("Beach Day"));
}

TEST_F(NewPaletteFromImage, AnAutomaticNameThatWasEditedStays) {
    load(photo(), "old_name");
    m_model.setPaletteName(QStringLiteral("Old Name 2"));
    load(photo(), "beach_day");
    EXPECT_EQ(m_model.paletteName(), QStringLiteral("Old Name 2"));
}

TEST_F(NewPaletteFromImage, ABlankNameIsReplaced) {
    m_model.setPaletteName(QStringLiteral("  "));
    load(photo(), "beach_day");
    EXPECT_EQ(m_model.paletteName(), QStringLiteral("Beach Day"));
}

TEST_F(NewPaletteFromImage, AnImageWithoutANameLeavesTheNameAsItWas) {
    load(photo(), "old_name");
    load(photo());
    EXPECT_EQ(m_model.paletteName(), QStringLiteral("Old Name"));
    load(photo(), " ");
    EXPECT_EQ(m_model.paletteName(), QStringLiteral("Old Name"));
}

TEST_F(NewPaletteFromImage, AFileThatIsCalledUntitledFillsInNothing) {
    load(photo(), "old_name");
    load(photo(), "untitled-palette");
    EXPECT_EQ(m_model.paletteName(), QStringLiteral("Old Name"));
}

// Remove

TEST_F(NewPaletteFromImage, RemoveTakesTheImageAndItsColorsAndLeavesTheName) {
    load(photo(), "old_name");
    m_desk.finish();
    m_model.removeImage();
    EXPECT_FALSE(m_model.image());
    EXPECT_EQ(m_model.sourceFilename(), std::nullopt);
    EXPECT_EQ(colors(), 0U);
    EXPECT_EQ(m_model.errorMessage(), std::nullopt);
    EXPECT_EQ(m_model.paletteName(), QStringLiteral("Old Name"));
}

TEST_F(NewPaletteFromImage, AfterRemoveTheAutomaticNameMayStillBeReplaced) {
    load(photo(), "old_name");
    m_model.removeImage();
    load(photo(), "beach_day");
    EXPECT_EQ(m_model.paletteName(), QStringLiteral("Beach Day"));
}

TEST_F(NewPaletteFromImage, RemoveCancelsTheComputation) {
    load(photo());
    m_desk.scheduler().advance(30);
    m_desk.queue().work();
    m_model.removeImage();
    m_desk.queue().land();
    EXPECT_EQ(colors(), 0U);
    EXPECT_TRUE(m_model.isProcessing()) << "the next image's computation ends it";
}

TEST_F(NewPaletteFromImage, AfterRemoveTheControlsComputeNothing) {
    load(photo());
    m_desk.finish();
    m_model.removeImage();
    m_model.setColorCount(12);
    m_model.setAlgorithm(QuantizationAlgorithm::octree);
    m_desk.finish();
    EXPECT_EQ(m_desk.queue().runs(), 1);
    EXPECT_EQ(colors(), 0U);
}

// Create

TEST_F(NewPaletteFromImage, CreateMakesOneScaleOfHexValuesInTheChosenOrder) {
    m_desk.scheduler().setNow(ReferenceTime{812345678.25});
    load(ImagePaletteDesk::imageOf({0xFF0A0B0C, white, white, 0xFFABCDEF}), "my_photo");
    m_model.setSortOrder(SwatchSortOrder::darkToLight);
    m_desk.finish();
    m_model.createPalette();
    ASSERT_EQ(m_desk.made().size(), 1);
    const Palette& palette = m_desk.made().first();
    EXPECT_EQ(palette.name(), QStringLiteral("My Photo"));
    EXPECT_GE(palette.lastModified().seconds, 812345678.25);
    ASSERT_EQ(palette.scales().size(), 1);
    EXPECT_EQ(palette.scales().first().name(), QStringLiteral("Colors"));
    QStringList values;
    QSet<QUuid> ids{palette.id(), palette.scales().first().id()};
    for (const PaletteSwatch& swatch : palette.scales().first().swatches()) {
        values.append(swatch.value());
        ids.insert(swatch.id());
        EXPECT_EQ(swatch.label(), std::nullopt);
    }
    EXPECT_EQ(values, QStringList({QStringLiteral("#0a0b0c"), QStringLiteral("#abcdef"),
                                   QStringLiteral("#ffffff")}));
    EXPECT_EQ(ids.size(), 5);
}

TEST_F(NewPaletteFromImage, CreateTrimsTheName) {
    load(photo());
    m_desk.finish();
    m_model.setPaletteName(QStringLiteral(" Trip\n"));
    m_model.createPalette();
    EXPECT_EQ(m_desk.made().first().name(), QStringLiteral("Trip"));
}

TEST_F(NewPaletteFromImage, CreateWithABlankNameMakesAnUntitledPalette) {
    load(photo());
    m_desk.finish();
    m_model.setPaletteName(QStringLiteral(" \t "));
    m_model.createPalette();
    EXPECT_EQ(m_desk.made().first().name(), QStringLiteral("Untitled Palette"));
}

TEST_F(NewPaletteFromImage, CreateWithoutAnImageOrWithoutColorsDoesNothing) {
    m_model.createPalette();
    load(photo());
    m_model.createPalette();
    EXPECT_TRUE(m_desk.made().isEmpty());
}

TEST_F(NewPaletteFromImage, CreateWhileAComputationIsOnItsWayTakesWhatIsSeen) {
    load(photo());
    m_desk.finish();
    m_model.setColorCount(24);
    m_model.createPalette();
    EXPECT_EQ(m_desk.made().first().scales().first().swatches().size(), 8);
}

} // namespace
} // namespace dropshade
