// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "interchange/ArchivedColorList.h"

#include "archive/BinaryPropertyListWriter.h"
#include "archive/KeyedArchive.h"
#include "interchange/ArchivedColors.h"
#include "interchange/ColorSpaces.h"
#include "interchange/KeyBudget.h"
#include "interchange/LegacyColor.h"

#include <QColorSpace>

#include <array>
#include <charconv>
#include <vector>

namespace dropshade {
namespace {

using Object = BinaryPropertyListWriter::Object;

constexpr std::uint32_t archiveVersion = 100000;
/// The number of sRGB among the colour spaces of archives.
constexpr std::uint32_t spaceIdOfSRGB = 7;

/// Ten digits of each number, blanks between them.
template <std::size_t count>
QByteArray textOf(const std::array<double, count>& numbers) {
    std::array<char, 32> digits = {};
    QByteArray text;
    for (const double number : numbers) {
        const auto result = std::to_chars(digits.data(), digits.data() + digits.size(), number,
                                          std::chars_format::general, 10);
        if (!text.isEmpty())
            text += ' ';
        text.append(digits.data(), result.ptr - digits.data());
    }
    return text;
}

/// An archive in the making. The objects of the archive are numbered by their place in one array;
/// each of them is made of objects of the property list, which have numbers of their own.
class Archiver {
public:
    explicit Archiver(const ColorList& list)
        : m_list(list), m_count(std::uint32_t(list.allKeys().size())),
          m_writer(objectsPerColor * std::uint64_t(m_count) + 64) {}

    QByteArray file() {
        add(m_writer.string(QStringLiteral("$null")));
        const std::uint32_t firstKey = 2;
        const std::uint32_t arrayClass = firstKey + m_count;
        const std::uint32_t keys = addArray(firstKey, 0, arrayClass);
        for (const QString& key : m_list.allKeys())
            add(m_writer.string(key));
        addClass({"NSMutableArray", "NSArray", "NSObject"});
        // Behind the first colour stand the space and the classes that it is the first to name.
        const std::uint32_t colors = addArray(arrayClass + 2, classesBehindFirstColor, arrayClass);
        addColors(arrayClass + 2);
        return m_writer.file(m_writer.dictionary(
            {{text("$version"), m_writer.integer(archiveVersion)},
             {text("$archiver"), text("NSKeyedArchiver")},
             {text("$top"), m_writer.dictionary({{text("NSKeys"), m_writer.uid(keys)},
                                                 {text("NSColors"), m_writer.uid(colors)}})},
             {text("$objects"), m_writer.array(m_objects)}}));
    }

private:
    /// A key, two references, a dictionary and two texts of numbers.
    static constexpr std::uint64_t objectsPerColor = 6;
    /// The colour space, its profile, its class and the class of colours.
    static constexpr std::uint32_t classesBehindFirstColor = 4;

    Object text(const char* ascii) { return m_writer.string(QString::fromLatin1(ascii)); }

    std::uint32_t add(Object object) {
        m_objects.push_back(object);
        return std::uint32_t(m_objects.size() - 1);
    }

    /// An array of as many objects as there are colours, from `first` on, of which all but the
    /// first stand `gap` further back.
    std::uint32_t addArray(std::uint32_t first, std::uint32_t gap, std::uint32_t arrayClass) {
        std::vector<Object> references;
        references.reserve(m_count);
        for (std::uint32_t index = 0; index < m_count; ++index)
            references.push_back(m_writer.uid(first + index + (index > 0 ? gap : 0)));
        const Object items = m_writer.array(references);
        return add(m_writer.dictionary(
            {{text("NS.objects"), items}, {text("$class"), m_writer.uid(arrayClass)}}));
    }

    void addClass(std::initializer_list<const char*> names) {
        std::vector<Object> classes;
        for (const char* name : names)
            classes.push_back(text(name));
        const Object list = m_writer.array(classes);
        add(m_writer.dictionary({{text("$classname"), classes.front()}, {text("$classes"), list}}));
    }

    void addColors(std::uint32_t first) {
        if (m_count == 0)
            return;
        const std::uint32_t space = first + 1;
        m_colorKeys = {text("NSColorSpace"), text("NSRGB"), text("NSComponents"),
                       text("NSCustomColorSpace"), text("$class")};
        m_calibratedRGB = m_writer.integer(std::uint32_t(LegacySpace::calibratedRGB));
        m_space = m_writer.uid(space);
        m_colorClass = m_writer.uid(first + classesBehindFirstColor);
        bool isFirst = true;
        for (const auto& color : m_list.allColors()) {
            addColor(color.value_or(SRGBColor()));
            if (isFirst)
                addSpaceAndClasses(space);
            isFirst = false;
        }
    }

    void addSpaceAndClasses(std::uint32_t space) {
        add(m_writer.dictionary({{text("NSID"), m_writer.integer(spaceIdOfSRGB)},
                                 {text("NSICC"), m_writer.uid(space + 1)},
                                 {text("$class"), m_writer.uid(space + 2)}}));
        add(m_writer.data(QColorSpace(QColorSpace::SRgb).iccProfile()));
        addClass({"NSColorSpace", "NSObject"});
        addClass({"NSColor", "NSObject"});
    }

    void addColor(const SRGBColor& color) {
        const RGBChannels generic = fromSRGB(color, RgbSpace::genericRGB);
        const SRGBColor pinned(generic.red, generic.green, generic.blue);
        const std::array legacy = {pinned.red(), pinned.green(), pinned.blue()};
        QByteArray legacyText = textOf(legacy);
        if (color.alpha() != 1.0)
            legacyText += ' ' + textOf(std::array{color.alpha()});
        legacyText += '\0';
        const std::array own = {color.red(), color.green(), color.blue(), color.alpha()};
        const Object legacyData = m_writer.data(legacyText);
        const Object ownData = m_writer.data(textOf(own));
        add(m_writer.dictionary({{m_colorKeys[0], m_calibratedRGB},
                                 {m_colorKeys[1], legacyData},
                                 {m_colorKeys[2], ownData},
                                 {m_colorKeys[3], m_space},
                                 {m_colorKeys[4], m_colorClass}}));
    }

    const ColorList& m_list;
    std::uint32_t m_count;
    BinaryPropertyListWriter m_writer;
    std::vector<Object> m_objects;
    std::array<Object, 5> m_colorKeys = {};
    Object m_calibratedRGB = 0;
    Object m_space = 0;
    Object m_colorClass = 0;
};

} // namespace

std::optional<ColorList> archivedColorList(const QString& name, const QByteArray& bytes) {
    const auto archive = KeyedArchive::open(bytes);
    if (!archive)
        return std::nullopt;
    ColorList list(name);
    if (archive->isEmpty())
        return list;
    // Either the list's own fields are archived or the list as one object.
    const auto root = archive->value(archive->top(), "root");
    const auto holder = root.value_or(archive->top());
    const auto keys = archive->value(holder, "NSKeys");
    const auto colors = archive->value(holder, "NSColors");
    const auto count = keys && colors ? archive->count(*keys) : std::nullopt;
    if (!count)
        return std::nullopt;
    ArchivedColors converter(*archive);
    KeyBudget budget(bytes.size());
    for (std::uint64_t place = 0; place < *count; ++place) {
        const auto node = archive->item(*keys, place);
        const auto key = node ? archive->string(*node) : std::nullopt;
        if (!key || !budget.takes(*key))
            return std::nullopt;
        const auto color = archive->item(*colors, place);
        list.setColor(color ? converter.color(*color) : std::nullopt, KeyBudget::cleaned(*key));
    }
    return list;
}

QByteArray archived(const ColorList& list) {
    return Archiver(list).file();
}

} // namespace dropshade
