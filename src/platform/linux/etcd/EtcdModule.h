// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CloudAccount.h"
#include "platform/linux/replica/ReplicaTransport.h"

#include <QtPlugin>

namespace dropshade {

/// What needs Qt's network library and the desktop's secret service, for those who sync through a
/// server: in a module of its own, so that nobody else pays for it.
class EtcdModule {
public:
    virtual ~EtcdModule() = default;

    [[nodiscard]] virtual std::unique_ptr<ReplicaTransport>
    makeTransport(const CloudAccount& account) = 0;
    /// For accounts of a server alone.
    [[nodiscard]] virtual std::unique_ptr<CloudAccounts> makeAccounts() = 0;
};

} // namespace dropshade

#define DROPSHADE_ETCD_MODULE "org.dropshade.EtcdModule/1"
Q_DECLARE_INTERFACE(dropshade::EtcdModule, DROPSHADE_ETCD_MODULE)
