// SPDX-License-Identifier: MIT
// A session with an FTP server (RFC 959, 2428, 4217).
#pragma once

#include <QString>
#include <chrono>
#include <functional>
#include <memory>

class FtpConnection {
public:
    struct Limits {
        std::chrono::milliseconds connect{20'000}; // until the login is done
        std::chrono::milliseconds silence{60'000}; // without a byte
        QString certificates;                      // PEM file of trusted ones; empty: the system's
    };
    // Asked again and again while a call waits, so that windows stay alive; false ends the call, which fails.
    // `sent` of `all` bytes of the file are on their way; both 0 outside Put().
    using GoOn = std::function<bool(qint64 sent, qint64 all)>;

    FtpConnection();
    explicit FtpConnection(Limits limits);
    ~FtpConnection(); // takes leave of the server
    FtpConnection(const FtpConnection&) = delete;
    FtpConnection& operator=(const FtpConnection&) = delete;

    // Connects and logs in. `server` is a name or an address, with ":port" behind it where it is not the
    // usual one; an empty `user` is the anonymous one. TLS is used where the server offers it. Returns
    // whether the server took the login; the password is kept nowhere but in memory.
    bool Open(const QString& server, const QString& user, const QString& password, const GoOn& goOn);
    // Whether `path` ("/web/html") is a directory that the server changes to. Once it has, it is not asked
    // again until the connection breaks or a file fails.
    bool ChangeDirectory(const QString& path, const GoOn& goOn);
    bool MakeDirectory(const QString& path, const GoOn& goOn);
    // Sends the file `local` (full path in the program's form), byte for byte, to the full path `remote` of
    // the server. Returns whether the server has confirmed all of it.
    bool Put(const QString& local, const QString& remote, const GoOn& goOn);

private:
    class Session;
    std::unique_ptr<Session> m_session;
};
