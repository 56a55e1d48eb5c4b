// SPDX-License-Identifier: MIT
#include "support/ftp_server.h"

#include "platform/literals.h"

#include <QDirIterator>
#include <QFile>

FtpServer::FtpServer(const QStringList& arguments) {
    // Into a file: a pipe that nobody reads would stop the server.
    m_process.setStandardOutputFile(m_log.filePath(u"log"_s));
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process.start(u"/usr/bin/python3"_s,
                    QStringList{QStringLiteral(SORVANE_SOURCE_DIR "/tests/support/ftp_server.py"), Root()} +
                        arguments);
    constexpr int Patience = 20'000;
    constexpr int Step = 5;
    for (int waited = 0; waited < Patience && Lines().size() < 2 && !m_process.waitForFinished(Step);
         waited += Step) {
    }
    if (Lines().size() > 1) m_address = u"127.0.0.1:"_s + Lines().first();
}

FtpServer::~FtpServer() {
    m_process.closeWriteChannel();
    m_process.waitForFinished();
}

// The last one is not whole yet.
QStringList FtpServer::Lines() const {
    QFile log(m_log.filePath(u"log"_s));
    return log.open(QIODevice::ReadOnly) ? QString::fromUtf8(log.readAll()).split(u'\n') : QStringList();
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
