// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/linux/etcd/EtcdAccounts.h"
#include "platform/linux/etcd/EtcdModule.h"
#include "platform/linux/etcd/EtcdTransport.h"
#include "platform/linux/etcd/PasswordKeeper.h"

#include <QObject>

namespace dropshade {

class EtcdPlugin : public QObject, public EtcdModule {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID DROPSHADE_ETCD_MODULE)
    Q_INTERFACES(dropshade::EtcdModule)

public:
    [[nodiscard]] std::unique_ptr<ReplicaTransport>
    makeTransport(const CloudAccount& account) override {
        return std::make_unique<EtcdTransport>(account, keptPassword, EtcdTransport::Timing());
    }

    [[nodiscard]] std::unique_ptr<CloudAccounts> makeAccounts() override {
        return std::make_unique<EtcdAccounts>();
    }
};

} // namespace dropshade

#include "EtcdPlugin.moc"
