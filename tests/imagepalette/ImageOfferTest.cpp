// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "imagepalette/ImageOffer.h"

#include "support/QtPrinters.h"

#include <QMimeData>
#include <QUrl>

#include <gtest/gtest.h>

namespace dropshade {
namespace {

class ImageOfferTest : public testing::Test {
protected:
    void add(const char* type, const QByteArray& bytes = "x") {
        m_content.setData(QLatin1String(type), bytes);
    }

    QMimeData m_content;
    ImageOffer m_offer{m_content};
};

TEST_F(ImageOfferTest, NothingOffersNothing) {
    EXPECT_EQ(m_offer.file(), std::nullopt);
    EXPECT_EQ(m_offer.imageType(), std::nullopt);
    EXPECT_EQ(m_offer.imageData(), QByteArray());
    EXPECT_EQ(m_offer.suggestedName(), std::nullopt);
}

TEST_F(ImageOfferTest, TheFirstFileOfThisMachineCounts) {
    m_content.setUrls({QUrl(QStringLiteral("https://example.org/a.png")),
                       QUrl(QStringLiteral("file:///tmp/b%20c.png")),
                       QUrl(QStringLiteral("file:///tmp/d.png"))});
    EXPECT_EQ(m_offer.file(), QStringLiteral("/tmp/b c.png"));
}

TEST_F(ImageOfferTest, PngComesBeforeJpegBeforeTiffBeforeAllOthers) {
    add("text/html");
    add("image/bmp");
    EXPECT_EQ(m_offer.imageType(), QStringLiteral("image/bmp"));
    add("image/tiff");
    EXPECT_EQ(m_offer.imageType(), QStringLiteral("image/tiff"));
    add("image/jpeg", "jpeg");
    EXPECT_EQ(m_offer.imageType(), QStringLiteral("image/jpeg"));
    EXPECT_EQ(m_offer.imageData(), QByteArray("jpeg"));
    add("image/png", "png");
    EXPECT_EQ(m_offer.imageType(), QStringLiteral("image/png"));
    EXPECT_EQ(m_offer.imageData(), QByteArray("png"));
}

TEST_F(ImageOfferTest, WhatCanBeReadComesBeforeADrawing) {
    add("image/svg+xml");
    EXPECT_EQ(m_offer.imageType(), QStringLiteral("image/svg+xml"));
    add("image/webp");
    EXPECT_EQ(m_offer.imageType(), QStringLiteral("image/webp"));
}

TEST_F(ImageOfferTest, TheEndOfTheAddressIsTheName) {
    m_content.setUrls({QUrl(QStringLiteral("https://example.org/x/beach_day.png?size=2"))});
    EXPECT_EQ(m_offer.suggestedName(), QStringLiteral("beach_day.png"));
}

TEST_F(ImageOfferTest, AnAddressThatEndsInASlashHasNoName) {
    m_content.setUrls({QUrl(QStringLiteral("https://example.org/x/"))});
    EXPECT_EQ(m_offer.suggestedName(), std::nullopt);
}

TEST(NameWithoutExtension, LosesTheLastExtensionAlone) {
    EXPECT_EQ(nameWithoutExtension(QStringLiteral("/a.b/2024.final.png")),
              QStringLiteral("2024.final"));
    EXPECT_EQ(nameWithoutExtension(QStringLiteral("/a.b/photo")), QStringLiteral("photo"));
    EXPECT_EQ(nameWithoutExtension(QStringLiteral("/a/.hidden")), QStringLiteral(".hidden"));
}

} // namespace
} // namespace dropshade
