// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QProcess>

#include <csignal>
#include <sys/prctl.h>

namespace dropshade {

/// Has `process`, once started, end with the thread that started it, even where that crashes.
inline void endWithThisThread(QProcess& process) {
    process.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGKILL); });
}

} // namespace dropshade
