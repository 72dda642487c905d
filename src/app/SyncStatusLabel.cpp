// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "app/SyncStatusLabel.h"

#include <QCoreApplication>

#include <algorithm>

namespace dropshade {
namespace {

constexpr double minute = 60.0;
constexpr double hour = 60.0 * minute;
constexpr double day = 24.0 * hour;
constexpr double week = 7.0 * day;
/// The mean ones of the Gregorian calendar.
constexpr double year = 365.2425 * day;
constexpr double month = year / 12.0;

double secondsSince(ReferenceTime moment, ReferenceTime now) {
    // As far back as any unit counts in an integer.
    return std::clamp(now.seconds - moment.seconds, 0.0, 1000.0 * year);
}

int count(double seconds, double unit) {
    return static_cast<int>(seconds / unit);
}

QString secondsAgo(int n) {
    //: A moment of the past, after "Last synced: "
    return QCoreApplication::translate("SyncStatusLabel", "%n seconds ago", "", n);
}

QString minutesAgo(int n) {
    //: A moment of the past, after "Last synced: "
    return QCoreApplication::translate("SyncStatusLabel", "%n minutes ago", "", n);
}

QString hoursAgo(int n) {
    //: A moment of the past, after "Last synced: "
    return QCoreApplication::translate("SyncStatusLabel", "%n hours ago", "", n);
}

QString daysAgo(int n) {
    if (n == 1) {
        //: A moment of the past, after "Last synced: "
        return QCoreApplication::translate("SyncStatusLabel", "yesterday");
    }
    //: A moment of the past, after "Last synced: "
    return QCoreApplication::translate("SyncStatusLabel", "%n days ago", "", n);
}

QString weeksAgo(int n) {
    if (n == 1) {
        //: A moment of the past, after "Last synced: "
        return QCoreApplication::translate("SyncStatusLabel", "last week");
    }
    //: A moment of the past, after "Last synced: "
    return QCoreApplication::translate("SyncStatusLabel", "%n weeks ago", "", n);
}

QString monthsAgo(int n) {
    if (n == 1) {
        //: A moment of the past, after "Last synced: "
        return QCoreApplication::translate("SyncStatusLabel", "last month");
    }
    //: A moment of the past, after "Last synced: "
    return QCoreApplication::translate("SyncStatusLabel", "%n months ago", "", n);
}

QString yearsAgo(int n) {
    if (n == 1) {
        //: A moment of the past, after "Last synced: "
        return QCoreApplication::translate("SyncStatusLabel", "last year");
    }
    //: A moment of the past, after "Last synced: "
    return QCoreApplication::translate("SyncStatusLabel", "%n years ago", "", n);
}

} // namespace

QString relativeTime(ReferenceTime moment, ReferenceTime now) {
    const double seconds = secondsSince(moment, now);
    if (seconds < 1.0) {
        //: This moment, after "Last synced: "
        return QCoreApplication::translate("SyncStatusLabel", "now");
    }
    if (seconds < minute)
        return secondsAgo(count(seconds, 1.0));
    if (seconds < hour)
        return minutesAgo(count(seconds, minute));
    if (seconds < day)
        return hoursAgo(count(seconds, hour));
    if (seconds < week)
        return daysAgo(count(seconds, day));
    if (seconds < month)
        return weeksAgo(count(seconds, week));
    if (seconds < year)
        return monthsAgo(count(seconds, month));
    return yearsAgo(count(seconds, year));
}

SyncStatusLabel SyncStatusLabel::of(const CloudSyncEngine& engine, ReferenceTime now) {
    using Kind = CloudSyncEngine::Status::Kind;
    if (engine.sizeBudgetWarning()) {
        //: Sync status label
        return {Sign::Warning,
                QCoreApplication::translate("SyncStatusLabel",
                                            "iCloud sync is approaching its size limit. Consider "
                                            "trimming unused palettes."),
                std::nullopt};
    }
    switch (engine.status().kind) {
    case Kind::Error:
        return {Sign::Error, engine.status().message, std::nullopt};
    case Kind::Syncing:
        //: Sync status label
        return {Sign::None, QCoreApplication::translate("SyncStatusLabel", "Syncing…"),
                std::nullopt};
    case Kind::Idle:
        if (const auto date = engine.lastSyncDate()) {
            const bool isFresh = secondsSince(*date, now) < minute;
            //: Sync status label; %1 is a moment such as "5 minutes ago"
            return {Sign::None,
                    QCoreApplication::translate("SyncStatusLabel", "Last synced: %1")
                        .arg(relativeTime(*date, now)),
                    isFresh ? std::chrono::milliseconds(1000) : std::chrono::milliseconds(60000)};
        }
        break;
    case Kind::Off:
        break;
    }
    return {};
}

} // namespace dropshade
