// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "app/UpdateFeed.h"

#include <functional>

namespace dropshade {

/// Why a check for updates came to nothing.
enum class UpdateFailure { Unreachable, Refused, TooLong, UnsafeRedirect, TimedOut, Malformed };

/// What the user sees of updates. Every call returns at once.
class UpdatePrompt {
public:
    enum class Answer { OpenDownloadPage, SkipVersion, Later };

    virtual ~UpdatePrompt() = default;

    /// Shows what is new and asks; `answer` is called once, later. Not while an offer is shown.
    virtual void offer(const UpdateItem& item, const VersionNumber& current,
                       std::function<void(Answer)> answer) = 0;

    /// Brings the offer that is shown before the user once more.
    virtual void raiseOffer() = 0;

    virtual void tellUpToDate(const VersionNumber& current) = 0;
    virtual void tellFailure(UpdateFailure failure) = 0;

    /// Shows a page of the web, in the user's browser.
    virtual void openPage(const QUrl& page) = 0;
};

} // namespace dropshade
