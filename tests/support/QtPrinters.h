// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <QUuid>

#include <ostream>

// Lets a failed expectation show what it saw. Found by argument-dependent look-up, as the test
// framework asks.

inline void PrintTo(const QString& text, std::ostream* stream) {
    *stream << '"' << text.toStdString() << '"';
}

inline void PrintTo(const QByteArray& bytes, std::ostream* stream) {
    *stream << '"' << bytes.toStdString() << '"';
}

inline void PrintTo(const QUuid& id, std::ostream* stream) {
    *stream << id.toString(QUuid::WithoutBraces).toStdString();
}
