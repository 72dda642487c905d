// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#include "platform/linux/SqliteDefaults.h"

#include <QFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <fcntl.h>
#include <unistd.h>

namespace dropshade {
namespace {

const QString key = QStringLiteral("colorFormat");

/// A store as it is after some weeks: forty short settings and a list of recent colours.
class UsedStore {
public:
    UsedStore() {
        SqliteDefaults store(path());
        for (int number = 0; number < 40; ++number) {
            store.setValue(QStringLiteral("setting%1").arg(number), qint64(number));
        }
        store.setValue(QStringLiteral("recentColors"), QByteArray(8000, 'x'));
        store.setValue(key, QStringLiteral("hex"));
    }
    [[nodiscard]] QString path() const { return m_folder.filePath(QStringLiteral("d.sqlite")); }

private:
    QTemporaryDir m_folder;
};

void openAndReadFirst(benchmark::State& state) {
    const UsedStore used;
    for (auto _ : state) {
        const SqliteDefaults store(used.path());
        benchmark::DoNotOptimize(store.value(key));
    }
}
BENCHMARK(openAndReadFirst)->Unit(benchmark::kMicrosecond);

void readString(benchmark::State& state) {
    const UsedStore used;
    const SqliteDefaults store(used.path());
    for (auto _ : state) {
        benchmark::DoNotOptimize(store.value(key));
    }
}
BENCHMARK(readString)->Unit(benchmark::kMicrosecond);

void readUnset(benchmark::State& state) {
    const UsedStore used;
    const SqliteDefaults store(used.path());
    const QString unset = QStringLiteral("unset");
    for (auto _ : state) {
        benchmark::DoNotOptimize(store.value(unset));
    }
}
BENCHMARK(readUnset)->Unit(benchmark::kMicrosecond);

void writeInteger(benchmark::State& state) {
    const UsedStore used;
    SqliteDefaults store(used.path());
    qint64 number = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(store.setValue(key, ++number));
    }
}
BENCHMARK(writeInteger)->Unit(benchmark::kMicrosecond)->UseRealTime();

void writeThreeMegabytes(benchmark::State& state) {
    const UsedStore used;
    SqliteDefaults store(used.path());
    const QByteArray palettes(3000000, 'x');
    for (auto _ : state) {
        benchmark::DoNotOptimize(store.setValue(key, palettes));
    }
}
BENCHMARK(writeThreeMegabytes)->Unit(benchmark::kMicrosecond)->UseRealTime();

/// The floor below every write: one page appended to a file and forced to the disk.
void appendAndSync(benchmark::State& state) {
    const UsedStore used;
    const QByteArray page(4096, 'x');
    const int file = ::open(QFile::encodeName(used.path() + QStringLiteral(".floor")).constData(),
                            O_CREAT | O_WRONLY | O_APPEND | O_CLOEXEC, 0600);
    for (auto _ : state) {
        benchmark::DoNotOptimize(::write(file, page.constData(), 4096) + ::fdatasync(file));
    }
    ::close(file);
}
BENCHMARK(appendAndSync)->Unit(benchmark::kMicrosecond)->UseRealTime();

} // namespace
} // namespace dropshade
