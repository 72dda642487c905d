// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "palettes/PaletteSwatch.h"
#include "platform/UserDefaults.h"

#include <QObject>

#include <functional>
#include <optional>

namespace dropshade {

/// A swatch that is being made or changed: a colour, its text in the format of the settings, and a
/// name. A change of an existing swatch takes effect at once, and a cancel puts it back.
class SwatchEdit : public QObject {
    Q_OBJECT

public:
    using OnCommit = std::function<void(const PaletteSwatch&)>;

    /// A new swatch, black at first; `add` hands it to `onCommit`.
    SwatchEdit(const UserDefaults& defaults, OnCommit onCommit);
    /// A change of `swatch`; each edit goes to `onCommit`.
    SwatchEdit(const UserDefaults& defaults, const PaletteSwatch& swatch, OnCommit onCommit);
    ~SwatchEdit() override;

    const SRGBColor& color() const { return m_color; }
    const QString& valueText() const { return m_valueText; }
    const QString& label() const { return m_label; }
    /// The text means no colour. What was formatted here is never invalid, for most formats are
    /// not among those that can be read.
    bool isInvalid() const { return m_isInvalid; }
    [[nodiscard]] bool isNew() const { return !m_snapshot.has_value(); }

    // What the user does

    /// In the colour well: the text follows.
    void pickColor(const SRGBColor& color);
    void typeValue(const QString& text);
    void typeLabel(const QString& label);
    /// Adds the new swatch, also where the text is invalid: then with the last good colour.
    void add();
    /// Puts the former swatch back, with its very text; does nothing to a new one.
    void cancel();

    /// The swatch as it would be stored: its value is six hexadecimal digits, whatever was typed,
    /// and a blank name is none.
    [[nodiscard]] PaletteSwatch builtSwatch() const;

Q_SIGNALS:
    void colorDidChange();
    /// By another way than typing.
    void valueTextDidChange();
    void isInvalidDidChange();

private:
    [[nodiscard]] QString formattedColor() const;
    void setInvalid(bool isInvalid);
    void commitLive();

    const UserDefaults& m_defaults;
    OnCommit m_onCommit;
    std::optional<PaletteSwatch> m_snapshot;
    SRGBColor m_color;
    QString m_valueText;
    QString m_label;
    bool m_isInvalid = false;
    bool m_isCancelling = false;
};

} // namespace dropshade
