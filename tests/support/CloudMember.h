// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/linux/FolderTransport.h"
#include "platform/linux/QtScheduler.h"
#include "platform/linux/ReplicatedKeyValueStore.h"
#include "support/MemoryDefaults.h"

#include <QTest>

namespace dropshade {

/// A machine's store with a replica of its own, and what a test asks it while the event loop runs.
class CloudMember {
public:
    using MakeTransport = std::function<std::unique_ptr<ReplicaTransport>(const CloudAccount&)>;

    CloudMember(MakeTransport makeTransport, const QString& replica)
        : m_store(m_defaults, m_scheduler,
                  {std::move(makeTransport), [replica](const CloudAccount&) { return replica; }}) {
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
        return QTest::qWaitFor([&] { return m_store.value(key) == value; }, patience);
    }
    bool hasSentAll() {
        return QTest::qWaitFor([&] { return !m_store.hasUnsent(); }, patience);
    }
    bool isInTrouble(bool expected = true) {
        return QTest::qWaitFor([&] { return m_store.trouble().isEmpty() != expected; }, patience);
    }
    ReplicatedKeyValueStore& store() { return m_store; }

    /// Milliseconds; far more than anything takes on a machine that isn't busy.
    static constexpr int patience = 15'000;

private:
    MemoryDefaults m_defaults;
    QtScheduler m_scheduler;
    ReplicatedKeyValueStore m_store;
};

/// One that meets the others in a folder.
class FolderMember : public CloudMember {
public:
    FolderMember(const QString& folder, const QString& replica)
        : CloudMember(
              [folder](const CloudAccount&) { return std::make_unique<FolderTransport>(folder); },
              replica) {}
};

} // namespace dropshade
