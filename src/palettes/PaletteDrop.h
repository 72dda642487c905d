// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "palettes/PaletteCommands.h"

#include <QByteArray>
#include <QString>

#include <optional>

class QMimeData;

namespace dropshade {

/// What a drag from another program would do over the palettes window.
enum class PaletteDropKind { image, paletteFile };

/// What the overlay shows for it: "Drop image to create a new palette".
[[nodiscard]] QString dropPrompt(PaletteDropKind kind);

/// What a drag brings, by the first thing in it that counts. Reads no data but the list of files.
class PaletteDrop {
public:
    /// Where the drag has nothing that could be a palette or an image.
    [[nodiscard]] static std::optional<PaletteDropKind> kindOf(const QMimeData& data);

    /// Hands what was dropped to `commands`. False where nothing in it applies; what can't be read
    /// is dropped without a word.
    static bool perform(const QMimeData& data, PaletteCommands& commands);
};

} // namespace dropshade
