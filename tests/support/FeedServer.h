// Copyright (c) 2026 The Dropshade authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QTcpServer>
#include <QTcpSocket>
#include <QUrl>

#include <functional>
#include <memory>

namespace dropshade {

/// A web server on loopback, in the test's own thread. What it has not been told to serve it
/// answers with 404.
class FeedServer : public QObject {
public:
    using Handler = std::function<void(QTcpSocket&)>;

    /// Another kind of server may be given, such as one with TLS.
    explicit FeedServer(std::unique_ptr<QTcpServer> server = std::make_unique<QTcpServer>(),
                        const char* scheme = "http")
        : m_server(std::move(server)), m_scheme(scheme) {
        m_server->listen(QHostAddress::LocalHost);
        connect(m_server.get(), &QTcpServer::pendingConnectionAvailable, this,
                [this] { take(*m_server->nextPendingConnection()); });
    }

    [[nodiscard]] QUrl url(const char* path) const {
        return QUrl(QStringLiteral("%1://127.0.0.1:%2%3")
                        .arg(QLatin1String(m_scheme))
                        .arg(m_server->serverPort())
                        .arg(QLatin1String(path)));
    }

    /// From now on nobody is let in.
    void close() { m_server->close(); }

    void serve(const char* path, const QByteArray& document) {
        reply(path, "200 OK", document, "Content-Type: application/rss+xml\r\n");
    }

    void redirect(const char* path, const QUrl& target) {
        reply(path, "302 Found", "", "Location: " + target.toEncoded() + "\r\n");
    }

    void reply(const char* path, const QByteArray& status, const QByteArray& body,
               const QByteArray& fields = {}) {
        answer(path, "HTTP/1.1 " + status + "\r\n" + fields +
                         "Content-Length: " + QByteArray::number(body.size()) + "\r\n\r\n" + body);
    }

    /// These very bytes, and then the end of the connection.
    void answer(const char* path, const QByteArray& bytes) {
        handle(path, [bytes](QTcpSocket& socket) {
            socket.write(bytes);
            socket.disconnectFromHost();
        });
    }

    /// A document that never ends.
    void serveEndlessly(const char* path) {
        handle(path, [this](QTcpSocket& socket) {
            socket.write("HTTP/1.1 200 OK\r\n\r\n<rss>");
            const auto writeOn = [this, &socket] {
                m_endlessBytes += socket.write(QByteArray(65536, ' '));
            };
            connect(&socket, &QTcpSocket::bytesWritten, &socket, writeOn);
            writeOn();
        });
    }

    void handle(const char* path, Handler handler) {
        m_handlers.insert(QByteArray(path), std::move(handler));
    }

    /// The head of each request, in order.
    [[nodiscard]] const QList<QByteArray>& requests() const { return m_requests; }
    [[nodiscard]] qint64 endlessBytes() const { return m_endlessBytes; }
    [[nodiscard]] int openConnections() const { return m_openConnections; }

private:
    void take(QTcpSocket& socket) {
        ++m_openConnections;
        connect(&socket, &QTcpSocket::disconnected, this, [this] { --m_openConnections; });
        connect(&socket, &QTcpSocket::disconnected, &socket, &QObject::deleteLater);
        auto head = std::make_shared<QByteArray>();
        connect(&socket, &QTcpSocket::readyRead, this, [this, &socket, head] {
            head->append(socket.readAll());
            if (head->contains("\r\n\r\n"))
                respond(socket, std::exchange(*head, {}));
        });
    }

    void respond(QTcpSocket& socket, const QByteArray& head) {
        m_requests.append(head);
        const QByteArray path = head.split(' ').value(1);
        const auto handler = m_handlers.constFind(path);
        if (handler != m_handlers.constEnd()) {
            (*handler)(socket);
            return;
        }
        socket.write("HTTP/1.1 404 Not Found\r\nContent-Length: 4\r\n\r\nnone");
        socket.disconnectFromHost();
    }

    std::unique_ptr<QTcpServer> m_server;
    const char* m_scheme;
    QHash<QByteArray, Handler> m_handlers;
    QList<QByteArray> m_requests;
    qint64 m_endlessBytes = 0;
    int m_openConnections = 0;
};

} // namespace dropshade
