// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/linux/etcd/EtcdClient.h"
#include "platform/linux/etcd/EtcdTransport.h"
#include "support/ChildProcess.h"

#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include <signal.h>

#include <optional>

namespace dropshade {

inline int freePort() {
    QTcpServer server;
    server.listen(QHostAddress::LocalHost);
    return server.serverPort();
}

struct EtcdOptions {
    QStringList arguments;
    /// Certificate, key and authority for TLS; empty for plain HTTP.
    QString certificate;
    QString key;
    QString name = QStringLiteral("one");
    int clientPort = freePort();
    int peerPort = freePort();
    /// All members as name=url; empty for this one alone.
    QString cluster;
};

/// A real etcd on loopback, killed at the end of the test. It may be one of a cluster.
class EtcdServer {
public:
    explicit EtcdServer(EtcdOptions options = {}) : m_options(std::move(options)) { launch(); }
    ~EtcdServer() { kill(); }

    [[nodiscard]] QString address() const {
        const QString scheme =
            m_options.certificate.isEmpty() ? QStringLiteral("http") : QStringLiteral("https");
        return QStringLiteral("%1://127.0.0.1:%2").arg(scheme).arg(m_options.clientPort);
    }
    [[nodiscard]] static QString peerUrl(int port) {
        return QStringLiteral("http://127.0.0.1:%1").arg(port);
    }

    void launch() {
        const QString peer = peerUrl(m_options.peerPort);
        const QString cluster = m_options.cluster.isEmpty()
                                    ? m_options.name + QLatin1Char('=') + peer
                                    : m_options.cluster;
        QStringList arguments = {
            QStringLiteral("--name"),
            m_options.name,
            QStringLiteral("--data-dir"),
            dataFolder(),
            QStringLiteral("--listen-client-urls"),
            address(),
            QStringLiteral("--advertise-client-urls"),
            address(),
            QStringLiteral("--listen-peer-urls"),
            peer,
            QStringLiteral("--initial-advertise-peer-urls"),
            peer,
            QStringLiteral("--initial-cluster"),
            cluster,
            QStringLiteral("--heartbeat-interval"),
            QStringLiteral("100"),
            QStringLiteral("--election-timeout"),
            QStringLiteral("1000"),
            // What is lost with the power is nobody's concern here, and the disk is shared.
            QStringLiteral("--unsafe-no-fsync"),
        };
        if (!m_options.certificate.isEmpty())
            arguments += {QStringLiteral("--cert-file"), m_options.certificate,
                          QStringLiteral("--key-file"), m_options.key};
        m_process.setProcessChannelMode(QProcess::MergedChannels);
        m_process.setStandardOutputFile(m_folder.filePath(QStringLiteral("log.txt")));
        endWithThisThread(m_process);
        m_process.start(QStringLiteral("etcd"), supported(arguments + m_options.arguments));
        m_process.waitForStarted();
    }
    /// Waits until it takes connections.
    bool isUp() {
        return QTest::qWaitFor(
            [this] {
                QTcpSocket socket;
                socket.connectToHost(QHostAddress(QHostAddress::LocalHost),
                                     quint16(m_options.clientPort));
                return socket.waitForConnected(200);
            },
            15'000);
    }
    void kill() {
        if (m_process.state() == QProcess::NotRunning)
            return;
        signal(SIGCONT);
        m_process.kill();
        m_process.waitForFinished();
    }
    void stop() {
        m_process.terminate();
        m_process.waitForFinished();
    }
    void signal(int number) { ::kill(pid_t(m_process.processId()), number); }
    void wipe() { QDir(dataFolder()).removeRecursively(); }

    [[nodiscard]] QByteArray log() const {
        QFile file(m_folder.filePath(QStringLiteral("log.txt")));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

private:
    [[nodiscard]] QString dataFolder() const { return m_folder.filePath(QStringLiteral("data")); }

    /// Without the options that this version of etcd doesn't know.
    static QStringList supported(QStringList arguments) {
        static const QByteArray help = [] {
            QProcess process;
            process.start(QStringLiteral("etcd"), {QStringLiteral("--help")});
            process.waitForFinished();
            return process.readAllStandardOutput() + process.readAllStandardError();
        }();
        if (!help.contains("--unsafe-no-fsync"))
            arguments.removeAll(QStringLiteral("--unsafe-no-fsync"));
        return arguments;
    }

    EtcdOptions m_options;
    QTemporaryDir m_folder;
    QProcess m_process;
};

/// Posts to a server as its administrator, and gives the answer when it has come.
inline EtcdReply postTo(const CloudAccount& account, const char* path, const QByteArray& body,
                        const QString& password = {}) {
    EtcdClient client(account, 10'000);
    client.setPassword(password);
    std::optional<EtcdReply> reply;
    client.logIn([&](const EtcdReply&) {
        client.post(path, body, [&](const EtcdReply& answer) { reply = answer; });
    });
    EXPECT_TRUE(QTest::qWaitFor([&] { return reply.has_value(); }, 15'000)) << path;
    return reply.value_or(EtcdReply());
}

inline CloudAccount accountAt(const QString& address) {
    CloudAccount account;
    account.kind = CloudAccount::Kind::Etcd;
    account.address = address;
    return account;
}

/// Quick to notice and to try again.
inline EtcdTransport::Timing quickTiming() {
    return {1500, 1000, 50, 400};
}

/// Makes a transport for a member.
inline auto etcdTransport(const CloudAccount& account, const QString& password = {}) {
    return [account, password](const CloudAccount&) {
        return std::make_unique<EtcdTransport>(
            account, [password](const CloudAccount&) { return password; }, quickTiming());
    };
}

/// A user "ann" with the password "secret", who may use her own keys, besides root, password
/// "root".
inline void enableUsers(const CloudAccount& account) {
    const auto post = [&](const char* path, const char* body) {
        const EtcdReply reply = postTo(account, path, body);
        EXPECT_EQ(reply.problem, EtcdReply::Problem::None) << reply.words.toStdString();
    };
    post("/v3/auth/user/add", R"({"name":"root","password":"root"})");
    post("/v3/auth/role/add", R"({"name":"root"})");
    post("/v3/auth/user/grant", R"({"user":"root","role":"root"})");
    post("/v3/auth/user/add", R"({"name":"ann","password":"secret"})");
    post("/v3/auth/role/add", R"({"name":"ann"})");
    const QByteArray prefix = "dropshade/ann/";
    const QByteArray grant = R"({"name":"ann","perm":{"permType":"READWRITE","key":")" +
                             prefix.toBase64() + R"(","range_end":")" +
                             etcd::endOf(prefix).toBase64() + R"("}})";
    post("/v3/auth/role/grant", grant.constData());
    post("/v3/auth/user/grant", R"({"user":"ann","role":"ann"})");
    post("/v3/auth/enable", "{}");
}

} // namespace dropshade
