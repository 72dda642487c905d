// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "palettes/HoverState.h"

#include <algorithm>
#include <utility>

namespace dropshade {
namespace {

constexpr std::chrono::milliseconds clearDelay{150};

std::optional<qsizetype> indexAt(const QPointF& location, const QList<QRectF>& frames,
                                 qsizetype count) {
    const qsizetype searched = std::min(frames.size(), count);
    for (qsizetype index = 0; index < searched; ++index) {
        if (holds(frames.at(index), location))
            return index;
    }
    return std::nullopt;
}

} // namespace

HoverState::HoverState(Scheduler& scheduler) : m_scheduler(scheduler) {}

HoverState::~HoverState() = default;

void HoverState::setSwatch(const std::optional<PaletteSwatch>& swatch) {
    m_clearWorkItem.reset();
    if (swatch) {
        if (m_swatch && m_swatch->id() == swatch->id())
            return;
        m_swatch = swatch;
        Q_EMIT didChange();
        return;
    }
    m_clearWorkItem = m_scheduler.after(clearDelay, [this] {
        m_clearWorkItem.reset();
        if (!m_swatch)
            return;
        m_swatch.reset();
        Q_EMIT didChange();
    });
}

void HoverState::setHint(const std::optional<QString>& hint) {
    if (m_hint == hint)
        return;
    m_hint = hint;
    Q_EMIT didChange();
}

void HoverState::refreshSwatch(const std::optional<PaletteSwatch>& swatch) {
    m_swatch = swatch;
    Q_EMIT didChange();
}

RowHover::RowHover(OnHover onHover) : m_onHover(std::move(onHover)) {}

bool RowHover::moved(const QPointF& location, const QList<PaletteSwatch>& swatches) {
    const auto index = indexAt(location, m_scratch.frames, swatches.size());
    if (index == m_scratch.lastIndex)
        return false;
    m_scratch.lastIndex = index;
    if (index) {
        m_hoveredSwatchId = swatches.at(*index).id();
        m_onHover(swatches.at(*index));
    } else {
        m_hoveredSwatchId.reset();
        m_onHover(std::nullopt);
    }
    return true;
}

bool RowHover::ended() {
    if (!m_scratch.lastIndex)
        return false;
    m_scratch.lastIndex.reset();
    m_hoveredSwatchId.reset();
    m_onHover(std::nullopt);
    return true;
}

} // namespace dropshade
