// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/Theme.h"

#include <QProxyStyle>

namespace dropshade {

/// Draws what Qt's own controls leave to a style, as the theme has it: menus, scroll bars, the
/// reach of focus rings. For the rest it is Qt's Fusion.
class ThemeStyle : public QProxyStyle {
    Q_OBJECT

public:
    explicit ThemeStyle(const Theme& theme);

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                            QPainter* painter, const QWidget* widget) const override;
    [[nodiscard]] QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option,
                                       SubControl part, const QWidget* widget) const override;
    [[nodiscard]] QSize sizeFromContents(ContentsType type, const QStyleOption* option,
                                         const QSize& contents,
                                         const QWidget* widget) const override;
    [[nodiscard]] int pixelMetric(PixelMetric metric, const QStyleOption* option,
                                  const QWidget* widget) const override;
    [[nodiscard]] int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                                QStyleHintReturn* returned) const override;

private:
    const Theme& m_theme;
};

} // namespace dropshade
