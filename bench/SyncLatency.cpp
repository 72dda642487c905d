// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT

// SyncLatency: two whole machines over a real folder and a real etcd, both on this computer. How
// long until an edit on one is seen on the other, without the delays that let a burst of edits
// pass; how much goes over the wire; and how long the network keeps the main thread at most.

#include "app/SettingsReaders.h"
#include "palettes/PaletteJson.h"
#include "platform/linux/QtScheduler.h"
#include "support/CloudMember.h"
#include "support/EtcdServer.h"
#include "support/LargeLibrary.h"
#include "support/LongestTurn.h"
#include "sync/CloudPalettes.h"
#include "sync/SyncValueCodec.h"

#include <QApplication>
#include <QTcpServer>

#include <algorithm>
#include <cstdio>

namespace dropshade {
namespace {

/// Between a client and the server: counts what passes.
class CountingProxy : public QObject {
public:
    explicit CountingProxy(quint16 target) {
        m_server.listen(QHostAddress::LocalHost);
        connect(&m_server, &QTcpServer::newConnection, this, [this, target] {
            QTcpSocket* client = m_server.nextPendingConnection();
            auto* server = new QTcpSocket(client);
            server->connectToHost(QHostAddress(QHostAddress::LocalHost), target);
            connect(client, &QTcpSocket::readyRead, server, [this, client, server] {
                const QByteArray bytes = client->readAll();
                sent += bytes.size();
                requests += int(bytes.count("POST /"));
                server->write(bytes);
            });
            connect(server, &QTcpSocket::readyRead, client, [this, client, server] {
                const QByteArray bytes = server->readAll();
                received += bytes.size();
                client->write(bytes);
            });
            connect(client, &QTcpSocket::disconnected, client, &QObject::deleteLater);
        });
    }
    [[nodiscard]] QString address() const {
        return QStringLiteral("http://127.0.0.1:%1").arg(m_server.serverPort());
    }

    qint64 sent = 0;
    qint64 received = 0;
    int requests = 0;

private:
    QTcpServer m_server;
};

/// The median of the times until `second` sees what `first` writes, in milliseconds.
double latency(CloudMember& first, CloudMember& second) {
    std::vector<double> times;
    for (int round = 0; round < 30; ++round) {
        const CloudValue value = compressedValue(*encodedPalette(largePalette(round)));
        QElapsedTimer timer;
        timer.start();
        first.write(QStringLiteral("palette.X"), value);
        while (second.store().value(QStringLiteral("palette.X")) != value && timer.elapsed() < 9000)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 5);
        times.push_back(double(timer.nsecsElapsed()) / 1e6);
    }
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

/// A library goes up from one machine and comes down to another.
void library(const char* name, CloudMember& first,
             const std::function<std::unique_ptr<CloudMember>()>& makeSecond, int count) {
    for (int number = 0; number < count; ++number) {
        const Palette palette = largePalette(number);
        first.store().setValue(cloudKeys::palette(palette.id()),
                               compressedValue(*encodedPalette(palette)));
    }
    QElapsedTimer timer;
    timer.start();
    const LongestTurn up;
    first.store().synchronize();
    while (first.store().hasUnsent())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 20);
    const double upTime = double(timer.elapsed());
    timer.restart();
    const LongestTurn down;
    const auto second = makeSecond();
    bool isThere = false;
    QObject::connect(&second->store(), &CloudKeyValueStore::didChangeExternally,
                     [&](const QStringList& keys) { isThere = isThere || keys.size() >= count; });
    while (!isThere && timer.elapsed() < 60'000)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 20);
    std::printf(
        "%s, %d palettes: up in %.0f ms (longest turn %.1f ms), down in %.0f ms (%.1f ms)\n", name,
        count, upTime, up.milliseconds(), double(timer.elapsed()), down.milliseconds());
}

void measureFolder() {
    const QTemporaryDir base;
    const QString folder = base.filePath(QStringLiteral("shared"));
    const auto member = [&](int number) {
        return std::make_unique<FolderMember>(
            folder, base.filePath(QStringLiteral("%1.sqlite").arg(number)));
    };
    const auto first = member(1);
    {
        const auto second = member(2);
        std::printf("folder: an edit is seen after %.1f ms\n", latency(*first, *second));
    }
    for (const int count : {10, 100, 1000})
        library(
            "folder", *first, [&] { return member(count); }, count);
}

void measureEtcd() {
    const QTemporaryDir base;
    EtcdServer server;
    if (!server.isUp())
        return;
    CountingProxy proxy(quint16(QUrl(server.address()).port()));
    const auto member = [&](int number, const QString& address) {
        return std::make_unique<CloudMember>(
            [address](const CloudAccount&) {
                return std::make_unique<EtcdTransport>(
                    accountAt(address), [](const CloudAccount&) { return QString(); },
                    EtcdTransport::Timing());
            },
            base.filePath(QStringLiteral("%1.sqlite").arg(number)));
    };
    const auto first = member(1, server.address());
    {
        const auto second = member(2, server.address());
        std::printf("etcd: an edit is seen after %.1f ms\n", latency(*first, *second));
    }
    {
        const auto counted = member(3, proxy.address());
        QTest::qWait(1000); // To connect and list.
        proxy.sent = proxy.received = proxy.requests = 0;
        const QByteArray value = compressedValue(*encodedPalette(largePalette(77)));
        // As the engine does it: the palette, the tombstones, the order and its moment.
        counted->store().setValue(QStringLiteral("palette.tombstones"), compressedValue("[]"));
        counted->store().setValue(QStringLiteral("palette.X"), value);
        counted->store().setValue(QStringLiteral("palette.order"), compressedValue("[]"));
        counted->write(QStringLiteral("palette.order.updatedAt"), 1.0);
        counted->hasSentAll();
        QTest::qWait(300); // For the echo of the watch.
        std::printf("etcd: a push of %lld bytes of palette: %d requests, %lld bytes sent, %lld "
                    "received with the echo\n",
                    qint64(value.size()), proxy.requests, proxy.sent, proxy.received);
    }
    for (const int count : {10, 100, 1000})
        library(
            "etcd", *first, [&] { return member(count, server.address()); }, count);
}

} // namespace
} // namespace dropshade

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    dropshade::measureFolder();
    dropshade::measureEtcd();
    return 0;
}
