// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "palettes/PaletteListLayout.h"
#include "widgets/Look.h"

#include <QWidget>

namespace dropshade {

/// Something in the list that can be pointed at, or have the keyboard.
struct ListElement {
    enum class Part { None, Header, Options, Label, Grip, Swatch, AddSwatch, AddScale };

    Part part = Part::None;
    QUuid paletteId;
    QUuid scaleId;
    QUuid swatchId;

    [[nodiscard]] SwatchPath path() const { return {paletteId, scaleId, swatchId}; }
    [[nodiscard]] bool isNone() const { return part == Part::None; }

    friend bool operator==(const ListElement&, const ListElement&) = default;
};

/// What the pointer and the keyboard are at.
struct ListMarks {
    ListElement hovered;
    ListElement pressed;
    ListElement focused;
};

/// A row of the list on the screen: one widget that paints all of it, and repaints no more than
/// what has changed. The list hands it what it shows, moves it, and tells it where the pointer is;
/// it gets no events of its own.
class ListRowWidget : public QWidget {
    Q_OBJECT

public:
    [[nodiscard]] virtual ListElement elementAt(const QPointF& local) const = 0;
    /// The element's place, without its rings; empty where it isn't in this row.
    [[nodiscard]] virtual QRectF areaOf(const ListElement& element) const = 0;
    /// From the first to the last, as the arrow keys go.
    [[nodiscard]] virtual QList<ListElement> elements() const = 0;

    /// The element's name where the row has no room for all of it, else nothing.
    [[nodiscard]] virtual QString elidedNameOf(const ListElement& element) const;

    void setMarks(const ListMarks& marks);
    /// The whole row is on its way elsewhere, and this is where it comes from.
    void setLifted(bool isLifted);
    [[nodiscard]] bool isLifted() const { return m_isLifted; }

    /// Moves what moves within the row; false where all has come to rest.
    virtual bool advance(std::chrono::duration<double> time);

    /// The row as it floats under the pointer.
    [[nodiscard]] QPixmap image();

protected:
    ListRowWidget(const Look& look, QWidget* list);

    [[nodiscard]] const Look& look() const { return m_look; }
    [[nodiscard]] const Theme& theme() const { return m_look.theme(); }
    [[nodiscard]] const ListMarks& marks() const { return m_marks; }
    [[nodiscard]] bool isHovered(ListElement::Part part) const {
        return m_marks.hovered.part == part && !areaOf(m_marks.hovered).isEmpty();
    }

    virtual void paint(QPainter& painter, const QRegion& region) = 0;
    /// Rings and pills reach beyond an element's own area.
    [[nodiscard]] virtual QRectF repaintAreaOf(const ListElement& element) const;

    void paintEvent(QPaintEvent* event) override;

private:
    void repaintElement(const ListElement& element);

    const Look& m_look;
    ListMarks m_marks;
    bool m_isLifted = false;
};

} // namespace dropshade
