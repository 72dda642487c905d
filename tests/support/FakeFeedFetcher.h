// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/FeedFetcher.h"

#include <utility>

namespace dropshade {

/// A web on which the test answers.
class FakeFeedFetcher : public FeedFetcher {
public:
    [[nodiscard]] std::unique_ptr<FeedRequest> fetch(const QUrl& url, qint64 mostBytes,
                                                     Completion completion) override {
        ++m_fetchCount;
        m_url = url;
        m_mostBytes = mostBytes;
        auto shared = std::make_shared<Completion>(std::move(completion));
        m_waiting = shared;
        return std::make_unique<Request>(std::move(shared));
    }

    /// True while somebody waits for an answer.
    [[nodiscard]] bool isWaiting() const { return !m_waiting.expired(); }

    /// Answers the last fetch, unless it has been given up.
    void answer(const QByteArray& document) { complete(document); }
    void fail(Failure failure) { complete(failure); }

    [[nodiscard]] int fetchCount() const { return m_fetchCount; }
    [[nodiscard]] QUrl url() const { return m_url; }
    [[nodiscard]] qint64 mostBytes() const { return m_mostBytes; }

private:
    class Request : public FeedRequest {
    public:
        explicit Request(std::shared_ptr<Completion> completion)
            : m_completion(std::move(completion)) {}

    private:
        std::shared_ptr<Completion> m_completion;
    };

    void complete(std::variant<QByteArray, Failure> result) {
        if (const auto shared = std::exchange(m_waiting, {}).lock())
            std::exchange(*shared, nullptr)(std::move(result));
    }

    std::weak_ptr<Completion> m_waiting;
    int m_fetchCount = 0;
    QUrl m_url;
    qint64 m_mostBytes = 0;
};

} // namespace dropshade
