// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "app/Words.h"

#include "app/AboutText.h"
#include "app/SettingsReaders.h"
#include "app/SyncStatusLabel.h"
#include "support/MemoryDefaults.h"
#include "support/QtPrinters.h"

#include <QCoreApplication>
#include <QFileDialog>
#include <QKeySequence>

#include <gtest/gtest.h>

namespace dropshade {
namespace {

class WordsTest : public testing::Test {
protected:
    ~WordsTest() override {
        QCoreApplication::removeTranslator(&m_words);
        QCoreApplication::removeTranslator(&m_toolkitWords);
    }

    /// As the program does at its start.
    void speak(const QLocale& locale) {
        ASSERT_TRUE(loadWords(m_words, locale));
        ASSERT_TRUE(loadToolkitWords(m_toolkitWords, m_words)) << "Qt's catalogues are missing";
        QCoreApplication::installTranslator(&m_toolkitWords);
        QCoreApplication::installTranslator(&m_words);
    }
    /// What stands before the choice of a kind of file.
    static QString kindInFilePanel() {
        QFileDialog panel;
        panel.setOption(QFileDialog::DontUseNativeDialog);
        return panel.labelText(QFileDialog::FileType);
    }
    static QString copyKeys() {
        return QKeySequence(Qt::CTRL | Qt::Key_C).toString(QKeySequence::NativeText);
    }
    static QString subtitle() {
        return QCoreApplication::translate(
            "dropshade::SettingsRootView",
            "Keep palettes and preferences in sync across your Macs.");
    }
    static QString agoInSeconds(double seconds) {
        return relativeTime(ReferenceTime{0.0}, ReferenceTime{seconds});
    }

    QTranslator m_words;
    QTranslator m_toolkitWords;
};

TEST_F(WordsTest, EnglishIsWordedForThisPlatform) {
    speak(QLocale(QLocale::English, QLocale::UnitedKingdom));
    EXPECT_EQ(subtitle(),
              QStringLiteral("Keep palettes and preferences in sync across your computers."));
    EXPECT_EQ(m_words.language(), QStringLiteral("en_US"));
}

TEST_F(WordsTest, EnglishCountsOneAndMany) {
    speak(QLocale::c());
    EXPECT_EQ(agoInSeconds(60.0), QStringLiteral("1 minute ago"));
    EXPECT_EQ(agoInSeconds(120.0), QStringLiteral("2 minutes ago"));
}

TEST_F(WordsTest, WhoeverSpeaksGermanReadsGerman) {
    speak(QLocale(QLocale::German, QLocale::Switzerland));
    MemoryDefaults defaults;
    EXPECT_EQ(aboutText::lifetimeLine(defaults), QStringLiteral("Bisher 0 Farben kopiert."));
    EXPECT_EQ(agoInSeconds(60.0), QStringLiteral("vor 1 Minute"));
    EXPECT_EQ(agoInSeconds(7200.0), QStringLiteral("vor 2 Stunden"));
    EXPECT_EQ(subtitle(),
              QStringLiteral("Hält Paletten und Einstellungen auf allen Rechnern gleich."));
}

TEST_F(WordsTest, WhatTheToolkitSaysIsGermanToo) {
    EXPECT_EQ(kindInFilePanel(), QStringLiteral("Files of type:"));
    speak(QLocale(QLocale::German, QLocale::Austria));
    EXPECT_EQ(kindInFilePanel(), QStringLiteral("Dateien des Typs:"));
    EXPECT_EQ(copyKeys(), QStringLiteral("Strg+C"));
}

TEST_F(WordsTest, WhereTheProgramSpeaksEnglishSoDoesTheToolkit) {
    speak(QLocale(QLocale::French));
    EXPECT_EQ(kindInFilePanel(), QStringLiteral("Files of type:"));
    EXPECT_EQ(copyKeys(), QStringLiteral("Ctrl+C"));
}

TEST_F(WordsTest, ALanguageWithoutACatalogueGetsTheEnglishOne) {
    speak(QLocale(QLocale::Finnish));
    EXPECT_EQ(m_words.language(), QStringLiteral("en_US"));
}

} // namespace
} // namespace dropshade
