// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/Button.h"

#include <QList>
#include <QVariant>

namespace dropshade {

/// A drop-down list that shows the chosen row. Click, Space, Enter or the down arrow opens it;
/// arrow keys with it closed step through the rows.
class Picker : public Button {
    Q_OBJECT

public:
    Picker(const Look& look, const QString& name, QWidget* parent = nullptr);

    /// A title over the rows added after it.
    void addHeader(const QString& title);
    void addRow(const QString& title, const QVariant& value = QVariant());

    /// A line between rows.
    void addSeparator();

    [[nodiscard]] int count() const;
    [[nodiscard]] int currentIndex() const { return m_current; }
    [[nodiscard]] QString currentText() const;
    [[nodiscard]] QVariant currentValue() const;

    /// These emit nothing; an index or value that no row has shows nothing.
    void setCurrentIndex(int index);
    void setCurrentValue(const QVariant& value);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// The user chose another row.
    void picked(int index);
    /// The user chose a row, be it the present one; after `picked`.
    void chosen(int index);

protected:
    void paint(QPainter& painter) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    enum class Kind { Row, Header, Separator };
    struct Entry {
        Kind kind;
        QString title;
        QVariant value;
    };

    [[nodiscard]] const Entry* row(int index) const;
    void open();
    void step(int by);
    void pick(int index);

    QList<Entry> m_entries;
    int m_current = -1;
};

} // namespace dropshade
