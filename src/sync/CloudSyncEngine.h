// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "palettes/UserPaletteStore.h"
#include "platform/BackgroundQueue.h"
#include "platform/CloudKeyValueStore.h"
#include "sync/CloudPalettes.h"
#include "sync/SyncedKeys.h"

#include <QObject>

#include <memory>
#include <optional>
#include <vector>

namespace dropshade {

/// Mirrors a fixed list of settings, and the palettes, between this machine and the cloud, so that
/// the machines of one user come to agree. It asks the user nothing and swallows each failure with
/// the value that it concerns; what it shows is its state.
///
/// Settings have no moments: whichever side applies last wins, and the cloud's wins in a pull. Of a
/// palette the later copy wins as a whole; deletions travel as tombstones. Nothing suppresses the
/// echo of a pull: the push that follows it finds nothing to write.
class CloudSyncEngine : public QObject {
    Q_OBJECT

public:
    struct Status {
        enum class Kind { Error, Off, Syncing, Idle };
        Kind kind = Kind::Off;
        /// For an error, in words.
        QString message;

        friend bool operator==(const Status&, const Status&) = default;
    };

    /// What the engine works with; all of it must outlive the engine.
    struct Surroundings {
        CloudKeyValueStore& kvs;
        UserDefaults& defaults;
        Scheduler& scheduler;
        AppSettings& settings;
        UserPaletteStore& palettes;
        BackgroundQueue& backgroundQueue;
    };

    /// More than these are encoded beside the main thread before a push, which they would make too
    /// long a turn of it.
    static constexpr qsizetype mostSwatchesAtOnce = 4'000;

    explicit CloudSyncEngine(const Surroundings& surroundings);
    ~CloudSyncEngine() override;

    [[nodiscard]] const Status& status() const { return m_status; }
    /// When the machines were last known to agree; kept when the engine stops.
    [[nodiscard]] std::optional<ReferenceTime> lastSyncDate() const { return m_lastSyncDate; }
    /// Whether the cloud holds more than the budget.
    [[nodiscard]] bool sizeBudgetWarning() const { return m_sizeBudgetWarning; }
    [[nodiscard]] bool isStarted() const { return m_isStarted; }

    /// Takes what the cloud has and gives what it lacks, and goes on doing so. Nothing when
    /// started.
    void start();
    /// Lets both sides be as they are. Nothing unless started.
    void stop();
    /// Runs the pushes that wait; for the end of the program, after its saves.
    void flushPendingPushes();

Q_SIGNALS:
    void statusDidChange();
    void lastSyncDateDidChange();
    void sizeBudgetWarningDidChange();
    /// Settings of another machine have been written to the defaults.
    void didApplyRemoteChange();

private:
    void observe();
    void pullAll();
    void pushPrefs();
    void pullPalettes();
    void beginPalettePush();
    void pushPalettes();
    void handleRemoteChange(const QStringList& keys);
    void schedulePrefsPush();
    void schedulePalettePush();
    void checkSizeBudget();

    void pushValue(const SyncedKey& row);
    [[nodiscard]] bool applyRemoteValue(const SyncedKey& row);
    void announceAppliedSettings();
    void buryDeleted(const QList<Palette>& palettes);
    void setBaseline(const QList<Palette>& palettes);
    void setStatus(const Status& status);
    void becomeIdle();
    void followTrouble();

    CloudKeyValueStore& m_kvs;
    UserDefaults& m_defaults;
    Scheduler& m_scheduler;
    AppSettings& m_settings;
    UserPaletteStore& m_palettes;
    BackgroundQueue& m_backgroundQueue;
    CloudPalettes m_cloudPalettes;

    Status m_status;
    std::optional<ReferenceTime> m_lastSyncDate;
    bool m_sizeBudgetWarning = false;
    bool m_isStarted = false;
    std::unique_ptr<ScheduledWork> m_pendingPrefsPush;
    std::unique_ptr<ScheduledWork> m_pendingPalettePush;
    /// Encodes what the push after it gives.
    std::unique_ptr<BackgroundWork> m_preparation;
    /// The palettes that were in sync after the last push or pull: one that is missing since was
    /// deleted here.
    QHash<QUuid, ReferenceTime> m_lastBaseline;
    std::vector<QMetaObject::Connection> m_observers;
};

} // namespace dropshade
