// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/UserDefaults.h"

#include <gtest/gtest.h>

#include <bit>
#include <limits>
#include <string>
#include <vector>

namespace dropshade {

/// A value of each type, and those that a storage form is likely to bend.
struct NamedDefaultsValue {
    std::string name;
    DefaultsValue value;
};

inline std::vector<NamedDefaultsValue> defaultsValues() {
    using Reals = std::numeric_limits<double>;
    const QString surrogates = QStringLiteral("a") + QChar(0xd800) + QStringLiteral("b");
    const QString mark = QChar(QChar::ByteOrderMark) + QStringLiteral("a");
    return {
        {"BoolTrue", true},
        {"BoolFalse", false},
        {"IntegerZero", qint64(0)},
        {"IntegerOne", qint64(1)},
        {"IntegerLowest", std::numeric_limits<qint64>::min()},
        {"IntegerHighest", std::numeric_limits<qint64>::max()},
        {"RealZero", 0.0},
        {"RealMinusZero", -0.0},
        {"RealWhole", 3.0},
        {"RealTenth", 0.1},
        {"RealAboveTwoTo53", 9007199254740994.0},
        {"RealLargest", Reals::max()},
        {"RealDenormal", Reals::denorm_min()},
        {"RealInfinity", Reals::infinity()},
        {"RealMinusInfinity", -Reals::infinity()},
        {"RealNotANumber", Reals::quiet_NaN()},
        {"RealNotANumberWithPayload", std::bit_cast<double>(quint64(0xfff8000000001234))},
        {"StringEmpty", QString(QLatin1String(""))},
        {"StringDigits", QStringLiteral("12")},
        {"StringUnicode", QStringLiteral(u"Größe \U0001f3a8 色")},
        {"StringWithNul", QStringLiteral("a") + QChar(u'\0') + QStringLiteral("b")},
        {"StringWithLoneSurrogate", surrogates},
        {"StringWithByteOrderMark", mark},
        {"StringWithNonCharacters", QString(QChar(0xfffe)) + QChar(0xffff)},
        {"StringLong", QString(300000, QChar(0x8272))},
        {"DataEmpty", QByteArray("")},
        {"DataWithNul", QByteArray("\0\xff\0", 3)},
        {"DataLong", QByteArray(3000000, 'x')},
        {"ListEmpty", QStringList()},
        {"ListOfOneEmpty", QStringList{QString()}},
        {"ListOfTwoEmpty", QStringList{QString(), QString()}},
        {"ListOfOddStrings", QStringList{surrogates, mark, QString(QChar(u'\0')), QString()}},
    };
}

/// Equal with type and bits, also where `==` of a real would say otherwise.
inline bool isSame(const DefaultsValue& a, const DefaultsValue& b) {
    const double* realA = std::get_if<double>(&a);
    const double* realB = std::get_if<double>(&b);
    if (realA != nullptr && realB != nullptr) {
        return std::bit_cast<quint64>(*realA) == std::bit_cast<quint64>(*realB);
    }
    return a == b;
}

} // namespace dropshade
