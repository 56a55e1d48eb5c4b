// SPDX-License-Identifier: MIT
// The server's side of an upload: its paths, which use "/", and the one connection of the program.
#pragma once

#include "platform/ftp_connection.h"

#include <QString>

namespace FTP {

// Kept for the run of the program where the user wants that; never written anywhere.
inline QString FtpPassword;

// `path` without its last "/" and what follows, if that "/" stands at position 2 or later; else `path`.
QString FtpParentPath(const QString& path);
// `path` with each run of the doubled sign `pattern` ("//") made a single one.
QString FtpCollapseSlashes(QString path, const QString& pattern);
// `path` with "/" for "\", and with a "/" at its start and its end.
QString FtpNormalizePath(const QString& path);

// Opens the program's connection; one from before is closed. It stays open until CloseConnection(), which the
// program's end calls.
bool OpenConnection(const QString& server, const QString& user, const QString& password,
                    const FtpConnection::GoOn& goOn, const FtpConnection::Limits& limits = {});
void CloseConnection();
// The calls below fail without a connection.
bool FtpChangeDirectory(const QString& path, const FtpConnection::GoOn& goOn);
// Makes each level of `path` in turn, at most 255 characters of it. Says what came of the last level alone,
// so it fails for a path that exists in full; that is meant.
bool FtpCreateDirectoryChain(const QString& path, const FtpConnection::GoOn& goOn);
bool FtpPutFile(const QString& local, const QString& remote, const FtpConnection::GoOn& goOn);

} // namespace FTP
