// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
//
// From the release of a shortcut's key to its action, on the X server of $DISPLAY, by real keys
// from another connection. bench/menu_bench.py runs it on a virtual one. Fails beyond the budget.

#include "KeyboardShortcuts/KeyboardShortcuts.h"
#include "platform/ModifierKeys.h"
#include "platform/linux/VirtualKeyCodes.h"
#include "platform/linux/X11HotKeyRegistrar.h"
#include "platform/linux/XkbKeyboardLayout.h"
#include "support/MemoryDefaults.h"
#include "support/X11Hand.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

constexpr int rounds = 300;
constexpr double budgetMilliseconds = 10.0;
constexpr quint32 keyC = 8;

double percentile(const std::vector<double>& sorted, double share) {
    return sorted[static_cast<std::size_t>(share * static_cast<double>(sorted.size() - 1))];
}

} // namespace

int main(int argc, char** argv) {
    using namespace dropshade;
    const QApplication application(argc, argv);
    MemoryDefaults defaults;
    X11HotKeyRegistrar registrar;
    const XkbKeyboardLayout layout;
    KeyboardShortcuts shortcuts(defaults, registrar, layout);
    const ShortcutName name{QStringLiteral("bench")};
    shortcuts.setShortcut(Shortcut{keyC, controlKey}, name);

    X11Hand hand;
    const auto key = static_cast<std::uint8_t>(*linuxKeyCode(keyC) + xkbKeyCodeOffset);
    const std::uint8_t control = hand.keyOf(XK_Control_L);
    QElapsedTimer sinceRelease;
    std::vector<double> milliseconds;
    const auto press = [&] {
        hand.press(control);
        hand.press(key);
        sinceRelease.start();
        hand.release(key);
        hand.release(control);
    };
    shortcuts.onKeyUp(name, [&] {
        milliseconds.push_back(static_cast<double>(sinceRelease.nsecsElapsed()) / 1e6);
        if (milliseconds.size() == rounds)
            QApplication::quit();
        else
            QTimer::singleShot(2, press);
    });
    QTimer::singleShot(0, press);
    QApplication::exec();

    std::sort(milliseconds.begin(), milliseconds.end());
    const double high = percentile(milliseconds, 0.95);
    std::printf("key release to action: median %.2f ms, 95th percentile %.2f ms, worst %.2f ms\n",
                percentile(milliseconds, 0.5), high, milliseconds.back());
    return high > budgetMilliseconds ? 1 : 0;
}
