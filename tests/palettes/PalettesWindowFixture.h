// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "WindowFixture.h"
#include "palettes/PaletteList.h"
#include "palettes/PalettesWindow.h"
#include "palettes/PalettesWindowController.h"
#include "palettes/ScaleRowWidget.h"
#include "support/FakeAppearance.h"
#include "widgets/Look.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QMenu>
#include <QPushButton>
#include <QTest>

namespace dropshade {

/// The window itself over the palettes of `PaletteStore`, shown on Qt's offscreen platform.
class PalettesWindowOnScreen : public PaletteStore {
protected:
    PalettesWindowOnScreen() { m_appearance.setReducedMotion(true); }

    PalettesWindow& window() {
        m_controller.bringUp();
        QApplication::processEvents();
        return m_controller.ensureWindow();
    }
    PalettesModel& model() { return m_controller.model(); }
    PaletteList& list() { return m_controller.ensureWindow().list(); }

    [[nodiscard]] ListElement header(const QUuid& id) const {
        return {ListElement::Part::Header, id, {}, {}};
    }
    [[nodiscard]] ListElement options(const QUuid& id) const {
        return {ListElement::Part::Options, id, {}, {}};
    }
    [[nodiscard]] ListElement label(qsizetype scale) const {
        return {ListElement::Part::Label, seaId(), scaleId(scale), {}};
    }
    [[nodiscard]] ListElement addButton(qsizetype scale) const {
        return {ListElement::Part::AddSwatch, seaId(), scaleId(scale), {}};
    }
    [[nodiscard]] ListElement swatch(qsizetype scale, qsizetype index) const {
        return {ListElement::Part::Swatch, seaId(), scaleId(scale), swatchId(scale, index)};
    }

    QPoint center(const ListElement& element) { return list().areaOf(element).center().toPoint(); }
    void click(const ListElement& element, Qt::KeyboardModifiers modifiers = {}) {
        QTest::mouseClick(&list(), Qt::LeftButton, modifiers, center(element));
    }
    void hover(const QPoint& point) { move(point, Qt::NoButton); }
    void drag(const QPoint& from, const QList<QPoint>& way) {
        QTest::mousePress(&list(), Qt::LeftButton, {}, from);
        for (const QPoint& point : way)
            dragTo(point);
        QTest::mouseRelease(&list(), Qt::LeftButton, {}, way.last());
    }
    void dragTo(const QPoint& point) { move(point, Qt::LeftButton); }
    void move(const QPoint& point, Qt::MouseButtons buttons) {
        QMouseEvent event(QEvent::MouseMove, QPointF(point), list().mapToGlobal(QPointF(point)),
                          Qt::NoButton, buttons, Qt::NoModifier);
        QApplication::sendEvent(&list(), &event);
    }
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(&list(), key, modifiers);
    }

    FakeAppearance m_appearance;
    Look m_look{m_appearance};
    FakePaletteCommands m_commands;
    PalettePresets m_presets{m_machine.scheduler()};
    PalettesWindowController m_controller{
        {m_look,
         {m_machine.defaults(), m_machine.scheduler(), m_machine.settings(), m_machine.store(),
          m_presets, m_commands},
         [] { return std::optional<QString>(); }}};
};

/// The window, with what one does in it.
class Window : public PalettesWindowOnScreen {
protected:
    Window() { window(); }

    template <typename Kind>
    static Kind* shown() {
        QApplication::processEvents();
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            if (auto* found = qobject_cast<Kind*>(widget); found && found->isVisible())
                return found;
        }
        return nullptr;
    }
    static void choose(const char* title, Qt::KeyboardModifiers modifiers = {}) {
        auto* menu = shown<QMenu>();
        ASSERT_TRUE(menu);
        for (QAction* action : menu->actions()) {
            if (action->text() != QString::fromUtf8(title))
                continue;
            QTest::mouseClick(menu, Qt::LeftButton, modifiers,
                              menu->actionGeometry(action).center());
            return;
        }
        ADD_FAILURE() << "no row " << title;
    }
    void openMenu(const ListElement& element) {
        const QPoint at = center(element);
        QContextMenuEvent event(QContextMenuEvent::Mouse, at, list().mapToGlobal(at));
        QApplication::sendEvent(&list(), &event);
    }
    static void press(QWidget* in, const char* title) {
        for (auto* button : in->findChildren<QPushButton*>()) {
            if (button->text() == QString::fromUtf8(title)) {
                QTest::mouseClick(button, Qt::LeftButton);
                return;
            }
        }
        ADD_FAILURE() << "no button " << title;
    }
    qint64 paintedSwatches() {
        qint64 sum = 0;
        for (const auto* row : list().findChildren<ScaleRowWidget*>())
            sum += row->paintedSwatches();
        return sum;
    }
};

} // namespace dropshade
