// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "imagepalette/NewPaletteFromImageModel.h"
#include "support/FakePasteboard.h"
#include "support/ManualBackgroundQueue.h"
#include "support/ManualScheduler.h"

#include <QMimeData>

#include <initializer_list>
#include <optional>
#include <random>
#include <utility>

namespace dropshade {

/// A model with everything around it under the test's hand. Chance always comes out the same.
class ImagePaletteDesk {
public:
    explicit ImagePaletteDesk(std::optional<LoadedImage> image = std::nullopt,
                              std::optional<QString> filename = std::nullopt)
        : m_model({m_scheduler, m_queue, m_pasteboard, seededBits}, std::move(image),
                  std::move(filename)) {
        QObject::connect(&m_model, &NewPaletteFromImageModel::paletteMade, &m_model,
                         [this](const Palette& palette) { m_made.append(palette); });
    }

    NewPaletteFromImageModel& model() { return m_model; }
    ManualScheduler& scheduler() { return m_scheduler; }
    ManualBackgroundQueue& queue() { return m_queue; }
    FakePasteboard& pasteboard() { return m_pasteboard; }
    /// Every palette that was made.
    [[nodiscard]] const QList<Palette>& made() const { return m_made; }

    /// Lets the image that is on its way, if any, be decoded and come.
    void decode() { m_queue.workAndLand(); }

    /// Lets the computation that is on its way, if any, end and land.
    void finish() {
        m_scheduler.advance(QuantizationTask::delay);
        m_queue.workAndLand();
    }

    [[nodiscard]] static LoadedImage imageOf(const QImage& image) { return {image, image.size()}; }

    /// One row with a pixel of each colour.
    [[nodiscard]] static LoadedImage imageOf(std::initializer_list<QRgb> colors) {
        QImage image(static_cast<int>(colors.size()), 1, QImage::Format_ARGB32);
        int x = 0;
        for (const QRgb color : colors)
            image.setPixel(x++, 0, color);
        return imageOf(image);
    }

private:
    static RandomBits seededBits() {
        return [generator = std::mt19937_64(1)]() mutable { return generator(); };
    }

    ManualScheduler m_scheduler;
    ManualBackgroundQueue m_queue;
    FakePasteboard m_pasteboard;
    NewPaletteFromImageModel m_model;
    QList<Palette> m_made;
};

} // namespace dropshade
