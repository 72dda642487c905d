// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "app/LegacyPreferences.h"

#include "app/SettingsReaders.h"
#include "support/MemoryDefaults.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace dropshade {
namespace {

const QString flag = QStringLiteral("didImportLegacyContainerPrefs");

QString fixture(const char* form) {
    return QStringLiteral(FIXTURES "/preferences-%1.plist").arg(QString::fromLatin1(form));
}

class LegacyPreferences : public testing::Test {
protected:
    QString file(const QByteArray& contents) {
        QFile file(m_folder.filePath(QStringLiteral("old.plist")));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(contents);
        return file.fileName();
    }

    QTemporaryDir m_folder;
    MemoryDefaults m_defaults;
};

TEST_F(LegacyPreferences, LieUnderTheHomeOfTheFormerBuild) {
    EXPECT_EQ(legacyPreferencesPath(QStringLiteral("/home/someone")),
              QStringLiteral("/home/someone/Library/Containers/net.quillmoor.Dropshade/Data/"
                             "Library/Preferences/net.quillmoor.Dropshade.plist"));
}

TEST_F(LegacyPreferences, AreTakenOverFromEitherForm) {
    for (const char* form : {"xml", "binary"}) {
        MemoryDefaults defaults;
        importLegacyPreferences(defaults, fixture(form));
        EXPECT_EQ(colorFormat(defaults), ColorFormat::cssHSL);
        EXPECT_EQ(decimalPlaces(defaults), 4);
        EXPECT_FALSE(useHashPrefix(defaults));
        EXPECT_TRUE(useLowercase(defaults));
        EXPECT_EQ(defaults.read<QByteArray>(keys::pinnedColors), QByteArray("[\0\xff]", 4));
        EXPECT_EQ(defaults.read<QStringList>(QStringLiteral("list")),
                  (QStringList{QStringLiteral("A"), QStringLiteral(u"ä")}));
        EXPECT_FALSE(defaults.contains(QStringLiteral("nested")));
    }
}

TEST_F(LegacyPreferences, GiveWayToEveryValueThatIsSet) {
    m_defaults.setValue(keys::colorFormat, QStringLiteral("hexa"));
    // Also one that no reader takes.
    m_defaults.setValue(keys::decimalPlaces, QStringLiteral("junk"));
    importLegacyPreferences(m_defaults, fixture("binary"));
    EXPECT_EQ(colorFormat(m_defaults), ColorFormat::hexa);
    EXPECT_EQ(m_defaults.read<QString>(keys::decimalPlaces), QStringLiteral("junk"));
    EXPECT_TRUE(useLowercase(m_defaults));
}

TEST_F(LegacyPreferences, AreTriedOnceThoughTheFileChanges) {
    const QString path = file("<plist version=\"1.0\"><dict/></plist>");
    importLegacyPreferences(m_defaults, path);
    EXPECT_EQ(m_defaults.read<bool>(flag), true);
    file("<plist version=\"1.0\"><dict><key>useLowercase</key><true/></dict></plist>");
    importLegacyPreferences(m_defaults, path);
    EXPECT_FALSE(m_defaults.contains(keys::useLowercase));
}

TEST_F(LegacyPreferences, AreTriedOnceThoughThereIsNoFile) {
    importLegacyPreferences(m_defaults, m_folder.filePath(QStringLiteral("none.plist")));
    EXPECT_EQ(m_defaults.keys(), QStringList{flag});
    importLegacyPreferences(m_defaults, fixture("xml"));
    EXPECT_EQ(m_defaults.keys(), QStringList{flag});
}

TEST_F(LegacyPreferences, GiveNothingWhereTheyAreJunk) {
    for (const QByteArray& junk :
         {QByteArray(), QByteArray("bplist00"), QByteArray(100000, '\xff'),
          QByteArray("<plist version=\"1.0\"><array><string>a</string></array></plist>"),
          QByteArray("<plist version=\"1.0\"><dict>") + QByteArray("<array>").repeated(500000)}) {
        MemoryDefaults defaults;
        importLegacyPreferences(defaults, file(junk));
        EXPECT_EQ(defaults.keys(), QStringList{flag});
    }
}

TEST_F(LegacyPreferences, GiveNothingWhereThePathIsNoPlainFile) {
    importLegacyPreferences(m_defaults, m_folder.path());
    importLegacyPreferences(m_defaults, QString());
    EXPECT_EQ(m_defaults.keys(), QStringList{flag});
    MemoryDefaults defaults;
    importLegacyPreferences(defaults, QStringLiteral("/dev/zero"));
    EXPECT_EQ(defaults.keys(), QStringList{flag});
}

} // namespace
} // namespace dropshade
