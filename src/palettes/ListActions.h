// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "palettes/ListRowWidget.h"

#include <QObject>
#include <QPoint>

namespace dropshade {

/// What a click or a key means for an element of the list. What needs a popover or a menu is asked
/// of the window by a signal.
class ListActions : public QObject {
    Q_OBJECT

public:
    explicit ListActions(PalettesModel& model) : m_model(model) {}

    /// A click, or Return.
    void activate(const ListElement& element);
    /// F2.
    void edit(const ListElement& element);
    /// Delete.
    void remove(const ListElement& element, bool asks);
    /// A secondary click, or the menu key, at that point of the screen.
    void showMenu(const ListElement& element, const QPoint& at);

    /// What the status bar says while the pointer is there.
    [[nodiscard]] static std::optional<QString> hint(const ListElement& element);
    [[nodiscard]] static QString toolTip(const ListElement& element);

Q_SIGNALS:
    void paletteRenameRequested(const QUuid& id);
    void scaleRenameRequested(const QUuid& paletteId, const QUuid& scaleId);
    void swatchAddRequested(const QUuid& paletteId, const QUuid& scaleId);
    void swatchEditRequested(const dropshade::SwatchPath& path);
    void menuRequested(const dropshade::ListElement& element, const QPoint& at);

private:
    PalettesModel& m_model;
};

} // namespace dropshade
