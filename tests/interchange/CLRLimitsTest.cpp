// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "interchange/CLRCoder.h"

#include "archive/BinaryPropertyListWriter.h"
#include "support/ArchivedLists.h"
#include "support/Cost.h"
#include "support/RowName.h"
#include "support/TypedStreams.h"

#include <gtest/gtest.h>

#include <QColorSpace>

#include <functional>
#include <optional>

namespace dropshade {
namespace {

using Writer = BinaryPropertyListWriter;
using Object = Writer::Object;

QString number(qsizetype value) {
    return QString::number(value, 36);
}

template <typename Number>
QByteArray bigEndian(Number value) {
    QByteArray bytes(sizeof value, '\0');
    qToBigEndian(value, bytes.data());
    return bytes;
}

/// A binary archive of `count` keys and as many references to one colour, which `color` writes.
QByteArray sharedColor(qsizetype count, const std::function<QString(qsizetype)>& keyOf,
                       const std::function<Object(Writer&)>& color) {
    Writer writer(quint64(3 * count + 100));
    std::vector<Object> objects = {writer.string(QStringLiteral("$null"))};
    std::vector<Object> keys;
    for (qsizetype index = 0; index < count; ++index) {
        keys.push_back(writer.uid(quint32(objects.size())));
        objects.push_back(writer.string(keyOf(index)));
    }
    const Object colorReference = writer.uid(quint32(objects.size()));
    objects.push_back(color(writer));
    const auto addArray = [&](const std::vector<Object>& items) {
        const Object list = writer.array(items);
        objects.push_back(writer.dictionary({{writer.string(QStringLiteral("NS.objects")), list}}));
        return writer.uid(quint32(objects.size() - 1));
    };
    const Object keyArray = addArray(keys);
    const Object colorArray = addArray(std::vector<Object>(std::size_t(count), colorReference));
    const Object top = writer.dictionary({{writer.string(QStringLiteral("NSKeys")), keyArray},
                                          {writer.string(QStringLiteral("NSColors")), colorArray}});
    const Object all = writer.array(objects);
    return writer.file(writer.dictionary({{writer.string(QStringLiteral("$top")), top},
                                          {writer.string(QStringLiteral("$objects")), all}}));
}

Object white(Writer& writer, const QByteArray& numbers) {
    return writer.dictionary({{writer.string(QStringLiteral("NSColorSpace")), writer.integer(4)},
                              {writer.string(QStringLiteral("NSWhite")), writer.data(numbers)}});
}

QByteArray plainKeys(qsizetype size) {
    return sharedColor(size / 20, number, [](Writer& writer) { return white(writer, "1"); });
}

QByteArray oneScaleForEachKey(qsizetype size) {
    return sharedColor(
        size / 23, [](qsizetype index) { return number(index) + QStringLiteral(" / "); },
        [](Writer& writer) { return white(writer, "1"); });
}

QByteArray numbersOfHalfTheFile(qsizetype size) {
    return sharedColor(size / 40, number, [size](Writer& writer) {
        return white(writer, QByteArray(size / 2, ' ') + "1");
    });
}

QByteArray colorOfManyKeys(qsizetype size) {
    const auto count = quint32(size / 8);
    QByteArray bytes = sharedColor(size / 40, number, [count](Writer& writer) {
        return writer.array(
            std::vector<Object>(count, writer.string(QStringLiteral("NSColorSpacf"))));
    });
    // What was written as an array of references becomes a dictionary of half as many entries.
    return bytes.replace("\xAF\x12" + bigEndian(count), "\xDF\x12" + bigEndian(count / 2));
}

/// Keys of 5,000 characters each, nine bytes apart in one run of bytes.
QByteArray overlappingKeys(qsizetype size) {
    const qsizetype count = size / 40;
    QByteArray run;
    for (qsizetype index = 0; index < count; ++index)
        run += "\x5F\x11" + bigEndian(quint16(5000)) + QByteArray::number(10000 + index % 90000);
    run += QByteArray(5000, ' ');
    QByteArray bytes = sharedColor(
        count, [](qsizetype) { return QStringLiteral("k"); },
        [&run](Writer& writer) {
            writer.data(run);
            return white(writer, "1");
        });
    // The table of offsets has one for each key's reference and text in turn, from the second on.
    const int width = bytes.at(bytes.size() - 26);
    const auto table = qsizetype(qFromBigEndian<quint64>(bytes.constData() + bytes.size() - 8));
    const qsizetype start = bytes.indexOf(run);
    for (qsizetype index = 0; index < count; ++index) {
        const QByteArray offset = bigEndian(quint32(start + index * 9)).last(width);
        bytes.replace(table + (2 + 2 * index) * width, width, offset);
    }
    return bytes;
}

QByteArray manyProfiles(qsizetype size) {
    const QByteArray profile = QColorSpace(QColorSpace::AdobeRgb).iccProfile();
    archives::List list;
    for (qsizetype index = 0; index * 1300 < size; ++index) {
        const qsizetype space = list.add(archives::dict(archives::dataField("NSICC", profile)));
        list.addColor(QByteArray::number(index),
                      archives::field("NSCustomColorSpace", archives::reference(space)) +
                          archives::dataField("NSComponents", "1 0 0 1"));
    }
    return list.xml();
}

QByteArray xmlOfEmptyElements(qsizetype size) {
    return archives::document("<array>" + QByteArray("<true/>").repeated(size / 7) + "</array>");
}

QByteArray xmlOfEmptyDictionaries(qsizetype size) {
    return archives::document("<array>" + QByteArray("<dict/>").repeated(size / 7) + "</array>");
}

QByteArray xmlThatNests(qsizetype size) {
    return archives::document(QByteArray("<array>").repeated(size / 7));
}

QByteArray xmlOfAttributes(qsizetype size) {
    QByteArray attributes;
    for (qsizetype index = 0; attributes.size() < size; ++index)
        attributes += " a" + QByteArray::number(index, 36) + "=\"\"";
    return archives::document("<array" + attributes + "></array>");
}

QByteArray xmlOfTags(qsizetype size) {
    return archives::document(QByteArray(size, '<'));
}

QByteArray xmlOfOneLongText(qsizetype size) {
    return archives::document("<array><string>" + QByteArray("a&lt;").repeated(size / 5) +
                              "</string></array>");
}

QByteArray xmlKeys(qsizetype size) {
    archives::List list;
    const qsizetype color = list.add(archives::dict(archives::integerField("NSColorSpace", 4) +
                                                    archives::dataField("NSWhite", "1")));
    for (qsizetype index = 0; index * 120 < size; ++index)
        list.addKey(QByteArray::number(index), color);
    return list.xml();
}

QByteArray streamOfKeys(qsizetype size) {
    TypedStream stream(TypedStream::Order::little);
    const auto count = int(size / 15);
    stream.begin(count);
    stream.type("@@");
    const qsizetype color = stream.color(4, {1.0F, 1.0F});
    stream.text("first");
    for (int index = 1; index < count; ++index) {
        stream.type("@@");
        stream.reference(color);
        stream.text(QByteArray::number(index, 36));
    }
    return stream.bytes();
}

/// Objects of three bytes each.
QByteArray streamOfEmptyObjects(qsizetype size) {
    TypedStream stream(TypedStream::Order::big);
    stream.begin(1);
    stream.type("@@");
    stream.object("NSColor", 0);
    const QByteArray many(100, '@');
    for (qsizetype count = 0; count * 3 < size; count += many.size()) {
        stream.type(many);
        for (qsizetype index = 0; index < many.size(); ++index) {
            stream.object("NSColor", 0);
            stream.end();
        }
    }
    stream.end();
    stream.text("k");
    return stream.bytes();
}

QByteArray streamOfEmptyStrings(qsizetype size) {
    TypedStream stream(TypedStream::Order::little);
    stream.begin(1);
    stream.type("@@");
    stream.object("NSColor", 0);
    stream.raw(QByteArray("\x84\0", 2).repeated(size / 2));
    stream.end();
    stream.text("k");
    return stream.bytes();
}

QByteArray streamOfOneLongKey(qsizetype size) {
    TypedStream stream(TypedStream::Order::little);
    const auto count = int(size / 8);
    stream.begin(count);
    stream.type("@@");
    const qsizetype color = stream.color(4, {1.0F, 1.0F});
    const qsizetype key = stream.text(QByteArray(size / 2, 'k'));
    for (int index = 1; index < count; ++index) {
        stream.type("@@");
        stream.reference(color);
        stream.reference(key);
    }
    return stream.bytes();
}

class CLRLimits : public testing::TestWithParam<HostileFile> {};

/// Of reading the list and making a palette of it, or of refusing it.
Cost costOfReading(const QByteArray& bytes) {
    std::optional<Palette> palette;
    return costOf([&] {
        if (const auto list = ColorList::read(QString(), bytes))
            palette = CLRCoder::paletteOf(*list, ReferenceTime{});
    });
}

TEST_P(CLRLimits, TakesNoMoreThan64TimesTheFileAndAMegabyte) {
    for (const qsizetype size : {qsizetype(200000), qsizetype(2000000)}) {
        const QByteArray bytes = GetParam().bytes(size);
        const qint64 cost = costOfReading(bytes).bytes;
        RecordProperty("BytesPerByteOf" + std::to_string(size),
                       std::to_string(double(cost) / double(bytes.size())));
        EXPECT_LE(cost, mostBytesFor(bytes.size())) << size;
    }
}

TEST_P(CLRLimits, TakesTimeInProportionToTheFile) {
    const QByteArray bytes = GetParam().bytes(2000000);
    const double seconds = costOfReading(bytes).seconds;
    RecordProperty("NanosecondsPerByte", std::to_string(1e9 * seconds / double(bytes.size())));
    EXPECT_LT(seconds, mostSecondsFor(bytes.size()));
}

INSTANTIATE_TEST_SUITE_P(
    HostileFiles, CLRLimits,
    testing::Values(
        HostileFile{"PlainKeys", plainKeys}, HostileFile{"OneScaleForEachKey", oneScaleForEachKey},
        HostileFile{"NumbersOfHalfTheFile", numbersOfHalfTheFile},
        HostileFile{"ColorOfManyKeys", colorOfManyKeys},
        HostileFile{"OverlappingKeys", overlappingKeys}, HostileFile{"ManyProfiles", manyProfiles},
        HostileFile{"XmlOfEmptyElements", xmlOfEmptyElements},
        HostileFile{"XmlOfEmptyDictionaries", xmlOfEmptyDictionaries},
        HostileFile{"XmlThatNests", xmlThatNests}, HostileFile{"XmlOfAttributes", xmlOfAttributes},
        HostileFile{"XmlOfTags", xmlOfTags}, HostileFile{"XmlOfOneLongText", xmlOfOneLongText},
        HostileFile{"XmlKeys", xmlKeys}, HostileFile{"StreamOfKeys", streamOfKeys},
        HostileFile{"StreamOfEmptyObjects", streamOfEmptyObjects},
        HostileFile{"StreamOfEmptyStrings", streamOfEmptyStrings},
        HostileFile{"StreamOfOneLongKey", streamOfOneLongKey}),
    rowName);

} // namespace
} // namespace dropshade
