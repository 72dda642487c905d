// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QList>
#include <QString>

#include <functional>
#include <optional>

namespace dropshade {

/// A message that waits for the user's answer.
struct Alert {
    enum class Role {
        Default,     ///< Return answers with it.
        Cancel,      ///< Escape answers with it.
        Destructive, ///< Something is lost by it; Return answers with another button.
        Plain
    };

    enum class Place {
        OverFrontWindow, ///< Which waits for the answer; where the program shows none, alone.
        Alone            ///< For what comes unasked: nothing waits for it.
    };

    struct Button {
        QString title;
        Role role = Role::Plain;
    };

    QString title;
    QString text;
    /// In their order of reading; none means one to acknowledge.
    QList<Button> buttons = {};
    /// Shown beside the words, for what concerns one colour.
    std::optional<QColor> color = std::nullopt;
    Place place = Place::OverFrontWindow;
};

/// Shows alerts. One is shown at once and answers once, later, with the place of the button; a
/// closed alert answers with the cancelling button, or the last one where there is none.
class Alerts {
public:
    using Answer = std::function<void(qsizetype button)>;

    virtual ~Alerts() = default;

    virtual void show(const Alert& alert, Answer answer) = 0;

    /// Brings the alerts that still wait before the user once more.
    virtual void raise() = 0;

    /// A warning that there is nothing to decide about.
    void warn(const QString& title, const QString& text) {
        show(Alert{title, text}, [](qsizetype) {});
    }
};

} // namespace dropshade
