// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "palettes/PaletteDrop.h"

#include "support/FakePaletteCommands.h"
#include "support/QtPrinters.h"

#include <QMimeData>
#include <QUrl>

#include <gmock/gmock.h>

namespace dropshade {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Drop : public testing::Test {
protected:
    void offerFile(const char* path) {
        m_data.setUrls(m_data.urls() + QList{QUrl::fromLocalFile(QString::fromUtf8(path))});
    }
    void offerAddress(const char* address) { m_data.setUrls({QUrl(QString::fromUtf8(address))}); }
    void offer(const char* type, const char* bytes = "bytes") {
        m_data.setData(QString::fromUtf8(type), bytes);
    }
    bool perform() { return PaletteDrop::perform(m_data, m_commands); }
    std::optional<PaletteDropKind> kind() { return PaletteDrop::kindOf(m_data); }

    QMimeData m_data;
    FakePaletteCommands m_commands;
};

TEST_F(Drop, APaletteFileIsImportedWhateverTheCaseOfItsExtension) {
    offerFile("/home/me/Brand.JSON");
    EXPECT_EQ(kind(), PaletteDropKind::paletteFile);
    EXPECT_TRUE(perform());
    EXPECT_THAT(m_commands.files, ElementsAre(QStringLiteral("/home/me/Brand.JSON")));
}

TEST_F(Drop, OnlyTheFirstFileCounts) {
    offerFile("/a.ase");
    offerFile("/b.clr");
    perform();
    EXPECT_THAT(m_commands.files, ElementsAre(QStringLiteral("/a.ase")));
}

TEST_F(Drop, AnImageFileStartsAPaletteFromIt) {
    offerFile("/home/me/beach day.PNG");
    EXPECT_EQ(kind(), PaletteDropKind::image);
    EXPECT_TRUE(perform());
    EXPECT_THAT(m_commands.imageFiles, ElementsAre(QStringLiteral("/home/me/beach day.PNG")));
}

TEST_F(Drop, AnyOtherFileIsTriedAsAnImage) {
    offerFile("/home/me/notes.txt");
    EXPECT_EQ(kind(), PaletteDropKind::paletteFile);
    EXPECT_TRUE(perform());
    EXPECT_THAT(m_commands.imageFiles, ElementsAre(QStringLiteral("/home/me/notes.txt")));
    EXPECT_THAT(m_commands.files, IsEmpty());
}

TEST_F(Drop, AnImageFromABrowserComesAsDataNamedAfterItsAddress) {
    offerAddress("https://example.org/pictures/beach.final.jpg?size=2");
    offer("text/html", "<img>");
    offer("image/jpeg", "jpeg");
    EXPECT_EQ(kind(), PaletteDropKind::image);
    EXPECT_TRUE(perform());
    ASSERT_EQ(m_commands.images.size(), 1);
    EXPECT_EQ(m_commands.images.first().first, QByteArray("jpeg"));
    EXPECT_EQ(m_commands.images.first().second, QStringLiteral("beach.final"));
}

TEST_F(Drop, ImageTypesAreTriedFromPngOn) {
    offer("image/webp", "webp");
    offer("image/tiff", "tiff");
    offer("image/jpeg", "jpeg");
    offer("image/png", "png");
    perform();
    EXPECT_EQ(m_commands.images.first().first, QByteArray("png"));
}

TEST_F(Drop, AnyImageTypeServes) {
    offer("image/x-odd", "odd");
    perform();
    EXPECT_EQ(m_commands.images.first().first, QByteArray("odd"));
}

TEST_F(Drop, PaletteDataIsImportedByItsType) {
    offer("application/json", "{}");
    EXPECT_EQ(kind(), PaletteDropKind::paletteFile);
    EXPECT_TRUE(perform());
    ASSERT_EQ(m_commands.imports.size(), 1);
    EXPECT_EQ(m_commands.imports.first().fileExtension, QStringLiteral("json"));
    EXPECT_FALSE(m_commands.imports.first().suggestedName);
}

TEST_F(Drop, PaletteDataWithoutATypeOfItsOwnIsImportedByTheNameOfTheThing) {
    offerAddress("https://example.org/Brand.ASE");
    offer("application/octet-stream", "ASEF");
    EXPECT_EQ(kind(), PaletteDropKind::paletteFile);
    EXPECT_TRUE(perform());
    ASSERT_EQ(m_commands.imports.size(), 1);
    EXPECT_EQ(m_commands.imports.first().data, QByteArray("ASEF"));
    EXPECT_EQ(m_commands.imports.first().fileExtension, QStringLiteral("ase"));
    EXPECT_EQ(m_commands.imports.first().suggestedName, QStringLiteral("Brand.ASE"));
}

TEST_F(Drop, WhatIsNeitherIsRefused) {
    offer("text/plain", "red");
    offerAddress("https://example.org/");
    EXPECT_FALSE(kind());
    EXPECT_FALSE(perform());
    EXPECT_THAT(m_commands.files, IsEmpty());
    EXPECT_THAT(m_commands.images, IsEmpty());
}

TEST_F(Drop, NothingAtAllIsRefused) {
    EXPECT_FALSE(kind());
    EXPECT_FALSE(perform());
}

TEST_F(Drop, ThePromptSaysWhatADropWouldDo) {
    EXPECT_EQ(dropPrompt(PaletteDropKind::image),
              QStringLiteral("Drop image to create a new palette"));
    EXPECT_EQ(dropPrompt(PaletteDropKind::paletteFile),
              QStringLiteral("Drop palette file to import"));
}

} // namespace
} // namespace dropshade
