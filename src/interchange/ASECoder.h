// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "palettes/Palette.h"

#include <QByteArray>

#include <exception>

namespace dropshade {

/// Why bytes are no swatch-exchange file.
class ASECoderError : public std::exception {
public:
    enum class Case {
        /// A colour in a model that nobody defined.
        unknownColorModel,
        notAnASEFile,
        /// The file ends inside what it announces.
        truncated,
    };

    explicit ASECoderError(Case which, const QString& model = QString())
        : m_case(which), m_model(model) {}

    [[nodiscard]] Case which() const { return m_case; }
    /// The unknown model as the file spells it, without blanks; empty for the other cases.
    [[nodiscard]] const QString& model() const { return m_model; }
    const char* what() const noexcept override;

private:
    Case m_case;
    QString m_model;
};

/// Adobe Swatch Exchange. A group is a scale and a colour is a swatch, whose value is the colour as
/// "#rrggbb" and whose label is the colour's name. The format holds neither the palette's name nor
/// alpha.
///
/// The reader takes what many programs write, the writer keeps to one narrow form, so a palette
/// that goes out and comes back differs: what had no label is labelled with its value.
class ASECoder {
public:
    /// The palette with new ids, named "Imported Palette" and modified `now`. Colours outside
    /// groups come first, in a scale "Colors". Names lose control and bidirectional characters,
    /// white space at their ends and all beyond 200 characters. Throws `ASECoderError`.
    ///
    /// Takes time and memory in proportion to the bytes: in a file whose blocks overlap, which no
    /// program writes, names are cut to a few characters once they add up to more than the file.
    [[nodiscard]] static Palette decode(const QByteArray& data, ReferenceTime now);

    /// Whether the format has room for every name: 65,534 UTF-16 units each.
    [[nodiscard]] static bool fits(const Palette& palette);

    /// RGB colours in groups, nothing else. A swatch without a label is named by its value. A
    /// palette that doesn't fit ends the program.
    [[nodiscard]] static QByteArray encode(const Palette& palette);
};

} // namespace dropshade
