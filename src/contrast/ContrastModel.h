// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "color/SRGBColor.h"

#include <QObject>

#include <functional>
#include <optional>

namespace dropshade {

/// The pair that the contrast windows of one process show one after the other; black on white at
/// first. It is not saved.
struct LastContrastPair {
    SRGBColor background{1.0, 1.0, 1.0};
    SRGBColor foreground{0.0, 0.0, 0.0};
};

/// The two colours of one contrast window.
class ContrastModel : public QObject {
    Q_OBJECT

public:
    enum class SwatchTarget { background, foreground };

    /// Starts with `last`, and keeps it up to date. `beep` is the desktop's alert sound.
    ContrastModel(LastContrastPair& last, std::function<void()> beep);

    const SRGBColor& bgColor() const { return m_last.background; }
    const SRGBColor& fgColor() const { return m_last.foreground; }
    [[nodiscard]] const SRGBColor& color(SwatchTarget target) const;

    void setBgColor(const SRGBColor& color);
    void setFgColor(const SRGBColor& color);
    void setColor(SwatchTarget target, const SRGBColor& color);

    /// Runs the sampler for one of the two, and closes the window.
    std::function<void(SwatchTarget)> pickAction;
    std::function<void()> closeAction;

    // Measured at each call.

    /// WCAG 2 contrast ratio, 1 to 21.
    [[nodiscard]] double ratio() const;
    /// Signed APCA Lc of the foreground as text.
    [[nodiscard]] double lc() const;

    void swapColors();

    /// Moves the lightness of `target` as little as makes the pair reach the measure. False, with a
    /// beep and no change, where no lightness does.
    bool applyRatioFix(SwatchTarget target, double wantedRatio);
    bool applyLcFix(SwatchTarget target, double wantedLc);

Q_SIGNALS:
    /// One of the two is another colour than before.
    void colorsDidChange();

private:
    bool apply(SwatchTarget target, const std::optional<SRGBColor>& fixed);
    [[nodiscard]] const SRGBColor& other(SwatchTarget target) const;

    LastContrastPair& m_last;
    std::function<void()> m_beep;
};

} // namespace dropshade
