// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "app/LooseValue.h"

#include <cmath>
#include <limits>

namespace dropshade {
namespace {

constexpr qint64 largest = std::numeric_limits<qint64>::max();
constexpr qint64 smallest = std::numeric_limits<qint64>::min();

bool isDigit(QChar character) {
    return character >= u'0' && character <= u'9';
}

qint64 leadingInteger(const QString& text) {
    qsizetype at = 0;
    while (at < text.size() && text.at(at).isSpace())
        ++at;
    const bool isNegative = at < text.size() && text.at(at) == u'-';
    if (at < text.size() && (isNegative || text.at(at) == u'+'))
        ++at;
    const qint64 end = isNegative ? smallest : largest;
    qint64 value = 0;
    for (; at < text.size() && isDigit(text.at(at)); ++at) {
        const int digit = text.at(at).unicode() - u'0';
        if (value < (smallest + digit) / 10 || value > (largest - digit) / 10)
            return end;
        value = value * 10 + (isNegative ? -digit : digit);
    }
    return value;
}

bool saysYes(const QString& text) {
    const QString word = text.trimmed();
    return QStringLiteral("YyTt").contains(word.left(1)) ? !word.isEmpty()
                                                         : leadingInteger(word) != 0;
}

qint64 truncated(double value) {
    if (std::isnan(value))
        return 0;
    constexpr double limit = 9223372036854775808.0;
    if (value >= limit)
        return largest;
    return value < -limit ? smallest : static_cast<qint64>(value);
}

struct ToBool {
    bool operator()(bool value) const { return value; }
    bool operator()(qint64 value) const { return value != 0; }
    bool operator()(double value) const { return value != 0.0; }
    bool operator()(const QString& value) const { return saysYes(value); }
    bool operator()(const QByteArray&) const { return false; }
    bool operator()(const QStringList&) const { return false; }
};

struct ToInteger {
    qint64 operator()(bool value) const { return value ? 1 : 0; }
    qint64 operator()(qint64 value) const { return value; }
    qint64 operator()(double value) const { return truncated(value); }
    qint64 operator()(const QString& value) const { return leadingInteger(value); }
    qint64 operator()(const QByteArray&) const { return 0; }
    qint64 operator()(const QStringList&) const { return 0; }
};

} // namespace

bool looseBool(const std::optional<DefaultsValue>& value) {
    return value && std::visit(ToBool{}, *value);
}

qint64 looseInteger(const std::optional<DefaultsValue>& value) {
    return value ? std::visit(ToInteger{}, *value) : 0;
}

} // namespace dropshade
