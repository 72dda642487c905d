// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "color/ColorFormat.h"
#include "convert/ValueText.h"
#include "widgets/Button.h"

#include <QFontMetricsF>

namespace dropshade {

/// One format with the colour's text in it; a click copies that. The text wraps at its arguments.
/// Arrow keys go from row to row.
class FormatRow : public Button {
    Q_OBJECT

public:
    FormatRow(const Look& look, ColorFormat format, QWidget* parent = nullptr);

    ColorFormat format() const { return m_format; }
    const QString& value() const { return m_value; }
    void setValue(const QString& value, bool isEnabled);

    /// Lights up and fades, as what has just been copied.
    void flash();

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return {0, sizeHint().height()}; }
    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    [[nodiscard]] int heightForWidth(int width) const override;

Q_SIGNALS:
    /// The user wants the row so many places further on, or the first or last one.
    void moveRequested(int by);

protected:
    void paint(QPainter& painter) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    [[nodiscard]] QStringList linesFor(int width) const;
    void paintGround(QPainter& painter);
    void paintValue(QPainter& painter, const QStringList& lines);
    [[nodiscard]] bool isCurrent() const;

    ColorFormat m_format;
    QString m_value;
    QFont m_codeFont;
    QFont m_digitsFont;
    double m_characterWidth;
    AnimatedValue m_flash{*this};
};

/// What `FormatRow::moveRequested` asks for beyond steps.
inline constexpr int toFirstRow = -1000;
inline constexpr int toLastRow = 1000;

} // namespace dropshade
