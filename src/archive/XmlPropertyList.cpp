// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "archive/XmlPropertyList.h"

#include <QXmlStreamReader>

#include <algorithm>
#include <array>
#include <limits>

namespace dropshade {
namespace {

/// Archives are flat; this is far deeper than any.
constexpr std::size_t mostDepth = 64;
constexpr qsizetype mostBytes = std::numeric_limits<std::uint32_t>::max() / 2;

constexpr qsizetype longestTag = 512;

/// Whether there is nothing in this text for which the reader of XML takes more than linear time:
/// it compares all attributes of a tag with one another, and entities can multiply.
bool isCheapToRead(QByteArrayView text) {
    for (qsizetype at = text.indexOf('<'); at >= 0; at = text.indexOf('<', at + 1)) {
        const QByteArrayView rest = text.sliced(at);
        if (rest.startsWith("<!--") || rest.startsWith("<![CDATA["))
            continue;
        if (rest.startsWith("<!") && !rest.startsWith("<!DOCTYPE"))
            return false;
        if (!rest.first(std::min(rest.size(), longestTag)).contains('>'))
            return false;
    }
    return true;
}

} // namespace

/// Reads a document from its first element to its last, without recursion.
class XmlPropertyList::Parser {
public:
    /// The text is what was checked, so no encoding that a document declares is looked at.
    Parser(XmlPropertyList& list, const QString& text) : m_list(list), m_xml(text) {}

    bool parse() {
        while (!m_xml.atEnd() && m_isSound) {
            switch (m_xml.readNext()) {
            case QXmlStreamReader::StartElement:
                start(m_xml.name());
                break;
            case QXmlStreamReader::EndElement:
                end();
                break;
            default:
                break;
            }
        }
        return m_isSound && !m_xml.hasError() && m_roots == 1;
    }

private:
    /// A container that is still open.
    struct Open {
        std::uint32_t entry = 0;
        std::vector<std::uint32_t> children;
    };

    void start(QStringView name) {
        if (name == u"plist" && !m_isInside) {
            m_isInside = true;
            return;
        }
        const Kind kind = kindOf(name);
        m_isSound = m_isInside && m_open.size() < mostDepth && fits(kind);
        if (!m_isSound)
            return;
        const auto index = std::uint32_t(m_list.m_entries.size());
        if (m_open.empty()) {
            m_list.m_root = index;
            ++m_roots;
        } else {
            m_open.back().children.push_back(index);
        }
        m_list.m_entries.push_back({kind, 0, 0});
        if (kind == Kind::dictionary || kind == Kind::array)
            m_open.push_back({index, {}});
        else
            readText(index);
    }

    /// Whether a value or key may stand here.
    [[nodiscard]] bool fits(Kind kind) const {
        if (m_open.empty())
            return m_roots == 0 && kind != Kind::key;
        const bool isInDictionary = m_list.m_entries[m_open.back().entry].kind == Kind::dictionary;
        const bool isKeyDue = isInDictionary && m_open.back().children.size() % 2 == 0;
        return (kind == Kind::key) == isKeyDue;
    }

    void readText(std::uint32_t index) {
        const QString text = m_xml.readElementText(QXmlStreamReader::ErrorOnUnexpectedElement);
        Entry& entry = m_list.m_entries[index];
        entry.first = std::uint32_t(m_list.m_text.size());
        entry.count = std::uint32_t(text.size());
        m_list.m_text += text;
    }

    void end() {
        if (m_open.empty())
            return; // The end of the document's own element.
        Entry& entry = m_list.m_entries[m_open.back().entry];
        const std::vector<std::uint32_t>& children = m_open.back().children;
        entry.first = std::uint32_t(m_list.m_children.size());
        entry.count = std::uint32_t(children.size());
        m_isSound = entry.kind == Kind::array || children.size() % 2 == 0;
        m_list.m_children.insert(m_list.m_children.end(), children.begin(), children.end());
        m_open.pop_back();
    }

    static Kind kindOf(QStringView name) {
        struct Name {
            QStringView name;
            Kind kind;
        };
        static const std::array<Name, 6> names = {{{u"dict", Kind::dictionary},
                                                   {u"array", Kind::array},
                                                   {u"key", Kind::key},
                                                   {u"string", Kind::string},
                                                   {u"data", Kind::data},
                                                   {u"integer", Kind::integer}}};
        const auto* found = std::ranges::find(names, name, &Name::name);
        return found == names.end() ? Kind::other : found->kind;
    }

    XmlPropertyList& m_list;
    QXmlStreamReader m_xml;
    std::vector<Open> m_open;
    int m_roots = 0;
    bool m_isInside = false;
    bool m_isSound = true;
};

std::unique_ptr<PropertyListTree> XmlPropertyList::open(const QByteArray& bytes) {
    if (bytes.size() > mostBytes || !isCheapToRead(bytes))
        return nullptr;
    std::unique_ptr<XmlPropertyList> list(new XmlPropertyList);
    if (!Parser(*list, QString::fromUtf8(bytes)).parse())
        return nullptr;
    return list;
}

const XmlPropertyList::Entry* XmlPropertyList::entry(Node node, Kind kind) const {
    const Entry* const found = node < m_entries.size() ? &m_entries[std::size_t(node)] : nullptr;
    return found && found->kind == kind ? found : nullptr;
}

QStringView XmlPropertyList::text(const Entry& entry) const {
    return QStringView(m_text).mid(entry.first, entry.count);
}

std::optional<std::uint64_t> XmlPropertyList::count(Node container) const {
    if (const Entry* const array = entry(container, Kind::array))
        return array->count;
    const Entry* const dictionary = entry(container, Kind::dictionary);
    return dictionary ? std::optional<std::uint64_t>(dictionary->count / 2) : std::nullopt;
}

std::optional<XmlPropertyList::Node> XmlPropertyList::value(Node dictionary,
                                                            std::string_view key) const {
    const Entry* const found = entry(dictionary, Kind::dictionary);
    const QLatin1String wanted(key.data(), qsizetype(key.size()));
    for (std::uint32_t place = 0;
         found && place < std::min<std::uint64_t>(found->count, 2 * mostKeys); place += 2) {
        const std::size_t at = std::size_t(found->first) + place;
        if (text(m_entries[m_children[at]]) == wanted)
            return m_children[at + 1];
    }
    return std::nullopt;
}

std::optional<XmlPropertyList::Node> XmlPropertyList::item(Node array, std::uint64_t place) const {
    const Entry* const found = entry(array, Kind::array);
    if (!found || place >= found->count)
        return std::nullopt;
    return m_children[std::size_t(found->first + place)];
}

std::optional<QString> XmlPropertyList::string(Node node) const {
    const Entry* const found = entry(node, Kind::string);
    return found ? std::optional(text(*found).toString()) : std::nullopt;
}

std::optional<QByteArray> XmlPropertyList::data(Node node, qsizetype most) const {
    const Entry* const found = entry(node, Kind::data);
    if (!found)
        return std::nullopt;
    // Twice the four characters for three bytes leaves room for line ends and indentation.
    const qsizetype enough = std::min<qsizetype>(found->count, 64 + 8 * (most / 3));
    const QByteArray bytes = QByteArray::fromBase64(text(*found).first(enough).toLatin1());
    return bytes.size() > most ? bytes.first(most) : bytes;
}

std::optional<std::int64_t> XmlPropertyList::integer(Node node) const {
    const Entry* const found = entry(node, Kind::integer);
    bool isNumber = false;
    const qlonglong number = found ? text(*found).trimmed().toLongLong(&isNumber) : 0;
    return isNumber ? std::optional<std::int64_t>(number) : std::nullopt;
}

std::optional<std::uint64_t> XmlPropertyList::uid(Node) const {
    return std::nullopt;
}

} // namespace dropshade
