// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace dropshade {

/// Names a parameter row after its `name`: the last argument of INSTANTIATE_TEST_SUITE_P.
inline constexpr auto rowName = [](const auto& row) { return std::string(row.param.name); };

} // namespace dropshade
