// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/Button.h"
#include "widgets/Icon.h"

#include <optional>

namespace dropshade {

/// A button with a word on it, and an icon before the word if it has one.
class TextButton : public Button {
    Q_OBJECT

public:
    enum class Kind {
        Default,     ///< The one that Enter presses; in ink.
        Plain,       ///<
        Destructive, ///< In red.
        Quiet,       ///< Without a surface until the pointer is there.
    };

    TextButton(const Look& look, Kind kind, const QString& text, QWidget* parent = nullptr);

    void setLeadingIcon(Icon icon);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paint(QPainter& painter) override;

private:
    void paintSurface(QPainter& painter);
    [[nodiscard]] QColor ink() const;
    [[nodiscard]] int padding() const;

    Kind m_kind;
    std::optional<Icon> m_icon;
};

} // namespace dropshade
