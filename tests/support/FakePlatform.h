// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Platform.h"
#include "support/FakeAlerts.h"
#include "support/FakeAppearance.h"
#include "support/FakeApplicationInstance.h"
#include "support/FakeCloudAccounts.h"
#include "support/FakeDesktopShortcuts.h"
#include "support/FakeFeedFetcher.h"
#include "support/FakeFilePanels.h"
#include "support/FakeHotKeyRegistrar.h"
#include "support/FakeKeyboardLayout.h"
#include "support/FakeLoginItem.h"
#include "support/FakePasteboard.h"
#include "support/FakeScreenSampler.h"
#include "support/FakeSoundPlayer.h"
#include "support/FakeStatusItem.h"
#include "support/ManualBackgroundQueue.h"
#include "support/ManualScheduler.h"
#include "support/MemoryCloudStore.h"
#include "support/MemoryDefaults.h"

namespace dropshade {

/// A desktop made of fakes. The references stay good for as long as whoever takes the platform.
struct FakePlatform {
    Platform platform;
    FakeApplicationInstance& instance = put<FakeApplicationInstance>(platform.instance);
    MemoryDefaults& defaults = put<MemoryDefaults>(platform.defaults);
    ManualScheduler& scheduler = put<ManualScheduler>(platform.scheduler);
    ManualBackgroundQueue& backgroundQueue = put<ManualBackgroundQueue>(platform.backgroundQueue);
    FakePasteboard& pasteboard = put<FakePasteboard>(platform.pasteboard);
    FakeAppearance& appearance = put<FakeAppearance>(platform.appearance);
    FakeScreenSampler& screenSampler = put<FakeScreenSampler>(platform.screenSampler);
    FakeStatusItem& statusItem = put<FakeStatusItem>(platform.statusItem);
    FakeHotKeyRegistrar& hotKeys = put<FakeHotKeyRegistrar>(platform.hotKeys);
    FakeDesktopShortcuts& desktopShortcuts = put<FakeDesktopShortcuts>(platform.desktopShortcuts);
    FakeKeyboardLayout& keyboardLayout = put<FakeKeyboardLayout>(platform.keyboardLayout);
    FakeSoundPlayer& soundPlayer = put<FakeSoundPlayer>(platform.soundPlayer);
    FakeSoundPlayer& previewPlayer = put<FakeSoundPlayer>(platform.previewPlayer);
    FakeFeedFetcher& feedFetcher = put<FakeFeedFetcher>(platform.feedFetcher);
    MemoryCloudStore& cloudStore = put<MemoryCloudStore>(platform.cloudStore);
    FakeCloudAccounts& cloudAccounts = put<FakeCloudAccounts>(platform.cloudAccounts);
    FakeFilePanels& filePanels = put<FakeFilePanels>(platform.filePanels);
    FakeAlerts& alerts = put<FakeAlerts>(platform.alerts);
    FakeLoginItem& loginItem = put<FakeLoginItem>(platform.loginItem);

private:
    template <typename Fake, typename Seam>
    static Fake& put(std::unique_ptr<Seam>& place) {
        auto fake = std::make_unique<Fake>();
        Fake& reference = *fake;
        place = std::move(fake);
        return reference;
    }
};

} // namespace dropshade
