// SPDX-License-Identifier: MIT
#include "support/ftp_server.h"

#include "platform/literals.h"

#include <QDirIterator>
#include <QFile>

FtpServer::FtpServer(const QStringList& arguments) {
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process.start(u"/usr/bin/python3"_s,
                    QStringList{QStringLiteral(SORVANE_SOURCE_DIR "/tests/support/ftp_server.py"), Root()} +
                        arguments);
    constexpr int Patience = 20'000;
    while (!m_process.canReadLine() && m_process.waitForReadyRead(Patience)) {
    }
    const QByteArray port = m_process.readLine().trimmed();
    if (!port.isEmpty()) m_address = u"127.0.0.1:"_s + QString::fromLatin1(port);
}

FtpServer::~FtpServer() {
    m_process.closeWriteChannel();
    m_process.waitForFinished();
}

QStringList FtpServer::Log() {
    constexpr int Quiet = 50;
    while (m_process.waitForReadyRead(Quiet)) {
    }
    m_log += m_process.readAllStandardOutput();
    return QString::fromUtf8(m_log).split(u'\n', Qt::SkipEmptyParts);
}

QMap<QString, QByteArray> FtpServer::Tree() const {
    QMap<QString, QByteArray> tree;
    QDirIterator files(Root(), QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QFile file(files.next());
        const QString name = file.fileName().sliced(Root().size());
        if (files.fileInfo().isDir())
            tree[name + u'/'] = {};
        else if (file.open(QIODevice::ReadOnly))
            tree[name] = file.readAll();
    }
    return tree;
}
