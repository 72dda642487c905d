// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT

// The main of every benchmark. A benchmark "what/ours" is compared with "what/peer" of the same
// run, since a ratio holds on any machine where a time holds on one.

#include <benchmark/benchmark.h>

#include <cstdio>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace {

constexpr std::string_view oursSuffix = "/ours";
constexpr std::string_view peerSuffix = "/peer";

class RatioReporter : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& runs) override {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& run : runs) {
            if (!run.error_occurred)
                m_times[run.benchmark_name()] = run.GetAdjustedCPUTime();
        }
    }

    void Finalize() override {
        for (const auto& [name, time] : m_times) {
            if (!name.ends_with(oursSuffix))
                continue;
            const std::string what = name.substr(0, name.size() - oursSuffix.size());
            const auto peer = m_times.find(what + std::string(peerSuffix));
            if (peer != m_times.end())
                std::printf("%s: %.2f times its peer's time\n", what.c_str(), time / peer->second);
        }
    }

private:
    std::map<std::string, double> m_times;
};

} // namespace

int main(int argumentCount, char** arguments) {
    benchmark::Initialize(&argumentCount, arguments);
    if (benchmark::ReportUnrecognizedArguments(argumentCount, arguments))
        return 1;
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    benchmark::Shutdown();
    return 0;
}
