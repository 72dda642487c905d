// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT

// ReplicaWriter BASE PREFIX COUNT: writes COUNT keys into the replica in the folder BASE, which
// meets others in BASE/shared, and reports each with a + once it has been synchronized. Ends when
// all of them have gone out.

#include "platform/linux/FolderTransport.h"
#include "platform/linux/QtScheduler.h"
#include "platform/linux/ReplicatedKeyValueStore.h"
#include "support/MemoryDefaults.h"
#include "support/WriterProcess.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QThread>

#include <cstdio>

int main(int argc, char** argv) {
    using namespace dropshade;
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const QString base = arguments.at(1);
    MemoryDefaults defaults;
    const QtScheduler scheduler;
    ReplicatedKeyValueStore store(
        defaults, scheduler,
        {[base](const CloudAccount&) {
             return std::make_unique<FolderTransport>(base + QStringLiteral("/shared"));
         },
         [base](const CloudAccount&) { return base + QStringLiteral("/writer.sqlite"); }});
    store.open([](const CloudConflict& conflict) { return conflict.theirs; });
    for (int number = 0; number < arguments.at(3).toInt(); ++number) {
        store.setValue(writtenKey(arguments.at(2), number), writtenValue(number));
        store.synchronize();
        std::putchar('+');
        std::fflush(stdout);
        QCoreApplication::processEvents();
    }
    // To close doesn't wait for the folder: what has not gone out goes when the replica is next
    // opened.
    const QDeadlineTimer patience(20'000);
    while (store.hasUnsent() && !patience.hasExpired()) {
        QCoreApplication::processEvents();
        QThread::msleep(1);
    }
    store.close();
    return 0;
}
