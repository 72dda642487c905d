// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/linux/network/WebFeedFetcher.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>

#include <utility>

namespace dropshade {

namespace {

constexpr int mostRedirects = 5;

QNetworkRequest requestFor(const QUrl& url) {
    QNetworkRequest request(url);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                         QNetworkRequest::NoLessSafeRedirectPolicy);
    request.setMaximumRedirectsAllowed(mostRedirects);
    request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::AuthenticationReuseAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CacheLoadControlAttribute,
                         QNetworkRequest::AlwaysNetwork);
    // The same for all users; left alone, Qt would tell their language.
    request.setHeader(QNetworkRequest::UserAgentHeader, QStringLiteral("Dropshade"));
    request.setRawHeader("Accept-Language", "en");
    // Compressed, a small document could become a huge one.
    request.setRawHeader("Accept-Encoding", "identity");
    return request;
}

class WebFeedRequest : public QObject, public FeedRequest {
public:
    WebFeedRequest(const QUrl& url, qint64 mostBytes, FeedFetcher::Completion completion)
        : m_mostBytes(mostBytes), m_completion(std::move(completion)) {
        m_reply = m_manager.get(requestFor(url));
        // So much may wait here unread; beyond it the server has to wait.
        m_reply->setReadBufferSize(mostBytes + 1);
        connect(m_reply, &QNetworkReply::readyRead, this, &WebFeedRequest::read);
        // Queued, so that the completion may destroy the reply and not only mark it for later.
        connect(m_reply, &QNetworkReply::finished, this, &WebFeedRequest::finish,
                Qt::QueuedConnection);
    }

private:
    void read() {
        if (m_isTooLong)
            return;
        m_document += m_reply->read(m_mostBytes + 1 - m_document.size());
        m_isTooLong = m_document.size() > m_mostBytes;
        if (m_isTooLong)
            m_reply->abort();
    }

    void finish() {
        if (m_reply->error() == QNetworkReply::NoError)
            read();
        const auto completion = std::exchange(m_completion, nullptr);
        if (!m_isTooLong && m_reply->error() == QNetworkReply::NoError)
            completion(m_document);
        else
            completion(m_isTooLong ? FeedFetcher::Failure::TooLong : failureOf(*m_reply));
    }

    static FeedFetcher::Failure failureOf(const QNetworkReply& reply) {
        switch (reply.error()) {
        case QNetworkReply::TooManyRedirectsError:
        case QNetworkReply::InsecureRedirectError:
            return FeedFetcher::Failure::UnsafeRedirect;
        default:
            break;
        }
        const bool hasStatus =
            reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt() >= 400;
        return hasStatus ? FeedFetcher::Failure::Refused : FeedFetcher::Failure::Unreachable;
    }

    qint64 m_mostBytes;
    FeedFetcher::Completion m_completion;
    QByteArray m_document;
    bool m_isTooLong = false;
    QNetworkAccessManager m_manager;
    QNetworkReply* m_reply = nullptr; ///< of the manager
};

} // namespace

std::unique_ptr<FeedRequest> WebFeedFetcher::fetch(const QUrl& url, qint64 mostBytes,
                                                   Completion completion) {
    return std::make_unique<WebFeedRequest>(url, mostBytes, std::move(completion));
}

} // namespace dropshade
