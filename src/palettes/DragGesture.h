// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "palettes/PaletteDragController.h"
#include "platform/Scheduler.h"

#include <QObject>

#include <chrono>
#include <memory>
#include <optional>

namespace dropshade {

/// Tells a drag of the pointer from a click. A drag begins when the pointer is 4 points from where
/// it was pressed, and ends once: with the release, or when the gesture is taken away, which counts
/// as its end. After that, clicks may be ignored for a while, for some come from the same release.
class DragGesture : public QObject {
    Q_OBJECT

public:
    explicit DragGesture(Scheduler& scheduler);
    ~DragGesture() override;

    [[nodiscard]] bool isPressed() const { return m_start.has_value(); }
    [[nodiscard]] bool isDragging() const { return m_isDragging; }
    /// False during a drag and for as long after it as the last `end` said.
    [[nodiscard]] bool allowsClick() const { return !m_isDragging && m_clickPause == nullptr; }

    void press(const QPointF& location);
    void move(const QPointF& location);
    /// The button is up, or the gesture was cancelled. True where that was a drag's end.
    bool end(std::chrono::milliseconds clickPause);

Q_SIGNALS:
    void changed(const dropshade::DragValue& value);
    void ended();

private:
    Scheduler& m_scheduler;
    std::optional<QPointF> m_start;
    bool m_isDragging = false;
    std::unique_ptr<ScheduledWork> m_clickPause;
};

/// How long the mouse-up of a drag is not to be taken for a click.
inline constexpr std::chrono::milliseconds headerClickPause{100};
inline constexpr std::chrono::milliseconds labelClickPause{250};

} // namespace dropshade
