// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "imagepalette/ImageLoader.h"

#include <QLoggingCategory>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

// Any bytes at all load as an image or as none. What loads is within the loader's bounds, and the
// quantisers' pixels can be made of it.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const bool silenced = [] {
        QLoggingCategory::setFilterRules(QStringLiteral("*=false"));
        return true;
    }();
    static_cast<void>(silenced);
    const auto loaded = dropshade::ImageLoader::loadData(
        QByteArray::fromRawData(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)));
    if (!loaded)
        return 0;
    const auto buffer = dropshade::pixelBufferOf(*loaded);
    if (!buffer || buffer->pixels().size() > 40'000 ||
        std::max(loaded->image.width(), loaded->image.height()) >
            dropshade::ImageLoader::longestSide)
        std::abort();
    return 0;
}
