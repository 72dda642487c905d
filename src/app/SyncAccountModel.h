// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CloudAccount.h"
#include "platform/Scheduler.h"

#include <QObject>

#include <functional>
#include <memory>

namespace dropshade {

/// Where sync keeps its data, as the settings window edits it. Each finished edit is stored, and
/// sync goes on from there. A password is not read back: the field is empty until the user types
/// one, and an empty field keeps what is kept.
class SyncAccountModel : public QObject {
    Q_OBJECT

public:
    struct Surroundings {
        UserDefaults& defaults;
        Scheduler& scheduler;
        CloudAccounts& accounts;
        /// The account is another one: whoever syncs begins anew.
        std::function<void()> accountDidChange;
    };

    /// What came of the last test, or of keeping a password.
    struct Result {
        enum class Kind { None, Working, Well, Failed };
        Kind kind = Kind::None;
        QString words;

        friend bool operator==(const Result&, const Result&) = default;
    };

    explicit SyncAccountModel(Surroundings surroundings);
    ~SyncAccountModel() override;

    [[nodiscard]] const CloudAccount& account() const { return m_account; }
    [[nodiscard]] const QString& password() const { return m_password; }
    [[nodiscard]] const Result& result() const { return m_result; }

    void setKind(CloudAccount::Kind kind);
    /// Paths may begin with "~/".
    void setFolder(const QString& path);
    /// An address without a scheme is taken as HTTPS.
    void setAddress(const QString& address);
    void setUser(const QString& user);
    void setAuthority(const QString& path);
    void setPassword(const QString& password);

    /// Reads the account anew.
    void reload();

    /// Tries whether the account works. A test that is under way is given up for it.
    void testConnection();

    /// `path` as it is shown, the home folder as "~".
    [[nodiscard]] static QString shownPath(const QString& path);

Q_SIGNALS:
    void accountDidChange();
    void resultDidChange();

private:
    void change(const CloudAccount& account);
    void keepPassword();
    void setResult(const Result& result);

    Surroundings m_with;
    CloudAccount m_account;
    QString m_password;
    Result m_result;
    std::unique_ptr<CloudCheck> m_check;
    std::unique_ptr<CloudCheck> m_keeping;
};

} // namespace dropshade
