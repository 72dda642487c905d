// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CloudAccount.h"
#include "platform/linux/etcd/EtcdJson.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QObject>
#include <QUrl>

#include <functional>

namespace dropshade {

/// What became of a request to etcd.
struct EtcdReply {
    enum class Problem {
        None,
        Unreachable, ///< No answer, or none that can be trusted; another time perhaps.
        LoginNeeded, ///< The token has expired, or there is none.
        Refused,     ///< Wrong user or password, or no right to these keys.
        TooLarge,    ///< More than the server takes in one request.
        Full,        ///< The server has no room.
        Compacted,   ///< What was asked for lies too far back.
    };

    Problem problem = Problem::None;
    /// The problem for the user.
    QString words;
    QByteArray body;
};

/// That an answer is none of etcd's, for the user.
[[nodiscard]] QString strangeAnswerWords();

/// Requests to the JSON gateway of an etcd server or of a cluster of them: the account's address
/// may be several with commas between, of which another is taken where one doesn't answer. Logs in
/// when that is needed. Destroyed, it calls nobody back.
class EtcdClient : public QObject {
    Q_OBJECT

public:
    using Completion = std::function<void(const EtcdReply&)>;

    EtcdClient(const CloudAccount& account, int timeoutMilliseconds);

    void setPassword(const QString& password) { m_password = password; }

    /// Gets a token, where the account has a user.
    void logIn(const Completion& completion);
    /// Posts `body` and calls back once, later; with a new token if the last one has expired.
    void post(const char* path, const QByteArray& body, const Completion& completion);

    /// Opens a request whose answer never ends. The caller owns it.
    [[nodiscard]] std::unique_ptr<QNetworkReply> openStream(const char* path,
                                                            const QByteArray& body);
    /// What is wrong with an answer.
    [[nodiscard]] EtcdReply replyOf(QNetworkReply& answer) const;

    /// What is wrong with the account's address, for the user, if anything is.
    [[nodiscard]] QString addressTrouble() const;

private:
    void postOnce(const char* path, const QByteArray& body, const Completion& completion);
    [[nodiscard]] QNetworkRequest request(const char* path) const;
    [[nodiscard]] EtcdReply refusal(int status, const EtcdError& error) const;
    void takeNextServer();

    CloudAccount m_account;
    int m_timeout;
    QList<QUrl> m_servers;
    QString m_password;
    QByteArray m_token;
    QNetworkAccessManager m_manager;
    /// Qt opens six connections to a host at most, and a stream keeps one for ever.
    QNetworkAccessManager m_streams;
};

} // namespace dropshade
