// SPDX-License-Identifier: MIT
#pragma once

#include <QMap>
#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>

// A real FTP server on loopback for as long as this lives, whose root is a folder of its own. Takes the user
// "garten" with the password "beet", or anyone.
class FtpServer {
public:
    // See ftp_server.py for its arguments: none for a good server, "--vsftpd" for another maker's.
    explicit FtpServer(const QStringList& arguments = {});
    ~FtpServer();
    FtpServer(const FtpServer&) = delete;
    FtpServer& operator=(const FtpServer&) = delete;

    QString Address() const { return m_address; } // empty: it did not start
    QString Root() const { return m_root.path(); }
    // What it has told so far, a line each: "connection", "login <user>" and the commands.
    QStringList Log() const { return Lines().mid(1); }
    // Its files, by their paths below the root, and its folders with "/" at their end.
    QMap<QString, QByteArray> Tree() const;

private:
    QStringList Lines() const;

    QTemporaryDir m_root;
    QTemporaryDir m_log;
    QProcess m_process;
    QString m_address;
};
