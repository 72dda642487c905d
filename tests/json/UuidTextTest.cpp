// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "json/UuidText.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

#include <QStringList>

namespace dropshade {
namespace {

const QString upper = QStringLiteral("0A1B2C3D-4E5F-6071-8293-A4B5C6D7E8F9");

TEST(UuidText, IsUpperCaseWithoutBraces) {
    EXPECT_EQ(uuidText(QUuid(upper)), upper);
    EXPECT_EQ(uuidText(QUuid()), QStringLiteral("00000000-0000-0000-0000-000000000000"));
}

TEST(UuidFromText, TakesEitherCase) {
    EXPECT_EQ(uuidFromText(upper), QUuid(upper));
    EXPECT_EQ(uuidFromText(upper.toLower()), QUuid(upper));
}

TEST(UuidFromText, TellsTheNullIdFromAMistake) {
    EXPECT_EQ(uuidFromText(uuidText(QUuid())), QUuid());
    EXPECT_FALSE(uuidFromText(QString()));
}

TEST(UuidFromText, GivesBackEveryRandomId) {
    for (int index = 0; index < 1000; ++index) {
        const QUuid id = QUuid::createUuid();
        EXPECT_EQ(uuidFromText(uuidText(id)), id);
    }
}

TEST(UuidFromText, TakesNothingElse) {
    const QStringList texts = {
        QLatin1Char('{') + upper + QLatin1Char('}'),
        upper.chopped(1),
        upper + QLatin1Char('0'),
        QLatin1Char(' ') + upper.chopped(1),
        QString(upper).replace(QLatin1Char('-'), QLatin1Char('0')),
        QString(upper).replace(0, 1, QLatin1Char('-')),
        QString(upper).replace(0, 1, QLatin1Char('G')),
        QString(upper).replace(0, 1, QChar(0xFF10)),
        QString(upper).replace(0, 1, QChar(u'\0')),
        QString(upper).remove(QLatin1Char('-')),
    };
    for (const QString& text : texts)
        EXPECT_FALSE(uuidFromText(text)) << text.toStdString();
}

TEST(UuidFromText, TakesNoOtherCharacterAtAnyPlace) {
    for (qsizetype place = 0; place < upper.size(); ++place) {
        for (const char character : {'-', '0', 'f', 'G', '/', ':', '@', '`', ' ', '\x80'}) {
            QByteArray text = upper.toLatin1();
            text[place] = character;
            const bool isHyphenPlace = upper.at(place) == QLatin1Char('-');
            const bool isTaken =
                isHyphenPlace ? character == '-' : character == '0' || character == 'f';
            EXPECT_EQ(uuidFromText(std::string_view(text.constData(), std::size_t(text.size())))
                          .has_value(),
                      isTaken)
                << text.constData();
        }
    }
}

} // namespace
} // namespace dropshade
