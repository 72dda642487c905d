// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CloudAccount.h"

namespace dropshade {

/// Accounts whose answers the test gives.
class FakeCloudAccounts : public CloudAccounts {
public:
    std::unique_ptr<CloudCheck> check(const CloudAccount& account, const QString& password,
                                      Answer answer) override {
        checkedAccount = account;
        checkedPassword = password;
        answerCheck = std::move(answer);
        return std::make_unique<CloudCheck>();
    }

    std::unique_ptr<CloudCheck> keepPassword(const CloudAccount& account, const QString& password,
                                             Answer answer) override {
        keptAccount = account;
        keptPassword = password;
        answerKeeping = std::move(answer);
        return std::make_unique<CloudCheck>();
    }

    CloudAccount checkedAccount;
    QString checkedPassword;
    Answer answerCheck;
    CloudAccount keptAccount;
    QString keptPassword;
    Answer answerKeeping;
};

} // namespace dropshade
