// SPDX-License-Identifier: MIT
#include "shell/update_check.h"

#include "platform/literals.h"
#include "shell/addresses.h"
#include "shell/frm_load.h"
#include "shell/frm_new_update.h"
#include "shell/frm_update_message.h"
#include "shell/update_log.h"
#include "shell/wiring.h"
#include "state/global.h"
#include "state/neighbours.h"
#include "state/settings.h"
#include "state/windows.h"
#include "support/driver.h"
#include "support/program_folder.h"
#include "support/scripted_dialogs.h"
#include "support/test_registry.h"

#include <QElapsedTimer>
#include <QPlainTextEdit>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>

using UpdateCheck::Outcome;

namespace {

// An HTTP server on loopback that sends each answer's parts one after the other.
class Server {
public:
    Server(QList<QByteArray> parts, int millisecondsBetween, bool closes = true)
        : m_parts(std::move(parts)), m_between(millisecondsBetween), m_closes(closes) {
        m_server.listen(QHostAddress::LocalHost);
        QObject::connect(&m_server, &QTcpServer::newConnection, &m_server, [this] {
            QTcpSocket* socket = m_server.nextPendingConnection();
            ++requests;
            QObject::connect(socket, &QTcpSocket::bytesWritten, socket,
                             [this](qint64 bytes) { written += bytes; });
            QTimer::singleShot(m_between, socket, [this, socket] { SendNext(socket, 0); });
        });
    }
    QString Address() const { return u"http://127.0.0.1:%1/update.htm"_s.arg(m_server.serverPort()); }

    int requests = 0;
    qint64 written = 0;

private:
    void SendNext(QTcpSocket* socket, qsizetype part) {
        if (part == m_parts.size()) {
            if (m_closes) socket->disconnectFromHost();
            return;
        }
        socket->write(m_parts[part]);
        socket->flush();
        QTimer::singleShot(m_between, socket, [this, socket, part] { SendNext(socket, part + 1); });
    }

    QTcpServer m_server;
    QList<QByteArray> m_parts;
    int m_between;
    bool m_closes;
};

const QByteArray Head = "HTTP/1.1 200 OK\r\nContent-Type: text/html\r\nConnection: close\r\n\r\n";

QByteArray Page(const QByteArray& title) {
    return Head + "<html><head><title>" + title + "</title></head><body>Update</body></html>";
}

Outcome Look(const QString& address, double timeOut = 3, QStringList* told = nullptr) {
    return UpdateCheck::Look({address, timeOut, 0.1, [told](const QString& text) {
                                  if (told) *told << text;
                              }});
}

} // namespace

class UpdateCheckTest : public QObject {
    Q_OBJECT

private slots:
    void readsTitles_data() {
        QTest::addColumn<QByteArray>("page");
        QTest::addColumn<QString>("title");
        QTest::newRow("plain") << QByteArray("<title>147</title>") << u"147"_s;
        QTest::newRow("blanks around") << QByteArray("<TITLE lang=de>\r\n 147\t</TITLE >") << u"147"_s;
        QTest::newRow("the first one counts") << QByteArray("<title>1</title><title>147</title>") << u"1"_s;
        QTest::newRow("in a comment")
            << QByteArray("<!-- <title>999</title> --><title>147</title>") << u"147"_s;
        QTest::newRow("in a script")
            << QByteArray("<script>a='<title>999</title>'</script><style></style><title>147</title>")
            << u"147"_s;
        QTest::newRow("another tag") << QByteArray("<titles>147</titles>") << QString();
        QTest::newRow("no end") << QByteArray("<title>147") << QString();
        QTest::newRow("cut off") << QByteArray("<html><title") << QString();
        QTest::newRow("endless comment") << QByteArray("<!-- <title>147</title>") << QString();
        QTest::newRow("empty") << QByteArray() << QString();
        QTest::newRow("many brackets") << QByteArray(100000, '<') << QString();
        QTest::newRow("binary") << QByteArray("\0<\xff<title>\0\xe4</title>", 20) << QString(u"\0ä"_s);
    }
    void readsTitles() {
        QFETCH(QByteArray, page);
        QFETCH(QString, title);
        QCOMPARE(UpdateCheck::TitleOf(page), title);
    }

    void judgesTitles() {
        QCOMPARE(QString(Settings::UpdateNumber).remove(u'.').toInt(), UpdateCheck::PresentUpdate);
        for (const QString& title : {u"147"_s, u"150"_s, u"999"_s})
            QVERIFY2(UpdateCheck::TellsOfUpdate(title), qPrintable(title));
        for (const QString& title : {u""_s, u"146"_s, u"000"_s, u"14a"_s, u"1470"_s, u"99"_s, u"14.7"_s,
                                     u"abc"_s, u"-99"_s, u"9e9"_s, u"1,9"_s, u"404 Not Found"_s}) {
            QVERIFY2(!UpdateCheck::TellsOfUpdate(title), qPrintable(title));
        }
    }

    void asksTheServer_data() {
        QTest::addColumn<QList<QByteArray>>("parts");
        QTest::addColumn<bool>("update");
        using Parts = QList<QByteArray>;
        QTest::newRow("newer") << Parts{Page("147")} << true;
        QTest::newRow("the same") << Parts{Page("146")} << false;
        QTest::newRow("four characters") << Parts{Page("1470")} << false;
        QTest::newRow("split over packets")
            << Parts{"HTTP/1.1 200 O", "K\r\nContent-Type: text/html\r\nConnection: close\r\n\r\n<html><ti",
                     "tle>1",          "4",
                     "7</ti",          "tle></html>"}
            << true;
        QTest::newRow("error page")
            << Parts{"HTTP/1.1 404 Not Found\r\nConnection: close\r\n\r\n<title>404</title>"} << false;
        QTest::newRow("error of the server")
            << Parts{"HTTP/1.1 500 Error\r\nConnection: close\r\n\r\n<title>500</title>"} << false;
        QTest::newRow("no page at all") << Parts{} << false;
        QTest::newRow("no HTTP") << Parts{"<title>147</title>"} << false;
        QTest::newRow("an empty page") << Parts{Head} << false;
        QTest::newRow("a page that breaks off")
            << Parts{"HTTP/1.1 200 OK\r\nContent-Length: 5000\r\n\r\n<title>147</title>"} << false;
        QTest::newRow("a redirection to a file")
            << Parts{"HTTP/1.1 302 Found\r\nLocation: file:///etc/passwd\r\nContent-Length: 0\r\n\r\n"}
            << false;
    }
    void asksTheServer() {
        QFETCH(QList<QByteArray>, parts);
        QFETCH(bool, update);
        Server server(parts, 30);
        QStringList told;
        QCOMPARE(Look(server.Address(), 3, &told), update ? Outcome::NewUpdate : Outcome::NoUpdate);
        QVERIFY(server.requests >= 1); // an answer that is none is asked for again
        QCOMPARE(told, QStringList(u"Suche neues Update im Internet..."_s));
    }

    void readsNoMoreThanTheHeadOfAHugePage() {
        QList<QByteArray> parts{Page("147")};
        for (int i = 0; i < 400; ++i) parts << QByteArray(100000, 'x');
        Server huge(parts, 1);
        QElapsedTimer clock;
        clock.start();
        QCOMPARE(Look(huge.Address()), Outcome::NewUpdate);
        QVERIFY(clock.elapsed() < 2000);
        QVERIFY(huge.written < 4000000); // what the system buffers on the way, not the 40 MB
        Server late({Head + QByteArray(200000, ' ') + "<title>147</title>"}, 1);
        QCOMPARE(Look(late.Address()), Outcome::NoUpdate);
    }

    void aSlowServerIsWaitedForAndASilentOneGivenUp() {
        Server slow({Head, "<title>14", "7</title>"}, 250);
        QCOMPARE(Look(slow.Address()), Outcome::NewUpdate);
        for (const bool begins : {false, true}) {
            Server silent(begins ? QList<QByteArray>{Head, "<title>147</title>"} : QList<QByteArray>{}, 1,
                          false);
            QStringList told;
            QElapsedTimer clock;
            clock.start();
            QCOMPARE(Look(silent.Address(), 0.5, &told), Outcome::TimedOut);
            QVERIFY2(clock.elapsed() >= 590 && clock.elapsed() < 1200,
                     qPrintable(QString::number(clock.elapsed())));
            QCOMPARE(told, QStringList({u"Suche neues Update im Internet..."_s, u"Timeout..."_s}));
        }
    }

    void withoutANetworkItFailsAtOnce() {
        QTcpServer closed;
        QVERIFY(closed.listen(QHostAddress::LocalHost));
        const QString address = u"http://127.0.0.1:%1/"_s.arg(closed.serverPort());
        closed.close();
        QElapsedTimer clock;
        clock.start();
        QCOMPARE(Look(address), Outcome::NoUpdate);
        for (const QString& other :
             {u""_s, u"http://"_s, u"file:///etc/passwd"_s, u"%%%"_s, u"ftp://127.0.0.1/x"_s}) {
            QCOMPARE(Look(other), Outcome::NoUpdate);
        }
        QVERIFY(clock.elapsed() < 1000);
    }

    void theCheckOfTheStartBeepsAfterItsTime() {
        const ProgramFolder folder(ProgramFolder::Content::Empty);
        ScriptedDialogs dialogs;
        Server silent({}, 1, false);
        dialogs.ExpectBeep();
        QElapsedTimer clock;
        clock.start();
        UpdateCheck::CheckForUpdate(silent.Address());
        QVERIFY2(clock.elapsed() >= 5990 && clock.elapsed() < 7000,
                 qPrintable(QString::number(clock.elapsed())));
        Unload<Frm_Load>();
        QVERIFY(dialogs.Finished());

        UpdateCheck::CheckForUpdate(Addresses::UpdateCheck); // a placeholder: no wait, no beep, no splash
        QVERIFY(!Loaded<Frm_Load>());
        Server same({Page("146")}, 1);
        UpdateCheck::CheckForUpdate(same.Address());
        Unload<Frm_Load>();
    }

    void offersTheDownload_data() {
        QTest::addColumn<bool>("never");
        QTest::addColumn<bool>("download");
        QTest::newRow("close") << false << false;
        QTest::newRow("close for ever") << true << false;
        QTest::newRow("download") << false << true;
        QTest::newRow("download for ever") << true << true;
    }
    void offersTheDownload() {
        QFETCH(bool, never);
        QFETCH(bool, download);
        const ProgramFolder folder(ProgramFolder::Content::Empty);
        ScriptedDialogs dialogs;
        Server server({Page("147")}, 1);
        Global::DontShowNewUpdate = !never;
        if (download) dialogs.ExpectAddress(Addresses::UpdateArchive);
        Shared<Frm_Load>().show();
        Driver::InModal(u"Frm_NewUpdate"_s, [=](QWidget* dialog) {
            QVERIFY(!Loaded<Frm_Load>());
            QCOMPARE(dialog->windowTitle(), u"Neues Update verfügbar"_s);
            if (never) Driver::Click(u"Chk_DontShowThisInFuture"_s);
            Driver::Click(download ? u"Cmd_Control_1"_s : u"Cmd_Control_0"_s);
        });
        UpdateCheck::CheckForUpdate(server.Address());
        QVERIFY(!Loaded<Frm_NewUpdate>());
        QCOMPARE(Global::DontShowNewUpdate, never);
        QVERIFY(dialogs.Finished());
    }

    void showsWhatIsNew_data() {
        QTest::addColumn<bool>("never");
        QTest::newRow("comes again") << false;
        QTest::newRow("comes no more") << true;
    }
    void showsWhatIsNew() {
        QFETCH(bool, never);
        const ProgramFolder folder(ProgramFolder::Content::Empty);
        folder.Write(u"update.log"_s, "Update 14.6\r\n- sch\xf6ner\r\n");
        Wiring::WireWindows();
        Driver::InModal(u"Frm_UpdateMessage"_s, [=](QWidget* dialog) {
            QCOMPARE(dialog->windowTitle(), u"Neues Update"_s);
            auto* text = dialog->findChild<QPlainTextEdit*>(u"Txt_UpdateInfo"_s);
            QCOMPARE(text->toPlainText(), u"Update 14.6\n- schöner\n"_s);
            if (never) Driver::Click(u"Chk_DontShowThisInFuture"_s);
            Driver::Click(u"Cmd_Control_0"_s);
        });
        Windows::Show(u"Frm_UpdateMessage");
        QVERIFY(!Loaded<Frm_UpdateMessage>());
        QCOMPARE(Global::UpdateLogExists(), !never);
    }

    void readsRichText_data() {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<QString>("text");
        QTest::newRow("plain") << QByteArray("a {b} \\c") << u"a {b} \\c"_s;
        QTest::newRow("rich") << QByteArray(
                                     "{\\rtf1\\ansi{\\fonttbl{\\f0 Arial;}}{\\*\\generator X;}\r\n"
                                     "\\b Neu\\b0 : \\'e4 \\u8364?\\{x\\}\\par\r\n\\bullet\\tab zwei\\par}")
                              << u"Neu: ä €{x}\n•\tzwei"_s;
        QTest::newRow("two characters for one")
            << QByteArray("{\\rtf1{\\uc2\\u228 ??x}\\u246 ?y}") << u"äxöy"_s;
        QTest::newRow("broken off") << QByteArray("{\\rtf1 abc\\'e") << u"abc"_s + QChar(0x0e);
        QTest::newRow("one bracket too many") << QByteArray("{\\rtf1 a}}}b\\") << u"ab"_s;
        QTest::newRow("deep") << QByteArray("{\\rtf1") + QByteArray(200000, '{') + "x" << u"x"_s;
        QTest::newRow("wild numbers")
            << QByteArray("{\\rtf1\\uc99999999999 \\bin-5 a\\bin999999999 b") << u"a"_s;
    }
    void readsRichText() {
        QFETCH(QByteArray, file);
        QFETCH(QString, text);
        QCOMPARE(UpdateLog::ReadableText(file), text);
    }
};

REGISTER_TEST_AS(UpdateCheck, UpdateCheckTest);
#include "update_check_test.moc"
