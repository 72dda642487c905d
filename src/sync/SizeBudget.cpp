// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "sync/SizeBudget.h"

namespace dropshade {
namespace {

constexpr qint64 numberSize = 8;

struct Estimate {
    qint64 operator()(bool) const { return numberSize; }
    qint64 operator()(qint64) const { return numberSize; }
    qint64 operator()(double) const { return numberSize; }
    qint64 operator()(const QString& value) const { return value.toUtf8().size(); }
    qint64 operator()(const QByteArray& value) const { return value.size(); }
    qint64 operator()(const QStringList& value) const {
        qint64 size = 0;
        for (const QString& text : value)
            size += text.toUtf8().size();
        return size;
    }
};

} // namespace

qint64 estimatedSize(const CloudValue& value) {
    return std::visit(Estimate{}, value);
}

bool exceedsSizeBudget(const std::map<QString, CloudValue>& values) {
    qint64 total = 0;
    for (const auto& [key, value] : values) {
        total += estimatedSize(value);
        if (total > sizeBudget)
            return true;
    }
    return false;
}

} // namespace dropshade
