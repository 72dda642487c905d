// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "widgets/QtFilePanels.h"

#include "support/FakeAppearance.h"
#include "support/QtPrinters.h"

#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTest>
#include <QWindow>

#include <gtest/gtest.h>

namespace dropshade {
namespace {

/// Panels of Qt's own, which the test can use as a user would; a desktop's are another program.
class QtFilePanelsTest : public testing::Test {
protected:
    QtFilePanelsTest() { QApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }

    [[nodiscard]] QString path(const char* name) const {
        return m_folder.filePath(QLatin1String(name));
    }
    void touch(const char* name) const {
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }
    static QFileDialog* panel() {
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            auto* dialog = qobject_cast<QFileDialog*>(widget);
            if (dialog && dialog->isVisible())
                return dialog;
        }
        return nullptr;
    }
    FilePanels::Answer answer() {
        return [this](const std::optional<QString>& path) { m_answers.append(path); };
    }
    /// The panel goes with the next turn of the loop.
    static void finish(QFileDialog& dialog, int result) {
        static_cast<QDialog&>(dialog).done(result);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    QTemporaryDir m_folder;
    FileKind m_kind{QStringLiteral("Palettes"), {QStringLiteral("ase"), QStringLiteral("json")}};
    FakeAppearance m_appearance;
    QtFilePanels m_panels{m_appearance};
    QList<std::optional<QString>> m_answers;
};

TEST_F(QtFilePanelsTest, AnOpenPanelOffersItsKindAndEveryOtherFile) {
    m_panels.open(QStringLiteral("Open"), m_kind, answer());
    ASSERT_NE(panel(), nullptr);
    EXPECT_EQ(panel()->nameFilters(),
              QStringList({QStringLiteral("Palettes (*.ase *.ASE *.json *.JSON)"),
                           QStringLiteral("All Files (*)")}));
    EXPECT_EQ(panel()->fileMode(), QFileDialog::ExistingFile);
    finish(*panel(), QDialog::Rejected);
}

TEST_F(QtFilePanelsTest, APanelStartsAtHomeWhereThereAreNoDocumentsAndNamesNoFile) {
    const QByteArray home = qgetenv("HOME");
    const QByteArray settings = qgetenv("XDG_CONFIG_HOME");
    qputenv("HOME", m_folder.path().toUtf8());
    qputenv("XDG_CONFIG_HOME", m_folder.path().toUtf8());
    m_panels.open(QStringLiteral("Open"), m_kind, answer());
    qputenv("HOME", home);
    settings.isNull() ? qunsetenv("XDG_CONFIG_HOME") : qputenv("XDG_CONFIG_HOME", settings);
    ASSERT_NE(panel(), nullptr);
    EXPECT_EQ(panel()->directory(), QDir(m_folder.path()));
    EXPECT_EQ(panel()->findChild<QLineEdit*>()->text(), QString());
    finish(*panel(), QDialog::Rejected);
}

TEST_F(QtFilePanelsTest, AnswersOnceWithThePathOrWithNothing) {
    touch("a.json");
    m_panels.open(QStringLiteral("Open"), m_kind, answer());
    panel()->setDirectory(m_folder.path());
    panel()->selectFile(path("a.json"));
    finish(*panel(), QDialog::Accepted);
    m_panels.open(QStringLiteral("Open"), m_kind, answer());
    EXPECT_EQ(panel()->directory().absolutePath(), m_folder.path()) << "where the user last was";
    QTest::keyClick(panel(), Qt::Key_Escape);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    ASSERT_EQ(m_answers.size(), 2);
    EXPECT_EQ(m_answers.at(0), path("a.json"));
    EXPECT_EQ(m_answers.at(1), std::nullopt);
    EXPECT_EQ(panel(), nullptr);
}

TEST_F(QtFilePanelsTest, ANameWithADotIsOfferedWithTheExtensionOfItsKind) {
    m_panels.save(QStringLiteral("Save"), QStringLiteral("2024.final"), m_kind, answer());
    panel()->setDirectory(m_folder.path());
    EXPECT_EQ(QFileInfo(panel()->selectedFiles().value(0)).fileName(),
              QStringLiteral("2024.final.ase"));
    EXPECT_EQ(panel()->acceptMode(), QFileDialog::AcceptSave);
    finish(*panel(), QDialog::Rejected);
}

TEST_F(QtFilePanelsTest, APanelHangsOnTheWindowInFrontOrStandsAlone) {
    QWidget window;
    window.show();
    m_panels.open(QStringLiteral("Open"), m_kind, answer());
    EXPECT_EQ(panel()->windowHandle()->transientParent(), window.windowHandle());
    EXPECT_EQ(panel()->windowModality(), Qt::WindowModal);
    finish(*panel(), QDialog::Rejected);
    window.hide();
    m_panels.open(QStringLiteral("Open"), m_kind, answer());
    EXPECT_EQ(panel()->windowHandle()->transientParent(), nullptr);
    finish(*panel(), QDialog::Rejected);
}

TEST_F(QtFilePanelsTest, TheIconInTheTrayIsNoWindowToHangOn) {
    QWidget icon(nullptr, Qt::FramelessWindowHint | Qt::X11BypassWindowManagerHint);
    icon.show();
    m_panels.open(QStringLiteral("Open"), m_kind, answer());
    EXPECT_EQ(panel()->windowHandle()->transientParent(), nullptr);
    finish(*panel(), QDialog::Rejected);
}

TEST_F(QtFilePanelsTest, APanelThatIsStillUpEndsWithTheProgramAndAnswersNothing) {
    {
        QtFilePanels panels(m_appearance);
        panels.open(QStringLiteral("Open"), m_kind, answer());
    }
    EXPECT_EQ(panel(), nullptr);
    EXPECT_TRUE(m_answers.isEmpty());
}

} // namespace
} // namespace dropshade
