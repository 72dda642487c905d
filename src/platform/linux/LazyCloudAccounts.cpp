// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/linux/LazyCloudAccounts.h"

#include "platform/linux/FolderWorker.h"
#include "platform/linux/ReplicatedKeyValueStore.h"
#include "platform/linux/replica/BackgroundCheck.h"

#include <QPluginLoader>

namespace dropshade {

EtcdModule* loadEtcdModule(const QString& path) {
    // Never unloaded: Qt's network library keeps threads and tables of its own.
    QPluginLoader loader(path);
    return qobject_cast<EtcdModule*>(loader.instance());
}

QString syncFolder(const CloudAccount& account) {
    return account.folder.isEmpty()
               ? ReplicatedKeyValueStore::defaultFolder() + QStringLiteral("/folder")
               : account.folder;
}

LazyCloudAccounts::LazyCloudAccounts(std::function<QString()> module)
    : m_module(std::move(module)) {}

LazyCloudAccounts::~LazyCloudAccounts() = default;

CloudAccounts* LazyCloudAccounts::serverAccounts() {
    EtcdModule* module = m_serverAccounts ? nullptr : loadEtcdModule(m_module());
    if (module)
        m_serverAccounts = module->makeAccounts();
    return m_serverAccounts.get();
}

std::unique_ptr<CloudCheck> LazyCloudAccounts::check(const CloudAccount& account,
                                                     const QString& password, Answer answer) {
    if (account.kind == CloudAccount::Kind::Folder)
        return std::make_unique<BackgroundCheck>(
            [folder = syncFolder(account)] { return FolderWorker::check(folder); },
            std::move(answer));
    if (CloudAccounts* accounts = serverAccounts())
        return accounts->check(account, password, std::move(answer));
    return std::make_unique<BackgroundCheck>([] { return missingPartWords(); }, std::move(answer));
}

std::unique_ptr<CloudCheck> LazyCloudAccounts::keepPassword(const CloudAccount& account,
                                                            const QString& password,
                                                            Answer answer) {
    if (CloudAccounts* accounts = serverAccounts())
        return accounts->keepPassword(account, password, std::move(answer));
    return std::make_unique<BackgroundCheck>([] { return missingPartWords(); }, std::move(answer));
}

} // namespace dropshade
