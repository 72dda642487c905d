// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <optional>

namespace dropshade {

// The messages of etcd's JSON gateway (version 3 of its interface), as far as sync needs them. Keys
// and values are bytes, in base64 on the way; 64-bit numbers are strings; what is zero is absent.
// Whatever isn't understood makes an answer nothing.

struct EtcdKeyValue {
    QByteArray key;
    QByteArray value;
    qint64 modRevision = 0;

    friend bool operator==(const EtcdKeyValue&, const EtcdKeyValue&) = default;
};

/// What the server says of a request that failed; the code is one of gRPC's.
struct EtcdError {
    int code = 0;
    QString message;
};

struct EtcdRange {
    qint64 revision = 0;
    QList<EtcdKeyValue> keyValues;
    /// There are further keys beyond the limit.
    bool hasMore = false;
};

struct EtcdTransaction {
    qint64 revision = 0;
    bool hasSucceeded = false;
    /// What the ranges of the branch that was taken found, in no order.
    QList<EtcdKeyValue> found;
};

struct EtcdEvent {
    bool isRemoval = false;
    EtcdKeyValue keyValue;
};

struct EtcdWatchMessage {
    std::optional<EtcdError> error;
    qint64 revision = 0;
    bool isCreated = false;
    bool isCanceled = false;
    QList<EtcdEvent> events;
};

/// A write of a transaction, and the revision at which its key must be; 0 for a key that isn't.
struct EtcdWrite {
    QByteArray key;
    std::optional<QByteArray> value; ///< nothing to remove the key
    qint64 expectedRevision = 0;
};

namespace etcd {

/// The first key behind all those that begin with `prefix`.
[[nodiscard]] QByteArray endOf(const QByteArray& prefix);

[[nodiscard]] QByteArray loginRequest(const QString& user, const QString& password);
/// The keys from `from` up to `end`, or the key `from` alone where that is empty; as they were at
/// `revision`, or are now where that is 0.
[[nodiscard]] QByteArray rangeRequest(const QByteArray& from, const QByteArray& end, int limit,
                                      qint64 revision);
/// All of the writes, or none and a look at their keys.
[[nodiscard]] QByteArray transactionRequest(const QList<EtcdWrite>& writes);
/// All keys that begin with `prefix`, from that revision on.
[[nodiscard]] QByteArray watchRequest(const QByteArray& prefix, qint64 firstRevision);

[[nodiscard]] std::optional<EtcdError> errorIn(const QByteArray& json);
[[nodiscard]] std::optional<QByteArray> tokenIn(const QByteArray& json);
[[nodiscard]] std::optional<EtcdRange> rangeIn(const QByteArray& json);
[[nodiscard]] std::optional<EtcdTransaction> transactionIn(const QByteArray& json);
[[nodiscard]] std::optional<EtcdWatchMessage> watchMessageIn(const QByteArray& json);

} // namespace etcd

} // namespace dropshade
