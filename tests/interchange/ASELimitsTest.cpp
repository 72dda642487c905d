// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "interchange/ASECoder.h"

#include "interchange/SwatchExchangeBytes.h"
#include "support/Cost.h"
#include "support/RowName.h"

#include <gtest/gtest.h>

#include <optional>

namespace dropshade {
namespace {

using ase::bigEndian;

QByteArray counted(quint32 count, QByteArray blocks) {
    return ase::file(count, blocks);
}

/// Colours of ten bytes each, every one with a name of 8,274 units that ends in a further block:
/// the count of the name and the model are the same four bytes, " RGB".
QByteArray rereadNames(qsizetype size) {
    const QByteArray block = bigEndian(quint16(1)) + bigEndian(quint32(4)) + " RGB";
    const qsizetype tail = 40000;
    const qsizetype count = std::max<qsizetype>(1, (size - tail) / block.size());
    return counted(quint32(count), block.repeated(count + tail / block.size()));
}

/// The same in blocks of a hundred bytes, with names of nothing but what cleaning drops.
QByteArray rereadControls(qsizetype size) {
    const QByteArray body = bigEndian(quint16(30044)) + QByteArray(88, '\0') + "RGB ";
    const QByteArray block = ase::block(1, body);
    const qsizetype tail = 62000;
    const qsizetype count = std::max<qsizetype>(1, (size - tail) / block.size());
    return counted(quint32(count), block.repeated(count + tail / block.size()));
}

/// Groups of twelve bytes each, every one with a name of 49,153 units, and blocks that are skipped.
QByteArray rereadGroups(qsizetype size) {
    const QByteArray pair = bigEndian(quint16(0xC001)) + bigEndian(quint32(0)) +
                            bigEndian(quint16(0xC001)) + bigEndian(quint32(0));
    const qsizetype tail = 98400;
    const qsizetype count = std::max<qsizetype>(1, (size - tail) / pair.size());
    return counted(quint32(2 * count), pair.repeated(count + tail / pair.size()));
}

/// Groups with the shortest names.
QByteArray manyGroups(qsizetype size) {
    const QByteArray block = ase::block(0xC001, bigEndian(quint16(0)));
    return counted(quint32(size / block.size()), block.repeated(size / block.size()));
}

/// Colours of eight bytes each, with names of whatever length brings them to one model far behind.
QByteArray sharedModels(qsizetype size) {
    QByteArray bytes;
    quint32 count = 0;
    constexpr qsizetype runs = 8000;
    while (bytes.size() < size) {
        // The model stands behind all blocks of a run, in a block that is skipped.
        const qsizetype model = runs * 8 + 6;
        for (qsizetype at = 0; at < runs; ++at) {
            const qsizetype nameStart = at * 8 + 6 + 2;
            bytes += bigEndian(quint16(1)) + bigEndian(quint32(2)) +
                     bigEndian(quint16((model - nameStart) / 2));
        }
        bytes += ase::block(0, "RGB " + QByteArray(14, '\0'));
        count += quint32(runs) + 1;
    }
    return counted(count, bytes);
}

/// As many short colours in the costliest model as fit.
QByteArray manyInks(qsizetype size) {
    const QByteArray block =
        ase::block(1, ase::colorBody(bigEndian(quint16(0)), "CMYK", {0.1F, 0.2F, 0.3F, 0.4F}));
    return counted(quint32(size / block.size()), block.repeated(size / block.size()));
}

/// One name as long as can be, all of it one character that a user sees.
QByteArray combiningMarks(qsizetype size) {
    const QByteArray block =
        ase::color(QString(u'e') + QString(65000, QChar(0x0301)), "Gray", {0.0F});
    return counted(quint32(size / block.size()), block.repeated(size / block.size()));
}

class ASELimits : public testing::TestWithParam<HostileFile> {};

Cost costOfDecoding(const QByteArray& bytes) {
    std::optional<Palette> palette;
    const Cost cost = costOf([&] {
        try {
            palette = ASECoder::decode(bytes, ReferenceTime{});
        } catch (const ASECoderError& error) {
            ADD_FAILURE() << "the file should have been read: " << error.what();
        }
    });
    return cost;
}

TEST_P(ASELimits, TakesNoMoreThan64TimesTheFileAndAMegabyte) {
    for (const qsizetype size : {qsizetype(200000), qsizetype(2000000)}) {
        const QByteArray bytes = GetParam().bytes(size);
        const qint64 cost = costOfDecoding(bytes).bytes;
        RecordProperty("BytesPerByteOf" + std::to_string(size),
                       std::to_string(double(cost) / double(bytes.size())));
        EXPECT_LE(cost, mostBytesFor(bytes.size())) << size;
    }
}

TEST_P(ASELimits, TakesTimeInProportionToTheFile) {
    const QByteArray large = GetParam().bytes(2000000);
    const double seconds = costOfDecoding(large).seconds;
    RecordProperty("NanosecondsPerByte", std::to_string(1e9 * seconds / double(large.size())));
    EXPECT_LT(seconds, mostSecondsFor(large.size()));
}

INSTANTIATE_TEST_SUITE_P(HostileFiles, ASELimits,
                         testing::Values(HostileFile{"RereadNames", rereadNames},
                                         HostileFile{"RereadControls", rereadControls},
                                         HostileFile{"RereadGroups", rereadGroups},
                                         HostileFile{"ManyGroups", manyGroups},
                                         HostileFile{"SharedModels", sharedModels},
                                         HostileFile{"ManyInks", manyInks},
                                         HostileFile{"CombiningMarks", combiningMarks}),
                         [](const auto& row) { return std::string(row.param.name); });

} // namespace
} // namespace dropshade
