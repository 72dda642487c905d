// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/UserDefaults.h"

#include <QString>

#include <functional>
#include <memory>

namespace dropshade {

/// Where the machines of the user meet, as the settings have it. The password is kept apart, see
/// `CloudAccounts`.
struct CloudAccount {
    enum class Kind {
        Folder, ///< A folder, which may lie inside one that another program shares.
        Etcd    ///< An etcd server.
    };

    Kind kind = Kind::Folder;
    /// The folder's path; empty for the program's own, which no other machine sees.
    QString folder;
    /// The server's address, as https://host:2379.
    QString address;
    /// The user of the server; empty where it asks for none.
    QString user;
    /// What the keys of this user begin with, so that several users can share a server. Empty for
    /// the user's name.
    QString prefix;
    /// The path of a certificate authority of the user's own (PEM); empty for the system's.
    QString authority;

    friend bool operator==(const CloudAccount&, const CloudAccount&) = default;

    /// What stands under "syncTransport", "syncFolder", "syncEtcdAddress", "syncEtcdUser",
    /// "syncEtcdPrefix" and "syncEtcdAuthority". Anything but "etcd" as transport is a folder.
    [[nodiscard]] static CloudAccount read(const UserDefaults& defaults);
    /// Writes the fields that differ. Takes effect when sync is next started.
    void write(UserDefaults& defaults) const;
};

/// A check under way; to destroy it is to give it up.
class CloudCheck {
public:
    virtual ~CloudCheck() = default;
};

/// What a window needs to set up an account.
class CloudAccounts {
public:
    /// An empty text where all is well, or why it isn't, for the user.
    using Answer = std::function<void(const QString& words)>;

    virtual ~CloudAccounts() = default;

    /// Tries whether values could be read and written there, with this password or, where that is
    /// empty, the one that is kept. Changes nothing; answers once, later, unless destroyed first.
    [[nodiscard]] virtual std::unique_ptr<CloudCheck>
    check(const CloudAccount& account, const QString& password, Answer answer) = 0;

    /// Keeps the password of the account's address and user: with the desktop's secret service
    /// where there is one, else in a file that only this user can read. Answers as `check` does.
    [[nodiscard]] virtual std::unique_ptr<CloudCheck>
    keepPassword(const CloudAccount& account, const QString& password, Answer answer) = 0;
};

} // namespace dropshade
