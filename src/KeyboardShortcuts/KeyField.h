// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/Button.h"

namespace dropshade {

/// The field that shows a key combination, or in its place what can be done about having none.
class KeyField : public Button {
    Q_OBJECT

public:
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    enum class Words {
        Keys,        ///< A combination.
        Placeholder, ///< There is none.
        Prompt       ///< The field waits for one.
    };

    KeyField(const Look& look, QWidget* parent);

    void showWords(Words kind, const QString& words);
    [[nodiscard]] const QString& words() const { return m_words; }

    void paint(QPainter& painter) override;

private:
    Words m_kind = Words::Placeholder;
    QString m_words;
};

} // namespace dropshade
