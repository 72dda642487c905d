// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT

// Stands in for libFuzzer where a harness runs as a test: each file of the folders given goes
// through the harness once. A folder without files is a mistake in the test's registration.

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

std::vector<std::uint8_t> bytesOf(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

} // namespace

int main(int argumentCount, char** arguments) {
    int inputCount = 0;
    for (int index = 1; index < argumentCount; ++index) {
        for (const auto& entry : std::filesystem::recursive_directory_iterator(arguments[index])) {
            if (!entry.is_regular_file())
                continue;
            // Named before it runs, so that a crash can be told by the last line.
            std::printf("%s\n", entry.path().c_str());
            std::fflush(stdout);
            const std::vector<std::uint8_t> bytes = bytesOf(entry.path());
            LLVMFuzzerTestOneInput(bytes.data(), bytes.size());
            ++inputCount;
        }
    }
    std::printf("%d inputs\n", inputCount);
    return inputCount > 0 ? 0 : 1;
}
