// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "app/UpdateService.h"

#include <QFile>

#include <algorithm>
#include <cmath>

namespace dropshade {

namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;

constexpr double secondsBetweenChecks = 24.0 * 60.0 * 60.0;
/// The start of the desktop has better things to do.
constexpr double secondsToSettle = 15.0;
/// Delays stand still while the computer sleeps, so the clock is looked at now and then.
constexpr double mostSecondsOfDelay = 4.0 * 60.0 * 60.0;
constexpr seconds longestAnswer{30};

UpdateFailure failureOf(FeedFetcher::Failure failure) {
    switch (failure) {
    case FeedFetcher::Failure::Refused:
        return UpdateFailure::Refused;
    case FeedFetcher::Failure::TooLong:
        return UpdateFailure::TooLong;
    case FeedFetcher::Failure::UnsafeRedirect:
        return UpdateFailure::UnsafeRedirect;
    case FeedFetcher::Failure::Unreachable:
        break;
    }
    return UpdateFailure::Unreachable;
}

} // namespace

UpdateService::UpdateService(const Surroundings& surroundings, VersionNumber current,
                             const QUrl& feed)
    : m_with(surroundings), m_current(std::move(current)), m_feed(feed) {
    connect(&m_with.defaults, &UserDefaults::didChange, this, [this](const QString& key) {
        if (key == keys::automaticallyChecksForUpdates)
            scheduleNext();
    });
    scheduleNext();
}

UpdateService::~UpdateService() = default;

bool UpdateService::automaticallyChecksForUpdates(const UserDefaults& defaults) {
    return defaults.read<bool>(keys::automaticallyChecksForUpdates).value_or(false);
}

bool UpdateService::automaticallyChecksForUpdates() const {
    return automaticallyChecksForUpdates(m_with.defaults);
}

void UpdateService::setAutomaticallyChecksForUpdates(bool checks) {
    m_with.defaults.setValue(keys::automaticallyChecksForUpdates, checks);
}

void UpdateService::checkForUpdates() {
    m_isAsked = true;
    if (m_state == State::Offering)
        m_with.prompt.raiseOffer();
    else if (m_state == State::Idle)
        begin();
}

QUrl UpdateService::feedOfTheProduct() {
    QFile file(QStringLiteral(":/update-feed.txt"));
    const QByteArray address = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    return QUrl(QString::fromUtf8(address.trimmed()), QUrl::StrictMode);
}

double UpdateService::secondsUntilDue() const {
    const double now = m_with.scheduler.now().seconds;
    const double last = m_with.defaults.read<double>(keys::lastUpdateCheck).value_or(NAN);
    // A last check in the future comes from a clock that has been set back since.
    const bool isCredible = last <= now;
    return isCredible ? last + secondsBetweenChecks - now : 0.0;
}

void UpdateService::scheduleNext() {
    m_next.reset();
    if (!automaticallyChecksForUpdates() || m_state != State::Idle)
        return;
    const double delay = std::clamp(secondsUntilDue(), secondsToSettle, mostSecondsOfDelay);
    m_next = m_with.scheduler.after(milliseconds(std::llround(delay * 1000.0)),
                                    [this] { checkIfDue(); });
}

void UpdateService::checkIfDue() {
    // Another process may have turned the setting off, or have checked.
    if (automaticallyChecksForUpdates() && secondsUntilDue() <= 0.0)
        begin();
    else
        scheduleNext();
}

void UpdateService::begin() {
    m_next.reset();
    m_with.defaults.setValue(keys::lastUpdateCheck, m_with.scheduler.now().seconds);
    enter(State::Checking);
    m_timeout = m_with.scheduler.after(longestAnswer, [this] { fail(UpdateFailure::TimedOut); });
    m_request = m_with.fetcher.fetch(m_feed, UpdateFeed::mostBytes,
                                     [this](const Answer& answer) { receive(answer); });
}

void UpdateService::receive(const Answer& answer) {
    if (const auto* failure = std::get_if<FeedFetcher::Failure>(&answer)) {
        fail(failureOf(*failure));
        return;
    }
    if (const auto feed = UpdateFeed::parse(std::get<QByteArray>(answer)))
        judge(*feed);
    else
        fail(UpdateFailure::Malformed);
}

void UpdateService::judge(const UpdateFeed& feed) {
    const UpdateItem* newest = feed.newest();
    const bool isNewer = newest && newest->version > m_current;
    const auto skipped = m_with.defaults.read<QString>(keys::skippedUpdateVersion);
    const bool isSkipped = isNewer && !m_isAsked && skipped == newest->version.text();
    if (isNewer && !isSkipped) {
        offer(*newest);
        return;
    }
    const bool isAsked = m_isAsked;
    enter(State::Idle);
    if (isAsked)
        m_with.prompt.tellUpToDate(m_current);
}

void UpdateService::fail(UpdateFailure failure) {
    const bool isAsked = m_isAsked;
    enter(State::Idle);
    if (isAsked)
        m_with.prompt.tellFailure(failure);
}

void UpdateService::offer(const UpdateItem& item) {
    enter(State::Offering);
    m_with.prompt.offer(item, m_current,
                        [this, item](UpdatePrompt::Answer answer) { take(answer, item); });
}

void UpdateService::take(UpdatePrompt::Answer answer, const UpdateItem& item) {
    enter(State::Idle);
    switch (answer) {
    case UpdatePrompt::Answer::OpenDownloadPage:
        m_with.prompt.openPage(item.downloadPage);
        break;
    case UpdatePrompt::Answer::SkipVersion:
        m_with.defaults.setValue(keys::skippedUpdateVersion, item.version.text());
        break;
    case UpdatePrompt::Answer::Later:
        break;
    }
}

void UpdateService::enter(State state) {
    m_state = state;
    if (state != State::Checking) {
        m_timeout.reset();
        m_request.reset();
    }
    if (state == State::Idle) {
        m_isAsked = false;
        scheduleNext();
    }
    Q_EMIT stateDidChange();
}

} // namespace dropshade
