// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT

// How palette files come in through the controller.

#include "app/AppDelegate.h"

#include "support/FakePlatform.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

namespace dropshade {
namespace {

constexpr char json[] = R"({"name":"Inner","scales":[]})";

class AppDelegateImport : public testing::Test {
protected:
    AppDelegateImport() { qputenv("HOME", QFile::encodeName(m_folder.path())); }

    [[nodiscard]] QString write(const char* name, const QByteArray& content) const {
        const QString path = m_folder.filePath(QLatin1String(name));
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        return path;
    }
    [[nodiscard]] QStringList names() {
        QStringList names;
        for (const Palette& palette : m_delegate.paletteStore().palettes())
            names.append(palette.name());
        return names;
    }

    QTemporaryDir m_folder;
    FakePlatform m_fakes;
    AppDelegate m_delegate{std::move(m_fakes.platform)};
};

TEST_F(AppDelegateImport, ThePaletteComesFirstUnderANameOfItsOwn) {
    m_delegate.importPalette(write("Brand.json", json));
    m_delegate.importPalette(json, QStringLiteral("json"), QStringLiteral("Brand.json"));
    EXPECT_EQ(names().mid(0, 2),
              QStringList({QStringLiteral("Brand (2)"), QStringLiteral("Brand")}));
    EXPECT_TRUE(m_fakes.alerts.shown().isEmpty());
}

TEST_F(AppDelegateImport, AFileThatIsNoPaletteIsToldAndTheStoreStaysAsItWas) {
    const QStringList before = names();
    m_delegate.importPalette(write("a.gpl", json));
    m_delegate.importPalette(write("a.json", "{"));
    EXPECT_EQ(names(), before);
    ASSERT_EQ(m_fakes.alerts.shown().size(), 2);
    EXPECT_EQ(m_fakes.alerts.shown().at(0).title, QStringLiteral("Couldn't import palette"));
    EXPECT_EQ(m_fakes.alerts.shown().at(0).text,
              QStringLiteral("This file type (.gpl) isn't supported. Try .ase, .clr, or .json."));
}

TEST_F(AppDelegateImport, ThePanelForAFileImportsWhatTheUserChooses) {
    const QStringList before = names();
    m_delegate.openNewPaletteFromFile();
    m_delegate.openNewPaletteFromFile();
    ASSERT_EQ(m_fakes.filePanels.panels().size(), 2);
    EXPECT_FALSE(m_fakes.filePanels.panels().at(0).isSave);
    m_fakes.filePanels.cancel();
    EXPECT_EQ(names(), before);
    m_fakes.filePanels.choose(write("Chosen.json", json));
    EXPECT_EQ(names().at(0), QStringLiteral("Chosen"));
}

} // namespace
} // namespace dropshade
