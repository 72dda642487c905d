// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "imagepalette/HeifCheck.h"

#include "bytes/BytesOf.h"
#include "support/Cost.h"

#include <gtest/gtest.h>

#include <QtEndian>

#include <optional>
#include <string>

namespace dropshade {
namespace {

template <class Number>
QByteArray big(Number value) {
    QByteArray bytes(sizeof value, Qt::Uninitialized);
    qToBigEndian(value, bytes.data());
    return bytes;
}

QByteArray box(const char* type, const QByteArray& body) {
    return big(quint32(body.size() + 8)) + type + body;
}

/// A box that starts with a version and no flags.
QByteArray fullBox(const char* type, const QByteArray& body, char version = 0) {
    return box(type, QByteArray(1, version) + QByteArray(3, '\0') + body);
}

/// A file whose primary image is item 1, a coded one.
QByteArray file(const QByteArray& locations, const QByteArray& properties,
                const QByteArray& references = {}) {
    const QByteArray item =
        fullBox("infe", big(quint16(1)) + big(quint16(0)) + QByteArray("hvc1\0", 5), 2);
    return box("ftyp", QByteArray("heic\0\0\0\0heic", 12)) +
           fullBox("meta", fullBox("pitm", big(quint16(1))) +
                               fullBox("iinf", big(quint16(1)) + item) + locations +
                               box("iprp", properties) + references);
}

const QByteArray noLocations = fullBox("iloc", QByteArray(4, '\0'));

/// Items in 65,535 pieces each, whose places and lengths take no byte.
QByteArray piecesOfNoBytes(qsizetype size) {
    const qsizetype count = std::min<qsizetype>(size / 6, 65535);
    QByteArray locations = QByteArray(2, '\0') + big(quint16(count));
    for (qsizetype item = 1; item <= count; ++item)
        locations += big(quint16(item)) + QByteArray("\0\0\xFF\xFF", 4);
    return file(fullBox("iloc", locations), box("ipco", {}));
}

/// One set of headers in half the file, which the image names over and over in the other half.
QByteArray rereadHeaders(qsizetype size) {
    const QByteArray units = QByteArray("\0\xFF\xFF", 3) + QByteArray(2 * 65535, '\0');
    const qsizetype arrays = std::min<qsizetype>(size / 2 / units.size(), 255);
    const QByteArray headers =
        box("hvcC", QByteArray(22, '\0') + QByteArray(1, static_cast<char>(arrays)) +
                        units.repeated(arrays));
    const QByteArray names = big(quint16(1)) + "\xFF" + QByteArray(255, '\1');
    const qsizetype count = size / 2 / names.size();
    return file(noLocations, box("ipco", headers) +
                                 fullBox("ipma", big(quint32(count)) + names.repeated(count)));
}

/// Items that nothing but references tell of.
QByteArray itemsOutOfNowhere(qsizetype size) {
    QByteArray references;
    quint32 item = 1;
    while (references.size() < size) {
        QByteArray reference = big(item) + big(quint16(65535));
        for (int index = 0; index < 65535; ++index)
            reference += big(++item);
        references += box("auxl", reference);
    }
    return file(noLocations, box("ipco", {}), fullBox("iref", references, 1));
}

/// An image with more of one part than any has.
QByteArray boxesOfNothing(qsizetype size) {
    return file(noLocations, box("ipco", box("free", {}).repeated(size / 8)));
}

class HeifCheckLimits : public testing::TestWithParam<HostileFile> {};

Cost costOfRefusing(const QByteArray& bytes) {
    std::optional<std::uint64_t> pixels;
    const Cost cost = costOf([&] { pixels = heifDecodingPixels(bytesOf(bytes)); });
    EXPECT_EQ(pixels, std::nullopt);
    return cost;
}

TEST_P(HeifCheckLimits, TakesNoMoreThan64TimesTheFileAndAMegabyte) {
    for (const qsizetype size : {qsizetype(20000), qsizetype(4000000)}) {
        const QByteArray bytes = GetParam().bytes(size);
        EXPECT_LE(costOfRefusing(bytes).bytes, mostBytesFor(bytes.size())) << size;
    }
}

TEST_P(HeifCheckLimits, TakesTimeInProportionToTheFile) {
    const QByteArray bytes = GetParam().bytes(4000000);
    EXPECT_LT(costOfRefusing(bytes).seconds, mostSecondsFor(bytes.size()));
}

INSTANTIATE_TEST_SUITE_P(HostileFiles, HeifCheckLimits,
                         testing::Values(HostileFile{"PiecesOfNoBytes", piecesOfNoBytes},
                                         HostileFile{"RereadHeaders", rereadHeaders},
                                         HostileFile{"ItemsOutOfNowhere", itemsOutOfNowhere},
                                         HostileFile{"BoxesOfNothing", boxesOfNothing}),
                         [](const auto& file) { return std::string(file.param.name); });

} // namespace
} // namespace dropshade
