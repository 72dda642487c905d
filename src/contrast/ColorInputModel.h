// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "app/ColorCopier.h"
#include "contrast/ContrastModel.h"

#include <QObject>
#include <QString>

namespace dropshade {

/// The text field of one of the two colours. While the user types, a text that is a colour becomes
/// the colour at once; one that is none is not held against the user before they leave it.
class ColorInputModel : public QObject {
    Q_OBJECT

public:
    using SwatchTarget = ContrastModel::SwatchTarget;

    /// All must outlive this object.
    ColorInputModel(SwatchTarget target, ContrastModel& model, const ColorCopier& copier);

    SwatchTarget target() const { return m_target; }
    const QString& text() const { return m_text; }
    /// The text was left though it is no colour; the model keeps its last good one.
    bool invalid() const { return m_invalid; }
    bool focused() const { return m_focused; }

    /// The user edits the text.
    void edit(const QString& text);
    /// The user presses Enter.
    void submit();
    void setFocused(bool focused);

Q_SIGNALS:
    void textDidChange();
    void invalidDidChange();

private:
    void refresh();
    void setInvalid(bool invalid);

    SwatchTarget m_target;
    ContrastModel& m_model;
    const ColorCopier& m_copier;
    QString m_text;
    bool m_invalid = false;
    bool m_focused = false;
    SRGBColor m_shown;
};

} // namespace dropshade
