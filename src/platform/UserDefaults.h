// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>
#include <variant>

namespace dropshade {

/// One stored setting. The type is kept: an integer reads back as an integer, never as a string.
using DefaultsValue = std::variant<bool, qint64, double, QString, QByteArray, QStringList>;

/// The user's settings: a persistent keyed store and the single source of truth for all of them.
///
/// - A value reads back with the type and the bits it was stored with.
/// - A write has reached the disk when the call returns true, and then outlives the process.
/// - Another process's writes are seen at the next read; nothing is cached here.
/// - Main thread only.
class UserDefaults : public QObject {
    Q_OBJECT

public:
    /// The value under `key`, or nothing where the key is unset.
    [[nodiscard]] virtual std::optional<DefaultsValue> value(const QString& key) const = 0;

    /// Stores `value` under `key` and announces it. False when the disk refused it; this process
    /// then goes on to see the value, which is written again soon, or together with the next write.
    virtual bool setValue(const QString& key, const DefaultsValue& value) = 0;

    /// Makes `key` unset and announces it; the result is as for `setValue`.
    virtual bool remove(const QString& key) = 0;

    /// Gives the value to store in place of the present one, or of nothing. May be asked twice.
    using Change = std::function<DefaultsValue(const std::optional<DefaultsValue>&)>;

    /// Stores what `change` makes of the value under `key`, with no write of another process in
    /// between, and announces it. False when the disk refused to be read or written; then nothing
    /// has changed, for this process neither.
    virtual bool update(const QString& key, const Change& change) = 0;

    /// Stores what `change` makes of the value under `key`, like `update`, but keeps what the disk
    /// refused, like `setValue`: false then, this process goes on to see what the change makes of
    /// what it can read, and with the next write the change is made of what the disk has then. So
    /// no value is lost because it could not be read. `change` must be good for as long as this
    /// object is.
    virtual bool amend(const QString& key, const Change& change) = 0;

    /// The program ends, and nothing would try a write again: from here on other processes are
    /// waited for longer.
    virtual void beginLastWrites() = 0;

    /// Every key that is set, in no order.
    [[nodiscard]] virtual QStringList keys() const = 0;

    /// How many reads the disk has refused so far: where a read has made it grow, what seems unset
    /// may be set.
    [[nodiscard]] virtual int refusedReads() const = 0;

    [[nodiscard]] bool contains(const QString& key) const { return value(key).has_value(); }

    /// The value under `key` if it is set and of exactly this type.
    template <typename T>
    [[nodiscard]] std::optional<T> read(const QString& key) const {
        const auto stored = value(key);
        const T* typed = stored ? std::get_if<T>(&*stored) : nullptr;
        return typed ? std::optional<T>(*typed) : std::nullopt;
    }

Q_SIGNALS:
    /// After every `setValue`, `remove` and `amend` of this process, and each `update` that was
    /// stored.
    void didChange(const QString& key);
};

} // namespace dropshade
