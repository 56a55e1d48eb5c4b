// SPDX-License-Identifier: MIT
// How the program comes up and goes down.
#include "documents/document_commands.h"
#include "documents/frm_code.h"
#include "platform/files.h"
#include "platform/literals.h"
#include "shell/frm_load.h"
#include "shell/frm_main.h"
#include "shell/frm_welcome.h"
#include "shell/main_menu.h"
#include "shell/status_bar.h"
#include "shell/wiring.h"
#include "state/commands.h"
#include "state/global.h"
#include "support/driver.h"
#include "support/program_folder.h"
#include "support/scripted_dialogs.h"
#include "support/test_registry.h"

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
        QCOMPARE(Program::FileArgument({}), QString());
        QCOMPARE(Program::FileArgument(u"\""_s), QString());
        QCOMPARE(Program::FileArgument(u"\"\""_s), QString());
        QCOMPARE(Program::FileArgument(u"\"mein verein.htm\""_s), QString(here + u"\\mein verein.htm"));
        QCOMPARE(Program::FileArgument(u"a/b.htm"_s), QString(here + u"\\a\\b.htm"));
        QCOMPARE(Program::FileArgument(u"/x/b.htm"_s), u"\\x\\b.htm"_s);
        QCOMPARE(Program::FileArgument(u"\"b.htm"_s),
                 QString(here + u"\\\"b.htm")); // one quote is part of the name
    }

    void comesUpAndWritesItsSettings() {
        const ProgramFolder folder;
        ScriptedDialogs dialogs;
        int width = 0; // with the frame, in twips
        {
            const Driver::RunningProgram program;
            QVERIFY(
                folder.Read(u"edit.ini"_s).contains("WindowState=0")); // written before the window was shown
            const Frm_Main& main = Shared<Frm_Main>();
            QVERIFY(main.isVisible() && main.isEnabled() && !Loaded<Frm_Load>());
            QVERIFY(main.isMaximized()); // as on every first run
            QCOMPARE(main.windowTitle(), Global::ProgramName);
            QCOMPARE(main.Status()->Panel(1), u"Bereit"_s);
            QVERIFY(!Driver::IsEnabled(u"Menu_File_Save"_s) && Driver::IsEnabled(u"Menu_File_Open"_s));
            QVERIFY(!Driver::IsEnabled(u"Menu_Tools_Tramlink"_s));
            QCOMPARE(Global::TipList[0].toInt() > 50, true);
            // 27 buttons, and each with its tip
            int buttons = 0;
            for (const QAction* action : main.findChild<QToolBar*>(u"ToolBar"_s)->actions()) {
                if (action->isSeparator()) continue;
                ++buttons;
                QVERIFY(!action->toolTip().isEmpty() && !action->icon().isNull());
            }
            QCOMPARE(buttons, 27);
            Shared<Frm_Main>().showNormal();
            Shared<Frm_Main>().resize(700, 500);
            width = Shared<Frm_Main>().frameGeometry().width() * 15;
            Shared<Frm_Main>().Exit();
        }
        QVERIFY(folder.Read(u"edit.ini"_s).contains("WindowState=0\r\n"));
        QVERIFY(folder.Read(u"edit.ini"_s).contains("Width=" + QByteArray::number(width) + "\r\n"));
    }

    void endsOnAMissingList_data() {
        QTest::addColumn<QString>("name");
        QTest::newRow("tags") << u"taglist.lst"_s;
        QTest::newRow("attributes") << u"attribute.lst"_s;
        QTest::newRow("words") << u"wordchange.lst"_s;
        QTest::newRow("tips") << u"tips.lst"_s;
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
        bool ended = false;
        try {
            Shared<Frm_Main>();
        } catch (const Program::StartEnded&) {
            ended = true;
        }
        QVERIFY(ended);
        Wiring::UnloadAll();
    }

    void greetsWithTheStartDialog() {
        const ProgramFolder folder;
        ScriptedDialogs dialogs;
        const Driver::RunningProgram program;
        Global::LastFile = folder.Write(u"verein.htm"_s, "-//W3C//DTD HTML 4.01");
        Driver::InModal(u"Frm_Welcome"_s, [](QWidget* dialog) {
            auto* list = dialog->findChild<QListWidget*>(u"Lvw_StartOption"_s);
            auto* tabs = dialog->findChild<QTabBar*>(u"Tab_Choice"_s);
            QCOMPARE(list->count(), 5);
            tabs->setCurrentIndex(1);
            QCOMPARE(list->count(), 2);
            QCOMPARE(list->item(1)->text(), u"Letzte Datei: 'verein.htm' öffnen"_s);
            list->setCurrentRow(1);
            Driver::Click(u"Cmd_Control_0"_s);
        });
        Driver::Trigger(u"Menu_File_NewDocument"_s);
        QVERIFY(!Loaded<Frm_Welcome>());
        QCOMPARE(Shared<Frm_Code>().TextBox->Text(), u"-//W3C//DTD HTML 4.01"_s);
        Driver::InModal(u"Frm_Welcome"_s, [](QWidget* dialog) {
            dialog->findChild<QTabBar*>(u"Tab_Choice"_s)->setCurrentIndex(2);
            Driver::Click(u"Cmd_Control_1"_s);
        });
        Driver::Trigger(u"Menu_File_NewDocument"_s);
        QCOMPARE(Global::DocType, u"HTML"_s); // left alone
    }

    void asksAtTheExit_data() {
        QTest::addColumn<bool>("save");
        QTest::addColumn<bool>("possible");
        QTest::newRow("yes") << true << true;
        QTest::newRow("no") << false << true;
        QTest::newRow("yes, but it fails") << true << false;
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
        Global::AutoPreView = true; // shows whether the settings were written
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
        QCOMPARE(folder.Read(u"edit.ini"_s).contains("AutoPreView=True"), possible);
        QCOMPARE(folder.Read(u"bckup.tmp"_s), possible ? QByteArray() : QByteArray("neu alt\r\n\r\n"));
        QVERIFY(!folder.Has(u"tmp"_s) && !folder.Has(u"temp.htm"_s));
    }
};

REGISTER_TEST(Start);
#include "start_test.moc"
