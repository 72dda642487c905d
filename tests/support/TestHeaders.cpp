// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT

// The target of the precompiled headers needs a source; it has nothing to say.
