// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QLocale>
#include <QTranslator>

namespace dropshade {

/// The catalogue that the program speaks by: the user's first language that there is one for, else
/// the English one, which words some texts for this platform. Only that one is loaded, and it is
/// read where it lies, in the program itself. `locale` is the user's.
[[nodiscard]] bool loadWords(QTranslator& words, const QLocale& locale = QLocale());

/// What Qt says by itself, in its file panels and names of keys, in the language that `words` has
/// been loaded in. False where the system has no such catalogue; Qt then speaks English.
[[nodiscard]] bool loadToolkitWords(QTranslator& toolkitWords, const QTranslator& words);

} // namespace dropshade
