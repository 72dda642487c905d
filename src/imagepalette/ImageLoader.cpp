// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "imagepalette/ImageLoader.h"

#include "bytes/BytesOf.h"
#include "imagepalette/HeifCheck.h"
#include "imagepalette/HeifDecoder.h"
#include "imagepalette/ImageFileCheck.h"

#include <QBuffer>
#include <QColorSpace>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QPixelFormat>

#include <algorithm>
#include <cmath>

namespace dropshade {

namespace {

// Decoding costs by the pixel, so a small file may claim few of them. Above that each byte stands
// for as many as it does in a large drawing of flat colours; photographs have less than fifty.
constexpr qint64 freePixels = 4 * 1024 * 1024;
constexpr qint64 mostPixelsPerByte = 256;

// What the decoder of a JPEG reduces while it decodes need not fit in memory whole.
constexpr qint64 mostJpegPixels = 200 * 1000 * 1000;
constexpr qint64 mostDecodedBytes = 128 * 1024 * 1024;
// A picture in tiles counts twice, once in them and once put together; depths and the like come on
// top.
constexpr std::uint64_t mostHeifWork = 140 * 1000 * 1000;

qint64 areaOf(QSize size) {
    return static_cast<qint64>(size.width()) * size.height();
}

qint64 proportionatePixels(qint64 fileSize) {
    return freePixels + mostPixelsPerByte * fileSize;
}

/// `size` with its longer side brought down to `longest`; as it is where that is no longer.
QSize reduced(QSize size, int longest) {
    const int longer = std::max(size.width(), size.height());
    if (longer <= longest)
        return size;
    const double scale = static_cast<double>(longest) / longer;
    const auto side = [scale](int length) {
        return std::max(1, static_cast<int>(std::round(scale * length)));
    };
    return {side(size.width()), side(size.height())};
}

bool isIndexed(QImage::Format format) {
    return format == QImage::Format_Mono || format == QImage::Format_MonoLSB ||
           format == QImage::Format_Indexed8;
}

/// Without a colour table: Qt scales and paints in the belief that every index is in it, and only
/// this conversion looks.
QImage unindexed(QImage image) {
    if (isIndexed(image.format()))
        image.convertTo(image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied
                                                : QImage::Format_RGB32);
    return image;
}

QImage scaledTo(QSize size, QImage image) {
    if (image.size() == size)
        return image;
    // In place where nobody else has the image; the scaler would make a whole copy in this format.
    if (image.hasAlphaChannel())
        image.convertTo(QImage::Format_ARGB32_Premultiplied);
    return image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

/// With rows that follow each other closely: Qt 6.4 overruns its memory when it changes the format
/// of an image of four-byte pixels whose rows are padded, as libheif's are.
QImage packed(QImage image) {
    if (image.depth() == 32 && image.bytesPerLine() != qsizetype{4} * image.width())
        image = image.copy();
    return image;
}

/// An image without a profile is taken for sRGB; one whose profile cannot be converted stays as it
/// is.
QImage inSRGB(QImage image) {
    const QColorSpace own = image.colorSpace();
    if (own.isValid() && own != QColorSpace(QColorSpace::SRgb)) {
        QImage converted = image.convertedToColorSpace(QColorSpace::SRgb);
        if (!converted.isNull())
            image = std::move(converted);
    }
    return image;
}

const char* readerFormatOf(ImageFileFormat format) {
    switch (format) {
    case ImageFileFormat::png:
        return "png";
    case ImageFileFormat::jpeg:
        return "jpeg";
    case ImageFileFormat::gif:
        return "gif";
    case ImageFileFormat::bmp:
        return "bmp";
    case ImageFileFormat::tiff:
        return "tiff";
    case ImageFileFormat::webp:
        return "webp";
    case ImageFileFormat::heif:
        break;
    }
    return "";
}

bool fitsInMemory(const QImageReader& reader, ImageFileFormat format) {
    const QSize size = reader.size();
    if (format == ImageFileFormat::jpeg)
        return areaOf(size) <= mostJpegPixels;
    const int bits = QImage::toPixelFormat(reader.imageFormat()).bitsPerPixel();
    return areaOf(size) * std::max(bits, 32) / 8 <= mostDecodedBytes;
}

std::optional<LoadedImage> loadByReader(const QByteArray& data, ImageFileFormat format) {
    QBuffer buffer;
    buffer.setData(data);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer, readerFormatOf(format));
    reader.setAutoDetectImageFormat(false);
    reader.setAutoTransform(true);
    const QSize size = reader.size();
    if (size.isEmpty() || areaOf(size) > proportionatePixels(data.size()) ||
        !fitsInMemory(reader, format))
        return std::nullopt;
    const QSize target = reduced(size, ImageLoader::longestSide);
    if (target != size && !isIndexed(reader.imageFormat()) &&
        reader.supportsOption(QImageIOHandler::ScaledSize))
        reader.setScaledSize(target);
    const bool isTurned = reader.transformation().testFlag(QImageIOHandler::TransformationRotate90);
    QImage image;
    if (!reader.read(&image) || image.isNull())
        return std::nullopt;
    image = scaledTo(isTurned ? target.transposed() : target, unindexed(std::move(image)));
    return LoadedImage{inSRGB(std::move(image)), isTurned ? size.transposed() : size};
}

std::optional<LoadedImage> loadHeif(const QByteArray& data) {
    const auto work = heifDecodingPixels(bytesOf(data));
    if (!work || *work > mostHeifWork ||
        static_cast<qint64>(*work) > 2 * proportionatePixels(data.size()))
        return std::nullopt;
    auto image = decodeHeif(data);
    if (!image)
        return std::nullopt;
    const QSize size = image->size();
    const QSize target = reduced(size, ImageLoader::longestSide);
    return LoadedImage{inSRGB(scaledTo(target, packed(std::move(*image)))), size};
}

} // namespace

QStringList ImageLoader::fileExtensions() {
    return {QStringLiteral("png"),  QStringLiteral("jpg"),  QStringLiteral("jpeg"),
            QStringLiteral("heic"), QStringLiteral("heif"), QStringLiteral("tif"),
            QStringLiteral("tiff"), QStringLiteral("gif"),  QStringLiteral("bmp"),
            QStringLiteral("webp")};
}

std::optional<LoadedImage> ImageLoader::loadData(const QByteArray& data) {
    if (data.size() > largestFile)
        return std::nullopt;
    const auto format = imageFileFormatOf(bytesOf(data));
    if (!format || !isWholeImageFile(*format, bytesOf(data)))
        return std::nullopt;
    return *format == ImageFileFormat::heif ? loadHeif(data) : loadByReader(data, *format);
}

std::optional<LoadedImage> ImageLoader::loadFile(const QString& path) {
    QFile file(path);
    // Opening a pipe would wait for its other end.
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly) || file.size() > largestFile)
        return std::nullopt;
    return loadData(file.read(largestFile + 1));
}

std::optional<PixelBuffer> pixelBufferOf(const QImage& image) {
    return pixelBufferOf(LoadedImage{image, image.size()});
}

std::optional<PixelBuffer> pixelBufferOf(const LoadedImage& image) {
    if (image.image.isNull() || image.originalSize.isEmpty())
        return std::nullopt;
    const QSize size = reduced(image.originalSize, PixelBuffer::longestSide);
    const QImage surface = inSRGB(scaledTo(size, unindexed(packed(image.image))))
                               .convertToFormat(QImage::Format_RGBA8888_Premultiplied);
    if (surface.isNull())
        return std::nullopt;
    return PixelBuffer::fromPremultipliedRGBA(
        {surface.constBits(), static_cast<std::size_t>(surface.sizeInBytes())});
}

} // namespace dropshade
