// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT

// SyncSoak [STEPS [SEED]]: the simulation of SyncSimulationTest for a million steps, or as many as
// are given, with two to five machines at a time. Ends with 1 at the first broken promise, and
// says how to repeat it.

#include "Simulation.h"
#include "support/DefaultsFolder.h"
#include "support/Seed.h"

#include <cstdio>
#include <cstdlib>

namespace {

constexpr long stepsOfALife = 5000;
constexpr int stepsBetween = 100;

/// What went wrong; empty where nothing did.
QString live(int machineCount, std::uint64_t seed, long stepCount) {
    using namespace dropshade;
    const DefaultsFolder folder(DefaultsFolder::Medium::Memory);
    Simulation simulation(machineCount, seed, folder.folder().path());
    for (long step = 1; step <= stepCount; ++step) {
        simulation.step();
        if (step % stepsBetween != 0)
            continue;
        if (!simulation.settle())
            return QStringLiteral("pushes without end");
        if (!simulation.difference().isEmpty())
            return simulation.difference();
        if (!simulation.brokenPromise().isEmpty())
            return simulation.brokenPromise();
    }
    return {};
}

} // namespace

int main(int argc, char** argv) {
    const long stepCount = argc > 1 ? std::atol(argv[1]) : 1'000'000;
    const std::uint64_t seed =
        argc > 2 ? std::strtoull(argv[2], nullptr, 10) : dropshade::testSeed();
    for (long step = 0; step < stepCount; step += stepsOfALife) {
        const std::uint64_t lifeSeed = seed + std::uint64_t(step / stepsOfALife);
        const int machineCount = 2 + int(lifeSeed % 4);
        const QString trouble =
            live(machineCount, lifeSeed, std::min(stepsOfALife, stepCount - step));
        if (!trouble.isEmpty()) {
            std::printf("%s\nto repeat this: SyncSoak %ld %llu\n", qPrintable(trouble),
                        stepsOfALife, static_cast<unsigned long long>(lifeSeed));
            return 1;
        }
        std::printf("%ld steps, %d machines\n", step + stepsOfALife, machineCount);
        std::fflush(stdout);
    }
    return 0;
}
