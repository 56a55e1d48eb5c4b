// SPDX-License-Identifier: MIT
// Uploads to a server on loopback, against the command line of curl doing the same in one call: 1,000 files
// of 4 KB and one of 100 MB, to two servers; the better of two rounds each, in turn, by the wall clock.
// Usage: upload_bench
#include "milliseconds.h"
#include "platform/files.h"
#include "platform/literals.h"
#include "project/ftp.h"
#include "project/upload_run.h"
#include "support/ftp_server.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <algorithm>
#include <cstdio>

namespace {

constexpr int Rounds = 2; // more would use up the ports of the active mode, which each rest for a minute

struct Site {
    const char* what;
    QStringList names;
    qsizetype size;
};

bool Write(const QDir& folder, const Site& site) {
    return std::all_of(site.names.begin(), site.names.end(), [&](const QString& name) {
        QFile file(folder.filePath(name));
        return file.open(QIODevice::WriteOnly) && file.write(QByteArray(site.size, 'x')) == site.size;
    });
}

bool SendOurselves(const UploadRun::Target& target, const QDir& folder, const QStringList& names) {
    qsizetype sent = 0;
    const auto count = [&](const QString&, UploadRun::Kind kind) {
        sent += kind == UploadRun::Kind::Success;
    };
    UploadRun run(target, Files::FromSystem(folder.filePath(u"index.htm"_s)), {count, {}, {}});
    QStringList folders;
    for (const QString& name : names) folders << u"web/"_s + name;
    if (run.ConnectToServer()) run.UploadAllFiles(folders);
    FTP::CloseConnection();
    return sent == names.size() + 1;
}

// One call, which keeps its connection; active mode and full paths as we have them.
bool SendByCommand(const UploadRun::Target& target, const QDir& folder, const QStringList& names) {
    QFile commands(folder.filePath(u"curl.txt"_s));
    if (!commands.open(QIODevice::WriteOnly)) return false;
    const QByteArray url = "ftp://" + target.server.toUtf8() + "/%2F" + target.directory.toUtf8();
    for (const QString& name : names) {
        commands.write("upload-file = \"" + folder.filePath(name).toUtf8() + "\"\nurl = \"" + url +
                       name.toUtf8() + "\"\n");
    }
    commands.close();
    QProcess curl;
    curl.setProcessChannelMode(QProcess::ForwardedChannels);
    QStringList arguments{u"-s"_s, u"-S"_s, u"-P"_s, u"-"_s, u"--ftp-method"_s, u"nocwd"_s};
    if (!target.user.isEmpty()) arguments << u"-u"_s << target.user + u':' + target.password;
    curl.start(u"curl"_s, arguments << u"-K"_s << commands.fileName());
    curl.waitForFinished(-1);
    return curl.exitCode() == 0;
}

void Measure(const char* name, const QStringList& arguments, const Site& site) {
    const FtpServer server(arguments);
    const QTemporaryDir folder;
    const QDir local(folder.path());
    const bool vsftpd = !arguments.isEmpty();
    const UploadRun::Target target{server.Address(), vsftpd ? QString() : u"garten"_s,
                                   vsftpd ? QString() : u"beet"_s, vsftpd ? server.Root() + u'/' : u"/"_s};
    bool good = !server.Address().isEmpty() && Write(local, site);
    double ours = 1e9;
    double theirs = 1e9;
    for (int round = 0; round < Rounds && good; ++round) {
        ours = std::min(ours,
                        WallMilliseconds([&] { good = good && SendOurselves(target, local, site.names); }));
        theirs = std::min(theirs,
                          WallMilliseconds([&] { good = good && SendByCommand(target, local, site.names); }));
    }
    if (good)
        std::printf("%-20s %-10s %9.1f %9.1f %7.2f\n", site.what, name, ours, theirs, ours / theirs);
    else
        std::printf("%-20s %-10s failed\n", site.what, name);
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    Site small{"1,000 files", {}, 4096};
    for (int i = 0; i < 1000; ++i) small.names << u"seite%1.htm"_s.arg(i);
    const Site big{"one of 100 MB", {u"riese.bin"_s}, 100'000'000};
    std::printf("%-20s %-10s %9s %9s %7s\n", "upload", "server", "ms", "curl ms", "ratio");
    for (const Site& site : {small, big}) {
        Measure("pyftpdlib", {}, site);
        Measure("vsftpd", {u"--vsftpd"_s}, site);
    }
    return 0;
}
