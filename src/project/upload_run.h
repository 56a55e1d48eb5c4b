// SPDX-License-Identifier: MIT
// One upload: logs in, sends files and tells every step in a line.
#pragma once

#include "platform/ftp_connection.h"

#include <QString>
#include <QStringList>
#include <functional>

class UploadRun {
public:
    enum class Kind { Step = 1, Success = 2, Failure = 3 };
    struct Target {
        QString server;
        QString user;
        QString password;
        QString directory; // as the user has typed it
    };
    struct Listener {
        std::function<void(const QString& line, Kind kind)> appendStatus;
        // Around the calls that wait for the server; each true is followed by its false.
        std::function<void(bool busy)> busy;
        // False ends the run: no line and no call of this one comes behind it.
        FtpConnection::GoOn goOn;
    };

    // `root` is the start page's full path.
    UploadRun(Target target, QString root, Listener listener, FtpConnection::Limits limits = {});
    UploadRun(const UploadRun&) = delete;
    UploadRun& operator=(const UploadRun&) = delete;

    bool ConnectToServer();
    // `path` is a full local path, or, with "/" in front, one that counts from the start page's folder here
    // and from the target directory there.
    void UploadFile(const QString& path);
    // Paths as in SiteFile::folder, in their order. Ends where goOn says so.
    void UploadAllFiles(const QStringList& folders);

private:
    bool GoesOn(qint64 sent, qint64 all);
    void AppendStatus(const QString& line, Kind kind) const;
    bool WhileBusy(const std::function<bool()>& call) const;
    void EnsureFolder(const QString& folder, const QString& chain);

    const Target m_target;
    const QString m_root;
    const Listener m_listener;
    const FtpConnection::Limits m_limits;
    const FtpConnection::GoOn m_goOn; // asks the listener until that has said no
    bool m_left = false;
};
