// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/DesktopAppearance.h"
#include "platform/FilePanels.h"

#include <QObject>

class QFileDialog;

namespace dropshade {

/// The desktop's own file dialogs where it has some, elsewhere Qt's, in the theme's colours.
class QtFilePanels : public FilePanels {
public:
    /// `appearance` must outlive this object.
    explicit QtFilePanels(const DesktopAppearance& appearance) : m_appearance(appearance) {}

    void open(const QString& title, const FileKind& kind, Answer answer) override;
    void openFolder(const QString& title, Answer answer) override;
    void save(const QString& title, const QString& name, const FileKind& kind,
              Answer answer) override;

private:
    [[nodiscard]] QFileDialog& makeDialog(const QString& title, Answer answer);

    const DesktopAppearance& m_appearance;
    QObject m_life; ///< Panels that are still up end with it.
    QString m_folder;
};

} // namespace dropshade
