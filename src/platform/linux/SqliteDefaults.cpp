// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/linux/SqliteDefaults.h"

#include "platform/Scheduler.h"
#include "platform/linux/DefaultsDatabase.h"

#include <QStandardPaths>

#include <algorithm>

namespace dropshade {
namespace {

constexpr std::chrono::seconds retryDelay{5};

/// No longer than a session that ends waits for its programs.
constexpr std::chrono::seconds longestEnd{5};

} // namespace

SqliteDefaults::SqliteDefaults(const QString& path, Scheduler* scheduler)
    : m_database(std::make_unique<DefaultsDatabase>(path)), m_scheduler(scheduler) {}

SqliteDefaults::~SqliteDefaults() {
    SqliteDefaults::beginLastWrites();
    storeUnsaved(deadline());
}

std::optional<DefaultsValue> SqliteDefaults::value(const QString& key) const {
    const auto unsaved = m_unsaved.find(key);
    if (unsaved == m_unsaved.end()) {
        return storedValue(key);
    }
    return unsaved->second.over(unsaved->second.isReplaced() ? std::nullopt : storedValue(key));
}

std::optional<DefaultsValue> SqliteDefaults::storedValue(const QString& key) const {
    std::optional<DefaultsValue> stored;
    m_refusedReads += m_database->read(key, stored) ? 0 : 1;
    return stored;
}

bool SqliteDefaults::setValue(const QString& key, const DefaultsValue& value) {
    m_unsaved[key].replace(value);
    return storeAndAnnounce(key);
}

bool SqliteDefaults::remove(const QString& key) {
    m_unsaved[key].replace(std::nullopt);
    return storeAndAnnounce(key);
}

bool SqliteDefaults::amend(const QString& key, const Change& change) {
    m_unsaved[key].amend(change);
    return storeAndAnnounce(key);
}

bool SqliteDefaults::update(const QString& key, const Change& change) {
    const auto deadline = this->deadline();
    const auto unsaved = m_unsaved.find(key);
    const auto changed = [&](const std::optional<DefaultsValue>& stored) {
        return change(unsaved != m_unsaved.end() ? unsaved->second.over(stored) : stored);
    };
    if (!m_database->update(key, changed, deadline)) {
        return false;
    }
    m_unsaved.erase(key);
    storeUnsaved(deadline);
    Q_EMIT didChange(key);
    return true;
}

void SqliteDefaults::beginLastWrites() {
    if (!m_end) {
        m_end = std::chrono::steady_clock::now() + longestEnd;
    }
    m_retry.reset();
}

QStringList SqliteDefaults::keys() const {
    QStringList all;
    m_refusedReads += m_database->readKeys(all) ? 0 : 1;
    for (const auto& [key, unsaved] : m_unsaved) {
        all.removeAll(key);
        if (value(key)) {
            all.append(key);
        }
    }
    return all;
}

QString SqliteDefaults::defaultPath() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/dropshade/defaults.sqlite");
}

bool SqliteDefaults::storeAndAnnounce(const QString& key) {
    const bool isStored = store(key);
    Q_EMIT didChange(key);
    return isStored;
}

bool SqliteDefaults::store(const QString& key) {
    const auto deadline = this->deadline();
    if (storeUnsaved(deadline)) {
        return true;
    }
    // One value that is too large for the disk must not keep the others from it.
    if (m_unsaved.size() > 1 && m_database->write({*m_unsaved.find(key)}, deadline)) {
        m_unsaved.erase(key);
        return true;
    }
    return false;
}

/// True when nothing is left unsaved.
bool SqliteDefaults::storeUnsaved(Deadline deadline) {
    if (m_unsaved.empty() || m_database->write(m_unsaved, deadline)) {
        m_unsaved.clear();
        m_retry.reset();
        return true;
    }
    storeUnsavedLater();
    return false;
}

/// Else a setting that was refused once would be lost with a program that is killed, or a computer
/// that stops, before the user changes another.
void SqliteDefaults::storeUnsavedLater() {
    if (m_scheduler && !m_end && !m_retry) {
        m_retry = m_scheduler->after(retryDelay, [this] {
            m_retry.reset();
            storeUnsaved(deadline());
        });
    }
}

SqliteDefaults::Deadline SqliteDefaults::deadline() const {
    const auto soon = KeptDatabase::deadline();
    return m_end ? std::max(soon, *m_end) : soon;
}

} // namespace dropshade
