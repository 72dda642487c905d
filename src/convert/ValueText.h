// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "color/ColorFormat.h"

#include <QList>
#include <QString>

namespace dropshade {

/// A stretch of a value's text: what the user reads, or the code around it.
struct ValueRun {
    QString text;
    bool isDigits = false;

    friend bool operator==(const ValueRun&, const ValueRun&) = default;
};

/// The text in stretches, digits and code in turn; together they are the text.
[[nodiscard]] QList<ValueRun> valueRuns(const QString& text, ColorFormat format);

/// The text in lines of at most `columns` characters. It breaks behind its arguments alone, and the
/// blank at a break goes; an argument that is longer than a line breaks anywhere, so that nothing
/// is ever cut.
[[nodiscard]] QStringList valueLines(const QString& text, int columns);

} // namespace dropshade
