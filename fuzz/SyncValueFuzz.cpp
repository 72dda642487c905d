// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "Require.h"

#include "sync/SyncValueCodec.h"
#include "sync/Tombstone.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

// Any bytes at all are a value of the cloud or none, within the capacity of their length; what was
// read goes up and comes back the same.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace dropshade;
    const QByteArray stored(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const auto plain = decompressedValue(stored);
    if (!plain)
        return 0;
    const qsizetype firstCapacity = std::max<qsizetype>(8 * (stored.size() - 1), 1024);
    require(*plain == stored || plain->size() < 64 * firstCapacity, "no more than the capacity");
    if (!plain->isEmpty() && plain->front() != '\x01')
        require(decompressedValue(sharedValue(*plain)) == plain, "a value comes back");
    const auto tombstones = decodedTombstones(*plain);
    if (!tombstones)
        return 0;
    const auto written = encodedTombstones(*tombstones);
    require(written && decodedTombstones(*written) == tombstones, "tombstones come back");
    const auto united = unitedTombstones(*tombstones, *tombstones);
    require(unitedTombstones(united, *tombstones) == united, "united once is united");
    static_cast<void>(deletionMoments(united));
    return 0;
}
