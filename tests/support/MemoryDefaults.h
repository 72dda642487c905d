// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/UserDefaults.h"

#include <map>

namespace dropshade {

/// User defaults that live as long as the object.
class MemoryDefaults : public UserDefaults {
public:
    [[nodiscard]] std::optional<DefaultsValue> value(const QString& key) const override {
        const auto found = m_values.find(key);
        return found == m_values.end() ? std::nullopt : std::optional(found->second);
    }

    bool setValue(const QString& key, const DefaultsValue& value) override {
        m_values.insert_or_assign(key, value);
        return announce(key);
    }

    bool remove(const QString& key) override {
        m_values.erase(key);
        return announce(key);
    }

    bool update(const QString& key, const Change& change) override {
        return !m_refusing && setValue(key, change(value(key)));
    }

    bool amend(const QString& key, const Change& change) override {
        return setValue(key, change(value(key)));
    }

    /// Memory is always there.
    [[nodiscard]] int refusedReads() const override { return 0; }

    /// Another process that is in the way goes within the longer time.
    void beginLastWrites() override { m_refusing = m_refusing && !m_isHeldUp; }

    [[nodiscard]] QStringList keys() const override {
        QStringList all;
        for (const auto& [key, value] : m_values) {
            all.append(key);
        }
        return all;
    }

    /// While true, every write reports that the disk refused it.
    void setRefusing(bool refusing) {
        m_refusing = refusing;
        m_isHeldUp = false;
    }

    /// From here on every write is held up by another process, longer than it may wait.
    void setHeldUp() { m_refusing = m_isHeldUp = true; }

    /// A write of another process: seen at the next read, announced to nobody.
    void setFromAnotherProcess(const QString& key, const DefaultsValue& value) {
        m_values.insert_or_assign(key, value);
    }
    void removeFromAnotherProcess(const QString& key) { m_values.erase(key); }

    /// How often this process wrote or removed.
    [[nodiscard]] int writeCount() const { return m_writeCount; }

private:
    bool announce(const QString& key) {
        ++m_writeCount;
        const bool stored = !m_refusing;
        Q_EMIT didChange(key);
        return stored;
    }

    std::map<QString, DefaultsValue> m_values;
    bool m_refusing = false;
    bool m_isHeldUp = false;
    int m_writeCount = 0;
};

} // namespace dropshade
