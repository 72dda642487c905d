// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "palettes/ListKeys.h"
#include "palettes/PaletteJson.h"
#include "palettes/PaletteList.h"
#include "palettes/PalettesWindow.h"
#include "palettes/PalettesWindowController.h"
#include "support/FakeAppearance.h"
#include "support/FakePaletteCommands.h"
#include "support/Machine.h"
#include "support/Palettes.h"

#include <QApplication>
#include <QPushButton>
#include <QTest>

#include <random>

namespace dropshade {

/// The palettes window in hands that don't know what they do, the same for the same seed.
class MonkeyHands {
public:
    explicit MonkeyHands(unsigned seed) : m_random(seed) {
        m_machine.store().setPalettes(someLibrary());
        m_controller.bringUp();
        QApplication::processEvents();
    }

    /// One thing that a user, or another machine, might do.
    void step() {
        switch (below(16)) {
        case 0:
        case 1:
            click(Qt::LeftButton);
            break;
        case 2:
            click(Qt::RightButton);
            break;
        case 3:
        case 4:
        case 5:
            drag();
            break;
        case 6:
        case 7:
        case 8:
            pressKey();
            break;
        case 9:
        case 10:
            useWhatIsOpen();
            break;
        case 11:
            hover();
            break;
        case 12:
            arrangeWindow();
            break;
        case 13:
            changeElsewhere();
            break;
        default:
            letTimePass();
        }
        QApplication::processEvents();
        // A dialog that deletes itself does so when the loop is idle.
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    /// What doesn't hold together; empty where all does.
    [[nodiscard]] QString fault() {
        QSet<QUuid> ids;
        qsizetype count = 0;
        for (const Palette& palette : m_machine.store().palettes()) {
            ids.insert(palette.id());
            ++count;
            for (const PaletteScale& scale : palette.scales()) {
                ids.insert(scale.id());
                ++count;
                for (const PaletteSwatch& swatch : scale.swatches()) {
                    ids.insert(swatch.id());
                    ++count;
                }
            }
        }
        if (ids.size() != count)
            return QStringLiteral("an id stands twice");
        const auto& drag = m_controller.model().drag();
        if (!m_isHolding && drag.isDragging())
            return QStringLiteral("a drag without a hand");
        if (!drag.isDragging() && (drag.localPalettes() || drag.activeScalesPaletteId()))
            return QStringLiteral("a working copy without a drag");
        if (!encodedPalettes(m_machine.store().palettes()))
            return QStringLiteral("a list that can't be written");
        return {};
    }

private:
    [[nodiscard]] int below(int end) { return int(m_random() % unsigned(end)); }
    [[nodiscard]] PaletteList& list() { return m_controller.ensureWindow().list(); }
    /// Somewhere in view.
    [[nodiscard]] QPoint somewhere() {
        const QRect view = list().view();
        return view.topLeft() + QPoint(below(view.width()), below(view.height()));
    }
    [[nodiscard]] QList<Palette> someLibrary() {
        QList<Palette> palettes;
        for (int count = 2 + below(8); count > 0; --count)
            palettes.append(RandomPalettes(m_random()).palette());
        return palettes;
    }

    void mouse(QEvent::Type type, const QPoint& at, Qt::MouseButton button,
               Qt::MouseButtons buttons) {
        const auto modifiers = below(8) == 0   ? Qt::ShiftModifier
                               : below(9) == 0 ? Qt::ControlModifier
                                               : Qt::NoModifier;
        QMouseEvent event(type, QPointF(at), list().mapToGlobal(QPointF(at)), button, buttons,
                          modifiers);
        QApplication::sendEvent(&list(), &event);
    }
    void click(Qt::MouseButton button) {
        const QPoint at = somewhere();
        if (button == Qt::RightButton) {
            QContextMenuEvent event(QContextMenuEvent::Mouse, at, list().mapToGlobal(at));
            QApplication::sendEvent(&list(), &event);
            return;
        }
        mouse(QEvent::MouseButtonPress, at, button, button);
        mouse(QEvent::MouseButtonRelease, at, button, Qt::NoButton);
    }
    void drag() {
        const QPoint from = somewhere();
        mouse(QEvent::MouseButtonPress, from, Qt::LeftButton, Qt::LeftButton);
        m_isHolding = true;
        for (int moves = below(8); moves > 0; --moves) {
            mouse(QEvent::MouseMove, somewhere(), Qt::NoButton, Qt::LeftButton);
            if (below(6) == 0)
                QTest::qWait(20);
            if (below(12) == 0)
                changeElsewhere();
            if (below(30) == 0)
                m_controller.close();
        }
        m_isHolding = false;
        mouse(QEvent::MouseButtonRelease, somewhere(), Qt::LeftButton, Qt::NoButton);
        m_controller.bringUp();
    }
    void hover() { mouse(QEvent::MouseMove, somewhere(), Qt::NoButton, Qt::NoButton); }

    void pressKey() {
        static const QList<Qt::Key> keys{Qt::Key_Up,    Qt::Key_Down,   Qt::Key_Left,
                                         Qt::Key_Right, Qt::Key_Return, Qt::Key_Tab,
                                         Qt::Key_Home,  Qt::Key_End,    Qt::Key_PageDown,
                                         Qt::Key_F2,    Qt::Key_Delete, Qt::Key_Escape};
        const Qt::KeyboardModifiers modifiers = below(3) == 0   ? Qt::AltModifier
                                                : below(6) == 0 ? Qt::ShiftModifier
                                                : below(9) == 0 ? Qt::ControlModifier
                                                                : Qt::NoModifier;
        QTest::keyClick(target(), keys.at(below(int(keys.size()))), modifiers);
        m_controller.bringUp();
    }
    /// A popup, a dialog, or the list.
    [[nodiscard]] QWidget* target() {
        if (QWidget* popup = QApplication::activePopupWidget())
            return popup->focusWidget() ? popup->focusWidget() : popup;
        if (QWidget* dialog = QApplication::activeModalWidget())
            return dialog;
        QWidget* focused = m_controller.ensureWindow().focusWidget();
        return focused ? focused : &list();
    }
    void useWhatIsOpen() {
        QWidget* open = QApplication::activePopupWidget();
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            const bool isDialog = widget->isVisible() && widget != &m_controller.ensureWindow();
            if (!open && isDialog)
                open = widget;
        }
        if (!open)
            open = &m_controller.ensureWindow();
        const auto buttons = open->findChildren<QPushButton*>();
        if (!buttons.isEmpty() && below(2) == 0) {
            QPushButton* button = buttons.at(below(int(buttons.size())));
            if (button->isVisible())
                QTest::mouseClick(button, Qt::LeftButton);
        } else if (below(2) == 0) {
            QTest::mouseClick(open, Qt::LeftButton, {},
                              QPoint(below(open->width()), below(open->height())));
        } else {
            QTest::keyClicks(target(), QStringLiteral("teal%1").arg(below(100)));
        }
        m_controller.bringUp();
    }
    void arrangeWindow() {
        PalettesWindow& window = m_controller.ensureWindow();
        switch (below(5)) {
        case 0:
            window.resize(160 + below(900), 280 + below(500));
            break;
        case 1:
            m_machine.settings().setSwatchSize(SwatchSize(below(swatchSizeCount)));
            break;
        case 2:
            m_appearance.setDark(below(2) == 0);
            break;
        case 3:
            m_appearance.setReducedMotion(below(2) == 0);
            break;
        default:
            list().scrollBy(below(800) - 400);
        }
    }
    /// Another machine's changes arrive.
    void changeElsewhere() {
        QList<Palette> palettes = m_machine.store().palettes();
        if (palettes.isEmpty() || (below(3) == 0 && palettes.size() < 20))
            palettes.append(RandomPalettes(m_random()).palette());
        else if (below(2) == 0)
            palettes.removeAt(below(int(palettes.size())));
        else
            palettes.move(below(int(palettes.size())), below(int(palettes.size())));
        m_machine.store().setPalettes(palettes);
        m_machine.settings().validatePins(palettes);
        m_machine.store().flushPendingSave();
    }
    void letTimePass() {
        m_machine.scheduler().advance(below(400));
        if (below(10) == 0)
            QTest::qWait(30);
    }

    std::mt19937 m_random;
    Machine m_machine;
    FakeAppearance m_appearance;
    Look m_look{m_appearance};
    FakePaletteCommands m_commands;
    PalettePresets m_presets{m_machine.scheduler()};
    PalettesWindowController m_controller{
        {m_look,
         {m_machine.defaults(), m_machine.scheduler(), m_machine.settings(), m_machine.store(),
          m_presets, m_commands},
         [] { return std::optional<QString>(); }}};
    bool m_isHolding = false;
};

} // namespace dropshade
