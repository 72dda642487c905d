// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/UserDefaults.h"

#include <functional>
#include <map>

namespace dropshade {

/// What the cloud holds under a key: the types of a setting.
using CloudValue = DefaultsValue;

/// A write of this machine that meets a write of another one, neither made in view of the other.
/// Nothing stands for a key that was removed.
struct CloudConflict {
    QString key;
    std::optional<CloudValue> ours;
    std::optional<CloudValue> theirs;
    /// This machine never saw what the others have under the key.
    bool isFirstContact = false;
    /// Ours was written later, as far as the clocks of the machines tell.
    bool areOursLater = false;
};

/// What both machines take in place of the two.
using ConflictRule = std::function<std::optional<CloudValue>(const CloudConflict&)>;

/// A small store of keyed values that the machines of one user share.
///
/// - Reads and writes are local and immediate, on a replica that outlives the process. They work
///   without a connection; what was written then goes out later.
/// - All writes up to a `synchronize` are kept together or not at all, whenever the process ends.
/// - Changes of other machines arrive while the store is open: applied first, then announced.
/// - Nothing here fails; `trouble` says in words why nothing gets through.
/// - Main thread only.
class CloudKeyValueStore : public QObject {
    Q_OBJECT

public:
    /// Connects to the other machines, until `close`. Where the store finds a conflict it asks
    /// `rule`, and for those of a removal last. The rule may read the store, not write.
    virtual void open(ConflictRule rule) = 0;

    /// Disconnects. What was written and hasn't gone out gets a second for it, at most.
    virtual void close() = 0;

    [[nodiscard]] virtual std::optional<CloudValue> value(const QString& key) const = 0;
    virtual void setValue(const QString& key, const CloudValue& value) = 0;
    virtual void remove(const QString& key) = 0;

    /// All that the store holds.
    [[nodiscard]] virtual std::map<QString, CloudValue> dictionaryRepresentation() const = 0;

    /// Keeps what was written since the last time, and has it sent.
    virtual void synchronize() = 0;

    /// What stands between this machine and the others, for the user; empty when nothing does.
    [[nodiscard]] virtual QString trouble() const = 0;

    /// The value under `key` if there is one of exactly this type.
    template <typename T>
    [[nodiscard]] std::optional<T> read(const QString& key) const {
        const auto stored = value(key);
        const T* typed = stored ? std::get_if<T>(&*stored) : nullptr;
        return typed ? std::optional<T>(*typed) : std::nullopt;
    }

Q_SIGNALS:
    /// Other machines have changed these keys. An empty list stands for any number of keys.
    void didChangeExternally(const QStringList& keys);
    void troubleDidChange();
};

} // namespace dropshade
