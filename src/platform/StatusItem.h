// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>
#include <QObject>
#include <QRect>

namespace dropshade {

/// One click on the status item, as far as the desktop tells.
struct StatusItemClick {
    Qt::MouseButton button = Qt::LeftButton;
    Qt::KeyboardModifiers modifiers = Qt::NoModifier;
};

/// The icon in the desktop's status area. It shows as soon as the desktop has such an area, also
/// when that starts after the program or comes back after a restart.
class StatusItem : public QObject {
    Q_OBJECT

public:
    /// A null icon takes the item off the status area until another comes.
    virtual void setIcon(const QIcon& icon) = 0;

    /// Where the item is, in the coordinates of `QScreen`; empty where the desktop does not tell.
    [[nodiscard]] virtual QRect geometry() const = 0;

Q_SIGNALS:
    /// The desktop has a status area, and the item is there. Once, perhaps within the first
    /// `setIcon`.
    void hostFound();
    void clicked(const dropshade::StatusItemClick& click);
};

} // namespace dropshade
