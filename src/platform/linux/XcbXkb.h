// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

// The header of xcb's XKB extension, which is C and names a field by a word that C++ keeps.
#define explicit explicit_
#include <xcb/xkb.h>
#undef explicit
