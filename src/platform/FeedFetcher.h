// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QUrl>

#include <functional>
#include <memory>
#include <variant>

namespace dropshade {

/// A fetch under way; to destroy it is to give it up.
class FeedRequest {
public:
    virtual ~FeedRequest() = default;
};

/// Reads a document from a web server.
class FeedFetcher {
public:
    enum class Failure {
        Unreachable,    ///< No answer, or one that broke off, or no trust in the server.
        Refused,        ///< The server has no document to give.
        TooLong,        ///< The document goes on beyond the limit.
        UnsafeRedirect, ///< The server sent us to a place that is less safe, or around in circles.
    };
    using Completion = std::function<void(std::variant<QByteArray, Failure>)>;

    virtual ~FeedFetcher() = default;

    /// Starts to fetch at most `mostBytes` from `url` and returns. `completion` is called once, on
    /// the main thread and never within this call, unless the request is destroyed first, which it
    /// may itself do. There is no time-out. From an HTTPS address no answer is taken over less.
    /// Nothing is sent that tells one user from another, and nothing is kept.
    [[nodiscard]] virtual std::unique_ptr<FeedRequest> fetch(const QUrl& url, qint64 mostBytes,
                                                             Completion completion) = 0;
};

} // namespace dropshade
