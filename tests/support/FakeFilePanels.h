// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/FilePanels.h"

#include <QList>

#include <utility>

namespace dropshade {

/// A user who sees panels and answers when the test says so, the oldest panel first.
class FakeFilePanels : public FilePanels {
public:
    struct Panel {
        bool isSave;
        QString title;
        QString name; ///< With its extension; empty for an open panel.
        FileKind kind;
        Answer answer;
    };

    void open(const QString& title, const FileKind& kind, Answer answer) override {
        m_panels.append({false, title, QString(), kind, std::move(answer)});
    }
    void openFolder(const QString& title, Answer answer) override {
        m_panels.append({false, title, QString(), FileKind(), std::move(answer)});
    }
    void save(const QString& title, const QString& name, const FileKind& kind,
              Answer answer) override {
        m_panels.append({true, title, name + QLatin1Char('.') + kind.extensions.constFirst(), kind,
                         std::move(answer)});
    }

    /// Those that wait.
    [[nodiscard]] const QList<Panel>& panels() const { return m_panels; }

    void choose(const QString& path) { m_panels.takeFirst().answer(path); }
    void cancel() { m_panels.takeFirst().answer(std::nullopt); }

private:
    QList<Panel> m_panels;
};

} // namespace dropshade
