// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "app/ReleaseNotes.h"

#include <QStringList>

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

namespace dropshade {

namespace {

constexpr qsizetype mostCharacters = 4000;
constexpr qsizetype longestEntity = 10;

constexpr std::array<std::pair<QStringView, char16_t>, 12> namedEntities{{
    {u"amp", u'&'},
    {u"lt", u'<'},
    {u"gt", u'>'},
    {u"quot", u'"'},
    {u"apos", u'\''},
    {u"nbsp", u'\u00A0'},
    {u"ndash", u'\u2013'},
    {u"mdash", u'\u2014'},
    {u"hellip", u'\u2026'},
    {u"rsquo", u'\u2019'},
    {u"ldquo", u'\u201C'},
    {u"rdquo", u'\u201D'},
}};

constexpr std::array<QStringView, 14> blockTags{u"p",  u"br",  u"div",     u"ul", u"ol",
                                                u"li", u"tr",  u"h1",      u"h2", u"h3",
                                                u"h4", u"pre", u"section", u"hr"};

/// Those that are shown, and white space; the rest would let a text look like another.
bool isShown(char32_t character) {
    switch (QChar::category(character)) {
    case QChar::Other_Control:
        return character == U'\n' || character == U'\t';
    case QChar::Other_Format:
    case QChar::Other_Surrogate:
    case QChar::Other_PrivateUse:
    case QChar::Other_NotAssigned:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return false;
    default:
        return true;
    }
}

QString shownOnly(const QString& text) {
    QString shown;
    for (const char32_t character : text.toUcs4()) {
        if (isShown(character))
            shown += QString::fromUcs4(&character, 1);
    }
    return shown;
}

class TagStripper {
public:
    explicit TagStripper(QStringView markup) : m_rest(markup) {}

    QString strip() {
        while (!m_rest.isEmpty() && m_text.size() <= 2 * mostCharacters) {
            if (m_rest.front() == u'<')
                takeTag();
            else if (m_rest.front() == u'&')
                takeEntity();
            else
                takeText();
        }
        return m_text;
    }

private:
    void skip(qsizetype count) { m_rest = m_rest.sliced(qMin(count, m_rest.size())); }

    void skipBeyond(QStringView end) {
        const qsizetype position = m_rest.indexOf(end, 0, Qt::CaseInsensitive);
        skip(position < 0 ? m_rest.size() : position + end.size());
    }

    void takeText() {
        const QChar character = m_rest.front();
        skip(1);
        if (!character.isSpace() || character == QChar::Nbsp)
            m_text += character;
        else if (!m_text.isEmpty() && !m_text.back().isSpace())
            m_text += u' ';
    }

    void takeTag() {
        if (m_rest.startsWith(u"<!--"))
            return skipBeyond(u"-->");
        qsizetype end = 1;
        const bool isEnd = m_rest.sliced(1).startsWith(u'/');
        end += isEnd ? 1 : 0;
        const qsizetype start = end;
        while (end < m_rest.size() && m_rest[end].isLetterOrNumber())
            ++end;
        const QString name = m_rest.sliced(start, end - start).toString().toLower();
        if (name.isEmpty() && !isEnd && !m_rest.sliced(1).startsWith(u'!'))
            return takeText();
        skipBeyond(u">");
        if (!isEnd && (name == QLatin1String("script") || name == QLatin1String("style"))) {
            skipBeyond(QString(QLatin1String("</") + name));
            return skipBeyond(u">");
        }
        if (std::find(blockTags.begin(), blockTags.end(), name) != blockTags.end())
            beginLine();
        if (!isEnd && name == QLatin1String("li"))
            m_text += QStringLiteral("\u2022 ");
    }

    void takeEntity() {
        const qsizetype end = m_rest.first(qMin(longestEntity, m_rest.size())).indexOf(u';');
        const auto character = end < 0 ? std::nullopt : entity(m_rest.sliced(1, end - 1));
        if (!character)
            return takeText();
        skip(end + 1);
        m_text += QString::fromUcs4(&*character, 1);
    }

    static std::optional<char32_t> entity(QStringView name) {
        for (const auto& [known, character] : namedEntities) {
            if (known == name)
                return character;
        }
        if (!name.startsWith(u'#'))
            return std::nullopt;
        const bool isHex = name.sliced(1).startsWith(u'x', Qt::CaseInsensitive);
        bool isNumber = false;
        const uint code = name.sliced(isHex ? 2 : 1).toUInt(&isNumber, isHex ? 16 : 10);
        return isNumber && code > 0 && code <= QChar::LastValidCodePoint
                   ? std::optional<char32_t>(code)
                   : std::nullopt;
    }

    void beginLine() {
        if (!m_text.isEmpty() && m_text.back() != u'\n')
            m_text += u'\n';
    }

    QStringView m_rest;
    QString m_text;
};

/// Lines without blanks at their ends, and no two empty ones in a row.
QString tidied(const QString& text) {
    QStringList lines;
    for (const QString& line : text.split(u'\n')) {
        const QString trimmed = line.trimmed();
        if (!trimmed.isEmpty() || (!lines.isEmpty() && !lines.last().isEmpty()))
            lines.append(trimmed);
    }
    return lines.join(u'\n').trimmed();
}

} // namespace

QString plainReleaseNotes(const QString& markup) {
    const bool isMarkup = markup.contains(u'<');
    QString text = tidied(shownOnly(isMarkup ? TagStripper(markup).strip() : markup));
    if (text.size() <= mostCharacters)
        return text;
    text.truncate(mostCharacters - 1);
    if (text.back().isHighSurrogate())
        text.chop(1);
    return text + u'\u2026';
}

} // namespace dropshade
