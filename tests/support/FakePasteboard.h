// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Pasteboard.h"

#include <QStringList>

namespace dropshade {

/// A clipboard that remembers every text the program put on it.
class FakePasteboard : public Pasteboard {
public:
    void setText(const QString& text) override {
        m_copies.append(text);
        m_content = text;
    }
    [[nodiscard]] QString text() const override { return m_content; }

    /// Each text set by the program, in order.
    [[nodiscard]] const QStringList& copies() const { return m_copies; }

    /// Another program copies `text`.
    void setTextFromAnotherProgram(const QString& text) { m_content = text; }

private:
    QStringList m_copies;
    QString m_content;
};

} // namespace dropshade
