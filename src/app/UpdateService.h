// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "app/UpdatePrompt.h"
#include "platform/FeedFetcher.h"
#include "platform/Scheduler.h"
#include "platform/UserDefaults.h"

#include <variant>

namespace dropshade {

/// Learns of newer versions and tells the user of them; it never downloads or runs one. It checks
/// when the user asks and, if the setting is on, by itself once a day. What the user asked for is
/// answered whatever comes of it; a check of its own speaks up for a newer version alone, and not
/// for one that the user has skipped.
class UpdateService : public QObject {
    Q_OBJECT

public:
    enum class State { Idle, Checking, Offering };

    /// What it works with; all of it outlives the service.
    struct Surroundings {
        UserDefaults& defaults;
        Scheduler& scheduler;
        FeedFetcher& fetcher;
        UpdatePrompt& prompt;
    };

    /// Starts to check by itself, a few seconds from now at the earliest, if the setting is on.
    UpdateService(const Surroundings& surroundings, VersionNumber current,
                  const QUrl& feed = feedOfTheProduct());
    ~UpdateService() override;

    /// "automaticallyChecksForUpdates", false when unset.
    [[nodiscard]] static bool automaticallyChecksForUpdates(const UserDefaults& defaults);
    [[nodiscard]] bool automaticallyChecksForUpdates() const;
    void setAutomaticallyChecksForUpdates(bool checks);

    /// Checks because the user asks. A check that is under way becomes the user's; an offer that
    /// is shown comes to the front.
    void checkForUpdates();

    [[nodiscard]] State state() const { return m_state; }

    /// The address that the resources name.
    [[nodiscard]] static QUrl feedOfTheProduct();

Q_SIGNALS:
    void stateDidChange();

private:
    using Answer = std::variant<QByteArray, FeedFetcher::Failure>;

    [[nodiscard]] double secondsUntilDue() const;
    void scheduleNext();
    void checkIfDue();
    void begin();
    void receive(const Answer& answer);
    void judge(const UpdateFeed& feed);
    void fail(UpdateFailure failure);
    void offer(const UpdateItem& item);
    void take(UpdatePrompt::Answer answer, const UpdateItem& item);
    void enter(State state);

    Surroundings m_with;
    VersionNumber m_current;
    QUrl m_feed;
    State m_state = State::Idle;
    bool m_isAsked = false;
    std::unique_ptr<FeedRequest> m_request;
    std::unique_ptr<ScheduledWork> m_timeout;
    std::unique_ptr<ScheduledWork> m_next;
};

namespace keys {

inline const QString automaticallyChecksForUpdates =
    QStringLiteral("automaticallyChecksForUpdates");
/// The `ReferenceTime` of the last check, as a double.
inline const QString lastUpdateCheck = QStringLiteral("lastUpdateCheck");
inline const QString skippedUpdateVersion = QStringLiteral("skippedUpdateVersion");

} // namespace keys

} // namespace dropshade
