// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/linux/FolderTransport.h"
#include "platform/linux/QtScheduler.h"
#include "platform/linux/ReplicatedKeyValueStore.h"
#include "support/MemoryDefaults.h"

#include <QTest>

namespace dropshade {

/// A machine's store, in a folder that it may share with others.
class FolderMember {
public:
    FolderMember(const QString& folder, const QString& replica)
        : m_store(
              m_defaults, m_scheduler,
              {[folder](const CloudAccount&) { return std::make_unique<FolderTransport>(folder); },
               [replica](const CloudAccount&) { return replica; }}) {
        open();
    }

    void open() {
        m_store.open([](const CloudConflict& conflict) {
            return conflict.areOursLater ? conflict.ours : conflict.theirs;
        });
    }
    void write(const QString& key, const CloudValue& value) {
        m_store.setValue(key, value);
        m_store.synchronize();
    }
    bool sees(const QString& key, const std::optional<CloudValue>& value) {
        return QTest::qWaitFor([&] { return m_store.value(key) == value; });
    }
    bool hasSentAll() {
        return QTest::qWaitFor([&] { return !m_store.hasUnsent(); });
    }
    bool isInTrouble(bool expected = true) {
        return QTest::qWaitFor([&] { return m_store.trouble().isEmpty() != expected; }, 8000);
    }
    ReplicatedKeyValueStore& store() { return m_store; }

private:
    MemoryDefaults m_defaults;
    QtScheduler m_scheduler;
    ReplicatedKeyValueStore m_store;
};

} // namespace dropshade
