// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/FeedFetcher.h"

namespace dropshade {

/// Fetches over HTTP and HTTPS with Qt's network library. Each request has a connection of its own,
/// of which nothing stays behind.
class WebFeedFetcher : public FeedFetcher {
public:
    [[nodiscard]] std::unique_ptr<FeedRequest> fetch(const QUrl& url, qint64 mostBytes,
                                                     Completion completion) override;
};

} // namespace dropshade
