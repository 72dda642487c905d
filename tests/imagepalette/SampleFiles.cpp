// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "imagepalette/SampleFiles.h"

#include <QBuffer>
#include <QtEndian>

namespace dropshade::SampleFiles {

namespace {

QByteArray bytes(std::initializer_list<int> values) {
    QByteArray result;
    for (const int value : values)
        result.append(static_cast<char>(value));
    return result;
}

template <typename Number>
QByteArray little(Number value) {
    QByteArray result(sizeof(Number), Qt::Uninitialized);
    qToLittleEndian(value, result.data());
    return result;
}

QByteArray big16(int value) {
    return bytes({value >> 8, value & 0xFF});
}

/// A JPEG segment: its marker, the length of the body and that of itself, the body.
QByteArray segment(int marker, const QByteArray& body) {
    return bytes({0xFF, marker}) + big16(static_cast<int>(body.size()) + 2) + body;
}

/// Bits in the order in which they are added: from the high end of a byte (JPEG), or from the low
/// (GIF).
class BitWriter {
public:
    enum class Order { highFirst, lowFirst };

    explicit BitWriter(Order order) : m_order(order) {}

    void add(int value, int count) {
        for (int at = 0; at < count; ++at) {
            const int from = m_order == Order::highFirst ? count - 1 - at : at;
            addBit(value >> from & 1);
        }
    }

    /// The bytes, the last one filled up with `padding` bits.
    QByteArray finish(int padding) {
        while (m_count != 0)
            addBit(padding);
        return m_bytes;
    }

private:
    void addBit(int bit) {
        m_current |= bit << (m_order == Order::highFirst ? 7 - m_count : m_count);
        if (++m_count == 8) {
            m_bytes.append(static_cast<char>(m_current));
            m_current = m_count = 0;
        }
    }

    Order m_order;
    QByteArray m_bytes;
    int m_current = 0;
    int m_count = 0;
};

} // namespace

QImage picture(int width, int height) {
    QImage image(width, height, QImage::Format_RGB32);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x)
            image.setPixel(
                x, y, qRgb(255 * x / width, 255 * y / height, 255 * (x + y) / (width + height)));
    }
    return image;
}

QByteArray encoded(const QImage& image, const char* format, int quality) {
    QByteArray data;
    QBuffer buffer(&data);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format, quality);
    return data;
}

QByteArray jpegWithOrientation(const QImage& image, int orientation) {
    const QByteArray exif =
        QByteArray("Exif\0\0", 6) + QByteArray("MM\0*\0\0\0\x08", 8) +
        bytes({0, 1, 0x01, 0x12, 0, 3, 0, 0, 0, 1, 0, orientation, 0, 0, 0, 0, 0, 0});
    return encoded(image, "jpeg", 100).insert(2, segment(0xE1, exif));
}

QByteArray cmykJpeg(int cyan, int magenta, int yellow, int black) {
    // Every quantiser step is 8, so that a block's mean is its first coefficient, less 128; the
    // others are 0. The mean's size has a code of four bits, the end of a block one of one bit.
    QByteArray file = bytes({0xFF, 0xD8});
    file += segment(0xEE, QByteArray("Adobe") + bytes({0, 100, 0, 0, 0, 0, 0}));
    file += segment(0xDB, bytes({0}) + QByteArray(64, 8));
    file +=
        segment(0xC0, bytes({8, 0, 8, 0, 8, 4, 1, 0x11, 0, 2, 0x11, 0, 3, 0x11, 0, 4, 0x11, 0}));
    file += segment(0xC4, bytes({0x00, 0, 0, 0, 9}) + QByteArray(12, 0) +
                              bytes({0, 1, 2, 3, 4, 5, 6, 7, 8}));
    file += segment(0xC4, bytes({0x10, 1}) + QByteArray(15, 0) + bytes({0}));
    file += segment(0xDA, bytes({4, 1, 0, 2, 0, 3, 0, 4, 0, 0, 63, 0}));
    BitWriter writer(BitWriter::Order::highFirst);
    for (const int channel : {cyan, magenta, yellow, black}) {
        const int mean = channel - 128;
        int size = 0;
        while (std::abs(mean) >> size)
            ++size;
        writer.add(size, 4);
        writer.add(mean < 0 ? mean + (1 << size) - 1 : mean, size);
        writer.add(0, 1);
    }
    return file + writer.finish(1).replace("\xFF", QByteArray("\xFF\0", 2)) + bytes({0xFF, 0xD9});
}

QByteArray gif(int width, int height, QRgb even, QRgb odd) {
    constexpr int rootBits = 2;
    constexpr int clearCode = 4;
    constexpr int endCode = 5;
    QByteArray file = QByteArray("GIF89a") + little<quint16>(width) + little<quint16>(height) +
                      bytes({0x81, 0, 0});
    for (const QRgb color : {even, odd, even, odd})
        file += bytes({qRed(color), qGreen(color), qBlue(color)});
    file += bytes({0x2C, 0, 0, 0, 0}) + little<quint16>(width) + little<quint16>(height) +
            bytes({0, rootBits});
    // Cleared before the codes grow longer than three bits.
    BitWriter writer(BitWriter::Order::lowFirst);
    for (int pixel = 0; pixel < width * height; ++pixel) {
        if (pixel % 2 == 0)
            writer.add(clearCode, rootBits + 1);
        writer.add(pixel % 2, rootBits + 1);
    }
    writer.add(endCode, rootBits + 1);
    const QByteArray codes = writer.finish(0);
    for (qsizetype at = 0; at < codes.size(); at += 255) {
        const QByteArray block = codes.mid(at, 255);
        file += bytes({static_cast<int>(block.size())}) + block;
    }
    return file + bytes({0, 0x3B});
}

QByteArray runLengthBmp(int width, int height) {
    QByteArray rows;
    for (int y = height - 1; y >= 0; --y)
        rows += bytes({width, y, 0, y == 0 ? 1 : 0});
    QByteArray palette;
    for (int entry = 0; entry < 256; ++entry)
        palette += bytes({entry * 10 & 0xFF, entry * 10 & 0xFF, entry * 10 & 0xFF, 0});
    const auto offset = static_cast<quint32>(54 + palette.size());
    return QByteArray("BM") + little<quint32>(offset + static_cast<quint32>(rows.size())) +
           little<quint32>(0) + little<quint32>(offset) + little<quint32>(40) +
           little<qint32>(width) + little<qint32>(height) + little<quint16>(1) +
           little<quint16>(8) + little<quint32>(1) +
           little<quint32>(static_cast<quint32>(rows.size())) + QByteArray(8, 0) +
           little<quint32>(256) + little<quint32>(0) + palette + rows;
}

QByteArray tiff(int width, int height, QRgb color) {
    const auto pixelCount = static_cast<quint32>(width * height);
    QByteArray entries;
    quint16 entryCount = 0;
    const auto entry = [&](quint16 tag, quint16 type, quint32 count, quint32 value) {
        entries += little(tag) + little(type) + little(count) + little(value);
        ++entryCount;
    };
    // Header, number of entries, ten entries, next directory; then the bits, then the pixels.
    constexpr quint32 bitsOffset = 8 + 2 + 10 * 12 + 4;
    constexpr quint32 pixelsOffset = bitsOffset + 6;
    entry(256, 3, 1, static_cast<quint32>(width));
    entry(257, 3, 1, static_cast<quint32>(height));
    entry(258, 3, 3, bitsOffset);
    entry(259, 3, 1, 1);
    entry(262, 3, 1, 2);
    entry(273, 4, 1, pixelsOffset);
    entry(277, 3, 1, 3);
    entry(278, 4, 1, 0xFFFFFFFF);
    entry(279, 4, 1, pixelCount * 3);
    entry(284, 3, 1, 1);
    const QByteArray pixel = bytes({qRed(color), qGreen(color), qBlue(color)});
    return QByteArray("II*\0", 4) + little<quint32>(8) + little(entryCount) + entries +
           little<quint32>(0) + bytes({8, 0, 8, 0, 8, 0}) + pixel.repeated(pixelCount);
}

QByteArray patched(QByteArray file, qsizetype offset, const QByteArray& replacement) {
    return file.replace(offset, replacement.size(), replacement);
}

} // namespace dropshade::SampleFiles
