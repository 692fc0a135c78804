// SPDX-FileCopyrightText: 2026 The Quillon authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>
#include <QUrl>
#include <gtest/gtest.h>

#include <chrono>
#include <functional>

namespace quillon::test {

/// A web server on this computer, without encryption, that answers each request with the bytes that
/// a test says, however bad they are.
class ScriptedServer
{
public:
    struct Request
    {
        QByteArray method;
        QByteArray path;
        QHash<QByteArray, QByteArray> headers; ///< names in small letters
        QByteArray body;
    };
    struct Answer
    {
        QByteArray bytes;
        enum class Then
        {
            Wait,    ///< for the next request, or for the client to go
            Close,   ///< the connection
            Reset,   ///< it
            Repeat,  ///< the last bytes, without end
            Trickle, ///< a byte now and then
        } then = Then::Wait;
        QByteArray repeated = {};
    };
    std::function<Answer(const Request &)> answer;
    QList<Request> requests;

    ScriptedServer()
    {
        EXPECT_TRUE(m_server.listen(QHostAddress::LocalHost));
        QObject::connect(&m_server, &QTcpServer::newConnection, &m_server, [this] { accept(); });
    }
    ScriptedServer(const ScriptedServer &) = delete;
    ScriptedServer &operator=(const ScriptedServer &) = delete;

    QUrl address(const QString &path = QStringLiteral("/")) const
    {
        QUrl url(QStringLiteral("http://127.0.0.1"));
        url.setPort(m_server.serverPort());
        url.setPath(path);
        return url;
    }
    int connections() const { return m_connections; }

    /// A whole answer.
    static QByteArray whole(const QByteArray &status, const QByteArray &body = {},
        const QByteArray &headers = "Content-Type: application/octet-stream\r\n")
    {
        return "HTTP/1.1 " + status + "\r\n" + headers +
               "Content-Length: " + QByteArray::number(body.size()) + "\r\n\r\n" + body;
    }

private:
    void accept()
    {
        while (QTcpSocket *const socket = m_server.nextPendingConnection()) {
            ++m_connections;
            QObject::connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
            QObject::connect(socket, &QTcpSocket::readyRead, socket,
                [this, socket, received = QByteArray()]() mutable {
                    received += socket->readAll();
                    while (takeRequest(received)) {
                        send(socket, answer(requests.back()));
                    }
                });
        }
    }

    bool takeRequest(QByteArray &received)
    {
        const qsizetype end = received.indexOf("\r\n\r\n");
        if (end < 0) {
            return false;
        }
        QList<QByteArray> lines = received.first(end).split('\n');
        const QList<QByteArray> first = lines.takeFirst().trimmed().split(' ');
        Request request{first.value(0), first.value(1), {}, {}};
        for (const QByteArray &line : lines) {
            const qsizetype colon = line.indexOf(':');
            request.headers.insert(line.first(colon).toLower(), line.mid(colon + 1).trimmed());
        }
        const qsizetype length = request.headers.value("content-length").toLongLong();
        if (received.size() < end + 4 + length) {
            return false;
        }
        request.body = received.mid(end + 4, length);
        received.remove(0, end + 4 + length);
        requests << request;
        return true;
    }

    static void send(QTcpSocket *socket, const Answer &given)
    {
        using Then = Answer::Then;
        socket->write(given.bytes);
        if (given.then == Then::Close) {
            socket->disconnectFromHost();
        } else if (given.then == Then::Reset) {
            socket->flush();
            socket->setSocketOption(QAbstractSocket::LowDelayOption, 1);
            socket->abort();
        } else if (given.then == Then::Repeat) {
            // Some 250 MB/s. Where more comes than it can look at, Qt's own thread reads on and on
            // before it heeds a limit; no network is that fast.
            auto *const timer = new QTimer(socket);
            const QByteArray piece = given.repeated.repeated(16);
            QObject::connect(timer, &QTimer::timeout, socket, [socket, piece] {
                if (socket->bytesToWrite() < piece.size()) {
                    socket->write(piece);
                }
            });
            timer->start(std::chrono::milliseconds(1));
        } else if (given.then == Then::Trickle) {
            auto *const timer = new QTimer(socket);
            QObject::connect(timer, &QTimer::timeout, socket, [socket] { socket->write("x"); });
            timer->start(std::chrono::milliseconds(20));
        }
    }

    QTcpServer m_server;
    int m_connections = 0;
};

} // namespace quillon::test
