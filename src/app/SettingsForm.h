// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/Label.h"
#include "widgets/Look.h"

#include <QWidget>

class QHBoxLayout;
class QVBoxLayout;

namespace dropshade {

/// One setting: its name, its control at the right end, what else belongs to it beneath, and a
/// hairline to the next one.
class SettingsRow : public QWidget {
    Q_OBJECT

public:
    /// Room beyond the hairline's right end, for the halo of a toggle.
    static constexpr int haloRoom = 4;

    SettingsRow(const Look& look, const QString& name, QWidget& control, QWidget* parent);

    /// Puts small words beneath.
    Label* addCaption(const QString& words);
    void addBelow(QWidget& widget);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const Look& m_look;
    QVBoxLayout* m_lines;
};

/// Settings one beneath the other, in sections with a heading each.
class SettingsForm : public QWidget {
    Q_OBJECT

public:
    explicit SettingsForm(const Look& look, QWidget* parent = nullptr);

    void addSection(const QString& title);
    SettingsRow* addRow(const QString& name, QWidget* control);
    /// Small words at the end of a section.
    Label* addFooter(const QString& words);

    /// At its width: small words wrap where they must, and no row is higher than it need be.
    [[nodiscard]] QSize minimumSizeHint() const override;

private:
    class Heading;

    const Look& m_look;
    QVBoxLayout* m_rows;
};

} // namespace dropshade
