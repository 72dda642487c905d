// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "palettes/ListRowWidget.h"
#include "widgets/AnimatedValue.h"

namespace dropshade {

/// The header of a palette: a chevron, the name, the spine of its middle swatches while it is
/// closed, and the options.
class PaletteHeaderWidget : public ListRowWidget {
    Q_OBJECT

public:
    PaletteHeaderWidget(const Look& look, QWidget* list);

    /// All but the first have a line above.
    enum class Line { None, Above };
    void display(const Palette& palette, bool isExpanded, const ListMeasures& measures, Line line);

    /// What the line takes, above the row's own height.
    [[nodiscard]] int lineHeight() const { return m_line == Line::Above ? 1 : 0; }

    [[nodiscard]] ListElement elementAt(const QPointF& local) const override;
    [[nodiscard]] QRectF areaOf(const ListElement& element) const override;
    [[nodiscard]] QList<ListElement> elements() const override;
    [[nodiscard]] QString elidedNameOf(const ListElement& element) const override;

protected:
    void paint(QPainter& painter, const QRegion& region) override;

private:
    [[nodiscard]] ListElement element(ListElement::Part part) const;
    [[nodiscard]] QRectF optionsArea() const;
    [[nodiscard]] QRectF spineArea() const;
    [[nodiscard]] QRectF nameArea() const;
    [[nodiscard]] bool hasSpine() const;
    void paintChevron(QPainter& painter) const;
    void paintOptions(QPainter& painter) const;

    QUuid m_paletteId;
    QString m_name;
    QList<PaletteSwatch> m_spine;
    bool m_isExpanded = false;
    /// Of the chevron, from closed at 0 to open at 1.
    AnimatedValue m_turn{*this};
    ListMeasures m_measures;
    Line m_line = Line::None;
};

/// The button in a palette that has no scales.
class AddScaleWidget : public ListRowWidget {
    Q_OBJECT

public:
    AddScaleWidget(const Look& look, QWidget* list);

    void display(QUuid paletteId, const ListMeasures& measures);

    [[nodiscard]] static QString title();

    [[nodiscard]] ListElement elementAt(const QPointF& local) const override;
    [[nodiscard]] QRectF areaOf(const ListElement& element) const override;
    [[nodiscard]] QList<ListElement> elements() const override;

protected:
    void paint(QPainter& painter, const QRegion& region) override;

private:
    [[nodiscard]] QRectF buttonArea() const;

    QUuid m_paletteId;
    ListMeasures m_measures;
};

} // namespace dropshade
