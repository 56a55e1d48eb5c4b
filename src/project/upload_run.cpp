// SPDX-License-Identifier: MIT
#include "project/upload_run.h"

#include "documents/paths.h"
#include "platform/files.h"
#include "platform/literals.h"
#include "platform/text.h"
#include "project/file_management.h"
#include "project/ftp.h"

UploadRun::UploadRun(Target target, QString root, Listener listener, FtpConnection::Limits limits)
    : m_target(std::move(target)), m_root(std::move(root)), m_listener(std::move(listener)),
      m_limits(std::move(limits)), m_goOn([this](qint64 sent, qint64 all) { return GoesOn(sent, all); }) {}

bool UploadRun::GoesOn(qint64 sent, qint64 all) {
    if (!m_left && m_listener.goOn && !m_listener.goOn(sent, all)) m_left = true;
    return !m_left;
}

void UploadRun::AppendStatus(const QString& line, Kind kind) const {
    if (!m_left && m_listener.appendStatus) m_listener.appendStatus(line, kind);
}

// Runs `call` while the listener shows that the server is waited for.
bool UploadRun::WhileBusy(const std::function<bool()>& call) const {
    if (m_listener.busy) m_listener.busy(true);
    const bool result = call();
    if (m_listener.busy) m_listener.busy(false);
    return result;
}

bool UploadRun::ConnectToServer() {
    AppendStatus(u"Verbinde mit Server..."_s, Kind::Step);
    const bool connected = WhileBusy([this] {
        return GoesOn(0, 0) &&
               FTP::OpenConnection(m_target.server, m_target.user, m_target.password, m_goOn, m_limits);
    });
    AppendStatus(connected ? u"> Verbindung erfolgreich abgeschlossen."_s
                           : u"! Fehler beim Verbindungsaufbau."_s,
                 connected ? Kind::Success : Kind::Failure);
    return connected;
}

// Goes into `folder` of the server; one that is not there is made, from `chain`.
void UploadRun::EnsureFolder(const QString& folder, const QString& chain) {
    if (folder == u"/" || FTP::FtpChangeDirectory(folder, m_goOn)) return;
    AppendStatus(u"Erstelle Ordner '"_s + folder + u"'..."_s, Kind::Step);
    if (m_left) return;
    const bool made = FTP::FtpCreateDirectoryChain(chain, m_goOn);
    AppendStatus(made ? u"> Ordner erstelt."_s : u"! Ordner kann nicht erstelt werden."_s,
                 made ? Kind::Success : Kind::Failure);
}

void UploadRun::UploadFile(const QString& path) {
    if (m_left) return;
    const bool isFull = Files::IsFullPath(path);
    const QString target = FTP::FtpNormalizePath(m_target.directory);
    FTP::FtpChangeDirectory(u"/"_s, m_goOn);
    EnsureFolder(FTP::FtpParentPath(target), target);
    if (!isFull) {
        const QString folder = FTP::FtpCollapseSlashes(FTP::FtpParentPath(target + path), u"//"_s);
        EnsureFolder(folder, folder);
    }
    FTP::FtpChangeDirectory(u"/"_s, m_goOn);
    const QString name = Global::FileNameOf(path);
    if (name.isEmpty() || m_left) return;

    const QString local = isFull ? path : Global::ResolveLink(path, Global::ParentPath(m_root));
    const QString remote = FTP::FtpCollapseSlashes(target + (isFull ? name : path), u"//"_s);
    QString size;
    Attempt([&] { size = u" ("_s + FileManagement::FormatFileSize(local) + u')'; });
    const bool sent = WhileBusy([&] {
        AppendStatus(u"Kopiere Datei '"_s + name + u'\'' + size + u"..."_s, Kind::Step);
        return FTP::FtpPutFile(local, remote, m_goOn);
    });
    AppendStatus(sent ? u"> Kopiervorgang erfolgreich."_s : u"! Kopiervorgang fehlgeschlagen."_s,
                 sent ? Kind::Success : Kind::Failure);
}

void UploadRun::UploadAllFiles(const QStringList& folders) {
    constexpr qsizetype LongestPath = 1024;
    for (const QString& folder : folders) {
        const qsizetype slash = folder.indexOf(u'/', 1); // behind the start page's folder
        if (folder.contains(u"../") || slash < 0) continue;
        if (!GoesOn(0, 0)) return;
        UploadFile(folder.mid(slash, LongestPath));
    }
}
