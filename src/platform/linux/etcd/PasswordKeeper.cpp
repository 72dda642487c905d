// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/linux/etcd/PasswordKeeper.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStandardPaths>

#include <libsecret/secret.h>

namespace dropshade {
namespace {

const SecretSchema* schema() {
    static const SecretSchema* const made = secret_schema_new(
        "org.dropshade.Sync", SECRET_SCHEMA_NONE, "server", SECRET_SCHEMA_ATTRIBUTE_STRING, "user",
        SECRET_SCHEMA_ATTRIBUTE_STRING, nullptr);
    return made;
}

/// True where the call succeeded; frees the error where it didn't.
bool isFine(GError* error) {
    const bool fine = error == nullptr;
    g_clear_error(&error);
    return fine;
}

QString passwordFile(const CloudAccount& account) {
    const QByteArray digest =
        QCryptographicHash::hash((account.address + QLatin1Char('\n') + account.user).toUtf8(),
                                 QCryptographicHash::Sha256)
            .toHex();
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/dropshade/sync-password-%1").arg(QLatin1String(digest.left(16)));
}

QString passwordInFile(const CloudAccount& account) {
    QFile file(passwordFile(account));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

bool keepInFile(const CloudAccount& account, const QString& password) {
    const QString path = passwordFile(account);
    QDir().mkpath(QFileInfo(path).path());
    QSaveFile file(path);
    // Before anything is in it.
    return file.open(QIODevice::WriteOnly) &&
           file.setPermissions(QFile::ReadOwner | QFile::WriteOwner) &&
           file.write(password.toUtf8()) >= 0 && file.commit();
}

bool keepWithService(const CloudAccount& account, const QString& password) {
    const QByteArray server = account.address.toUtf8();
    const QByteArray user = account.user.toUtf8();
    GError* error = nullptr;
    const bool isKept = secret_password_store_sync(
        schema(), SECRET_COLLECTION_DEFAULT, "Dropshade", password.toUtf8().constData(), nullptr,
        &error, "server", server.constData(), "user", user.constData(), nullptr);
    return isFine(error) && isKept;
}

} // namespace

QString keptPassword(const CloudAccount& account) {
    const QByteArray server = account.address.toUtf8();
    const QByteArray user = account.user.toUtf8();
    GError* error = nullptr;
    gchar* found = secret_password_lookup_sync(
        schema(), nullptr, &error, "server", server.constData(), "user", user.constData(), nullptr);
    const QString password = QString::fromUtf8(found);
    secret_password_free(found);
    return isFine(error) && !password.isEmpty() ? password : passwordInFile(account);
}

QString keepPassword(const CloudAccount& account, const QString& password) {
    if (keepWithService(account, password)) {
        QFile::remove(passwordFile(account));
        return {};
    }
    if (keepInFile(account, password))
        return {};
    return QCoreApplication::translate("PasswordKeeper", "The password can't be kept.",
                                       "Neither the desktop nor the disk takes it");
}

} // namespace dropshade
