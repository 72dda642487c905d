// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Pasteboard.h"

#include <QMimeData>
#include <QStringList>

#include <memory>

namespace dropshade {

/// A clipboard that remembers every text the program put on it.
class FakePasteboard : public Pasteboard {
public:
    void setText(const QString& text) override {
        m_copies.append(text);
        setTextFromAnotherProgram(text);
    }
    [[nodiscard]] QString text() const override {
        return m_content && m_content->hasFormat(QStringLiteral("text/plain")) ? m_content->text()
                                                                               : QString();
    }
    [[nodiscard]] const QMimeData* content() const override { return m_content.get(); }

    /// Each text set by the program, in order.
    [[nodiscard]] const QStringList& copies() const { return m_copies; }

    /// Another program copies `text`.
    void setTextFromAnotherProgram(const QString& text) {
        auto content = std::make_unique<QMimeData>();
        content->setText(text);
        setContent(std::move(content));
    }

    /// Another program copies whatever there is in `content`.
    void setContent(std::unique_ptr<QMimeData> content) { m_content = std::move(content); }

private:
    QStringList m_copies;
    std::unique_ptr<QMimeData> m_content;
};

} // namespace dropshade
