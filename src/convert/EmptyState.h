// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/Look.h"

#include <QWidget>

namespace dropshade {

/// What the convert window says while it has no colour.
class EmptyState : public QWidget {
    Q_OBJECT

public:
    explicit EmptyState(const Look& look, QWidget* parent = nullptr);
};

} // namespace dropshade
