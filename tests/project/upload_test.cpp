// SPDX-License-Identifier: MIT
#include "project/ftp.h"
#include "project/upload_run.h"
#include "support/folder_test.h"
#include "support/ftp_server.h"

#include <QElapsedTimer>
#include <QProcess>

using namespace std::chrono_literals;

namespace {

using Tree = QMap<QString, QByteArray>;
using Kind = UploadRun::Kind;

constexpr qsizetype Megabyte = 1024 * 1024;
const QString Connected = u"1 Verbinde mit Server...\n2 > Verbindung erfolgreich abgeschlossen.\n"_s;
const QString Unconnected = u"1 Verbinde mit Server...\n3 ! Fehler beim Verbindungsaufbau.\n"_s;

QString Copied(const QString& name, const QString& size) {
    return u"1 Kopiere Datei '"_s + name + u"' (" + size + u")...\n2 > Kopiervorgang erfolgreich.\n";
}
QString NotCopied(const QString& name, const QString& size) {
    return u"1 Kopiere Datei '"_s + name + u'\'' + (size.isEmpty() ? size : u" ("_s + size + u')') +
           u"...\n3 ! Kopiervorgang fehlgeschlagen.\n";
}
QString Made(const QString& folder) {
    return u"1 Erstelle Ordner '"_s + folder + u"'...\n2 > Ordner erstelt.\n";
}
QString NotMade(const QString& folder) {
    return u"1 Erstelle Ordner '"_s + folder + u"'...\n3 ! Ordner kann nicht erstelt werden.\n";
}

QStringList Lines(const QString& log) { return log.split(u'\n'); }

QByteArray Noise(qsizetype size) {
    QByteArray bytes(size, Qt::Uninitialized);
    quint32 number = 1;
    for (char& byte : bytes) byte = static_cast<char>((number = number * 1664525 + 1013904223) >> 24);
    return bytes;
}

} // namespace

class UploadTest : public FolderTest {
    Q_OBJECT

    QString m_log;
    UploadRun::Target m_target;
    FtpConnection::Limits m_limits;
    FtpConnection::GoOn m_goOn;
    int m_busy = 0;

    std::unique_ptr<UploadRun> Run() {
        m_log.clear();
        const auto append = [this](const QString& line, Kind kind) {
            m_log += QString::number(static_cast<int>(kind)) + u' ' + line + u'\n';
        };
        return std::make_unique<UploadRun>(
            m_target, m_folder->Path(u"web\\index.htm"_s),
            UploadRun::Listener{append, [this](bool busy) { m_busy += busy ? 1 : -1; }, m_goOn}, m_limits);
    }
    void Upload(const QStringList& folders) {
        const auto run = Run();
        if (run->ConnectToServer()) run->UploadAllFiles(folders);
        QCOMPARE(m_busy, 0);
    }
    void Use(const FtpServer& server, const QString& directory = u"/"_s) {
        QVERIFY(!server.Address().isEmpty());
        m_target = {server.Address(), u"garten"_s, u"beet"_s, directory};
    }
    QByteArray Local(const QString& name) { return m_folder->Read(u"web/"_s + name); }
    // The server's certificate, with its key, signed by itself.
    QString Certificate() {
        const QString file = m_folder->System(u"server.pem"_s);
        QProcess openssl;
        openssl.start(u"openssl"_s,
                      {u"req"_s, u"-x509"_s, u"-newkey"_s, u"rsa:2048"_s, u"-nodes"_s, u"-subj"_s,
                       u"/CN=Garten"_s, u"-addext"_s, u"subjectAltName=IP:127.0.0.1"_s, u"-keyout"_s, file,
                       u"-out"_s, m_folder->System(u"public.pem"_s)});
        openssl.waitForFinished();
        QFile key(file);
        if (key.open(QIODevice::Append)) key.write(m_folder->Read(u"public.pem"_s));
        return file;
    }

protected slots:
    void init() override {
        FolderTest::init();
        m_target = {};
        m_limits = {};
        m_goOn = {};
        m_folder->Write(u"web/index.htm"_s, "<html>\r\n");
        m_folder->Write(u"web/leer.txt"_s, {});
        m_folder->Write(u"web/bilder/Größe 5% #2.gif"_s, Noise(3072));
    }
    void cleanup() override {
        FTP::CloseConnection();
        FolderTest::cleanup();
    }

private slots:
    void pathsOfTheServer() {
        QCOMPARE(FTP::FtpNormalizePath(u"web\\html"_s), u"/web/html/"_s);
        QCOMPARE(FTP::FtpNormalizePath({}), u"/"_s);
        QCOMPARE(FTP::FtpParentPath(u"/web/html/"_s), u"/web/html"_s);
        QCOMPARE(FTP::FtpParentPath(u"/web"_s), u"/web"_s);
        QCOMPARE(FTP::FtpCollapseSlashes(u"//a///b/"_s, u"//"_s), u"/a/b/"_s);
    }

    void sends_data() {
        const auto row = Columns<QStringList, QString, QString, int, QString>("server", "user", "below",
                                                                              "connections", "command");
        const QString garten = u"garten"_s;
        row("plain", {}, garten, {}, 1, u"EPRT "_s);
        row("a chain of folders", {}, garten, u"\\neu\\tief"_s, 1, u"MKD /neu/tief"_s);
        row("another maker's", {u"--vsftpd"_s}, {}, u"/neu"_s, 1, {});
        row("without EPRT", {u"--refuse"_s, u"EPRT"_s}, garten, {}, 1, u"PORT "_s);
        row("without the active mode", {u"--refuse"_s, u"EPRT,PORT"_s}, garten, {}, 1, u"EPSV"_s);
        row("without EPSV", {u"--refuse"_s, u"EPRT,PORT,EPSV"_s}, garten, {}, 1, u"PASV"_s);
        row("calls fail", {u"--no-calls"_s, u"425"_s}, garten, {}, 1, u"EPSV"_s);
        row("calls are swallowed", {u"--no-calls"_s, u"0"_s}, garten, {}, 2, u"EPSV"_s);
        row("without UTF-8", {u"--encoding"_s, u"cp1252"_s}, garten, {}, 1, {});
        // it has to see both ways of writing the name
        row("user with umlauts", {u"--encoding"_s, u"cp1252"_s, u"--user"_s, u"gärtner"_s}, u"gärtner"_s, {},
            2, u"login gärtner"_s);
        row("encrypted", {u"--vsftpd"_s, u"--certificate"_s}, {}, {}, 1, {});
    }

    void sends() {
        QFETCH(QStringList, server);
        QFETCH(const QString, user);
        QFETCH(const QString, below);
        QFETCH(const int, connections);
        QFETCH(const QString, command);
        const bool encrypted = server.contains(u"--certificate"_s);
        if (encrypted) server += Certificate();
        FtpServer there(server);
        const bool vsftpd = user.isEmpty(); // its root is the system's
        Use(there, (vsftpd ? there.Root() : QString()) + below);
        m_target.user = user;
        m_limits.silence = 400ms;
        if (encrypted) m_limits.certificates = m_folder->Path(u"public.pem"_s);
        Upload({u"web/index.htm"_s, u"../fremd.htm"_s, u"web/leer.txt"_s, u"web/bilder/Größe 5% #2.gif"_s});

        QString folder = FTP::FtpNormalizePath(m_target.directory);
        QCOMPARE(Lines(m_log), Lines(Connected + (below.isEmpty() ? QString() : Made(folder.chopped(1))) +
                                     Copied(u"index.htm"_s, u"8 B"_s) + Copied(u"leer.txt"_s, u"0 B"_s) +
                                     Made(folder + u"bilder") + Copied(u"Größe 5% #2.gif"_s, u"3 kB"_s)));
        folder.remove(0, vsftpd ? there.Root().size() : 0);
        Tree expected{{folder + u"index.htm", Local(u"index.htm"_s)},
                      {folder + u"leer.txt", {}},
                      {folder + u"bilder/", {}},
                      {folder + u"bilder/Größe 5% #2.gif", Local(u"bilder/Größe 5% #2.gif"_s)}};
        for (QString part = folder; part.size() > 1; part.truncate(part.lastIndexOf(u'/', -2) + 1))
            expected[part] = {};
        QCOMPARE(there.Tree(), expected);
        const QStringList log = there.Log();
        QCOMPARE(log.count(u"connection"_s), connections);
        QVERIFY2(command.isEmpty() || !log.filter(command).isEmpty(), qPrintable(log.join(u'\n')));
    }

    void tellsFailures_data() {
        const auto row = Columns<QStringList, QString, int>("server", "log", "arrived");
        const QString big = u"groß.bin"_s;
        const QString size = u"2 MB"_s;
        const QString small = u"index.htm"_s;
        const QString smallSize = u"8 B"_s;
        row("refused", {u"--password"_s, u"anderes"_s}, Unconnected, 0);
        row("says nothing", {u"--silent"_s}, Unconnected, 0);
        row("says nothing behind TLS", {u"--empty-promise"_s}, Unconnected, 0);
        row("certificate of nobody", {u"--vsftpd"_s, u"--certificate"_s}, Unconnected, 0);
        // each behind the other: a part of the big file, and the small one whole
        row("full", {u"--quota"_s, u"100000"_s}, Connected + NotCopied(big, size) + Copied(small, smallSize),
            2);
        row("cut", {u"--cut"_s, u"100000"_s}, Connected + NotCopied(big, size) + Copied(small, smallSize), 2);
        row("gone", {u"--cut"_s, u"100000"_s, u"--gone"_s},
            Connected + NotCopied(big, size) + NotCopied(small, smallSize), 1);
        row("mute", {u"--mute"_s, u"STOR"_s}, Connected + NotCopied(big, size) + NotCopied(small, smallSize),
            0);
        row("mute at folders", {u"--mute"_s, u"CWD"_s},
            Connected + Copied(big, size) + Copied(small, smallSize), 2);
        row("takes no files", {u"--refuse"_s, u"STOR"_s},
            Connected + NotCopied(big, size) + NotCopied(small, smallSize), 0);
    }

    void tellsFailures() {
        QFETCH(QStringList, server);
        QFETCH(const QString, log);
        QFETCH(const int, arrived);
        if (server.contains(u"--certificate"_s)) server += Certificate();
        const FtpServer there(server);
        Use(there);
        m_limits = {500ms, 300ms, {}};
        m_folder->Write(u"web/groß.bin"_s, Noise(2 * Megabyte));
        Upload({u"web/groß.bin"_s, u"web/index.htm"_s});
        QCOMPARE(Lines(m_log), Lines(log));
        const Tree tree = there.Tree();
        QCOMPARE(tree.size(), arrived);
        QVERIFY(!tree.contains(u"/index.htm"_s) || tree[u"/index.htm"_s] == Local(u"index.htm"_s));
        QVERIFY(Local(u"groß.bin"_s).startsWith(tree.value(u"/groß.bin"_s)));
    }

    void failsAtOnceWithoutAServer() {
        {
            const FtpServer gone;
            Use(gone);
        }
        Upload({});
        QCOMPARE(Lines(m_log), Lines(Unconnected));
        const FtpServer server({u"--cut"_s, u"10"_s, u"--gone"_s});
        Use(server);
        m_limits.connect = 300ms;
        QStringList folders;
        for (int i = 0; i < 1000; ++i) folders << u"web/bilder/Größe 5% #2.gif"_s;
        QElapsedTimer timer;
        timer.start();
        Upload(folders);
        QCOMPARE(m_log.count(u"! Kopiervorgang fehlgeschlagen."_s), 1000);
        QVERIFY(timer.elapsed() < 5000);
    }

    void foldersThatExistOrMayNotBeMade() {
        FtpServer server({u"--refuse"_s, u"MKD"_s});
        Use(server, u"da"_s);
        QVERIFY(QDir(server.Root()).mkdir(u"da"_s));
        Upload({u"web/index.htm"_s, u"web/bilder/Größe 5% #2.gif"_s});
        QCOMPARE(Lines(m_log), Lines(Connected + Copied(u"index.htm"_s, u"8 B"_s) + NotMade(u"/da/bilder"_s) +
                                     NotCopied(u"Größe 5% #2.gif"_s, u"3 kB"_s)));
        QCOMPARE(server.Tree(), (Tree{{u"/da/"_s, {}}, {u"/da/index.htm"_s, Local(u"index.htm"_s)}}));
        QVERIFY(!FTP::FtpCreateDirectoryChain(u"/da"_s, {})); // exists in full
    }

    void onePageAndFilesThatFail() {
        FtpServer server({u"--encoding"_s, u"cp1252"_s, u"--pause"_s, u"0.001"_s});
        Use(server, u"/seite"_s);
        const QString shrinking = m_folder->System(u"web/kürzer.bin"_s);
        m_folder->Write(u"web/kürzer.bin"_s, Noise(20 * Megabyte));
        m_folder->Write(u"web/Ω.gif"_s, "x"); // no name of this server's
        auto run = Run();
        QVERIFY(run->ConnectToServer());
        run->UploadFile(m_folder->Path(u"web\\index.htm"_s));
        run->UploadFile({}); // a page without a name
        run->UploadFile(m_folder->Path(u"web\\fehlt.htm"_s));
        run->UploadFile(u"/Ω.gif"_s);
        QCOMPARE(Lines(m_log), Lines(Connected + Made(u"/seite"_s) + Copied(u"index.htm"_s, u"8 B"_s) +
                                     NotCopied(u"fehlt.htm"_s, {}) + NotCopied(u"Ω.gif"_s, u"1 B"_s)));
        QVERIFY(!FTP::FtpPutFile(m_folder->Path(u"web"_s), u"/seite/web"_s, {}));
        const Tree expected{{u"/seite/"_s, {}}, {u"/seite/index.htm"_s, Local(u"index.htm"_s)}};
        QCOMPARE(server.Tree(), expected);

        const auto shorten = [&](qint64 sent, qint64) { return sent == 0 || QFile::resize(shrinking, 0); };
        QVERIFY(!FTP::FtpPutFile(m_folder->Path(u"web\\kürzer.bin"_s), u"/kurz.bin"_s, shorten));
    }

    void thousandFilesOnOneConnection() {
        FtpServer server;
        Use(server);
        Tree expected{{u"/teil/"_s, {}}};
        QStringList folders;
        for (int i = 0; i < 1000; ++i) {
            const QString name = u"teil/%1.htm"_s.arg(i);
            const QByteArray bytes = Noise(i * 7);
            m_folder->Write(u"web/"_s + name, bytes);
            folders << u"web/"_s + name;
            expected[u'/' + name] = bytes;
        }
        Upload(folders);
        QCOMPARE(m_log.count(u"2 > Kopiervorgang erfolgreich."_s), 1000);
        QVERIFY(server.Tree() == expected);
        QCOMPARE(server.Log().count(u"connection"_s), 1);
    }

    void hugeFileAndLeavingIt() {
        FtpServer server({u"--vsftpd"_s});
        Use(server, server.Root());
        m_target.user.clear();
        m_folder->Write(u"web/riese.bin"_s, Noise(100 * Megabyte));
        qint64 last = 0;
        bool steady = true;
        m_goOn = [&](qint64 sent, qint64 all) {
            if (all > 0) steady = steady && sent >= std::exchange(last, sent) && all == 100 * Megabyte;
            return true;
        };
        Upload({u"web/riese.bin"_s});
        QCOMPARE(Lines(m_log), Lines(Connected + Copied(u"riese.bin"_s, u"100 MB"_s)));
        QVERIFY(steady && last > 0);
        QVERIFY(server.Tree() == (Tree{{u"/riese.bin"_s, Local(u"riese.bin"_s)}}));

        m_goOn = [](qint64 sent, qint64) { return sent == 0; };
        Upload({u"web/riese.bin"_s, u"web/index.htm"_s});
        QCOMPARE(Lines(m_log), Lines(Connected + u"1 Kopiere Datei 'riese.bin' (100 MB)...\n"));
        const Tree tree = server.Tree();
        QCOMPARE(tree.size(), 1);
        QVERIFY(tree.first().size() < 100 * Megabyte);
    }

    void leavingASilentServer() {
        const FtpServer server({u"--silent"_s});
        Use(server);
        QElapsedTimer timer;
        timer.start();
        m_goOn = [&](qint64, qint64) { return timer.elapsed() < 100; };
        Upload({u"web/index.htm"_s});
        QCOMPARE(Lines(m_log), Lines(u"1 Verbinde mit Server...\n"_s));
        QVERIFY(timer.elapsed() < 2000);
    }

    void lineEndsNeverReachTheServer() {
        FtpServer server;
        Use(server);
        const UploadRun::Target good = m_target;
        const QString evil = u"\r\nDELE /ziel"_s;
        for (QString UploadRun::Target::*field :
             {&UploadRun::Target::server, &UploadRun::Target::user, &UploadRun::Target::password,
              &UploadRun::Target::directory}) {
            m_target = good;
            m_target.*field += evil;
            m_folder->Write(u"web/böse"_s + evil + u".htm", "x");
            Upload({u"web/index.htm"_s});
        }
        m_target = good;
        m_folder->Write(u"web/a"_s + evil + u'/' + u"b.htm"_s, "x");
        Upload({u"web/böse"_s + evil + u".htm", u"web/a"_s + evil + u"/b.htm"});
        QCOMPARE(m_log.count(u"! Kopiervorgang fehlgeschlagen."_s), 2);
        QCOMPARE(server.Log().filter(u"DELE"_s), QStringList());
        QVERIFY(server.Tree().isEmpty());
    }

    void addressesAsTyped() {
        const FtpServer server;
        QVERIFY(!server.Address().isEmpty());
        const QString port = server.Address().section(u':', 1);
        const auto opens = [](const QString& address) {
            return FtpConnection().Open(address, u"garten"_s, u"beet"_s, {});
        };
        for (const QString& address :
             {u" "_s + server.Address() + u"\t ", u"FTP://"_s + server.Address() + u'/',
              u"ftp://localhost:"_s + port + u"/web/"})
            QVERIFY2(opens(address), qPrintable(address));
        for (const QString& address :
             {QString(), u"ftp://"_s, server.Address() + u'x', u"127.0.0.1:0"_s, u"a b:"_s + port,
              u"http://"_s + server.Address(), u"garten@"_s + server.Address(), u"[::1"_s})
            QVERIFY2(!opens(address), qPrintable(address));
    }
};

REGISTER_TEST_AS(Upload, UploadTest);
#include "upload_test.moc"
