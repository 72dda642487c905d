// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/linux/CloudFactory.h"

#include "platform/linux/CompanionFiles.h"
#include "platform/linux/FolderTransport.h"
#include "platform/linux/LazyCloudAccounts.h"
#include "platform/linux/ReplicatedKeyValueStore.h"

#include <QCryptographicHash>

namespace dropshade {
namespace {

QString modulePath() {
    return companionFile(QStringLiteral("dropshade-etcd.so"));
}

std::unique_ptr<ReplicaTransport> makeTransport(const CloudAccount& account) {
    if (account.kind == CloudAccount::Kind::Folder)
        return std::make_unique<FolderTransport>(syncFolder(account));
    EtcdModule* module = loadEtcdModule(modulePath());
    return module ? module->makeTransport(account) : nullptr;
}

/// What makes the place of an account another one.
QString identity(const CloudAccount& account) {
    return account.kind == CloudAccount::Kind::Folder
               ? syncFolder(account)
               : QStringList{account.address, account.user, account.prefix}.join(QChar(u'\n'));
}

QString replicaPath(const CloudAccount& account) {
    const QByteArray digest =
        QCryptographicHash::hash(identity(account).toUtf8(), QCryptographicHash::Sha1).toHex();
    return ReplicatedKeyValueStore::defaultFolder() +
           QStringLiteral("/replica-%1.sqlite").arg(QLatin1String(digest.left(12)));
}

} // namespace

std::unique_ptr<CloudKeyValueStore> makeCloudStore(const UserDefaults& defaults,
                                                   const Scheduler& scheduler) {
    return std::make_unique<ReplicatedKeyValueStore>(
        defaults, scheduler, ReplicatedKeyValueStore::Means{makeTransport, replicaPath});
}

std::unique_ptr<CloudAccounts> makeCloudAccounts() {
    return std::make_unique<LazyCloudAccounts>(modulePath);
}

} // namespace dropshade
