// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <stdexcept>

namespace dropshade {

/// Text that is no JSON or not of the expected shape, or a value that JSON can't hold. Whoever
/// decodes or encodes a whole document catches it; it goes no further.
class JsonError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

} // namespace dropshade
