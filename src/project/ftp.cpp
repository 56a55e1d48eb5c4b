// SPDX-License-Identifier: MIT
#include "project/ftp.h"

#include "platform/literals.h"

#include <algorithm>
#include <memory>

namespace FTP {

namespace {

constexpr qsizetype LongestPath = 255;

// A call that waits lets events run, and they may close the connection; so each call holds it.
std::shared_ptr<FtpConnection> theConnection;

} // namespace

QString FtpParentPath(const QString& path) {
    const qsizetype slash = path.lastIndexOf(u'/');
    return slash >= 1 ? path.first(slash) : path;
}

QString FtpCollapseSlashes(QString path, const QString& pattern) {
    if (pattern.isEmpty()) return path;
    const QChar sign = pattern.front();
    const auto end =
        std::unique(path.begin(), path.end(), [sign](QChar a, QChar b) { return a == sign && b == sign; });
    path.truncate(end - path.begin());
    return path;
}

QString FtpNormalizePath(const QString& path) {
    QString normal = path;
    normal.replace(u'\\', u'/');
    if (!normal.startsWith(u'/')) normal.prepend(u'/');
    if (!normal.endsWith(u'/')) normal.append(u'/');
    return normal;
}

bool OpenConnection(const QString& server, const QString& user, const QString& password,
                    const FtpConnection::GoOn& goOn, const FtpConnection::Limits& limits) {
    const auto connection = std::make_shared<FtpConnection>(limits);
    theConnection = connection;
    if (connection->Open(server, user, password, goOn)) return true;
    if (theConnection == connection) CloseConnection();
    return false;
}

void CloseConnection() { theConnection.reset(); }

bool FtpChangeDirectory(const QString& path, const FtpConnection::GoOn& goOn) {
    const auto connection = theConnection;
    return connection && connection->ChangeDirectory(path, goOn);
}

bool FtpCreateDirectoryChain(const QString& path, const FtpConnection::GoOn& goOn) {
    const auto connection = theConnection;
    QString rest = FtpNormalizePath(path).mid(1, LongestPath);
    QString done;
    bool made = false;
    for (qsizetype slash = rest.indexOf(u'/'); slash >= 0; slash = rest.indexOf(u'/')) {
        done += u'/' + rest.first(slash);
        made = connection && connection->MakeDirectory(done, goOn);
        rest = rest.mid(slash + 1, LongestPath);
    }
    return made;
}

bool FtpPutFile(const QString& local, const QString& remote, const FtpConnection::GoOn& goOn) {
    const auto connection = theConnection;
    return connection && connection->Put(local, remote, goOn);
}

} // namespace FTP
