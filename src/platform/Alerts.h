// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>

#include <functional>

class QWindow;

namespace dropshade {

/// A message that waits for the user's answer.
struct Alert {
    enum class Role {
        Default,     ///< Return answers with it.
        Cancel,      ///< Escape answers with it.
        Destructive, ///< Something is lost by it.
        Plain
    };

    struct Button {
        QString title;
        Role role = Role::Plain;
    };

    QString title;
    QString text;
    /// In their order of reading; none means one to acknowledge.
    QList<Button> buttons = {};
};

/// Shows alerts. One is shown at once and answers once, later, with the place of the button; a
/// closed alert answers with the cancelling button, or the last one where there is none. It belongs
/// to `host` while it is up; without one, to the window in front, and where the program shows no
/// window it stands alone.
class Alerts {
public:
    using Answer = std::function<void(qsizetype button)>;

    virtual ~Alerts() = default;

    virtual void show(const Alert& alert, QWindow* host, Answer answer) = 0;

    /// A warning that there is nothing to decide about.
    void warn(const QString& title, const QString& text, QWindow* host = nullptr) {
        show(Alert{title, text}, host, [](qsizetype) {});
    }
};

} // namespace dropshade
