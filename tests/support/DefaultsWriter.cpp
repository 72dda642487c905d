// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT

// DefaultsWriter <file> <prefix> <count>: the process behind WriterProcess. Each write is reported
// by one character: "+" after it was stored, "-" after it was refused, and "!" after it was refused
// before it had waited its due.
#include "platform/linux/SqliteDefaults.h"
#include "support/WriterProcess.h"

#include <unistd.h>

#include <chrono>
#include <cstdlib>

int main(int argc, char** argv) {
    if (argc != 4) {
        return EXIT_FAILURE;
    }
    dropshade::SqliteDefaults store(QFile::decodeName(argv[1]));
    const QString prefix = QString::fromUtf8(argv[2]);
    const int count = std::atoi(argv[3]);
    for (int number = 0; number < count; ++number) {
        const auto begin = std::chrono::steady_clock::now();
        const bool isStored =
            store.setValue(dropshade::writtenKey(prefix, number), dropshade::writtenValue(number));
        const auto waited = std::chrono::steady_clock::now() - begin;
        const bool isInTime = waited >= std::chrono::milliseconds(200);
        if (::write(STDOUT_FILENO, isStored ? "+" : isInTime ? "-" : "!", 1) != 1) {
            return EXIT_FAILURE;
        }
    }
    return EXIT_SUCCESS;
}
