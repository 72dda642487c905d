// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Alerts.h"
#include "widgets/Surface.h"

class QAbstractButton;

namespace dropshade {

/// A question over its host window, or in the middle of the screen where it has none. The host
/// waits. Enter presses the button that has the keyboard, Escape cancels. It deletes itself after
/// its answer, and cancels itself where the host goes.
class AlertWindow : public Surface {
    Q_OBJECT

public:
    static AlertWindow* ask(const Look& look, QWidget* host, const Alert& alert,
                            Alerts::Answer answer);
    ~AlertWindow() override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    AlertWindow(const Look& look, QWidget* host, const Alert& alert, Alerts::Answer answer);

    void build(const Alert& alert);
    [[nodiscard]] QWidget* makeSign(const Alert& alert);
    [[nodiscard]] QWidget* makeButtons(const QList<Alert::Button>& buttons);
    void place(QWidget* host);
    void finish(qsizetype button);

    Alerts::Answer m_answer;
    qsizetype m_cancelling = 0;
    QWidget* m_first = nullptr;
};

} // namespace dropshade
