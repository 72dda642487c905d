// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "archive/PropertyListTree.h"

#include "archive/BinaryPropertyList.h"
#include "archive/XmlPropertyList.h"

namespace dropshade {

std::unique_ptr<PropertyListTree> PropertyListTree::open(const QByteArray& bytes) {
    auto list = BinaryPropertyList::open(bytes);
    return list ? std::move(list) : XmlPropertyList::open(bytes);
}

} // namespace dropshade
