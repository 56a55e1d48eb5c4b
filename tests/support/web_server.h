// SPDX-License-Identifier: MIT
#pragma once

#include "platform/literals.h"

#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>

// A web server on this computer that answers whoever calls with the same parts, one after the other.
class WebServer {
public:
    explicit WebServer(QList<QByteArray> parts, int millisecondsBetween = 1, bool closes = true)
        : m_parts(std::move(parts)), m_between(millisecondsBetween), m_closes(closes) {
        m_server.listen(QHostAddress::LocalHost);
        QObject::connect(&m_server, &QTcpServer::newConnection, &m_server, [this] {
            while (QTcpSocket* socket = m_server.nextPendingConnection()) {
                ++requests;
                QObject::connect(socket, &QTcpSocket::bytesWritten, socket,
                                 [this](qint64 bytes) { written += bytes; });
                QTimer::singleShot(m_between, socket, [this, socket] { SendNext(socket, 0); });
            }
        });
    }
    quint16 Port() const { return m_server.serverPort(); }
    QString Address() const { return u"http://127.0.0.1:%1/update.htm"_s.arg(Port()); }

    int requests = 0;
    qint64 written = 0;

private:
    void SendNext(QTcpSocket* socket, qsizetype part) {
        if (part == m_parts.size()) {
            if (m_closes) socket->disconnectFromHost();
            return;
        }
        socket->write(m_parts[part]);
        socket->flush();
        QTimer::singleShot(m_between, socket, [this, socket, part] { SendNext(socket, part + 1); });
    }

    QTcpServer m_server;
    QList<QByteArray> m_parts;
    int m_between;
    bool m_closes;
};
