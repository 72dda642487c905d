// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/FeedFetcher.h"

namespace dropshade {

/// Loads the module that fetches at the first fetch. Where there is none, nothing is reachable.
class LazyFeedFetcher : public FeedFetcher {
public:
    /// `module` gives the path of the module and is asked when it is to be loaded.
    explicit LazyFeedFetcher(std::function<QString()> module);
    ~LazyFeedFetcher() override;

    [[nodiscard]] std::unique_ptr<FeedRequest> fetch(const QUrl& url, qint64 mostBytes,
                                                     Completion completion) override;

private:
    std::function<QString()> m_module;
    std::unique_ptr<FeedFetcher> m_fetcher;
};

} // namespace dropshade
