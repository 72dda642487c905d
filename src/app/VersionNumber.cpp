// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "app/VersionNumber.h"

#include <QRegularExpression>

#include <algorithm>

namespace dropshade {

namespace {

constexpr qsizetype mostCharacters = 64;

bool isNumber(const QString& identifier) {
    return std::all_of(identifier.begin(), identifier.end(),
                       [](QChar character) { return character >= u'0' && character <= u'9'; });
}

/// Of any length: without its zeros in front the longer number is the greater.
QStringView significantDigits(const QString& number) {
    qsizetype zeros = 0;
    while (zeros < number.size() && number[zeros] == u'0')
        ++zeros;
    return QStringView(number).sliced(zeros);
}

std::weak_ordering ordering(int comparison) {
    return comparison <=> 0;
}

std::weak_ordering compareIdentifiers(const QString& a, const QString& b) {
    const bool aIsNumber = isNumber(a);
    if (aIsNumber != isNumber(b))
        return aIsNumber ? std::weak_ordering::less : std::weak_ordering::greater;
    if (!aIsNumber)
        return ordering(a.compare(b));
    const QStringView aDigits = significantDigits(a);
    const QStringView bDigits = significantDigits(b);
    if (aDigits.size() != bDigits.size())
        return aDigits.size() <=> bDigits.size();
    return ordering(aDigits.compare(bDigits));
}

} // namespace

std::optional<VersionNumber> VersionNumber::parse(const QString& text) {
    static const QRegularExpression form(QStringLiteral(
        "\\A([0-9]{1,9}(?:\\.[0-9]{1,9})*)"
        "(?:-([0-9A-Za-z-]+(?:\\.[0-9A-Za-z-]+)*))?(?:\\+[0-9A-Za-z-]+(?:\\.[0-9A-Za-z-]+)*)?\\z"));
    if (text.size() > mostCharacters)
        return std::nullopt;
    const QRegularExpressionMatch match = form.match(text);
    if (!match.hasMatch())
        return std::nullopt;
    VersionNumber version;
    version.m_text = text;
    for (const QString& number : match.captured(1).split(u'.'))
        version.m_numbers.push_back(number.toUInt());
    while (!version.m_numbers.empty() && version.m_numbers.back() == 0)
        version.m_numbers.pop_back();
    if (match.hasCaptured(2))
        version.m_preRelease = match.captured(2).split(u'.');
    return version;
}

std::weak_ordering operator<=>(const VersionNumber& a, const VersionNumber& b) {
    if (a.m_numbers != b.m_numbers)
        return a.m_numbers <=> b.m_numbers;
    if (a.m_preRelease.isEmpty() || b.m_preRelease.isEmpty())
        return a.m_preRelease.isEmpty() <=> b.m_preRelease.isEmpty();
    return std::lexicographical_compare_three_way(a.m_preRelease.begin(), a.m_preRelease.end(),
                                                  b.m_preRelease.begin(), b.m_preRelease.end(),
                                                  compareIdentifiers);
}

} // namespace dropshade
