// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/linux/DesktopEntry.h"

namespace dropshade {
namespace {

const QString mainGroup = QStringLiteral("[Desktop Entry]");

QChar unescaped(QChar letter) {
    switch (letter.unicode()) {
    case 's':
        return QLatin1Char(' ');
    case 'n':
        return QLatin1Char('\n');
    case 't':
        return QLatin1Char('\t');
    case 'r':
        return QLatin1Char('\r');
    default:
        return letter;
    }
}

/// The parts of a raw value between bare separators, each without its escapes.
QStringList unescapedParts(const QString& raw, std::optional<QChar> separator) {
    QStringList parts;
    QString part;
    for (qsizetype i = 0; i < raw.size(); ++i) {
        if (raw.at(i) == QLatin1Char('\\') && i + 1 < raw.size()) {
            part += unescaped(raw.at(++i));
        } else if (separator && raw.at(i) == *separator) {
            parts.append(part);
            part.clear();
        } else {
            part += raw.at(i);
        }
    }
    // A list may end with its separator.
    if (!separator || !part.isEmpty())
        parts.append(part);
    return parts;
}

} // namespace

DesktopEntry DesktopEntry::parse(const QByteArray& file) {
    DesktopEntry entry;
    bool isInMainGroup = false;
    const QString text = QString::fromUtf8(file);
    for (const QStringView line : QStringView(text).split(QLatin1Char('\n'))) {
        const QStringView trimmed = line.trimmed();
        if (trimmed.startsWith(QLatin1Char('['))) {
            isInMainGroup = trimmed == mainGroup;
            continue;
        }
        const qsizetype equals = trimmed.indexOf(QLatin1Char('='));
        if (!isInMainGroup || equals < 1 || trimmed.startsWith(QLatin1Char('#')))
            continue;
        const QString key = trimmed.left(equals).trimmed().toString();
        if (!entry.m_values.contains(key))
            entry.m_values.insert(key, trimmed.mid(equals + 1).trimmed().toString());
    }
    return entry;
}

std::optional<QString> DesktopEntry::string(const QString& key) const {
    const auto found = m_values.constFind(key);
    if (found == m_values.constEnd())
        return std::nullopt;
    return unescapedParts(*found, std::nullopt).constFirst();
}

QStringList DesktopEntry::strings(const QString& key) const {
    return unescapedParts(m_values.value(key), QLatin1Char(';'));
}

std::optional<bool> DesktopEntry::boolean(const QString& key) const {
    const QString raw = m_values.value(key);
    if (raw == QStringLiteral("true"))
        return true;
    if (raw == QStringLiteral("false"))
        return false;
    return std::nullopt;
}

QString desktopEntryString(const QString& text) {
    QString value = text;
    value.replace(QLatin1Char('\\'), QStringLiteral("\\\\"));
    value.replace(QLatin1Char('\n'), QStringLiteral("\\n"));
    value.replace(QLatin1Char('\r'), QStringLiteral("\\r"));
    value.replace(QLatin1Char('\t'), QStringLiteral("\\t"));
    // Blanks around a value are not part of it.
    if (value.startsWith(QLatin1Char(' ')))
        value.replace(0, 1, QStringLiteral("\\s"));
    if (value.endsWith(QLatin1Char(' ')))
        value.replace(value.size() - 1, 1, QStringLiteral("\\s"));
    return value;
}

QString desktopEntryExec(const QString& path) {
    QString quoted = path;
    for (const char letter : {'\\', '"', '`', '$'}) {
        const QString plain(QLatin1Char{letter});
        quoted.replace(plain, QLatin1Char('\\') + plain);
    }
    quoted.replace(QLatin1Char('%'), QStringLiteral("%%"));
    return desktopEntryString(QLatin1Char('"') + quoted + QLatin1Char('"'));
}

} // namespace dropshade
