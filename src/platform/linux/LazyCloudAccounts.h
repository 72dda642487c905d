// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CloudAccount.h"
#include "platform/linux/etcd/EtcdModule.h"

namespace dropshade {

/// The module at this path, loaded at the first call and never unloaded; null where there is none.
[[nodiscard]] EtcdModule* loadEtcdModule(const QString& path);

/// The folder of an account: its own, or that of the program where it names none.
[[nodiscard]] QString syncFolder(const CloudAccount& account);

/// Looks at folders itself, away from the main thread, and loads the module for a server.
class LazyCloudAccounts : public CloudAccounts {
public:
    /// `module` gives the path of the module and is asked when it is to be loaded.
    explicit LazyCloudAccounts(std::function<QString()> module);
    ~LazyCloudAccounts() override;

    [[nodiscard]] std::unique_ptr<CloudCheck>
    check(const CloudAccount& account, const QString& password, Answer answer) override;
    [[nodiscard]] std::unique_ptr<CloudCheck>
    keepPassword(const CloudAccount& account, const QString& password, Answer answer) override;

private:
    [[nodiscard]] CloudAccounts* serverAccounts();

    std::function<QString()> m_module;
    std::unique_ptr<CloudAccounts> m_serverAccounts;
};

} // namespace dropshade
