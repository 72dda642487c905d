// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
// A seeded monkey at the palettes window: clicks, drags, keys, menus, popovers and changes by
// another machine, in any order. After each step the store must hold together. Arguments: seconds,
// seed.

#include "MonkeyHands.h"

#include <QElapsedTimer>

#include <cstdio>
#include <cstdlib>
#include <unistd.h>

namespace dropshade {
namespace {

long residentKilobytes() {
    long size = 0;
    long resident = 0;
    if (FILE* file = std::fopen("/proc/self/statm", "r")) {
        if (std::fscanf(file, "%ld %ld", &size, &resident) != 2)
            resident = 0;
        std::fclose(file);
    }
    return resident * (sysconf(_SC_PAGESIZE) / 1024);
}

int run(int seconds, unsigned seed) {
    std::printf("seed %u, %d s\n", seed, seconds);
    std::fflush(stdout);
    MonkeyHands monkey(seed);
    QElapsedTimer time;
    time.start();
    qint64 steps = 0;
    long settled = 0;
    while (time.elapsed() < qint64(seconds) * 1000) {
        monkey.step();
        ++steps;
        if (const QString fault = monkey.fault(); !fault.isEmpty()) {
            std::printf("step %lld: %s\n", static_cast<long long>(steps), qPrintable(fault));
            return 1;
        }
        // The first steps fill caches.
        if (settled == 0 && time.elapsed() > qint64(seconds) * 250)
            settled = residentKilobytes();
    }
    const long grown = residentKilobytes() - settled;
    std::printf("%lld steps, resident %ld kB, grown by %ld kB since a quarter of the time\n",
                static_cast<long long>(steps), residentKilobytes(), grown);
    return 0;
}

} // namespace
} // namespace dropshade

int main(int count, char** arguments) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(count, arguments);
    const int seconds = count > 1 ? std::atoi(arguments[1]) : 600;
    const unsigned seed = count > 2 ? unsigned(std::strtoul(arguments[2], nullptr, 10)) : 1;
    return dropshade::run(seconds, seed);
}
