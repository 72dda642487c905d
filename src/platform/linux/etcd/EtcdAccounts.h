// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CloudAccount.h"

#include <QByteArray>

namespace dropshade {

/// What the keys of an account begin with on the server.
[[nodiscard]] QByteArray etcdPrefix(const CloudAccount& account);

/// Tries etcd servers, and keeps their passwords.
class EtcdAccounts : public CloudAccounts {
public:
    [[nodiscard]] std::unique_ptr<CloudCheck>
    check(const CloudAccount& account, const QString& password, Answer answer) override;
    [[nodiscard]] std::unique_ptr<CloudCheck>
    keepPassword(const CloudAccount& account, const QString& password, Answer answer) override;
};

} // namespace dropshade
