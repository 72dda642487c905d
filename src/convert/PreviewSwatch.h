// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "color/SRGBColor.h"
#include "widgets/Look.h"

#include <QWidget>

#include <optional>

namespace dropshade {

/// The colour of the convert window, large; an empty place without one.
class PreviewSwatch : public QWidget {
    Q_OBJECT

public:
    explicit PreviewSwatch(const Look& look, QWidget* parent = nullptr);

    void setColor(const std::optional<SRGBColor>& color);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const Look& m_look;
    std::optional<SRGBColor> m_color;
};

} // namespace dropshade
