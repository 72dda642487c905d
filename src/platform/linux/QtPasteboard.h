// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Pasteboard.h"

namespace dropshade {

/// The clipboard that Qt knows. Needs a running QGuiApplication.
class QtPasteboard : public Pasteboard {
public:
    void setText(const QString& text) override;
    [[nodiscard]] QString text() const override;
    [[nodiscard]] const QMimeData* content() const override;
};

} // namespace dropshade
