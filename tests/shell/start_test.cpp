// SPDX-License-Identifier: MIT
// How the program comes up and goes down.
#include "documents/document_commands.h"
#include "documents/frm_code.h"
#include "platform/files.h"
#include "shell/frm_load.h"
#include "shell/frm_main.h"
#include "shell/frm_welcome.h"
#include "shell/main_menu.h"
#include "shell/status_bar.h"
#include "shell/wiring.h"
#include "support/driver.h"
#include "support/test.h"

#include <QDir>
#include <QListWidget>
#include <QTabBar>
#include <QToolBar>

class Start : public QObject {
    Q_OBJECT

private slots:
    void checksTheInstallation() {
        const ProgramFolder folder;
        QCOMPARE(Program::CheckInstallation(), u"Full"_s);
        QFile::remove(folder.System(u"anim9.anm"_s));
        QCOMPARE(Program::CheckInstallation(), u"Update"_s);
    }

    void readsTheCommandLine() {
        QDir::setCurrent(QDir::tempPath());
        const QString here = Files::FromSystem(QDir::currentPath());
        for (const QString& nothing : {u""_s, u"\""_s, u"\"\""_s})
            QCOMPARE(Program::FileArgument(nothing), QString());
        QCOMPARE(Program::FileArgument(u"\"mein verein.htm\""_s), QString(here + u"\\mein verein.htm"));
        QCOMPARE(Program::FileArgument(u"a/b.htm"_s), QString(here + u"\\a\\b.htm"));
        QCOMPARE(Program::FileArgument(u"/x/b.htm"_s), u"\\x\\b.htm"_s);
        // one quote is part of the name
        QCOMPARE(Program::FileArgument(u"\"b.htm"_s), QString(here + u"\\\"b.htm"));
    }

    void comesUpAndWritesItsSettings() {
        const ProgramFolder folder;
        ScriptedDialogs dialogs;
        int width = 0; // with the frame, in twips
        {
            const Driver::RunningProgram program;
            // written before the window was shown
            QVERIFY(folder.Read(u"edit.ini"_s).contains("WindowState=0"));
            const Frm_Main& main = Shared<Frm_Main>();
            QVERIFY(main.isVisible() && main.isEnabled() && !Loaded<Frm_Load>());
            QVERIFY(main.isMaximized()); // as on every first run
            QCOMPARE(main.windowTitle(), Global::ProgramName);
            QCOMPARE(main.Status()->Panel(1), u"Bereit"_s);
            QVERIFY(!Driver::IsEnabled(u"Menu_File_Save"_s) && !Driver::IsEnabled(u"Menu_Insert"_s) &&
                    Driver::IsEnabled(u"Menu_File_Open"_s));
            QVERIFY(!Driver::IsEnabled(u"Menu_Tools_Tramlink"_s));
            for (const QAction* action : main.findChild<QToolBar*>(u"ToolBar"_s)->actions())
                QVERIFY(action->isSeparator() || (!action->toolTip().isEmpty() && !action->icon().isNull()));
            Shared<Frm_Main>().showNormal();
            Shared<Frm_Main>().resize(700, 500);
            width = Shared<Frm_Main>().frameGeometry().width() * 15;
            Shared<Frm_Main>().Exit();
        }
        QVERIFY(folder.Read(u"edit.ini"_s).contains("WindowState=0\r\n"));
        QVERIFY(folder.Read(u"edit.ini"_s).contains("Width=" + QByteArray::number(width) + "\r\n"));
    }

    void endsOnAMissingList_data() {
        const auto row = Columns<QString>("name");
        row("tags", "taglist.lst");
        row("attributes", "attribute.lst");
        row("tips", "tips.lst");
    }
    void endsOnAMissingList() {
        QFETCH(QString, name);
        const ProgramFolder folder;
        QFile::remove(folder.System(name));
        ScriptedDialogs dialogs;
        dialogs.ExpectMessage(
            u"Fehler"_s, u"Die Datei '%1' kann nicht gefunden werden oder enthält einen Fehler."_s.arg(name),
            Dialogs::Answer::Ok, Dialogs::Icon::Critical);
        Wiring::WireWindows();
        QVERIFY_EXCEPTION_THROWN(Shared<Frm_Main>(), Program::StartEnded);
        Wiring::UnloadAll();
    }

    void greetsWithTheStartDialog() {
        const ProgramFolder folder;
        ScriptedDialogs dialogs;
        const Driver::RunningProgram program;
        Global::LastFile = folder.Write(u"verein.htm"_s, "-//W3C//DTD HTML 4.01");
        Driver::InModal(u"Frm_Welcome"_s, [](QWidget* dialog) {
            dialog->findChild<QTabBar*>(u"Tab_Choice"_s)->setCurrentIndex(1);
            auto* list = dialog->findChild<QListWidget*>(u"Lvw_StartOption"_s);
            QCOMPARE(list->item(1)->text(), u"Letzte Datei: 'verein.htm' öffnen"_s);
            list->setCurrentRow(1);
            Driver::Click(u"Cmd_Control_0"_s);
        });
        Driver::Trigger(u"Menu_File_NewDocument"_s);
        QVERIFY(!Loaded<Frm_Welcome>());
        QCOMPARE(Shared<Frm_Code>().TextBox->Text(), u"-//W3C//DTD HTML 4.01"_s);
        Driver::InModal(u"Frm_Welcome"_s, [](QWidget*) { Driver::Click(u"Cmd_Control_1"_s); });
        Driver::Trigger(u"Menu_File_NewDocument"_s);
        QCOMPARE(Shared<Frm_Code>().TextBox->Text(), u"-//W3C//DTD HTML 4.01"_s); // left alone
    }

    void asksAtTheExit_data() {
        const auto row = Columns<bool, bool>("save", "possible");
        row("yes", true, true);
        row("no", false, true);
        row("yes, but it fails", true, false);
    }
    void asksAtTheExit() {
        QFETCH(bool, save);
        QFETCH(bool, possible);
        const ProgramFolder folder;
        ScriptedDialogs dialogs;
        folder.Write(u"tmp/a.htm"_s, "x");
        folder.Write(u"temp.htm"_s, "x");
        const Driver::RunningProgram program;
        Documents::OpenFile(folder.Write(u"seite.htm"_s, "alt\r\n"));
        Driver::TypeCode(u"neu "_s);
        Driver::Trigger(u"Menu_View_Events"_s); // whose place shows whether the settings were written
        Driver::FindControl(u"Frm_Events"_s)->move(77, 88);
        if (!possible) Global::CurrentFile = folder.Path(u"weg\\seite.htm"_s);
        dialogs.ExpectMessage(
            u"Beenden"_s, u"Die aktuelle Datei wurde noch nicht gespeichert. Möchten Sie das jetzt tun?"_s,
            save ? Dialogs::Answer::Yes : Dialogs::Answer::No, Dialogs::Icon::Question);
        if (!possible) {
            dialogs.ExpectMessage(
                u"Fehler"_s, u"Fehler beim Speichern der Datei. Stellen Sie sicher, dass die Datei nicht "
                             "schreibgeschützt ist."_s);
        }
        Shared<Frm_Main>().close();
        QVERIFY(!Shared<Frm_Main>().isVisible());
        QCOMPARE(folder.Read(u"seite.htm"_s),
                 save && possible ? QByteArray("neu alt\r\n") : QByteArray("alt\r\n"));
        QCOMPARE(folder.Read(u"edit.ini"_s).contains("EventToolLeft=1155\r\nEventToolTop=1320"), possible);
        QCOMPARE(folder.Read(u"bckup.tmp"_s), possible ? QByteArray() : QByteArray("neu alt\r\n\r\n"));
        QVERIFY(!folder.Has(u"tmp"_s) && !folder.Has(u"temp.htm"_s));
    }
};

REGISTER_TEST(Start);
#include "start_test.moc"
