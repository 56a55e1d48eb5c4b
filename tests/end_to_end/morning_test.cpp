// SPDX-License-Identifier: MIT
// A morning with the editor: real pages through the real main window, and the bytes on disk afterwards.
#include "documents/document_commands.h"
#include "documents/frm_code.h"
#include "documents/new_documents.h"
#include "platform/files.h"
#include "platform/literals.h"
#include "shell/frm_main.h"
#include "shell/status_bar.h"
#include "state/global.h"
#include "support/driver.h"
#include "support/program_folder.h"
#include "support/scripted_dialogs.h"
#include "support/test_registry.h"

#include <QClipboard>
#include <QMimeData>

class Morning : public QObject {
    Q_OBJECT

    static Txt_Code& Box() { return *Shared<Frm_Code>().TextBox; }

private slots:
    void leavesExactlyTheExpectedBytes_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<QByteArray>("after"); // with "ü€" typed at the very start
        const auto row = [](const char* title, const QByteArray& before, const QByteArray& after) {
            QTest::newRow(title) << u"seite.htm"_s << before << after;
        };
        row("CR LF and Windows-1252", "gr\xFC\xDF\r\nab\r\n", "\xFC\x80gr\xFC\xDF\r\nab\r\n");
        row("LF", "<p>\n</p>\n", "\xFC\x80<p>\n</p>\n");
        row("UTF-8", "\xC3\xA4\r\n", "\xC3\xBC\xE2\x82\xAC\xC3\xA4\r\n");
        row("UTF-8 with mark", "\xEF\xBB\xBF<p>\n", "\xEF\xBB\xBF\xC3\xBC\xE2\x82\xAC<p>\n");
        row("no final line end", "a\r\nb",
            "\xFC\x80"
            "a\r\nb\r\n");
        row("undefined bytes", "\x81\x8D\x8F\x90\x9D\r\n", "\xFC\x80\x81\x8D\x8F\x90\x9D\r\n");
    }
    void leavesExactlyTheExpectedBytes() {
        QFETCH(QString, name);
        QFETCH(QByteArray, before);
        const ProgramFolder folder;
        ScriptedDialogs dialogs;
        const Driver::RunningProgram program;
        Global::AutoDebug = Global::AutoProjectManager = false;
        dialogs.ExpectOpenFile(u"Öffnen"_s, folder.Write(name, before));
        Driver::Trigger(u"ToolBar_OpenFile"_s);
        QVERIFY(!Global::DocChanged);
        Driver::TypeCode(u"ü€"_s);
        QCOMPARE(Shared<Frm_Main>().Status()->Panel(2), u"geändert"_s);
        Driver::Trigger(u"Menu_File_Save"_s);
        QTEST(folder.Read(name), "after");
        Driver::Trigger(u"Menu_File_Save"_s); // a second time changes nothing
        QTEST(folder.Read(name), "after");
        Driver::Trigger(u"Menu_File_SaveBackUp"_s);
        QTEST(folder.Read(name + u".bak"), "after");
    }

    void keepsTheSampleSite() {
        const ProgramFolder folder;
        CopyFolder(SourceFile(u"examples/verein"_s), folder.System(u"verein"_s));
        ScriptedDialogs dialogs;
        const Driver::RunningProgram program;
        Global::AutoDebug = Global::AutoProjectManager = false;
        int pages = 0;
        const auto visit = [&](const QString& name) {
            const QByteArray before = folder.Read(u"verein/"_s + name);
            QVERIFY2(!before.isEmpty(), qPrintable(name));
            Documents::OpenFile(folder.Path(u"verein\\"_s + QString(name).replace(u'/', u'\\')));
            Driver::Trigger(u"Menu_File_Save"_s);
            QByteArray expected = before;
            if (!expected.endsWith('\n')) expected += "\r\n";
            if (!name.endsWith(u".wml")) QCOMPARE(folder.Read(u"verein/"_s + name), expected);
            ++pages;
        };
        for (const QString& name :
             {u"index.htm"_s, u"rahmen.htm"_s, u"aktuell/neuigkeiten.html"_s, u"verein/vorstand.html"_s,
              u"verein/lageplan.htm"_s, u"verein/kontakt.htm"_s, u"heute/gartenjahr.html"_s,
              u"heute/gartenjahr.js"_s, u"stil/verein.css"_s, u"skripte/rechner.vbs"_s,
              u"dateien/preisliste.txt"_s, u"wap/index.wml"_s}) {
            visit(name);
        }
        QCOMPARE(pages, 12);
    }

    void editsWithMenuAndKeys() {
        const ProgramFolder folder;
        ScriptedDialogs dialogs;
        const Driver::RunningProgram program;
        Global::AutoDebug = Global::AutoProjectManager = false;
        Driver::Trigger(u"ToolBar_NewXHTML_HTML"_s);
        QVERIFY(Box().Text().startsWith(u"<!doctype html public"));
        QVERIFY(Driver::IsEnabled(u"Menu_File_Save"_s) && !Driver::IsEnabled(u"Menu_File_SaveBackUp"_s));
        QCOMPARE(Shared<Frm_Main>().windowTitle(), u"Sorvane HTML Editor 3.0 [HTML]"_s);
        Driver::Trigger(u"Menu_Edit_SelectAll"_s);
        Driver::Trigger(u"Menu_Edit_Delete"_s);
        QCOMPARE(Box().Text(), QString());
        QVERIFY(!Driver::IsEnabled(u"Menu_Edit_Cut"_s));
        Driver::TypeCode(u"<div><B>x"_s);
        Driver::Trigger(u"Menu_Insert_CloseTag"_s);
        QCOMPARE(Box().Text(), u"<div><B>x</B>"_s);
        Driver::Trigger(u"Menu_Edit_Undo"_s);
        QCOMPARE(Box().Text(), u"<div><B>x"_s);
        Driver::Trigger(u"Menu_Tools_UCaseTags"_s);
        QCOMPARE(Box().Text(), u"<DIV><B>x"_s);
        dialogs.ExpectSaveFile(u"Speichern unter"_s, folder.Path(u"neu.htm"_s));
        Driver::Trigger(u"Menu_File_Save"_s);
        QCOMPARE(folder.Read(u"neu.htm"_s), QByteArray("<DIV><B>x\r\n"));
        QVERIFY(Driver::IsEnabled(u"Menu_File_SaveBackUp"_s));
        Driver::Trigger(u"Menu_File_Close"_s);
        QVERIFY(!Loaded<Frm_Code>() && !Driver::IsEnabled(u"Menu_File_Save"_s));
        QCOMPARE(Shared<Frm_Main>().windowTitle(), Global::ProgramName);
    }

    // Keys that menu items have as shortcuts, and keys that belong to the box.
    void sharesKeysBetweenMenuAndBox() {
        const ProgramFolder folder;
        ScriptedDialogs dialogs;
        const Driver::RunningProgram program;
        Global::AutoDebug = Global::AutoProjectManager = false;
        Documents::OpenFile(folder.Write(u"a.txt"_s, "abcdef"));
        Shared<Frm_Main>().activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&Shared<Frm_Main>(), 30000));
        Box().setFocus();
        Driver::PressCode(Qt::Key_Delete); // without a selection the key is the box's
        QCOMPARE(Box().Text(), u"bcdef"_s);
        Box().SetSelStart(1);
        Box().SetSelLength(2);
        Driver::PressCode(Qt::Key_Delete); // with one the command acts, by a whole new text
        QCOMPARE(Box().Text(), u"bef"_s);
        QCOMPARE(Box().SelStart(), 1);
        Driver::PressCode(Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(Box().SelLength(), 3);
        Driver::PressCode(Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(folder.Read(u"a.txt"_s), QByteArray("bef\r\n"));
    }

    void findsEverythingAgain() {
        const ProgramFolder folder;
        const QString page = folder.Write(u"a.htm"_s, "x");
        QRect place;
        {
            ScriptedDialogs dialogs;
            const Driver::RunningProgram program;
            Global::AutoDebug = Global::AutoProjectManager = false;
            Documents::OpenFile(page);
            Driver::Trigger(u"Menu_File_Save"_s);
            Shared<Frm_Main>().showNormal();
            Shared<Frm_Main>().setGeometry(40, 50, 700, 600);
            QCoreApplication::processEvents();
            place = Shared<Frm_Main>().frameGeometry();
            Shared<Frm_Main>().close();
        }
        Global::Reset();
        ScriptedDialogs dialogs;
        const Driver::RunningProgram program;
        QCOMPARE(Shared<Frm_Main>().frameGeometry(), place);
        QCOMPARE(Global::LastFile, page);
        QVERIFY(!Global::AutoDebug);
    }
};

REGISTER_TEST(Morning);
#include "morning_test.moc"
