// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/linux/QtPasteboard.h"

namespace dropshade {

/// A compositor takes a clipboard only from the program that has the keyboard, which the owner of
/// a status item seldom is. The program `wl-copy` knows the ways round that, and keeps the text for
/// others when this program has ended; where it isn't installed, Qt's way works at least from a
/// window with focus.
class WaylandPasteboard : public QtPasteboard {
public:
    void setText(const QString& text) override;
};

} // namespace dropshade
