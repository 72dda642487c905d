// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "palettes/FlowLayout.h"
#include "palettes/PaletteSwatch.h"
#include "platform/Scheduler.h"

#include <QObject>

#include <functional>
#include <memory>
#include <optional>

namespace dropshade {

/// What the status bar describes: the swatch under the pointer or, where there is none, a hint. A
/// swatch stays for 150 milliseconds after the pointer has left it, so that the way across a gap
/// to the next one never blanks the bar.
class HoverState : public QObject {
    Q_OBJECT

public:
    explicit HoverState(Scheduler& scheduler);
    ~HoverState() override;

    const std::optional<PaletteSwatch>& swatch() const { return m_swatch; }
    const std::optional<QString>& hint() const { return m_hint; }

    void setSwatch(const std::optional<PaletteSwatch>& swatch);
    void setHint(const std::optional<QString>& hint);

    /// Shows the swatch as it is now, after an edit under the pointer; nothing clears it.
    void refreshSwatch(const std::optional<PaletteSwatch>& swatch);

Q_SIGNALS:
    void didChange();

private:
    Scheduler& m_scheduler;
    std::optional<PaletteSwatch> m_swatch;
    std::optional<QString> m_hint;
    std::unique_ptr<ScheduledWork> m_clearWorkItem;
};

/// The one hover handler of a row of swatches. It searches the rectangles that the row's layout
/// left in its scratch; a move within one swatch writes nothing and tells nobody.
class RowHover {
public:
    using OnHover = std::function<void(const std::optional<PaletteSwatch>&)>;

    explicit RowHover(OnHover onHover);

    [[nodiscard]] HoverScratch& scratch() { return m_scratch; }
    [[nodiscard]] const HoverScratch& scratch() const { return m_scratch; }
    const std::optional<QUuid>& hoveredSwatchId() const { return m_hoveredSwatchId; }

    /// The pointer is at `location`, in the row's own coordinates. True where it is over another
    /// swatch than before, or over none any more. Rectangles behind those of the swatches, as of
    /// the add button, don't count.
    bool moved(const QPointF& location, const QList<PaletteSwatch>& swatches);
    /// The pointer has left the row; true where it was over a swatch.
    bool ended();

private:
    OnHover m_onHover;
    HoverScratch m_scratch;
    std::optional<QUuid> m_hoveredSwatchId;
};

} // namespace dropshade
