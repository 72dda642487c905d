// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT

// A target of precompiled headers needs a source; it has nothing to say.
