// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/linux/etcd/EtcdClient.h"

#include <QHostAddress>
#include <QSslCertificate>
#include <QSslConfiguration>

#include <algorithm>

namespace dropshade {
namespace {

using Problem = EtcdReply::Problem;

// Codes of gRPC.
constexpr int invalidArgument = 3;
constexpr int permissionDenied = 7;
constexpr int resourceExhausted = 8;
constexpr int outOfRange = 11;
constexpr int unauthenticated = 16;

/// No answer that is asked for in one piece is longer.
constexpr qint64 mostAnswerBytes = 64 * 1024 * 1024;

bool isLocal(const QString& host) {
    return host == QLatin1String("localhost") || QHostAddress(host).isLoopback();
}

} // namespace

QString strangeAnswerWords() {
    //: Something else than etcd, a program that keeps shared values, is at the address.
    return EtcdClient::tr("The server doesn't answer as etcd does.");
}

EtcdClient::EtcdClient(const CloudAccount& account, int timeoutMilliseconds)
    : m_account(account), m_timeout(timeoutMilliseconds) {
    for (const QString& address : account.address.split(QLatin1Char(','), Qt::SkipEmptyParts))
        m_servers.append(QUrl(address.trimmed(), QUrl::StrictMode));
    for (QNetworkAccessManager* manager : {&m_manager, &m_streams})
        manager->setRedirectPolicy(QNetworkRequest::ManualRedirectPolicy);
}

QString EtcdClient::addressTrouble() const {
    const auto isGood = [](const QUrl& url) {
        return url.isValid() && !url.host().isEmpty() &&
               (url.scheme() == QLatin1String("https") || url.scheme() == QLatin1String("http"));
    };
    if (m_servers.isEmpty() || !std::all_of(m_servers.cbegin(), m_servers.cend(), isGood))
        //: %1 is what the user entered.
        return tr("“%1” isn't the address of a server. One looks like https://host:2379.")
            .arg(m_account.address);
    const auto isSafe = [](const QUrl& url) {
        return url.scheme() == QLatin1String("https") || isLocal(url.host());
    };
    if (!m_account.user.isEmpty() && !std::all_of(m_servers.cbegin(), m_servers.cend(), isSafe))
        //: Shown in the settings of sync, for an address that begins with http.
        return tr("The server's address must begin with https, or others could read the password "
                  "on its way.");
    return {};
}

QNetworkRequest EtcdClient::request(const char* path) const {
    QUrl url = m_servers.value(0);
    url.setPath(QLatin1String(path));
    QNetworkRequest request(url);
    // With HTTP/2 Qt tells less of what went wrong.
    request.setAttribute(QNetworkRequest::Http2AllowedAttribute, false);
    request.setHeader(QNetworkRequest::ContentTypeHeader, QByteArrayLiteral("application/json"));
    request.setHeader(QNetworkRequest::UserAgentHeader, QByteArrayLiteral("Dropshade"));
    request.setRawHeader("Accept-Encoding", "identity");
    if (!m_token.isEmpty())
        request.setRawHeader("Authorization", m_token);
    if (!m_account.authority.isEmpty()) {
        QSslConfiguration tls = QSslConfiguration::defaultConfiguration();
        tls.setCaCertificates(QSslCertificate::fromPath(m_account.authority));
        request.setSslConfiguration(tls);
    }
    return request;
}

std::unique_ptr<QNetworkReply> EtcdClient::openStream(const char* path, const QByteArray& body) {
    return std::unique_ptr<QNetworkReply>(m_streams.post(request(path), body));
}

void EtcdClient::logIn(const Completion& completion) {
    m_token.clear();
    if (m_account.user.isEmpty()) {
        QMetaObject::invokeMethod(
            this, [completion] { completion(EtcdReply()); }, Qt::QueuedConnection);
        return;
    }
    postOnce("/v3/auth/authenticate", etcd::loginRequest(m_account.user, m_password),
             [this, completion](EtcdReply reply) {
                 const auto token = etcd::tokenIn(reply.body);
                 if (reply.problem == Problem::None && !token)
                     reply = {Problem::Unreachable, strangeAnswerWords(), {}};
                 m_token = token.value_or(QByteArray());
                 completion(reply);
             });
}

void EtcdClient::post(const char* path, const QByteArray& body, const Completion& completion) {
    postOnce(path, body, [=, this](const EtcdReply& reply) {
        if (reply.problem != Problem::LoginNeeded || m_account.user.isEmpty()) {
            completion(reply);
            return;
        }
        logIn([=, this](const EtcdReply& login) {
            if (login.problem == Problem::None)
                postOnce(path, body, completion);
            else
                completion(login);
        });
    });
}

void EtcdClient::postOnce(const char* path, const QByteArray& body, const Completion& completion) {
    QNetworkRequest posted = request(path);
    posted.setTransferTimeout(m_timeout);
    QNetworkReply* answer = m_manager.post(posted, body);
    connect(answer, &QNetworkReply::downloadProgress, answer, [answer](qint64 received, qint64) {
        if (received > mostAnswerBytes)
            answer->abort();
    });
    connect(answer, &QNetworkReply::finished, this, [this, answer, completion] {
        answer->deleteLater();
        const EtcdReply reply = replyOf(*answer);
        if (reply.problem == Problem::Unreachable)
            takeNextServer();
        completion(reply);
    });
}

EtcdReply EtcdClient::replyOf(QNetworkReply& answer) const {
    EtcdReply reply;
    const int status = answer.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    const bool isWhole = answer.error() == QNetworkReply::NoError || status >= 400;
    if (status != 0 && isWhole)
        reply.body = answer.readAll();
    if (status == 200 && answer.error() == QNetworkReply::NoError)
        return reply;
    if (status >= 400)
        return refusal(status, etcd::errorIn(reply.body).value_or(EtcdError()));
    reply.problem = Problem::Unreachable;
    if (answer.error() == QNetworkReply::SslHandshakeFailedError)
        //: %1 is the reason.
        reply.words = tr("The server's certificate isn't trusted: %1").arg(answer.errorString());
    else if (answer.error() == QNetworkReply::OperationCanceledError)
        //: Nothing came from the server of sync in time.
        reply.words = tr("The server doesn't answer.");
    else
        //: %1 is the reason.
        reply.words = tr("The server can't be reached: %1").arg(answer.errorString());
    return reply;
}

EtcdReply EtcdClient::refusal(int status, const EtcdError& error) const {
    const auto says = [&error](const char* words) {
        return error.message.contains(QLatin1String(words));
    };
    if (says("too large") || says("larger than max"))
        //: The server of sync has a limit for each value.
        return {Problem::TooLarge, tr("The value is too large for the server."), {}};
    if (error.code == resourceExhausted)
        //: The server of sync has a limit for all values.
        return {Problem::Full, tr("The server has no room left."), {}};
    if (error.code == outOfRange && says("compacted"))
        return {Problem::Compacted, {}, {}};
    if (error.code == invalidArgument && says("user name is empty"))
        //: The account of sync has no user, or no password.
        return {Problem::Refused, tr("The server asks for a user name and a password."), {}};
    if (says("authentication failed") || says("authentication is not enabled"))
        //: Of the account of sync.
        return {Problem::Refused, tr("The server doesn't accept this user name and password."), {}};
    if (status == 401 || error.code == unauthenticated)
        //: The account of sync has no user, or no password.
        return {Problem::LoginNeeded, tr("The server asks for a user name and a password."), {}};
    if (status == 403 || error.code == permissionDenied)
        //: Of the account of sync; the keys are those that its values lie under.
        return {Problem::Refused, tr("This user may not read or write these keys."), {}};
    const QString reason =
        error.message.isEmpty() ? QStringLiteral("HTTP %1").arg(status) : error.message;
    //: %1 is the reason as the server gives it.
    return {Problem::Unreachable, tr("The server can't serve: %1").arg(reason), {}};
}

void EtcdClient::takeNextServer() {
    if (m_servers.size() > 1)
        m_servers.append(m_servers.takeFirst());
}

} // namespace dropshade
