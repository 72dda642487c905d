// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "Require.h"

#include "platform/linux/replica/ReplicaRecord.h"

#include <QCryptographicHash>

#include <cstddef>
#include <cstdint>

namespace {

/// The head of a record for these bytes, so that the checksum doesn't keep the harness out.
QByteArray withSum(char type, const QByteArray& payload) {
    static const char* const names[] = {"bool", "integer", "real", "string", "data", "strings"};
    const QByteArray name = names[std::uint8_t(type) % 6];
    QCryptographicHash hash(QCryptographicHash::Sha256);
    hash.addData(QByteArray("k\0", 2) + name + '\0');
    hash.addData(payload);
    return "{\"dropshade\":1,\"key\":\"k\",\"type\":\"" + name + "\",\"writtenAt\":1,\"sum\":\"" +
           hash.result().toHex() + "\"}\n" + payload;
}

void readAndWrite(const QByteArray& bytes) {
    using namespace dropshade;
    const auto record = ReplicaRecord::decoded(bytes);
    if (!record)
        return;
    const QByteArray written = record->encoded();
    const auto again = ReplicaRecord::decoded(written);
    require(again.has_value(), "what is written can be read");
    require(again->key == record->key && again->encoded() == written, "a record comes back");
}

} // namespace

// Any bytes at all are a record or none.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    readAndWrite(bytes);
    if (!bytes.isEmpty())
        readAndWrite(withSum(bytes.front(), bytes.mid(1)));
    return 0;
}
