// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "app/SyncAccountModel.h"

#include <QCoreApplication>
#include <QDir>

#include <algorithm>
#include <cmath>
#include <utility>

namespace dropshade {
namespace {

QString fullPath(const QString& shown) {
    const QString path = shown.trimmed();
    if (path == QStringLiteral("~"))
        return QDir::homePath();
    return path.startsWith(QStringLiteral("~/")) ? QDir::homePath() + path.mid(1) : path;
}

} // namespace

SyncAccountModel::SyncAccountModel(Surroundings surroundings)
    : m_with(std::move(surroundings)), m_account(CloudAccount::read(m_with.defaults)) {}

SyncAccountModel::~SyncAccountModel() = default;

void SyncAccountModel::setKind(CloudAccount::Kind kind) {
    CloudAccount account = m_account;
    account.kind = kind;
    change(account);
}

void SyncAccountModel::setFolder(const QString& path) {
    CloudAccount account = m_account;
    account.folder = fullPath(path);
    change(account);
}

void SyncAccountModel::setAddress(const QString& address) {
    CloudAccount account = m_account;
    account.address = address.trimmed();
    const bool hasScheme = account.address.contains(QStringLiteral("://"));
    if (!account.address.isEmpty() && !hasScheme)
        account.address.prepend(QStringLiteral("https://"));
    change(account);
}

void SyncAccountModel::setUser(const QString& user) {
    CloudAccount account = m_account;
    account.user = user.trimmed();
    change(account);
}

void SyncAccountModel::setAuthority(const QString& path) {
    CloudAccount account = m_account;
    account.authority = fullPath(path);
    change(account);
}

void SyncAccountModel::setPassword(const QString& password) {
    if (password == m_password)
        return;
    m_password = password;
    setResult({});
    keepPassword();
}

void SyncAccountModel::reload() {
    const CloudAccount stored = CloudAccount::read(m_with.defaults);
    if (stored == m_account)
        return;
    m_account = stored;
    Q_EMIT accountDidChange();
}

void SyncAccountModel::change(const CloudAccount& account) {
    const bool isOther = account != m_account;
    const bool isOtherLogin =
        account.address != m_account.address || account.user != m_account.user;
    m_account = account;
    if (isOther) {
        m_account.write(m_with.defaults);
        m_check.reset();
        setResult({});
        m_with.accountDidChange();
        if (isOtherLogin)
            keepPassword();
    }
    // Also where the text was merely another way to write the same.
    Q_EMIT accountDidChange();
}

/// A password belongs to an address and a user: what was typed is kept for those of now.
void SyncAccountModel::keepPassword() {
    if (m_password.isEmpty() || m_account.address.isEmpty())
        return;
    m_keeping = m_with.accounts.keepPassword(m_account, m_password, [this](const QString& trouble) {
        if (trouble.isEmpty())
            m_with.accountDidChange();
        else
            setResult({Result::Kind::Failed, trouble});
    });
}

void SyncAccountModel::testConnection() {
    const ReferenceTime start = m_with.scheduler.now();
    //: Sync settings: the connection is being tested
    setResult(
        {Result::Kind::Working, QCoreApplication::translate("SettingsWindow", "Connecting…")});
    m_check = m_with.accounts.check(m_account, m_password, [this, start](const QString& trouble) {
        if (!trouble.isEmpty()) {
            setResult({Result::Kind::Failed, trouble});
            return;
        }
        const double seconds = std::max(0.0, m_with.scheduler.now().seconds - start.seconds);
        //: Sync settings: the test of the connection went well; %1 is a number of milliseconds
        setResult(
            {Result::Kind::Well, QCoreApplication::translate("SettingsWindow", "Connected in %1 ms")
                                     .arg(std::lround(seconds * 1000.0))});
    });
}

void SyncAccountModel::setResult(const Result& result) {
    if (std::exchange(m_result, result) != result)
        Q_EMIT resultDidChange();
}

QString SyncAccountModel::shownPath(const QString& path) {
    const QString home = QDir::homePath();
    if (path == home)
        return QStringLiteral("~");
    return path.startsWith(home + QLatin1Char('/')) ? QLatin1Char('~') + path.mid(home.size())
                                                    : path;
}

} // namespace dropshade
