// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT

// The seams have no code of their own; this file gives their signals a home.
#include "platform/Alerts.h"
#include "platform/ApplicationInstance.h"
#include "platform/CloudKeyValueStore.h"
#include "platform/DesktopAppearance.h"
#include "platform/FilePanels.h"
#include "platform/HotKeyRegistrar.h"
#include "platform/Pasteboard.h"
#include "platform/Scheduler.h"
#include "platform/ScreenSampler.h"
#include "platform/StatusItem.h"
#include "platform/UserDefaults.h"
