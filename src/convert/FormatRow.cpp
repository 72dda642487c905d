// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "convert/FormatRow.h"

#include "widgets/Metrics.h"
#include "widgets/Painting.h"
#include "widgets/TypeScale.h"

#include <QKeyEvent>

#include <algorithm>

namespace dropshade {

namespace {

constexpr int padding = 8;
constexpr int nameColumn = 104;
constexpr int valueLeft = padding + nameColumn + 8;

/// Above the first line and below the last.
int rowPadding() {
    return (metrics::rowFormat - 16) / 2;
}

} // namespace

FormatRow::FormatRow(const Look& look, ColorFormat format, QWidget* parent)
    : Button(look, parent), m_format(format), m_codeFont(textFont(TextStyle::Value)),
      m_digitsFont(textFont(TextStyle::ValueDigits)),
      m_characterWidth(QFontMetricsF(m_codeFont).horizontalAdvance(QStringLiteral("0000000000")) /
                       10.0) {
    const QString name = QString::fromUtf8(displayName(format).data(),
                                           static_cast<qsizetype>(displayName(format).size()));
    setText(name);
    setFont(textFont(TextStyle::Caption));
    //: %1 is the name of a format, such as "CSS RGB"
    setToolTip(tr("Copy as %1", "Convert row tooltip").arg(name));
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    setCursor(Qt::PointingHandCursor);
}

void FormatRow::setValue(const QString& value, bool isEnabled) {
    if (value == m_value && isEnabled == this->isEnabled())
        return;
    const qsizetype before = linesFor(width()).size();
    m_value = value;
    setEnabled(isEnabled);
    setAccessibleName(text() + QStringLiteral(", ") + value);
    if (linesFor(width()).size() != before)
        updateGeometry();
    update();
}

void FormatRow::flash() {
    m_flash.moveTo(1.0, std::chrono::milliseconds(0));
    m_flash.moveTo(0.0, look().duration(metrics::copyFlash));
}

QStringList FormatRow::linesFor(int width) const {
    return valueLines(m_value, static_cast<int>((width - valueLeft) / m_characterWidth));
}

int FormatRow::heightForWidth(int width) const {
    const int lines = static_cast<int>(linesFor(width).size());
    return std::max(metrics::rowFormat, 2 * rowPadding() + lines * lineHeight(TextStyle::Value));
}

QSize FormatRow::sizeHint() const {
    return {valueLeft + 20 * static_cast<int>(m_characterWidth), metrics::rowFormat};
}

bool FormatRow::isCurrent() const {
    return isEnabled() && (hoverAmount() > 0.5 || hasFocus() || isDown());
}

void FormatRow::paintGround(QPainter& painter) {
    if (isEnabled())
        fillRounded(painter, rect(), cornerRadius(), filled(Qt::transparent));
    if (m_flash.value() > 0.0)
        fillRounded(painter, rect(), cornerRadius(),
                    blended(Qt::transparent, theme().accentSoft, m_flash.value()));
    if (isCurrent())
        drawTick(painter, rect(), theme());
}

void FormatRow::paint(QPainter& painter) {
    paintGround(painter);
    const int line = lineHeight(TextStyle::Value);
    painter.setFont(font());
    painter.setPen(isCurrent() ? theme().textPrimary : theme().textSecondary);
    painter.drawText(QRect(padding, rowPadding(), nameColumn + 8, line),
                     Qt::AlignVCenter | Qt::AlignLeft,
                     QFontMetrics(font()).elidedText(text(), Qt::ElideRight, nameColumn + 4));
    paintValue(painter, linesFor(width()));
}

void FormatRow::paintValue(QPainter& painter, const QStringList& lines) {
    const int line = lineHeight(TextStyle::Value);
    int top = rowPadding();
    for (const QString& words : lines) {
        double left = valueLeft;
        for (const ValueRun& run : valueRuns(words, m_format)) {
            const bool isStrong = run.isDigits && isEnabled();
            painter.setFont(isStrong ? m_digitsFont : m_codeFont);
            painter.setPen(isStrong ? theme().textPrimary : theme().textSecondary);
            const double wide = m_characterWidth * static_cast<double>(run.text.size());
            painter.drawText(QRectF(left, top, wide + 8.0, line), Qt::AlignVCenter | Qt::AlignLeft,
                             run.text);
            left += wide;
        }
        top += line;
    }
}

void FormatRow::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Up:
        Q_EMIT moveRequested(-1);
        break;
    case Qt::Key_Down:
        Q_EMIT moveRequested(1);
        break;
    case Qt::Key_Home:
        Q_EMIT moveRequested(toFirstRow);
        break;
    case Qt::Key_End:
        Q_EMIT moveRequested(toLastRow);
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        click();
        break;
    default:
        Button::keyPressEvent(event);
    }
}

} // namespace dropshade
