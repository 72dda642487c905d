// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "widgets/WindowFrames.h"

#include <QStringList>

#include <algorithm>

namespace dropshade {

namespace {

QString keyOf(const QString& name) {
    return QStringLiteral("windowFrame.") + name;
}

qint64 sharedArea(const QRect& first, const QRect& second) {
    const QRect shared = first.intersected(second);
    return shared.isEmpty() ? 0 : qint64{shared.width()} * shared.height();
}

int distance(const QRect& frame, const QRect& screen) {
    return (frame.center() - screen.center()).manhattanLength();
}

} // namespace

std::optional<QRect> storedWindowFrame(const UserDefaults& defaults, const QString& name) {
    const auto text = defaults.read<QString>(keyOf(name));
    const QStringList numbers = text.value_or(QString()).split(u' ', Qt::SkipEmptyParts);
    if (numbers.size() != 4)
        return std::nullopt;
    int values[4] = {};
    for (int index = 0; index < 4; ++index) {
        bool isNumber = false;
        values[index] = numbers[index].toInt(&isNumber);
        if (!isNumber || values[index] < -100000 || values[index] > 100000)
            return std::nullopt;
    }
    const QRect frame(values[0], values[1], values[2], values[3]);
    return frame.isEmpty() ? std::nullopt : std::optional<QRect>(frame);
}

void storeWindowFrame(UserDefaults& defaults, const QString& name, const QRect& frame) {
    const QString text = QStringLiteral("%1 %2 %3 %4")
                             .arg(frame.x())
                             .arg(frame.y())
                             .arg(frame.width())
                             .arg(frame.height());
    if (defaults.read<QString>(keyOf(name)) != text)
        defaults.setValue(keyOf(name), text);
}

QRect onScreens(const QRect& frame, const QList<QRect>& screens) {
    if (screens.isEmpty())
        return frame;
    const QRect& screen = *std::max_element(
        screens.begin(), screens.end(), [&frame](const QRect& first, const QRect& second) {
            const qint64 a = sharedArea(frame, first);
            const qint64 b = sharedArea(frame, second);
            return a != b ? a < b : distance(frame, first) > distance(frame, second);
        });
    const QSize size = frame.size().boundedTo(screen.size());
    const int x = std::clamp(frame.x(), screen.left(), screen.right() - size.width() + 1);
    const int y = std::clamp(frame.y(), screen.top(), screen.bottom() - size.height() + 1);
    return {QPoint(x, y), size};
}

} // namespace dropshade
