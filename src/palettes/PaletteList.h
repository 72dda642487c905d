// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "palettes/DragImage.h"
#include "palettes/ListRowWidget.h"

#include <QElapsedTimer>
#include <QHash>
#include <QPointer>
#include <QScrollArea>
#include <QSet>
#include <QTimer>

#include <functional>
#include <memory>
#include <optional>

namespace dropshade {

/// Between two pictures of what moves in the list.
inline constexpr std::chrono::milliseconds listFrameTime{16};

class PaletteHeaderWidget;
class ScaleRowWidget;

/// The list of palettes, as the content of a scroll area. It arranges all rows and has widgets for
/// those in view only. Rows that get another place move there by springs, which may be interrupted
/// at any moment; while nothing moves, no timer runs.
class PaletteList : public QWidget {
    Q_OBJECT

public:
    PaletteList(const Look& look, PalettesModel& model, QScrollArea& scrollArea);
    ~PaletteList() override;

    [[nodiscard]] PalettesModel& model() { return m_model; }
    [[nodiscard]] const PaletteListLayout& rows() const { return m_layout; }

    // Elements, by points of the list

    [[nodiscard]] ListElement elementAt(const QPointF& point) const;
    /// Also of what is out of view; empty where there is no such element.
    [[nodiscard]] QRectF areaOf(const ListElement& element);
    /// The elements of that row, from the first to the last.
    [[nodiscard]] QList<ListElement> elementsOf(qsizetype row);
    [[nodiscard]] std::optional<qsizetype> rowOf(const ListElement& element) const;

    /// See `ListRowWidget::elidedNameOf`; of rows in view.
    [[nodiscard]] QString elidedNameOf(const ListElement& element) const;

    /// Scrolls as little as it takes to see the element, or so that its end is at the bottom.
    enum class Anchor { Nearest, Bottom };
    void reveal(const ListElement& element, Anchor anchor = Anchor::Nearest);
    void scrollBy(int distance);
    /// What is in view.
    [[nodiscard]] QRect view() const;

    /// The element looks pointed at, whatever the pointer does, until `letGo`: what a menu or a
    /// popover is about.
    void hold(const ListElement& element);
    void letGo();

    [[nodiscard]] const ListMarks& marks() const { return m_marks; }
    void setHovered(const ListElement& element, const QPointF& point);
    void setPressed(const ListElement& element);
    void setFocused(const ListElement& element);

    /// Brings the rectangles that a drag of or in that palette goes by up to date.
    void refreshDragFrames(const QUuid& paletteId);

    /// An invisible widget over that element, for what opens beside it. Whoever asked for it
    /// deletes it.
    [[nodiscard]] QWidget* makeAnchor(const ListElement& element);

    /// Takes the Tab keys: true where it has moved the keyboard within the list.
    void setTabHandler(std::function<bool(bool next)> handler) {
        m_tabHandler = std::move(handler);
    }

    [[nodiscard]] QSize sizeHint() const override;

Q_SIGNALS:
    void focusedDidChange(const dropshade::ListElement& element);
    /// What is under the pointer may be something else now.
    void rowsDidMove();
    /// A screen reader presses the element.
    void activationRequested(const dropshade::ListElement& element);
    /// The same for its menu.
    void menuRequested(const dropshade::ListElement& element);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    void moveEvent(QMoveEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    enum class Change { Jumps, Springs, Opens };

    struct Key {
        ListRow::Kind kind;
        QUuid id;
        friend bool operator==(const Key&, const Key&) = default;
        friend size_t qHash(const Key& key, size_t seed) {
            return qHashMulti(seed, int(key.kind), key.id);
        }
    };
    [[nodiscard]] static Key keyOf(const ListRow& row) { return {row.kind, row.id()}; }

    void arrange(Change change);
    /// Which rows get their content: those that come into view, or all that are.
    enum class Fill { New, All };
    void syncRows(Change change, Fill fill);
    void keepOpenedHeader(const QHash<Key, double>& formerTops, int formerView);
    void removeRow(const Key& key);
    [[nodiscard]] QSet<qsizetype> wantedRows() const;
    [[nodiscard]] ListRowWidget* makeRow(ListRow::Kind kind);
    void fillRow(const ListRow& row, ListRowWidget& widget, Change change);
    void placeRow(const ListRow& row, ListRowWidget& widget);
    [[nodiscard]] ListRowWidget* widgetOf(qsizetype row);
    [[nodiscard]] ListMeasures measures() const;
    [[nodiscard]] bool isLifted(const ListRow& row) const;
    [[nodiscard]] double shownTop(const ListRow& row) const;
    void applyMarks();
    void hoverRow(ScaleRowWidget* row, const QPointF& local);
    void draggingChanged();
    void liftDragImage();
    void moveDragImage();
    void settleDragImage();
    void startMoving();
    void advance();

    const Look& m_look;
    PalettesModel& m_model;
    QScrollArea& m_scrollArea;
    PaletteListLayout m_layout;
    QHash<Key, ListRowWidget*> m_widgets;
    struct Motion {
        qsizetype row;
        SpringMotion top;
    };
    void followMotions(const QHash<Key, double>& formerTops, const QHash<Key, Motion>& running,
                       int scrolled, Change change);
    QHash<Key, Motion> m_motions;
    /// Where in the view the header of a palette that opens is to stay.
    std::optional<double> m_openedHeaderAt;
    std::unique_ptr<ListRowWidget> m_unseenRow;
    ListMarks m_marks;
    DragImage* m_dragImage;
    std::optional<PaletteDragController::Item> m_lifted;
    QTimer m_frames;
    QElapsedTimer m_sinceFrame;
    QPointer<ScaleRowWidget> m_hoveredRow;
    bool m_isHeld = false;
    std::function<bool(bool next)> m_tabHandler;
};

} // namespace dropshade
