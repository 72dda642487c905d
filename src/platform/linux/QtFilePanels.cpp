// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/linux/QtFilePanels.h"

#include "platform/linux/FrontWindow.h"

#include <QCoreApplication>
#include <QFileDialog>
#include <QStandardPaths>

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

} // namespace

QFileDialog& QtFilePanels::makeDialog(const QString& title, const FileKind& kind, Answer answer) {
    if (m_folder.isEmpty())
        m_folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    auto* dialog = new QFileDialog(nullptr, title, m_folder);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setNameFilters(filters(kind));
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
    QFileDialog& dialog = makeDialog(title, kind, std::move(answer));
    dialog.setFileMode(QFileDialog::ExistingFile);
    showOverFront(dialog);
}

void QtFilePanels::save(const QString& title, const QString& name, const FileKind& kind,
                        Answer answer) {
    QFileDialog& dialog = makeDialog(title, kind, std::move(answer));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setDefaultSuffix(kind.extensions.constFirst());
    // With its extension: Qt takes what follows a dot in the name for one.
    dialog.selectFile(name + QLatin1Char('.') + kind.extensions.constFirst());
    showOverFront(dialog);
}

} // namespace dropshade
