// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT

// Whole machines in one process, under random edits, deletions, reorderings, partitions, lost
// answers, restarts and kills, with clocks that are minutes apart.

#include "Simulation.h"
#include "support/DefaultsFolder.h"
#include "support/QtPrinters.h"
#include "support/Seed.h"

#include <gtest/gtest.h>

namespace dropshade {
namespace {

void run(int machineCount, int stepCount, int stepsBetween) {
    const std::uint64_t seed = testSeed();
    SCOPED_TRACE(seedTrace(seed));
    const DefaultsFolder folder(DefaultsFolder::Medium::Memory);
    Simulation simulation(machineCount, seed, folder.folder().path());
    for (int step = 1; step <= stepCount; ++step) {
        simulation.step();
        if (step % stepsBetween != 0)
            continue;
        ASSERT_TRUE(simulation.settle()) << "pushes without end after step " << step;
        ASSERT_EQ(simulation.difference(), QString()) << "after step " << step;
        ASSERT_EQ(simulation.brokenPromise(), QString()) << "after step " << step;
    }
}

TEST(SyncSimulation, TwoMachinesAgreeWheneverTheyComeToRest) {
    run(2, 5000, 50);
}

TEST(SyncSimulation, FiveMachinesAgreeWheneverTheyComeToRest) {
    run(5, 5000, 100);
}

} // namespace
} // namespace dropshade
