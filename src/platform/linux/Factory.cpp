// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/linux/Factory.h"

#include "platform/linux/AutostartLoginItem.h"
#include "platform/linux/CloudFactory.h"
#include "platform/linux/CompanionFiles.h"
#include "platform/linux/DBusApplicationInstance.h"
#include "platform/linux/LazyFeedFetcher.h"
#include "platform/linux/NullDesktopShortcuts.h"
#include "platform/linux/NullHotKeyRegistrar.h"
#include "platform/linux/PoolBackgroundQueue.h"
#include "platform/linux/PortalAppearance.h"
#include "platform/linux/PortalScreenSampler.h"
#include "platform/linux/PortalShortcuts.h"
#include "platform/linux/QtScheduler.h"
#include "platform/linux/SoundProcess.h"
#include "platform/linux/SqliteDefaults.h"
#include "platform/linux/TrayStatusItem.h"
#include "platform/linux/WaylandPasteboard.h"
#include "platform/linux/X11Compositing.h"
#include "platform/linux/X11HotKeyRegistrar.h"
#include "platform/linux/X11Pasteboard.h"
#include "platform/linux/X11ScreenSampler.h"
#include "platform/linux/XkbKeyboardLayout.h"

#include <QGuiApplication>

namespace dropshade {

namespace {

bool isX11() {
    return qGuiApp->nativeInterface<QNativeInterface::QX11Application>() != nullptr;
}

std::unique_ptr<ScreenSampler> makeSampler(const DesktopAppearance& appearance) {
    if (!isX11())
        return std::make_unique<PortalScreenSampler>();
    return std::make_unique<X11ScreenSampler>([&appearance] {
        return Theme::of(appearance.isDark() ? Theme::Scheme::Dark : Theme::Scheme::Light);
    });
}

std::unique_ptr<Pasteboard> makePasteboard() {
    if (isX11())
        return std::make_unique<X11Pasteboard>();
    return std::make_unique<WaylandPasteboard>();
}

std::unique_ptr<HotKeyRegistrar> makeHotKeys() {
    if (isX11())
        return std::make_unique<X11HotKeyRegistrar>();
    return std::make_unique<NullHotKeyRegistrar>();
}

std::unique_ptr<DesktopShortcuts> makeDesktopShortcuts() {
    if (isX11())
        return std::make_unique<NullDesktopShortcuts>();
    return std::make_unique<PortalShortcuts>();
}

std::unique_ptr<SoundPlayer> makeSoundPlayer() {
    return std::make_unique<SoundProcess>(
        [] { return companionFile(QStringLiteral("dropshade-sound")); });
}

} // namespace

Platform makePlatform() {
    if (!isX11())
        introduceToPortal();
    Platform platform;
    platform.instance = std::make_unique<DBusApplicationInstance>();
    platform.scheduler = std::make_unique<QtScheduler>();
    platform.defaults =
        std::make_unique<SqliteDefaults>(SqliteDefaults::defaultPath(), platform.scheduler.get());
    platform.backgroundQueue = std::make_unique<PoolBackgroundQueue>();
    platform.pasteboard = makePasteboard();
    platform.appearance = std::make_unique<PortalAppearance>(windowsAreBlended, isX11());
    platform.screenSampler = makeSampler(*platform.appearance);
    platform.statusItem = std::make_unique<TrayStatusItem>();
    platform.hotKeys = makeHotKeys();
    platform.desktopShortcuts = makeDesktopShortcuts();
    platform.keyboardLayout = std::make_unique<XkbKeyboardLayout>();
    platform.soundPlayer = makeSoundPlayer();
    platform.previewPlayer = makeSoundPlayer();
    platform.feedFetcher = std::make_unique<LazyFeedFetcher>(
        [] { return companionFile(QStringLiteral("dropshade-network.so")); });
    platform.cloudStore = makeCloudStore(*platform.defaults, *platform.scheduler);
    platform.cloudAccounts = makeCloudAccounts();
    platform.loginItem = std::make_unique<AutostartLoginItem>(AutostartLoginItem::ofSession());
    return platform;
}

} // namespace dropshade
