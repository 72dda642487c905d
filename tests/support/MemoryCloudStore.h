// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CloudKeyValueStore.h"

namespace dropshade {

/// A cloud that ends at this machine; the test plays the others.
class MemoryCloudStore : public CloudKeyValueStore {
public:
    void open(ConflictRule conflictRule) override {
        rule = std::move(conflictRule);
        isOpen = true;
    }
    void close() override {
        isOpen = false;
        ++closeCount;
    }

    [[nodiscard]] std::optional<CloudValue> value(const QString& key) const override {
        const auto found = isFailing ? values.end() : values.find(key);
        return found == values.end() ? std::nullopt : std::optional(found->second);
    }
    void setValue(const QString& key, const CloudValue& value) override {
        values.insert_or_assign(key, value);
        written.append(key);
    }
    void remove(const QString& key) override {
        values.erase(key);
        removed.append(key);
    }
    [[nodiscard]] std::map<QString, CloudValue> dictionaryRepresentation() const override {
        return values;
    }
    void synchronize() override { ++synchronizeCount; }
    [[nodiscard]] QString trouble() const override { return m_trouble; }

    /// Another machine writes, and this one hears of it.
    void receive(const std::map<QString, CloudValue>& changes) {
        QStringList keys;
        for (const auto& [key, value] : changes) {
            values.insert_or_assign(key, value);
            keys.append(key);
        }
        Q_EMIT didChangeExternally(keys);
    }

    void setTrouble(const QString& words) {
        m_trouble = words;
        Q_EMIT troubleDidChange();
    }

    std::map<QString, CloudValue> values;
    ConflictRule rule;
    bool isOpen = false;
    /// No single value can be read.
    bool isFailing = false;
    int closeCount = 0;
    /// What this machine wrote, in order; a test may clear the lists.
    QStringList written;
    QStringList removed;
    int synchronizeCount = 0;

private:
    QString m_trouble;
};

} // namespace dropshade
