// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/Icon.h"
#include "widgets/Look.h"

#include <QMenu>

#include <optional>

namespace dropshade {

/// A menu in the theme's look: rows with a key equivalent behind a tab, images of 14 or of 20
/// pixels in a column of their own, headers, and rows that destroy in red.
class Menu : public QMenu {
    Q_OBJECT

public:
    explicit Menu(const Look& look, QWidget* parent = nullptr);

    QAction* addRow(const QString& text, std::optional<Icon> icon = std::nullopt);

    /// A title over the rows that follow; it can't be chosen.
    QAction* addHeader(const QString& title);

    /// A row with the colour's image.
    QAction* addColorRow(const QString& text, const QColor& color);

    /// A row that opens another menu, which this one owns.
    Menu* addSubmenu(const QString& title, std::optional<Icon> icon = std::nullopt);

    /// Draws the words of `row` in red.
    void setDestructive(QAction* row);

    /// Opens it as a window of its own, beside nothing, wherever the desktop puts that: for where
    /// programs don't place windows. Another window that gets the keyboard closes it.
    void openAsWindow(const QString& title);

protected:
    void initStyleOption(QStyleOptionMenuItem* option, const QAction* action) const override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    /// To the window system it is a window of that type; to the program it stays a popup.
    void setWindowSystemType(Qt::WindowType type);
    void keepClearOfParent();
    [[nodiscard]] QIcon image(Icon icon) const;

    const Look& m_look;
};

} // namespace dropshade
