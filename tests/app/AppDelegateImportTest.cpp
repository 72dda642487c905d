// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT

// How palette files come in through the controller.

#include "app/AppDelegate.h"

#include "imagepalette/NewPaletteFromImageView.h"
#include "palettes/PaletteJson.h"
#include "palettes/PalettesWindow.h"
#include "support/FakePlatform.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDropEvent>
#include <QFile>
#include <QMenu>
#include <QMimeData>
#include <QTemporaryDir>

namespace dropshade {
namespace {

constexpr char json[] = R"({"name":"Inner","scales":[]})";

class AppDelegateImport : public testing::Test {
protected:
    AppDelegateImport() {
        qputenv("HOME", QFile::encodeName(m_folder.path()));
        QObject::connect(&m_delegate, &AppDelegate::quitRequested, [this] { ++m_quits; });
        m_delegate.applicationDidFinishLaunching();
    }

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

    /// The files that were asked for are decoded, and come.
    void decode() {
        while (m_fakes.backgroundQueue.waiting() > 0)
            m_fakes.backgroundQueue.workAndLand();
    }
    void chooseQuit() {
        m_fakes.instance.activate();
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(menu, nullptr);
        menu->actions().last()->trigger();
    }
    template <typename Window>
    [[nodiscard]] static Window* shown() {
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            if (auto* window = dynamic_cast<Window*>(widget); window && window->isVisible())
                return window;
        }
        return nullptr;
    }
    void dropOnPalettes(const QString& file) {
        QMimeData content;
        content.setUrls({QUrl::fromLocalFile(file)});
        QDragEnterEvent enter(QPoint(50, 50), Qt::CopyAction, &content, Qt::LeftButton, {});
        QDropEvent drop(QPointF(50, 50), Qt::CopyAction, &content, Qt::LeftButton, {});
        m_delegate.openPalettes();
        auto* window = shown<PalettesWindow>();
        ASSERT_TRUE(window);
        QApplication::sendEvent(window, &enter);
        QApplication::sendEvent(window, &drop);
        ASSERT_GT(m_fakes.backgroundQueue.waiting(), 0);
    }
    [[nodiscard]] QString image(const char* name) const {
        const QString path = m_folder.filePath(QLatin1String(name));
        EXPECT_TRUE(QImage(4, 4, QImage::Format_RGB32).save(path));
        return path;
    }

    QTemporaryDir m_folder;
    FakePlatform m_fakes;
    AppDelegate m_delegate{std::move(m_fakes.platform)};
    int m_quits = 0;
};

TEST_F(AppDelegateImport, ThePaletteComesFirstUnderANameOfItsOwn) {
    m_delegate.importPalette(write("Brand.json", json));
    m_delegate.importPalette(json, QStringLiteral("json"), QStringLiteral("Brand.json"));
    decode();
    EXPECT_EQ(names().mid(0, 2),
              QStringList({QStringLiteral("Brand (2)"), QStringLiteral("Brand")}));
    EXPECT_TRUE(m_fakes.alerts.shown().isEmpty());
}

TEST_F(AppDelegateImport, AFileThatIsNoPaletteIsToldAndTheStoreStaysAsItWas) {
    const QStringList before = names();
    m_delegate.importPalette(write("a.gpl", json));
    m_delegate.importPalette(write("a.json", "{"));
    decode();
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
    decode();
    EXPECT_EQ(names().at(0), QStringLiteral("Chosen"));
}

TEST_F(AppDelegateImport, TheWindowComesAtOnceAndThePaletteWhenItIsDecoded) {
    const QStringList before = names();
    m_delegate.importPalette(write("Brand.json", json));
    EXPECT_TRUE(shown<PalettesWindow>());
    EXPECT_EQ(names(), before);
    decode();
    EXPECT_EQ(names().size(), before.size() + 1);
}

TEST_F(AppDelegateImport, AWindowThatIsClosedMeanwhileStaysClosedAndThePaletteComes) {
    m_delegate.importPalette(write("Brand.json", json));
    m_delegate.importPalette(write("a.json", "{"));
    shown<PalettesWindow>()->close();
    decode();
    EXPECT_FALSE(shown<PalettesWindow>());
    EXPECT_EQ(names().first(), QStringLiteral("Brand"));
    EXPECT_EQ(m_fakes.alerts.shown().size(), 1);
}

TEST_F(AppDelegateImport, QuitWaitsForThePaletteAndSavesIt) {
    m_delegate.importPalette(write("Brand.json", json));
    chooseQuit();
    EXPECT_EQ(m_quits, 0);
    decode();
    EXPECT_EQ(m_quits, 1);
    m_delegate.applicationWillTerminate();
    const auto stored = m_fakes.defaults.read<QByteArray>(QStringLiteral("userPalettes"));
    ASSERT_TRUE(stored);
    EXPECT_EQ(decodedPalettes(*stored, {})->first().name(), QStringLiteral("Brand"));
}

TEST_F(AppDelegateImport, AFileThatFailsCallsTheQuitOff) {
    m_delegate.importPalette(write("a.json", "{"));
    chooseQuit();
    decode();
    EXPECT_EQ(m_quits, 0);
    EXPECT_EQ(m_fakes.alerts.waitingCount(), 1);
    chooseQuit();
    EXPECT_EQ(m_quits, 1);
}

TEST_F(AppDelegateImport, AnEndThatNobodyAskedForFindsThePaletteStored) {
    static QString logged;
    m_delegate.importPalette(write("a.json", "{"));
    m_delegate.importPalette(write("Brand.json", json));
    const auto former = qInstallMessageHandler(
        [](QtMsgType, const QMessageLogContext&, const QString& text) { logged = text; });
    m_delegate.applicationWillTerminate();
    qInstallMessageHandler(former);
    const auto stored = m_fakes.defaults.read<QByteArray>(QStringLiteral("userPalettes"));
    ASSERT_TRUE(stored);
    EXPECT_EQ(decodedPalettes(*stored, {})->first().name(), QStringLiteral("Brand"));
    EXPECT_TRUE(logged.startsWith(QStringLiteral("Couldn't import palette: ")));
    EXPECT_TRUE(m_fakes.alerts.shown().isEmpty());
}

TEST_F(AppDelegateImport, ADroppedImageBringsTheSheetWhenItIsDecoded) {
    dropOnPalettes(image("first.png"));
    dropOnPalettes(image("second.png"));
    EXPECT_FALSE(shown<NewPaletteFromImageView>());
    decode();
    EXPECT_EQ(m_fakes.backgroundQueue.runs(), 2);
    EXPECT_TRUE(shown<NewPaletteFromImageView>()) << "with the first; one that is up keeps its own";
}

TEST_F(AppDelegateImport, AnImageBringsNoSheetOverAWindowThatIsClosedMeanwhile) {
    dropOnPalettes(image("first.png"));
    shown<PalettesWindow>()->close();
    decode();
    EXPECT_FALSE(shown<PalettesWindow>());
    EXPECT_FALSE(shown<NewPaletteFromImageView>());
}

TEST_F(AppDelegateImport, NobodyWaitsForAnImageAtTheEnd) {
    dropOnPalettes(image("first.png"));
    chooseQuit();
    EXPECT_EQ(m_quits, 1);
    m_delegate.applicationWillTerminate();
    EXPECT_EQ(m_fakes.backgroundQueue.runs(), 0);
    EXPECT_FALSE(shown<NewPaletteFromImageView>());
}

} // namespace
} // namespace dropshade
