// SPDX-License-Identifier: MIT
// How the program comes up and goes down, and that all its names are answered.
#include "shell/frm_load.h"
#include "shell/frm_welcome.h"
#include "shell/main_menu.h"
#include "support/program_test.h"

#include <QDirIterator>
#include <QListWidget>
#include <QRegularExpression>
#include <QTabBar>
#include <QToolBar>

class Start : public ProgramTest {
    Q_OBJECT

private slots:
    void init() override { FolderTest::init(); }

    void checksTheInstallation() {
        QCOMPARE(Program::CheckInstallation(), u"Full"_s);
        QFile::remove(m_folder->System(u"anim9.anm"_s));
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
        StartProgram();
        // written before the window was shown
        QVERIFY(m_folder->Read(u"edit.ini"_s).contains("WindowState=0"));
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
        const int width = Shared<Frm_Main>().frameGeometry().width() * 15; // with the frame, in twips
        Shared<Frm_Main>().Exit();
        m_program.reset();
        QVERIFY(m_folder->Read(u"edit.ini"_s).contains("WindowState=0\r\n"));
        QVERIFY(m_folder->Read(u"edit.ini"_s).contains("Width=" + QByteArray::number(width) + "\r\n"));
    }

    void endsOnAMissingList() {
        for (const QString& name : {u"taglist.lst"_s, u"attribute.lst"_s, u"tips.lst"_s}) {
            cleanup();
            init();
            QFile::remove(m_folder->System(name));
            m_dialogs->ExpectMessage(
                u"Fehler"_s,
                u"Die Datei '%1' kann nicht gefunden werden oder enthält einen Fehler."_s.arg(name),
                Dialogs::Answer::Ok, Dialogs::Icon::Critical);
            Wiring::WireWindows();
            QVERIFY_EXCEPTION_THROWN(Shared<Frm_Main>(), Program::StartEnded);
            Wiring::UnloadAll();
        }
    }

    void greetsWithTheStartDialog() {
        StartProgram();
        Global::LastFile = m_folder->Write(u"verein.htm"_s, "-//W3C//DTD HTML 4.01");
        Driver::InModal(u"Frm_Welcome"_s, [](QWidget* dialog) {
            dialog->findChild<QTabBar*>(u"Tab_Choice"_s)->setCurrentIndex(1);
            auto* list = dialog->findChild<QListWidget*>(u"Lvw_StartOption"_s);
            QCOMPARE(list->item(1)->text(), u"Letzte Datei: 'verein.htm' öffnen"_s);
            list->setCurrentRow(1);
            Driver::Click(u"Cmd_Control_0"_s);
        });
        Driver::Trigger(u"Menu_File_NewDocument"_s);
        QVERIFY(!Loaded<Frm_Welcome>());
        QCOMPARE(Box().Text(), u"-//W3C//DTD HTML 4.01"_s);
        Driver::InModal(u"Frm_Welcome"_s, [](QWidget*) { Driver::Click(u"Cmd_Control_1"_s); });
        Driver::Trigger(u"Menu_File_NewDocument"_s);
        QCOMPARE(Box().Text(), u"-//W3C//DTD HTML 4.01"_s); // left alone
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
        m_folder->Write(u"tmp/a.htm"_s, "x");
        m_folder->Write(u"temp.htm"_s, "x");
        StartProgram();
        Documents::OpenFile(m_folder->Write(u"seite.htm"_s, "alt\r\n"));
        Driver::TypeCode(u"neu "_s);
        Driver::Trigger(u"Menu_View_Events"_s); // whose place shows whether the settings were written
        Driver::FindControl(u"Frm_Events"_s)->move(77, 88);
        if (!possible) Global::CurrentFile = m_folder->Path(u"weg\\seite.htm"_s);
        m_dialogs->ExpectUnsaved(u"Beenden"_s, save ? Dialogs::Answer::Yes : Dialogs::Answer::No);
        if (!possible) m_dialogs->ExpectFailedSave();
        Shared<Frm_Main>().close();
        QVERIFY(!Shared<Frm_Main>().isVisible());
        QCOMPARE(m_folder->Read(u"seite.htm"_s),
                 save && possible ? QByteArray("neu alt\r\n") : QByteArray("alt\r\n"));
        QCOMPARE(m_folder->Read(u"edit.ini"_s).contains("EventToolLeft=1155\r\nEventToolTop=1320"), possible);
        QCOMPARE(m_folder->Read(u"bckup.tmp"_s), possible ? QByteArray() : QByteArray("neu alt\r\n\r\n"));
        QVERIFY(!m_folder->Has(u"tmp"_s) && !m_folder->Has(u"temp.htm"_s));
        QVERIFY(!Global::DocOpen); // so that work in progress on the document ends
    }

    // Nothing that the program speaks of by a name is answered by silence.
    void knowsEveryWindowThatIsNamed() {
        Wiring::InstallWindows();
        QSet<QString> rows;
        for (const Windows::Row& row : Windows::Rows()) {
            QVERIFY2(!rows.contains(row.name.toString()), qPrintable(row.name.toString()));
            rows.insert(row.name.toString());
            const bool hidden = row.command == u"Menu_Tools_SpellingCheck"; // a setting shows it
            QVERIFY2(row.command.isEmpty() || Commands::StateOf(row.command.toString()).visible != hidden,
                     qPrintable(row.command.toString()));
        }
        static const QRegularExpression name(u"u\"(Frm_[A-Za-z]+|WAPBrowser)\""_s);
        int seen = 0;
        QDirIterator sources(SourceFile(u"src"_s), {u"*.cpp"_s}, QDir::Files, QDirIterator::Subdirectories);
        while (sources.hasNext()) {
            QFile file(sources.next());
            QVERIFY(file.open(QIODevice::ReadOnly));
            const QString text = QString::fromUtf8(file.readAll());
            for (const auto& hit : name.globalMatch(text)) {
                if (hit.captured(1) == u"Frm_Main") continue; // shown by the start alone
                QVERIFY2(rows.contains(hit.captured(1)),
                         qPrintable(file.fileName() + u' ' + hit.captured(1)));
                ++seen;
            }
        }
        QVERIFY(seen > rows.size());
    }

    void answersEveryCommandAndCall() {
        StartProgram();
        const QStringList toCome{u"Menu_Project_Jump"_s, u"Menu_Project_Set"_s, u"Menu_Tools_Connection"_s,
                                 u"x_Menu_Tools_Debug"_s, u"Menu_Menu_Code_Attribute_0"_s};
        for (const Commands::MenuRow& row : Commands::MenuTree()) {
            if (row.flags & (Commands::Submenu | Commands::Separator)) continue;
            const QString name = row.name.toString();
            QVERIFY2(Frm_Main::HasCommand(name) != toCome.contains(name), qPrintable(name));
        }
        QCOMPARE(Neighbours::Unanswered(), QStringList());
    }
};

REGISTER_TEST(Start);
#include "start_test.moc"
