// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/FeedFetcher.h"

#include <QtPlugin>

namespace dropshade {

/// What needs Qt's network library, in a module of its own: linked into the program it would take
/// 1.4 MB and 3 ms of every start, also of those that never go online.
class NetworkModule {
public:
    virtual ~NetworkModule() = default;

    [[nodiscard]] virtual std::unique_ptr<FeedFetcher> makeFeedFetcher() = 0;
};

} // namespace dropshade

#define DROPSHADE_NETWORK_MODULE "org.dropshade.NetworkModule/1"
Q_DECLARE_INTERFACE(dropshade::NetworkModule, DROPSHADE_NETWORK_MODULE)
