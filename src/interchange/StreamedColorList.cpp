// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "interchange/StreamedColorList.h"

#include "bytes/ByteReader.h"
#include "bytes/BytesOf.h"
#include "interchange/ColorConverter.h"
#include "interchange/KeyBudget.h"
#include "interchange/LegacyColor.h"

#include <array>
#include <bit>
#include <deque>
#include <string_view>
#include <variant>

namespace dropshade {
namespace {

using Bytes = std::span<const std::uint8_t>;

constexpr QLatin1String littleEndianMagic("\x04\x0bstreamtyped");
constexpr QLatin1String bigEndianMagic("\x04\x0btypedstream");

// Bytes that stand in place of a number.
constexpr std::uint8_t shortTag = 0x81;
constexpr std::uint8_t longTag = 0x82;
constexpr std::uint8_t floatTag = 0x83;
constexpr std::uint8_t newTag = 0x84;
constexpr std::uint8_t nilTag = 0x85;
constexpr std::uint8_t endTag = 0x86;
/// What a reference to the first entry of a table is as a number.
constexpr std::int64_t firstReference = -110;

/// No number of a colour's space is larger.
constexpr double mostSpace = 10.0;

/// Colours hold one another no deeper than a name holds its plain colour.
constexpr int mostDepth = 16;

/// The stream breaks the rules of its kind.
struct Malformed {};

/// What an object that was read stands for, if that is known.
using Meaning = std::variant<std::monostate, SRGBColor, QString>;

enum class ClassKind : std::uint8_t { other, color, string };

/// The values of one object as far as any kind of object that is known has them.
struct Content {
    std::array<double, 6> numbers = {};
    std::size_t numberCount = 0;
    Bytes text;
    Meaning lastObject;

    void add(double number) {
        if (numberCount < numbers.size())
            numbers[numberCount] = number;
        ++numberCount;
    }
};

/// Reads a stream from its front to its end. Each object and class has a number, also while it is
/// still being read; type strings and class names have numbers of their own.
class StreamReader {
public:
    StreamReader(Bytes stream, ByteReader::Endian endian) : m_reader(stream, endian) {
        m_reader.skip(std::size_t(littleEndianMagic.size()));
        static_cast<void>(integer()); // The version of the system that wrote it.
    }

    void expectType(std::string_view type) {
        if (!std::ranges::equal(sharedString(), type))
            throw Malformed();
    }

    std::int64_t integer() {
        const std::uint8_t first = byte();
        if (first == shortTag)
            return sound(static_cast<std::int16_t>(m_reader.u16()));
        if (first == longTag)
            return sound(static_cast<std::int32_t>(m_reader.u32()));
        if (first >= floatTag && first <= endTag)
            throw Malformed();
        return static_cast<std::int8_t>(first);
    }

    Meaning object(int depth = 0) {
        const std::uint8_t first = byte();
        if (first == nilTag)
            return {};
        if (first != newTag) {
            const auto* known = std::get_if<Meaning>(&referred(m_entries));
            return known ? *known : Meaning();
        }
        if (depth > mostDepth)
            throw Malformed();
        const std::size_t place = m_entries.size();
        m_entries.emplace_back(Meaning());
        const ClassKind kind = classKind();
        Content content;
        while (!takes(endTag))
            readGroup(content, depth);
        Meaning meaning = meaningOf(kind, content);
        m_entries[place] = meaning;
        return meaning;
    }

private:
    template <typename Value>
    Value sound(Value value) const {
        if (m_reader.failed())
            throw Malformed();
        return value;
    }

    std::uint8_t byte() { return sound(m_reader.u8()); }

    bool takes(std::uint8_t wanted) {
        if (byte() == wanted)
            return true;
        m_reader.seek(m_reader.position() - 1);
        return false;
    }

    Bytes text() {
        const std::int64_t length = integer();
        if (length < 0)
            throw Malformed();
        return sound(m_reader.take(std::uint64_t(length)));
    }

    /// What the reference whose first byte was just read means in a table.
    template <typename Table>
    typename Table::value_type& referred(Table& table) {
        m_reader.seek(m_reader.position() - 1);
        const std::int64_t place = integer() - firstReference;
        if (place < 0 || place >= std::int64_t(table.size()))
            throw Malformed();
        return table[std::size_t(place)];
    }

    Bytes sharedString() {
        const std::uint8_t first = byte();
        if (first != newTag)
            return referred(m_strings);
        m_strings.push_back(text());
        return m_strings.back();
    }

    /// Of the class that comes next. One that isn't known is of the kind of the class above it.
    ClassKind classKind() {
        const std::size_t start = m_entries.size();
        ClassKind kind = ClassKind::other;
        std::uint8_t first = byte();
        for (; first == newTag; first = byte()) {
            m_entries.emplace_back(kindNamed(sharedString()));
            static_cast<void>(integer()); // The version of the class.
        }
        if (first != nilTag) {
            const auto* above = std::get_if<ClassKind>(&referred(m_entries));
            if (!above)
                throw Malformed();
            kind = *above;
        }
        for (std::size_t place = m_entries.size(); place > start; --place) {
            auto& own = std::get<ClassKind>(m_entries[place - 1]);
            own = own == ClassKind::other ? kind : own;
            kind = own;
        }
        return kind;
    }

    static ClassKind kindNamed(Bytes name) {
        const auto is = [name](std::string_view text) { return std::ranges::equal(name, text); };
        if (is("NSColor"))
            return ClassKind::color;
        return is("NSString") || is("NSMutableString") ? ClassKind::string : ClassKind::other;
    }

    void readGroup(Content& content, int depth) {
        for (const std::uint8_t type : sharedString()) {
            switch (type) {
            case 'c':
                content.add(static_cast<std::int8_t>(byte()));
                break;
            case 'C':
                content.add(byte());
                break;
            case 's':
            case 'S':
            case 'i':
            case 'I':
            case 'l':
            case 'L':
            case 'q':
            case 'Q':
                content.add(double(integer()));
                break;
            case 'f':
            case 'd':
                content.add(real(type));
                break;
            case '+':
                content.text = text();
                break;
            case '*':
            case '%':
                static_cast<void>(sharedString());
                break;
            case '@':
                content.lastObject = object(depth + 1);
                break;
            default:
                throw Malformed();
            }
        }
    }

    double real(std::uint8_t type) {
        if (!takes(floatTag))
            return double(integer()); // Whole numbers are written short.
        return sound(type == 'f' ? double(m_reader.f32()) : std::bit_cast<double>(m_reader.u64()));
    }

    Meaning meaningOf(ClassKind kind, const Content& content) {
        if (kind == ClassKind::string)
            return QString::fromUtf8(reinterpret_cast<const char*>(content.text.data()),
                                     qsizetype(content.text.size()));
        const double number = content.numbers[0];
        if (kind != ClassKind::color || content.numberCount > content.numbers.size() ||
            !(number >= 1.0 && number <= mostSpace))
            return {};
        const auto space = static_cast<std::int64_t>(number);
        if (static_cast<LegacySpace>(space) == LegacySpace::named)
            return content.lastObject;
        const auto color = legacyColor(
            space, std::span(content.numbers).subspan(1, content.numberCount - 1), m_converter);
        return color ? Meaning(*color) : Meaning();
    }

    ByteReader m_reader;
    ColorConverter m_converter;
    // These may grow to many times the stream, and a vector that grows holds its content twice.
    std::deque<Bytes> m_strings;
    std::deque<std::variant<Meaning, ClassKind>> m_entries;
};

ColorList listIn(const QString& name, const QByteArray& bytes, ByteReader::Endian endian) {
    StreamReader stream(bytesOf(bytes), endian);
    stream.expectType("i");
    static_cast<void>(stream.integer()); // The version of the list.
    stream.expectType("@i");
    static_cast<void>(stream.object());
    const std::int64_t count = stream.integer();
    ColorList list(name);
    KeyBudget budget(bytes.size());
    for (std::int64_t index = 0; index < count; ++index) {
        stream.expectType("@@");
        const Meaning color = stream.object();
        const Meaning key = stream.object();
        const auto* text = std::get_if<QString>(&key);
        if (!text || !budget.takes(*text))
            throw Malformed();
        const auto* known = std::get_if<SRGBColor>(&color);
        list.setColor(known ? std::optional(*known) : std::nullopt, KeyBudget::cleaned(*text));
    }
    return list;
}

} // namespace

bool isStreamedColorList(const QByteArray& bytes) {
    return bytes.startsWith(QByteArrayView(littleEndianMagic)) ||
           bytes.startsWith(QByteArrayView(bigEndianMagic));
}

std::optional<ColorList> streamedColorList(const QString& name, const QByteArray& bytes) {
    try {
        return listIn(name, bytes,
                      bytes.startsWith(QByteArrayView(littleEndianMagic))
                          ? ByteReader::Endian::little
                          : ByteReader::Endian::big);
    } catch (const Malformed&) {
        return std::nullopt;
    }
}

} // namespace dropshade
