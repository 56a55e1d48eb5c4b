// SPDX-License-Identifier: MIT
#include "shell/update_check.h"

#include "shell/addresses.h"
#include "shell/frm_load.h"
#include "shell/frm_new_update.h"
#include "shell/frm_update_message.h"
#include "shell/update_log.h"
#include "shell/wiring.h"
#include "state/settings.h"
#include "support/driver.h"
#include "support/folder_test.h"
#include "support/web_server.h"

#include <QElapsedTimer>
#include <QPlainTextEdit>

using UpdateCheck::Outcome;

namespace {

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

class UpdateCheckTest : public FolderTest {
    Q_OBJECT

private slots:
    void readsTitles() {
        for (const auto& [page, title] :
             {std::pair<QByteArray, QString>("<TITLE lang=de>\r\n 147\t</TITLE >", "147"),
              {"<title>1</title><title>147</title>", "1"},
              {"<!-- <title>999</title> --><title>147</title>", "147"},
              {"<script>a='<title>999</title>'</script><style></style><title>147</title>", "147"},
              {"<titles>147</titles>", ""},
              {"<title>147", ""},
              {"<html><title", ""},
              {QByteArray(100000, '<'), ""},
              {QByteArray("\0<\xff<title>\0\xe4</title>", 20), QString(u"\0ä"_s)}})
            QVERIFY2(UpdateCheck::TitleOf(page) == title, page.left(80));
    }

    void judgesTitles() {
        QCOMPARE(QString(Settings::UpdateNumber).remove(u'.').toInt(), UpdateCheck::PresentUpdate);
        for (const QString& title : {u"147"_s, u"999"_s})
            QVERIFY2(UpdateCheck::TellsOfUpdate(title), qPrintable(title));
        for (const QString& title :
             {u""_s, u"146"_s, u"14a"_s, u"1470"_s, u"99"_s, u"14.7"_s, u"-99"_s, u"9e9"_s})
            QVERIFY2(!UpdateCheck::TellsOfUpdate(title), qPrintable(title));
    }

    void asksTheServer_data() {
        const auto row = Columns<QList<QByteArray>, bool>("parts", "update");
        const QByteArray error = "\r\nConnection: close\r\n\r\n<title>404</title>";
        row("newer", {Page("147")}, true);
        row("split over packets",
            {"HTTP/1.1 200 O", "K\r\nConnection: close\r\n\r\n<ti", "tle>14", "7</title>"}, true);
        row("error page", {"HTTP/1.1 404 Not Found" + error}, false);
        row("error of the server", {"HTTP/1.1 500 Error" + error}, false);
        row("no page at all", {}, false);
        row("no HTTP", {"<title>147</title>"}, false);
        row("breaks off", {"HTTP/1.1 200 OK\r\nContent-Length: 5000\r\n\r\n<title>147</title>"}, false);
        row("redirection to a file",
            {"HTTP/1.1 302 Found\r\nLocation: file:///etc/passwd\r\nContent-Length: 0\r\n\r\n"}, false);
    }
    void asksTheServer() {
        QFETCH(QList<QByteArray>, parts);
        QFETCH(bool, update);
        WebServer server(parts, 30);
        QStringList told;
        QCOMPARE(Look(server.Address(), 3, &told), update ? Outcome::NewUpdate : Outcome::NoUpdate);
        QVERIFY(server.requests >= 1); // an answer that is none is asked for again
        QCOMPARE(told, QStringList(u"Suche neues Update im Internet..."_s));
    }

    void readsNoMoreThanTheHeadOfAHugePage() {
        QList<QByteArray> parts{Page("147")};
        for (int i = 0; i < 400; ++i) parts << QByteArray(100000, 'x');
        WebServer huge(parts, 1);
        QElapsedTimer clock;
        clock.start();
        QCOMPARE(Look(huge.Address()), Outcome::NewUpdate);
        QVERIFY(clock.elapsed() < 2000);
        QVERIFY(huge.written < 4000000); // what the system buffers on the way, not the 40 MB
        WebServer late({Head + QByteArray(200000, ' ') + "<title>147</title>"}, 1);
        QCOMPARE(Look(late.Address()), Outcome::NoUpdate);
    }

    void aSlowServerIsWaitedForAndASilentOneGivenUp() {
        WebServer slow({Head, "<title>14", "7</title>"}, 250);
        QCOMPARE(Look(slow.Address()), Outcome::NewUpdate);
        for (const QList<QByteArray>& said :
             {QList<QByteArray>{}, QList<QByteArray>{Head, "<title>147</title>"}}) {
            WebServer silent(said, 1, false);
            QStringList told;
            QElapsedTimer clock;
            clock.start();
            QCOMPARE(Look(silent.Address(), 0.5, &told), Outcome::TimedOut);
            QVERIFY(clock.elapsed() >= 590);
            QCOMPARE(told.value(1), u"Timeout..."_s);
        }
    }

    void withoutANetworkItFails() {
        QTcpServer closed;
        QVERIFY(closed.listen(QHostAddress::LocalHost));
        const QString address = u"http://127.0.0.1:%1/"_s.arg(closed.serverPort());
        closed.close();
        for (const QString& other :
             {address, u""_s, u"http://"_s, u"file:///etc/passwd"_s, u"ftp://127.0.0.1/x"_s})
            QCOMPARE(Look(other), Outcome::NoUpdate); // not TimedOut
    }

    void offersTheDownload() {
        for (const bool yes : {false, true}) {
            WebServer server({Page("147")}, 1);
            Global::DontShowNewUpdate = !yes;
            if (yes) m_dialogs->ExpectAddress(Addresses::UpdateArchive);
            Shared<Frm_Load>().show();
            Driver::InModal(u"Frm_NewUpdate"_s, [=](QWidget*) {
                QVERIFY(!Loaded<Frm_Load>());
                if (yes) Driver::Click(u"Chk_DontShowThisInFuture"_s);
                Driver::Click(yes ? u"Cmd_Control_1"_s : u"Cmd_Control_0"_s);
            });
            UpdateCheck::CheckForUpdate(server.Address());
            QVERIFY(!Loaded<Frm_NewUpdate>());
            QCOMPARE(Global::DontShowNewUpdate, yes);
        }
    }

    void showsWhatIsNew() {
        m_folder->Write(u"update.log"_s, "Update 14.6\r\n- sch\xf6ner\r\n");
        Wiring::WireWindows();
        for (const bool never : {false, true}) {
            Driver::InModal(u"Frm_UpdateMessage"_s, [=](QWidget* dialog) {
                auto* text = dialog->findChild<QPlainTextEdit*>(u"Txt_UpdateInfo"_s);
                QCOMPARE(text->toPlainText(), u"Update 14.6\n- schöner\n"_s);
                if (never) Driver::Click(u"Chk_DontShowThisInFuture"_s);
                Driver::Click(u"Cmd_Control_0"_s);
            });
            Windows::Show(u"Frm_UpdateMessage");
            QVERIFY(!Loaded<Frm_UpdateMessage>());
            QCOMPARE(Global::UpdateLogExists(), !never);
        }
    }

    void readsRichText() {
        for (const auto& [file, text] :
             {std::pair<QByteArray, QString>("a {b} \\c", "a {b} \\c"),
              {"{\\rtf1\\ansi{\\fonttbl{\\f0 Arial;}}{\\*\\generator X;}\r\n"
               "\\b Neu\\b0 : \\'e4 \\u8364?\\{x\\}\\par\r\n\\bullet\\tab zwei\\par}",
               "Neu: ä €{x}\n•\tzwei"},
              {"{\\rtf1{\\uc2\\u228 ??x}\\u246 ?y}", "äxöy"}, // two characters for one
              {"{\\rtf1 abc\\'e", u"abc"_s + QChar(0x0e)},
              {"{\\rtf1 a}}}b\\", "ab"},
              {QByteArray("{\\rtf1") + QByteArray(200000, '{') + "x", "x"},
              {"{\\rtf1\\uc99999999999 \\bin-5 a\\bin999999999 b", "a"}})
            QCOMPARE(UpdateLog::ReadableText(file), text);
    }

    void theCheckOfTheStartBeepsAfterItsTime() {
        UpdateCheck::CheckForUpdate(Addresses::UpdateCheck); // a placeholder: no wait, no beep, no splash
        QVERIFY(!Loaded<Frm_Load>());
        WebServer silent({}, 1, false);
        m_dialogs->ExpectBeep();
        UpdateCheck::CheckForUpdate(silent.Address());
        Unload<Frm_Load>();
    }
};

REGISTER_TEST_AS(UpdateCheck, UpdateCheckTest);
#include "update_check_test.moc"
