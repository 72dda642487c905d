// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "interchange/ColorList.h"
#include "palettes/Palette.h"

#include <exception>

namespace dropshade {

/// Why a colour list wasn't read or written.
class CLRCoderError : public std::exception {
public:
    enum class Case { loadFailed, writeFailed };

    explicit CLRCoderError(Case which) : m_case(which) {}

    [[nodiscard]] Case which() const { return m_case; }
    const char* what() const noexcept override;

    friend bool operator==(const CLRCoderError& a, const CLRCoderError& b) {
        return a.which() == b.which();
    }

private:
    Case m_case;
};

/// Palettes as colour lists, which are flat: a swatch goes out under the key "Scale / Label". A
/// list whose keys are mostly of that form comes in as scales again, any other as one scale
/// "Colors". Values come in as "#rrggbb", without alpha.
class CLRCoder {
public:
    /// The palette with new ids, named after the file and modified `now`. Throws `CLRCoderError`.
    [[nodiscard]] static Palette decode(const QString& path, ReferenceTime now);
    /// The palette of a list that was read already.
    [[nodiscard]] static Palette decode(const ColorList& list, ReferenceTime now);

    /// Keys that would occur twice are numbered. A scale without swatches leaves no trace. The file
    /// is written whole or, with a `CLRCoderError`, left as it was.
    static void write(const Palette& palette, const QString& path);
    /// The list that is written.
    [[nodiscard]] static ColorList encode(const Palette& palette);
};

} // namespace dropshade
