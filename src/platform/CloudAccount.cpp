// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/CloudAccount.h"

namespace dropshade {
namespace {

const QString transportKey = QStringLiteral("syncTransport");
const QString folderKey = QStringLiteral("syncFolder");
const QString addressKey = QStringLiteral("syncEtcdAddress");
const QString userKey = QStringLiteral("syncEtcdUser");
const QString prefixKey = QStringLiteral("syncEtcdPrefix");
const QString authorityKey = QStringLiteral("syncEtcdAuthority");
const QString folderName = QStringLiteral("folder");
const QString etcdName = QStringLiteral("etcd");

QString text(const UserDefaults& defaults, const QString& key) {
    return defaults.read<QString>(key).value_or(QString());
}

void write(UserDefaults& defaults, const QString& key, const QString& value) {
    if (text(defaults, key) != value)
        defaults.setValue(key, value);
}

} // namespace

CloudAccount CloudAccount::read(const UserDefaults& defaults) {
    CloudAccount account;
    account.kind = text(defaults, transportKey) == etcdName ? Kind::Etcd : Kind::Folder;
    account.folder = text(defaults, folderKey);
    account.address = text(defaults, addressKey);
    account.user = text(defaults, userKey);
    account.prefix = text(defaults, prefixKey);
    account.authority = text(defaults, authorityKey);
    return account;
}

void CloudAccount::write(UserDefaults& defaults) const {
    dropshade::write(defaults, transportKey, kind == Kind::Etcd ? etcdName : folderName);
    dropshade::write(defaults, folderKey, folder);
    dropshade::write(defaults, addressKey, address);
    dropshade::write(defaults, userKey, user);
    dropshade::write(defaults, prefixKey, prefix);
    dropshade::write(defaults, authorityKey, authority);
}

} // namespace dropshade
