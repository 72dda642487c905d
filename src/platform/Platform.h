// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Alerts.h"
#include "platform/ApplicationInstance.h"
#include "platform/BackgroundQueue.h"
#include "platform/CloudAccount.h"
#include "platform/CloudKeyValueStore.h"
#include "platform/DesktopAppearance.h"
#include "platform/DesktopShortcuts.h"
#include "platform/FeedFetcher.h"
#include "platform/FilePanels.h"
#include "platform/HotKeyRegistrar.h"
#include "platform/KeyboardLayout.h"
#include "platform/LoginItem.h"
#include "platform/Pasteboard.h"
#include "platform/Scheduler.h"
#include "platform/ScreenSampler.h"
#include "platform/SoundPlayer.h"
#include "platform/StatusItem.h"
#include "platform/UserDefaults.h"

#include <memory>

namespace dropshade {

/// Everything the program asks of the desktop, one of each.
struct Platform {
    std::unique_ptr<ApplicationInstance> instance;
    std::unique_ptr<Scheduler> scheduler;
    /// Uses the scheduler, and so goes before it.
    std::unique_ptr<UserDefaults> defaults;
    std::unique_ptr<BackgroundQueue> backgroundQueue;
    std::unique_ptr<Pasteboard> pasteboard;
    std::unique_ptr<DesktopAppearance> appearance;
    std::unique_ptr<ScreenSampler> screenSampler;
    std::unique_ptr<StatusItem> statusItem;
    std::unique_ptr<HotKeyRegistrar> hotKeys;
    std::unique_ptr<DesktopShortcuts> desktopShortcuts;
    std::unique_ptr<KeyboardLayout> keyboardLayout;
    std::unique_ptr<SoundPlayer> soundPlayer;
    /// Another one, which plays what the user tries out.
    std::unique_ptr<SoundPlayer> previewPlayer;
    std::unique_ptr<FeedFetcher> feedFetcher;
    std::unique_ptr<CloudKeyValueStore> cloudStore;
    std::unique_ptr<CloudAccounts> cloudAccounts;
    std::unique_ptr<FilePanels> filePanels;
    std::unique_ptr<Alerts> alerts;
    std::unique_ptr<LoginItem> loginItem;
};

} // namespace dropshade
