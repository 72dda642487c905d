// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT

// DefaultsLocker <file> ...: the process behind DefaultsLock. It takes the whole file, reports that
// by a "+", and keeps it until it is killed.
#include "platform/linux/SqliteDatabase.h"

#include <unistd.h>

#include <cstdlib>

int main(int argc, char** argv) {
    using dropshade::SqliteDatabase;
    if (argc < 2)
        return EXIT_FAILURE;
    SqliteDatabase database(argv[1], SqliteDatabase::Access::ReadWrite);
    const int result = database.execute("PRAGMA locking_mode = EXCLUSIVE; BEGIN EXCLUSIVE; "
                                        "DELETE FROM defaults; ROLLBACK");
    if (result != SQLITE_OK || ::write(STDOUT_FILENO, "+", 1) != 1)
        return EXIT_FAILURE;
    for (;;)
        ::pause();
}
