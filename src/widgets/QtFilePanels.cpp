// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "widgets/QtFilePanels.h"

#include "widgets/FrontWindow.h"
#include "widgets/Theme.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QPalette>
#include <QStandardPaths>
#include <QWindow>

#include <utility>

namespace dropshade {
namespace {

QStringList filters(const FileKind& kind) {
    QStringList patterns;
    for (const QString& extension : kind.extensions) {
        patterns.append(QStringLiteral("*.") + extension);
        patterns.append(QStringLiteral("*.") + extension.toUpper());
    }
    return {QStringLiteral("%1 (%2)").arg(kind.name, patterns.join(u' ')),
            QCoreApplication::translate("QtFilePanels", "All Files (*)", "Filter of a file panel")};
}

QPalette paletteOf(const Theme& theme) {
    QPalette palette(theme.textPrimary, theme.surfaceButton, theme.lineHairline,
                     theme.surfaceSunken, theme.lineControl, theme.textPrimary, theme.textPrimary,
                     theme.surfaceField, theme.surfaceWindow);
    palette.setColor(QPalette::AlternateBase, theme.surfaceWindow);
    palette.setColor(QPalette::PlaceholderText, theme.textTertiary);
    palette.setColor(QPalette::Highlight, theme.accentBase);
    palette.setColor(QPalette::HighlightedText, theme.textOnAccent);
    palette.setColor(QPalette::ToolTipBase, theme.surfacePlate);
    palette.setColor(QPalette::ToolTipText, theme.textOnPlate);
    for (const auto role : {QPalette::Text, QPalette::ButtonText, QPalette::WindowText})
        palette.setColor(QPalette::Disabled, role, theme.textTertiary);
    return palette;
}

/// Over the window in front, which waits; where there is none, alone and in front of all.
void showOverFrontWindow(QFileDialog& dialog) {
    QWidget* const host = frontWindow();
    dialog.setWindowModality(host ? Qt::WindowModal : Qt::ApplicationModal);
    static_cast<void>(dialog.winId()); // It has a window from here on.
    dialog.windowHandle()->setTransientParent(host ? host->windowHandle() : nullptr);
    dialog.show();
    dialog.raise();
    dialog.activateWindow();
}

} // namespace

QFileDialog& QtFilePanels::makeDialog(const QString& title, Answer answer) {
    if (m_folder.isEmpty())
        m_folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    // Of a folder that is not there the dialog would make the name of a file.
    if (!QFileInfo(m_folder).isDir())
        m_folder = QDir::homePath();
    auto* dialog = new QFileDialog(nullptr, title, m_folder);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setPalette(
        paletteOf(Theme::of(m_appearance.isDark() ? Theme::Scheme::Dark : Theme::Scheme::Light)));
    QObject::connect(&m_life, &QObject::destroyed, dialog, [dialog] { delete dialog; });
    QObject::connect(dialog, &QDialog::finished, &m_life,
                     [this, dialog, answer = std::move(answer)](int result) {
                         const QStringList paths = dialog->selectedFiles();
                         if (result != QDialog::Accepted || paths.isEmpty())
                             return answer(std::nullopt);
                         m_folder = dialog->directory().absolutePath();
                         answer(paths.constFirst());
                     });
    return *dialog;
}

void QtFilePanels::open(const QString& title, const FileKind& kind, Answer answer) {
    QFileDialog& dialog = makeDialog(title, std::move(answer));
    dialog.setNameFilters(filters(kind));
    dialog.setFileMode(QFileDialog::ExistingFile);
    showOverFrontWindow(dialog);
}

void QtFilePanels::openFolder(const QString& title, Answer answer) {
    QFileDialog& dialog = makeDialog(title, std::move(answer));
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setOption(QFileDialog::ShowDirsOnly);
    showOverFrontWindow(dialog);
}

void QtFilePanels::save(const QString& title, const QString& name, const FileKind& kind,
                        Answer answer) {
    QFileDialog& dialog = makeDialog(title, std::move(answer));
    dialog.setNameFilters(filters(kind));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setDefaultSuffix(kind.extensions.constFirst());
    // With its extension: Qt takes what follows a dot in the name for one.
    dialog.selectFile(name + QLatin1Char('.') + kind.extensions.constFirst());
    showOverFrontWindow(dialog);
}

} // namespace dropshade
