// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "color/SRGBColor.h"

#include <QExplicitlySharedDataPointer>
#include <QSharedData>
#include <QString>
#include <QUuid>

#include <optional>

namespace dropshade {

/// One colour of a scale. It never changes: an edit replaces the whole value, under the same id. A
/// copy costs a pointer, and all that drawing needs is computed when the value is built.
///
/// Two swatches are equal when, and only when, their ids are.
class PaletteSwatch {
public:
    /// A swatch with a new random id.
    explicit PaletteSwatch(QString value, std::optional<QString> label = std::nullopt);
    PaletteSwatch(const QUuid& id, QString value, std::optional<QString> label = std::nullopt);

    const QUuid& id() const { return d->id; }
    /// The colour's text exactly as it was typed, imported or built in.
    const QString& value() const { return d->value; }
    /// The swatch's name; an empty one isn't an absent one.
    const std::optional<QString>& label() const { return d->label; }

    /// What `value` means, or opaque black where it means no colour.
    const SRGBColor& color() const { return d->color; }
    /// Whether text over this swatch is light: white has the strictly higher WCAG contrast with
    /// it. Alpha plays no part.
    bool prefersLightText() const { return d->prefersLightText; }
    /// The opaque colour of the favourite's marker over this swatch: plain white or black over a
    /// near-grey, else a pale wash or a deep shade of the swatch's own hue.
    const SRGBColor& pinTint() const { return d->pinTint; }

    /// The same value and label under a new id.
    [[nodiscard]] PaletteSwatch freshCopy() const;

    friend bool operator==(const PaletteSwatch& a, const PaletteSwatch& b) {
        return a.id() == b.id();
    }

private:
    struct Data : QSharedData {
        QUuid id;
        QString value;
        std::optional<QString> label;
        SRGBColor color;
        SRGBColor pinTint;
        bool prefersLightText = false;
    };

    QExplicitlySharedDataPointer<const Data> d;
};

} // namespace dropshade

Q_DECLARE_TYPEINFO(dropshade::PaletteSwatch, Q_RELOCATABLE_TYPE);
