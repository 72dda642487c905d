// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "Require.h"

#include "platform/linux/etcd/EtcdJson.h"

#include <cstddef>
#include <cstdint>

// Any bytes at all are an answer of etcd's or none, and what was found in one can be asked for.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace dropshade;
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    static_cast<void>(etcd::errorIn(bytes));
    static_cast<void>(etcd::tokenIn(bytes));
    static_cast<void>(etcd::watchMessageIn(bytes));
    static_cast<void>(etcd::transactionIn(bytes));
    const auto range = etcd::rangeIn(bytes);
    if (!range)
        return 0;
    QList<EtcdWrite> writes;
    for (const EtcdKeyValue& keyValue : range->keyValues) {
        require(etcd::endOf(keyValue.key) > keyValue.key || keyValue.key.startsWith('\xff') ||
                    keyValue.key.isEmpty(),
                "the end of a prefix lies behind it");
        writes.append({keyValue.key, keyValue.value, keyValue.modRevision});
    }
    require(!etcd::transactionRequest(writes).isEmpty(), "a request can be written");
    return 0;
}
