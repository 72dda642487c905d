// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/Look.h"

#include <QLabel>

namespace dropshade {

/// A verdict: check or cross, and a word. It is opaque, so that it reads on any ground.
class Pill : public QLabel {
    Q_OBJECT

public:
    explicit Pill(const Look& look, QWidget* parent = nullptr);

    /// `sentence` is the tooltip, and what a screen reader says.
    void setVerdict(const QString& word, bool passes, const QString& sentence);

    [[nodiscard]] bool passes() const { return m_passes; }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const Look& m_look;
    bool m_passes = false;
};

} // namespace dropshade
