// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>

#include <functional>

namespace dropshade {

/// A row of a menu: an item, a submenu, the title of a section, or a divider.
struct MenuRow {
    /// How an item that destroys something is to ask.
    enum class Confirmation {
        Asked,
        Skipped ///< Shift was held.
    };
    using Run = std::function<void(Confirmation)>;

    enum class Kind { Item, Submenu, Section, Divider };

    [[nodiscard]] static MenuRow item(const QString& title, std::function<void()> run) {
        return {Kind::Item, title, false, [run = std::move(run)](Confirmation) { run(); }, {}};
    }
    [[nodiscard]] static MenuRow destructive(const QString& title, Run run) {
        return {Kind::Item, title, true, std::move(run), {}};
    }
    [[nodiscard]] static MenuRow submenu(const QString& title, const QList<MenuRow>& rows) {
        return {Kind::Submenu, title, false, {}, rows};
    }
    [[nodiscard]] static MenuRow section(const QString& title) {
        return {Kind::Section, title, false, {}, {}};
    }
    [[nodiscard]] static MenuRow divider() { return {Kind::Divider, {}, false, {}, {}}; }

    Kind kind = Kind::Item;
    QString title;
    bool isDestructive = false;
    Run run;
    QList<MenuRow> rows;
};

} // namespace dropshade
