// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/Surface.h"

#include <QColor>

#include <functional>
#include <optional>

namespace dropshade {

/// What an alert says. Without `cancel` it has one button alone.
struct AlertText {
    QString headline;
    QString text;
    QString confirm;
    QString cancel;
    /// Draws the confirming button in red and gives the keyboard to the other.
    bool isDestructive = false;
    /// Shown in place of the sign, for what concerns one colour.
    std::optional<QColor> color;
};

/// A question over its host window, or in the middle of the screen where it has none. The host
/// waits. Enter presses the button that has the keyboard, Escape cancels. It deletes itself after
/// its answer, and cancels itself where the host goes.
class AlertWindow : public Surface {
    Q_OBJECT

public:
    using Answer = std::function<void(bool confirmed)>;

    static AlertWindow* ask(const Look& look, QWidget* host, const AlertText& text, Answer answer);
    ~AlertWindow() override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    AlertWindow(const Look& look, QWidget* host, const AlertText& text, Answer answer);

    void build(const AlertText& text);
    [[nodiscard]] QWidget* makeSign(const AlertText& text);
    [[nodiscard]] QWidget* makeButtons(const AlertText& text);
    void place(QWidget* host);
    void finish(bool confirmed);

    Answer m_answer;
    QWidget* m_first = nullptr;
};

} // namespace dropshade
