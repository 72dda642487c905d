// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/linux/LazyFeedFetcher.h"

#include "platform/linux/network/NetworkModule.h"

#include <QPluginLoader>
#include <QTimer>

namespace dropshade {

namespace {

/// A fetch without the means to make it.
class FailedRequest : public FeedRequest {
public:
    explicit FailedRequest(FeedFetcher::Completion completion)
        : m_completion(std::move(completion)) {
        m_timer.setSingleShot(true);
        m_timer.callOnTimeout([this] {
            const auto answer = std::exchange(m_completion, nullptr);
            answer(FeedFetcher::Failure::Unreachable);
        });
        m_timer.start(0);
    }

private:
    FeedFetcher::Completion m_completion;
    QTimer m_timer;
};

std::unique_ptr<FeedFetcher> fetcherOf(const QString& path) {
    // Never unloaded: Qt's network library keeps threads and tables of its own.
    QPluginLoader loader(path);
    auto* module = qobject_cast<NetworkModule*>(loader.instance());
    return module ? module->makeFeedFetcher() : nullptr;
}

} // namespace

LazyFeedFetcher::LazyFeedFetcher(std::function<QString()> module) : m_module(std::move(module)) {}

LazyFeedFetcher::~LazyFeedFetcher() = default;

std::unique_ptr<FeedRequest> LazyFeedFetcher::fetch(const QUrl& url, qint64 mostBytes,
                                                    Completion completion) {
    if (!m_fetcher)
        m_fetcher = fetcherOf(m_module());
    if (!m_fetcher)
        return std::make_unique<FailedRequest>(std::move(completion));
    return m_fetcher->fetch(url, mostBytes, std::move(completion));
}

} // namespace dropshade
