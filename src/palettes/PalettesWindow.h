// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "palettes/PaletteMenus.h"
#include "palettes/PaletteMoves.h"
#include "palettes/PalettesModel.h"
#include "widgets/Announcer.h"
#include "widgets/FloatingWindow.h"

#include <QPointer>

#include <functional>
#include <memory>
#include <optional>

namespace dropshade {

class ListActions;
struct ListElement;
class ListKeys;
class ListPointer;
class PaletteDropOverlay;
class PaletteList;
class PalettesEmptyState;
class PalettesStatusBar;
class PalettesTopBar;
class Popover;
class ScrollArea;
class Sheet;

/// The window of the palettes: a thin view over `PalettesModel`. It puts the parts together, and
/// shows the menus, popovers, alerts and the sheet that the model asks for.
class PalettesWindow : public FloatingWindow {
    Q_OBJECT

public:
    struct Surroundings {
        PalettesModel& model;
        UserDefaults& defaults;
        Scheduler& scheduler;
        /// The global shortcut that opens the window, as the user reads it.
        std::function<std::optional<QString>()> shortcutText;
    };

    PalettesWindow(const Look& look, const Surroundings& surroundings);
    ~PalettesWindow() override;

    [[nodiscard]] PaletteList& list() { return *m_list; }
    [[nodiscard]] ListKeys& keys() { return *m_keys; }

    void showPresetPicker();
    /// Shows the present global shortcut where the window tells it.
    void followShortcut();

protected:
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    /// The sheet goes first.
    void dismiss() override;
    void paintEvent(QPaintEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void build();
    void connectModel();
    void connectList();
    void arrange();
    void followContent();
    void scrollToPending();
    void renamePalette(const QUuid& id);
    void renameScale(const QUuid& paletteId, const QUuid& scaleId);
    void addSwatch(const QUuid& paletteId, const QUuid& scaleId);
    void editSwatch(const SwatchPath& path);
    void showMenu(const ListElement& element, const QPoint& at);
    void popUpAddMenu(const QPoint& upperRight);
    void ask(const DeleteQuestion& question);
    /// `make` gets the widget that the popover belongs to.
    void openPopover(const ListElement& element, const std::function<Popover*(QWidget&)>& make);

    PalettesModel& m_model;
    UserDefaults& m_defaults;
    std::function<std::optional<QString>()> m_shortcutText;
    PaletteMenus m_menus;
    PaletteMoves m_moves;
    Announcer m_announcer;
    PalettesTopBar* m_topBar = nullptr;
    ScrollArea* m_scrollArea = nullptr;
    PaletteList* m_list = nullptr;
    PalettesEmptyState* m_emptyState = nullptr;
    PalettesStatusBar* m_statusBar = nullptr;
    PaletteDropOverlay* m_dropOverlay = nullptr;
    ListActions* m_actions = nullptr;
    ListPointer* m_pointer = nullptr;
    ListKeys* m_keys = nullptr;
    QPointer<Sheet> m_sheet;
};

} // namespace dropshade
