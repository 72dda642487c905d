// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>

namespace dropshade {

enum class PaletteExportFormat { ase, clr, json, txt, png, pdf, html, css };

/// Without a dot.
[[nodiscard]] QString fileExtension(PaletteExportFormat format);

/// The format's name with its extension, for the user.
[[nodiscard]] QString menuTitle(PaletteExportFormat format);

/// All of them, in the order of their names.
[[nodiscard]] QList<PaletteExportFormat> exportMenuOrder();

} // namespace dropshade
