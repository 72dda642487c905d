// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/HotKeyRegistrar.h"
#include "platform/ModifierKeys.h"

#include <map>
#include <set>
#include <utility>

namespace dropshade {

/// A keyboard whose keys the test presses.
class FakeHotKeyRegistrar : public HotKeyRegistrar {
public:
    using Combination = std::pair<quint32, quint32>; ///< Key code and modifiers.

    [[nodiscard]] Status registerHotKey(quint32 id, quint32 keyCode, quint32 modifiers) override {
        m_lastId = id;
        const Combination combination(keyCode, modifiers);
        if ((modifiers & functionKey) != 0)
            return Status::Unavailable;
        if (m_taken.contains(combination) || idOf(combination))
            return Status::Taken;
        m_combinations.emplace(id, combination);
        return Status::Registered;
    }

    void unregisterHotKey(quint32 id) override {
        m_combinations.erase(id);
        std::erase_if(m_down, [id](const auto& down) { return down.second == id; });
    }

    [[nodiscard]] bool isAvailable() const override { return m_isAvailable; }
    void setAvailable(bool isAvailable) { m_isAvailable = isAvailable; }

    /// Another program has the combination, or gives it back.
    void take(const Combination& combination) { m_taken.insert(combination); }
    void giveBack(const Combination& combination) { m_taken.erase(combination); }

    /// The user holds the modifiers and presses the key; a second press without a release is the
    /// keyboard's repetition.
    void press(const Combination& combination) {
        const auto id = idOf(combination);
        if (id && m_down.emplace(combination.first, *id).second)
            Q_EMIT pressed(*id);
    }

    /// The key goes up, whatever the modifiers are.
    void release(quint32 keyCode) {
        if (const auto down = m_down.extract(keyCode))
            Q_EMIT released(down.mapped());
    }

    void pressAndRelease(const Combination& combination) {
        press(combination);
        release(combination.first);
    }

    /// What is held, by id.
    [[nodiscard]] const std::map<quint32, Combination>& combinations() const {
        return m_combinations;
    }
    [[nodiscard]] quint32 lastId() const { return m_lastId; }

private:
    [[nodiscard]] std::optional<quint32> idOf(const Combination& combination) const {
        for (const auto& [id, held] : m_combinations) {
            if (held == combination)
                return id;
        }
        return std::nullopt;
    }

    std::set<Combination> m_taken;
    std::map<quint32, Combination> m_combinations;
    std::map<quint32, quint32> m_down;
    quint32 m_lastId = 0;
    bool m_isAvailable = true;
};

} // namespace dropshade
