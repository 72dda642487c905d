// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "app/UpdateFeed.h"

#include "app/ReleaseNotes.h"

#include <QXmlStreamReader>

#include <algorithm>

namespace dropshade {

namespace {

constexpr QLatin1StringView sparkle("http://www.andymatuschak.org/xml-namespaces/sparkle");
constexpr qsizetype longestAddress = 2048;

/// What an item says, as it says it.
struct RawItem {
    QString shortVersion;
    QString version;
    QString link;
    QString description;
};

class FeedReader {
public:
    explicit FeedReader(const QByteArray& document) : m_xml(document) {}

    std::optional<UpdateFeed> read() {
        if (!enterRoot())
            return std::nullopt;
        while (m_xml.readNextStartElement()) {
            if (isPlain("channel"))
                readChannel();
            else
                m_xml.skipCurrentElement();
        }
        while (!m_xml.atEnd())
            m_xml.readNext();
        return m_xml.hasError() ? std::nullopt : std::optional(std::move(m_feed));
    }

private:
    bool enterRoot() {
        while (!m_xml.atEnd()) {
            switch (m_xml.readNext()) {
            case QXmlStreamReader::DTD:
                return false;
            case QXmlStreamReader::StartElement:
                return isPlain("rss");
            default:
                break;
            }
        }
        return false;
    }

    void readChannel() {
        while (m_xml.readNextStartElement()) {
            if (isPlain("item"))
                readItem();
            else
                m_xml.skipCurrentElement();
        }
    }

    void readItem() {
        RawItem item;
        while (m_xml.readNextStartElement()) {
            if (isPlain("link"))
                item.link = text();
            else if (isPlain("description"))
                item.description = text();
            else if (isSparkle("shortVersionString"))
                item.shortVersion = text();
            else if (isSparkle("version"))
                item.version = text();
            else if (isPlain("enclosure"))
                readEnclosure(item);
            else
                m_xml.skipCurrentElement();
        }
        add(item);
    }

    void readEnclosure(RawItem& item) {
        const auto attributes = m_xml.attributes();
        if (item.shortVersion.isEmpty())
            item.shortVersion =
                attributes.value(sparkle, QLatin1StringView("shortVersionString")).toString();
        if (item.version.isEmpty())
            item.version = attributes.value(sparkle, QLatin1StringView("version")).toString();
        m_xml.skipCurrentElement();
    }

    void add(const RawItem& item) {
        const QString& shown = item.shortVersion.isEmpty() ? item.version : item.shortVersion;
        const auto version = VersionNumber::parse(shown.trimmed());
        const QString address = item.link.trimmed();
        const QUrl page =
            address.size() <= longestAddress ? QUrl(address, QUrl::StrictMode) : QUrl();
        if (version && isSafeToOpen(page))
            m_feed.items.push_back({*version, page, plainReleaseNotes(item.description)});
    }

    // Including the text of children would recurse, as deep as the document likes.
    QString text() { return m_xml.readElementText(QXmlStreamReader::SkipChildElements); }

    bool isPlain(const char* name) const {
        return m_xml.namespaceUri().isEmpty() && m_xml.name() == QLatin1StringView(name);
    }
    bool isSparkle(const char* name) const {
        return m_xml.namespaceUri() == sparkle && m_xml.name() == QLatin1StringView(name);
    }

    QXmlStreamReader m_xml;
    UpdateFeed m_feed;
};

} // namespace

std::optional<UpdateFeed> UpdateFeed::parse(const QByteArray& document) {
    return document.size() <= mostBytes ? FeedReader(document).read() : std::nullopt;
}

const UpdateItem* UpdateFeed::newest() const {
    const auto newest =
        std::max_element(items.begin(), items.end(), [](const UpdateItem& a, const UpdateItem& b) {
            return a.version < b.version;
        });
    return newest == items.end() ? nullptr : &*newest;
}

bool isSafeToOpen(const QUrl& page) {
    return page.isValid() && page.scheme() == QLatin1StringView("https") &&
           !page.host().isEmpty() && page.userInfo().isEmpty();
}

} // namespace dropshade
