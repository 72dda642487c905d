// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/linux/etcd/EtcdAccounts.h"

#include "platform/linux/etcd/EtcdClient.h"
#include "platform/linux/etcd/PasswordKeeper.h"
#include "platform/linux/replica/BackgroundCheck.h"

#include <limits>
#include <utility>

namespace dropshade {
namespace {

constexpr int timeoutMilliseconds = 8000;

/// A write that is never made, since no key has such a revision, but that the server permits or
/// doesn't like any other.
QByteArray idleWrite(const CloudAccount& account) {
    constexpr qint64 noRevision = std::numeric_limits<qint64>::max();
    return etcd::transactionRequest({{etcdPrefix(account) + "check", QByteArray(), noRevision}});
}

class EtcdCheck : public CloudCheck {
public:
    EtcdCheck(const CloudAccount& account, const QString& password, CloudAccounts::Answer answer)
        : m_client(account, timeoutMilliseconds), m_answer(std::move(answer)) {
        const QString trouble = m_client.addressTrouble();
        if (!trouble.isEmpty()) {
            QMetaObject::invokeMethod(
                &m_client, [this, trouble] { end(trouble); }, Qt::QueuedConnection);
            return;
        }
        if (account.user.isEmpty() || !password.isEmpty()) {
            tryWith(account, password);
            return;
        }
        m_lookup = std::make_unique<BackgroundCheck>(
            [account] { return keptPassword(account); },
            [this, account](const QString& kept) { tryWith(account, kept); });
    }

private:
    void tryWith(const CloudAccount& account, const QString& password) {
        m_client.setPassword(password);
        m_client.logIn([this, write = idleWrite(account)](const EtcdReply& login) {
            if (login.problem != EtcdReply::Problem::None)
                end(login.words);
            else
                m_client.post("/v3/kv/txn", write,
                              [this](const EtcdReply& reply) { end(wordsFor(reply)); });
        });
    }

    static QString wordsFor(const EtcdReply& reply) {
        if (reply.problem != EtcdReply::Problem::None)
            return reply.words;
        const auto transaction = etcd::transactionIn(reply.body);
        // Every store of etcd has begun at a revision of 1.
        return transaction && transaction->revision > 0 ? QString() : strangeAnswerWords();
    }

    void end(const QString& words) {
        const auto answer = std::exchange(m_answer, nullptr);
        answer(words);
    }

    EtcdClient m_client;
    CloudAccounts::Answer m_answer;
    std::unique_ptr<CloudCheck> m_lookup;
};

} // namespace

QByteArray etcdPrefix(const CloudAccount& account) {
    const QString& name = account.prefix.isEmpty() ? account.user : account.prefix;
    const QString prefix = name.isEmpty() ? QStringLiteral("default") : name;
    return "dropshade/" + prefix.toUtf8().toPercentEncoding() + '/';
}

std::unique_ptr<CloudCheck> EtcdAccounts::check(const CloudAccount& account,
                                                const QString& password, Answer answer) {
    return std::make_unique<EtcdCheck>(account, password, std::move(answer));
}

std::unique_ptr<CloudCheck> EtcdAccounts::keepPassword(const CloudAccount& account,
                                                       const QString& password, Answer answer) {
    return std::make_unique<BackgroundCheck>(
        [account, password] { return dropshade::keepPassword(account, password); },
        std::move(answer));
}

} // namespace dropshade
