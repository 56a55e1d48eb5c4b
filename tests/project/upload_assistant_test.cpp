// SPDX-License-Identifier: MIT
// The upload assistant by its menu item, in the real program.
#include "project/frm_upload_assistant.h"

#include "project/ftp.h"
#include "state/global.h"
#include "state/settings.h"
#include "support/ftp_server.h"
#include "support/program_test.h"

#include <QCheckBox>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPointer>
#include <QTextBlock>
#include <QTimer>
#include <QTreeView>

class UploadAssistantTest : public ProgramTest {
    Q_OBJECT

    // Opens the window for web\index.htm and runs `inside` in it as soon as the files have been found.
    void In(std::function<void(QWidget*)> inside) {
        Documents::OpenFile(m_folder->Path(u"web/index.htm"_s));
        QTimer found; // looks from time to time, since a look out of the search would hold it up
        Driver::InModal(u"Frm_UploadAssistant"_s, [&](QWidget* window) {
            connect(&found, &QTimer::timeout, window, [&, window = QPointer(window)] {
                if (!Driver::Find<QAbstractButton>(u"Cmd_Control_0"_s)->isEnabled()) return;
                found.stop();
                inside(window);
                if (window && window->isVisible()) QTest::keyClick(window, Qt::Key_Escape);
            });
            found.start(1);
        });
        Driver::Trigger(u"Menu_File_UploadAssistant"_s);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!Loaded<Frm_UploadAssistant>());
    }
    static QString Text(const QString& field) { return Driver::Find<QLineEdit>(field)->text(); }
    static void Fill(const QString& field, const QString& text) {
        Driver::Find<QLineEdit>(field)->clear();
        QTest::keyClicks(Driver::Find<QLineEdit>(field), text);
    }
    static void LogIn(const QString& address, const QString& password) {
        Fill(u"Txt_Address"_s, address);
        Fill(u"Txt_UserName"_s, u"garten"_s);
        Fill(u"Txt_Password"_s, password);
        Driver::Click(u"Cmd_Control_0"_s);
    }
    // The step that is shown, and which of "Weiter", "Schließen" and "Zurück" can be pressed.
    static QString State() {
        QString state;
        for (const QChar step : u"012"_s) {
            if (Driver::FindControl(u"Frm_Step_"_s + step)->isVisible()) state += step;
        }
        for (const QChar button : u"012"_s) {
            const auto* control = Driver::Find<QAbstractButton>(u"Cmd_Control_"_s + button);
            state += u' ' + (control->isEnabled() ? control->text() : u"-"_s);
        }
        return state;
    }
    // The column "Verzeichnis".
    static QStringList Listed() {
        QStringList files;
        const auto* list = Driver::Find<QTreeView>(u"Lvw_Files"_s)->model();
        for (int row = 0; row < list->rowCount(); ++row) files << list->index(row, 1).data().toString();
        return files;
    }
    static QString ColorOfLine(int line) {
        const auto* log = Driver::Find<QPlainTextEdit>(u"Txt_Status"_s)->document();
        return log->findBlockByNumber(line).textFormats().constFirst().format.foreground().color().name();
    }
    static QString Log() { return Driver::Find<QPlainTextEdit>(u"Txt_Status"_s)->toPlainText(); }

private slots:
    void init() override {
        ProgramTest::init();
        m_folder->Write(u"web/index.htm"_s, "-//W3C//DTD HTML\r\n<a href=\"sub/a.htm\"><img src=\"../b.png\">"
                                            "<img src=\"c.png\"><a href=\"http://example.org/x.htm\">");
        m_folder->Write(u"web/sub/a.htm"_s, "<a href=\"../index.htm\">");
        m_folder->Write(u"web/c.png"_s, QByteArray(2048, 'c'));
        m_folder->Write(u"b.png"_s, "b");
        FTP::FtpPassword.clear();
    }

    void keepsOfTheLoginWhatItIsToldTo() {
        In([](QWidget*) {
            QVERIFY(!Driver::Find<QCheckBox>(u"Chk_SaveData"_s)->isChecked());
            Driver::Click(u"Chk_SaveData"_s);
            Driver::Click(u"Chk_SavePassword"_s);
            LogIn(u"ftp.example.org"_s, u"geheim"_s);
        });
        QVERIFY(Settings::WriteSettings());
        const QByteArray stored = m_folder->Read(u"edit.ini"_s);
        QVERIFY(stored.contains("FTP_Address=ftp.example.org\r\nFTP_UserName=garten\r\n"));
        QVERIFY(!stored.contains("geheim"));
        In([](QWidget*) {
            QCOMPARE(Text(u"Txt_Address"_s) + Text(u"Txt_UserName"_s), u"ftp.example.orggarten"_s);
            QCOMPARE(Text(u"Txt_Password"_s), u"geheim"_s);
            QVERIFY(Driver::Find<QLineEdit>(u"Txt_Password"_s)->displayText() != u"geheim"_s);
            Driver::Click(u"Chk_SaveData"_s); // both were ticked
            Driver::Click(u"Chk_SavePassword"_s);
            Driver::Click(u"Cmd_Control_0"_s);
            Driver::Click(u"Cmd_Control_2"_s);
            QCOMPARE(Text(u"Txt_Address"_s) + Text(u"Txt_UserName"_s) + Text(u"Txt_Password"_s), QString());
        });
        QCOMPARE(Global::FTP_Address + Global::FTP_UserName + FTP::FtpPassword, QString());
    }

    void listsTheFilesBelowThePage() {
        In([](QWidget*) {
            const QStringList all{u"web/index.htm"_s, u"web/sub/a.htm"_s, u"web/c.png"_s};
            Driver::Click(u"Cmd_Control_0"_s);
            QCOMPARE(Listed(), all);
            auto* list = Driver::Find<QTreeView>(u"Lvw_Files"_s);
            const auto* remove = Driver::Find<QAbstractButton>(u"Cmd_RemoveFile"_s);
            const auto click = [list](int row, Qt::KeyboardModifiers with = Qt::NoModifier) {
                const QRect place = list->visualRect(list->model()->index(row, 0));
                QTest::mouseClick(list->viewport(), Qt::LeftButton, with, place.center());
            };
            QVERIFY(!remove->isEnabled());
            click(0);
            click(2, Qt::ControlModifier);
            QTest::keyClick(list, Qt::Key_Delete);
            QCOMPARE(Listed(), QStringList{u"web/sub/a.htm"_s});
            QVERIFY(!remove->isEnabled());
            click(0);
            Driver::Click(u"Cmd_RemoveFile"_s);
            QCOMPARE(Listed(), QStringList());
            Driver::Click(u"Cmd_LoadNew"_s);
            QTRY_COMPARE(Listed(), all);
        });
        Documents::CreateNewTextFile(); // has nothing to send
        QVERIFY(!Driver::IsEnabled(u"Menu_File_UploadAssistant"_s));
    }

    void goesBackBehindAFailedLogin() {
        In([](QWidget*) {
            QCOMPARE(State(), u"0 &Weiter > S&chließen -"_s);
            LogIn(u"127.0.0.1:1"_s, u"falsch"_s); // nobody listens there
            QCOMPARE(State(), u"1 F&ertigstellen S&chließen < &Zurück"_s);
            Driver::Click(u"Cmd_Control_0"_s);
            QCOMPARE(State(), u"2 - S&chließen < &Zurück"_s);
            QCOMPARE(Log(), u"Verbinde mit Server...\n! Fehler beim Verbindungsaufbau.\n"_s);
            QCOMPARE(ColorOfLine(0) + ColorOfLine(1), u"#000099#990000"_s);
            Driver::Click(u"Cmd_Control_2"_s);
            QCOMPARE(State(), u"1 F&ertigstellen S&chließen < &Zurück"_s);
            Driver::Click(u"Cmd_Control_2"_s);
            QCOMPARE(State(), u"0 &Weiter > S&chließen -"_s);
        });
    }

    void sendsWhatIsListed() {
        FtpServer server;
        m_dialogs->ExpectBeep();
        In([&](QWidget*) {
            LogIn(server.Address(), u"beet"_s);
            Fill(u"Txt_Path"_s, u"neu\\web"_s);
            Driver::Click(u"Chk_SubFiles"_s);
            Driver::Click(u"Cmd_Control_0"_s);
            QCOMPARE(State(), u"2 - S&chließen -"_s);
            QCOMPARE(ColorOfLine(1), u"#009900"_s);
            const QStringList lines = Log().split(u'\n');
            QCOMPARE(lines.mid(0, 4),
                     (QStringList{u"Verbinde mit Server..."_s, u"> Verbindung erfolgreich abgeschlossen."_s,
                                  u"Erstelle Ordner '/neu/web'..."_s, u"> Ordner erstelt."_s}));
            QCOMPARE(lines.mid(lines.size() - 4),
                     (QStringList{u"Kopiere Datei 'c.png' (2 kB)..."_s, u"> Kopiervorgang erfolgreich."_s,
                                  u"Upload abgeschlossen."_s, QString()}));
        });
        QMap<QString, QByteArray> sent{{u"/neu/"_s, {}}, {u"/neu/web/"_s, {}}, {u"/neu/web/sub/"_s, {}}};
        for (const QString& file : {u"index.htm"_s, u"sub/a.htm"_s, u"c.png"_s})
            sent[u"/neu/web/"_s + file] = m_folder->Read(u"web/"_s + file);
        QCOMPARE(server.Tree(), sent);
    }

    // Left while the server is waited for, it is gone at once: no line, no beep, nothing sent.
    void endsWithItsWindow() {
        FtpServer server({u"--mute"_s, u"STOR"_s});
        QElapsedTimer left;
        QTimer watch;
        In([&](QWidget* window) {
            LogIn(server.Address(), u"beet"_s);
            connect(&watch, &QTimer::timeout, window, [&, window] {
                if (!Log().contains(u"Kopiere Datei")) return;
                watch.stop();
                left.start();
                QTest::keyClick(window, Qt::Key_Escape);
            });
            watch.start(10);
            Driver::Click(u"Cmd_Control_0"_s);
            QVERIFY(left.isValid() && !left.hasExpired(2000));
        });
        QCOMPARE(server.Tree(), (QMap<QString, QByteArray>()));
    }

    // Neither Enter held down nor a double click runs on into the upload.
    void waitsForAPressOfItsOwn() {
        In([](QWidget* window) {
            auto* button = Driver::Find<QAbstractButton>(u"Cmd_Control_0"_s);
            const auto press = [](QWidget* target, bool held) {
                QKeyEvent key(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, u"\r"_s, held);
                QCoreApplication::sendEvent(target, &key);
            };
            press(Driver::FindControl(u"Txt_Address"_s), false);
            const QString filesStep = u"1 F&ertigstellen S&chließen < &Zurück"_s;
            for (QWidget* target :
                 {Driver::FindControl(u"Txt_Path"_s), static_cast<QWidget*>(button), window}) {
                press(target, true);
                QCOMPARE(State(), filesStep);
            }
            for (const auto type : {QEvent::KeyRelease, QEvent::KeyPress}) { // as X11 may send it
                QKeyEvent key(type, Qt::Key_Return, Qt::NoModifier, u"\r"_s);
                key.setTimestamp(1000);
                QCoreApplication::sendEvent(button, &key);
            }
            QCOMPARE(State(), filesStep);
            QTest::mouseDClick(button, Qt::LeftButton);
            QTest::mouseRelease(button, Qt::LeftButton);
            QCOMPARE(State(), filesStep);
        });
    }
};

REGISTER_TEST_AS(UploadAssistant, UploadAssistantTest);
#include "upload_assistant_test.moc"
