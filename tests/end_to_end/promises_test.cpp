// SPDX-License-Identifier: MIT
// What is promised about the user's text and files, kept by the real program.
#include "documents/recovery.h"
#include "platform/screen_place.h"
#include "support/program_test.h"
#include "support/small_disk.h"

class Promises : public ProgramTest {
    Q_OBJECT

    static inline const QByteArray Picture = QByteArray("GIF89a\1\0\1\0\x80\r\0\xFF\n\xFF\0\0\0;", 20);

private slots:
    void beginsAHistoryWithEachDocument() {
        const QByteArray shared(2000, 'x');
        const auto takesNothingBack = [] {
            const QString text = Box().Text();
            for (int times = 0; times < 3; ++times) Driver::PressCode(Qt::Key_Z, Qt::ControlModifier);
            QCOMPARE(Box().Text(), text);
        };
        Documents::OpenFile(m_folder->Write(u"a.htm"_s, "<p>erste " + shared));
        Driver::TypeCode(u"neu"_s);
        Driver::Trigger(u"Menu_File_Save"_s);
        Documents::OpenFile(m_folder->Write(u"b.htm"_s, "<p>zweite " + shared));
        takesNothingBack();
        Driver::Trigger(u"Menu_File_NewPage"_s);
        takesNothingBack();
        Global::DocChanged = false;
        m_folder->Write(u"bckup.tmp"_s, "<p>dritte " + shared);
        Recovery::Menu_File_RestoreFile();
        takesNothingBack();
    }

    void keepsTheRecoveryCopyWhenAnAnswerIsTakenBack() {
        m_folder->Write(u"bckup.tmp"_s, "gerettet\r\n");
        Recovery::Menu_File_RestoreFile();
        m_dialogs->ExpectUnsaved(u"Datei öffnen"_s, Dialogs::Answer::No);
        m_dialogs->ExpectOpenFile(u"Öffnen"_s, {}); // left by Esc
        Driver::Trigger(u"Menu_File_Open"_s);
        QVERIFY(Global::DocChanged && Recovery::Exists());
        m_dialogs->ExpectUnsaved(u"Schließen"_s, Dialogs::Answer::No);
        Driver::Trigger(u"Menu_File_Close"_s);
        QVERIFY(!Recovery::Exists());
    }

    void keepsTheCopyOfAnotherText() {
        m_folder->Write(u"bckup.tmp"_s, "gerettet\r\n");
        // a page whose folder has gone, as when a stick is pulled
        Documents::OpenFile(m_folder->Write(u"weg/seite.htm"_s, "neu\r\n"));
        QVERIFY(QDir(m_folder->System(u"weg"_s)).removeRecursively());
        Driver::TypeCode(u"x"_s);
        m_dialogs->ExpectUnsaved(u"Datei öffnen"_s, Dialogs::Answer::Yes);
        m_dialogs->ExpectFailedSave();
        m_dialogs->ExpectOpenFile(u"Öffnen"_s, {});
        Driver::Trigger(u"Menu_File_Open"_s);
        QCOMPARE(m_folder->Read(u"bckup.tmp"_s), QByteArray("xneu\r\n\r\n"));
        QCOMPARE(m_folder->Read(u"bckup1.tmp"_s), QByteArray("gerettet\r\n"));
        QVERIFY(Global::DocChanged && !Driver::IsEnabled(u"Menu_File_SaveBackUp"_s));
        QCOMPARE(Shared<Frm_Main>().Status()->Panel(2), u"geändert"_s);
        m_dialogs->ExpectSaveFile(u"Speichern unter"_s, m_folder->Path(u"neu.htm"_s));
        Driver::Trigger(u"Menu_File_Save"_s);
        QCOMPARE(m_folder->Read(u"bckup.tmp"_s), QByteArray("gerettet\r\n"));
        QVERIFY(!m_folder->Has(u"bckup1.tmp"_s));
    }

    void leavesPicturesAlone() {
        Documents::OpenFile(m_folder->Write(u"bild.gif"_s, Picture));
        Driver::Trigger(u"Menu_View_Code"_s);
        Windows::Show(u"Frm_Code");
        for (const QString& button : {u"ToolBar_Cut"_s, u"ToolBar_Copy"_s})
            QVERIFY(!Driver::IsEnabled(button));
        QVERIFY(!Loaded<Frm_Code>() && !Neighbours::TheCodeBox() && !Global::DocChanged);
        Commands::SetChecked(u"Menu_Tools_Option_2"_s, true);
        Driver::Trigger(u"Menu_File_Save"_s);
        QVERIFY(!Loaded<Frm_Code>());
        QCOMPARE(m_folder->Read(u"bild.gif"_s), Picture + "\r\n");
    }

    void opensNoWindowWithoutADocument() {
        for (const bool closed : {false, true}) {
            if (closed) {
                Documents::OpenFile(m_folder->Write(u"a.htm"_s, "x"));
                Driver::Trigger(u"Menu_File_Close"_s);
                QCOMPARE(Shared<Frm_Main>().Status()->Panel(2), u"Bereit"_s);
                QCOMPARE(Shared<Frm_Main>().Status()->Panel(4), QString());
            }
            for (const QString& button : {u"ToolBar_Cut"_s, u"ToolBar_Copy"_s, u"Menu_View_Code"_s})
                QVERIFY(!Driver::IsEnabled(button));
            Neighbours::FocusCode();
            Windows::Show(u"Frm_Code");
            QVERIFY(!Loaded<Frm_Code>() && !Neighbours::TheCodeBox() && !Global::DocChanged);
        }
    }

    void endsWithoutAQuestionBehindAFailedOpening() {
        Documents::OpenFile(m_folder->Write(u"a.htm"_s, "alt\r\n"));
        m_dialogs->ExpectFailedLoad();
        Documents::OpenFile(m_folder->Path(u"fehlt.htm"_s));
        for (const QString& command : {u"Menu_File_Save"_s, u"Menu_File_SaveBackUp"_s, u"Menu_View_Code"_s})
            QVERIFY(!Driver::IsEnabled(command));
        Shared<Frm_Main>().close();
        QVERIFY(!m_folder->Has(u"fehlt.htm"_s));
        QCOMPARE(m_folder->Read(u"a.htm"_s), QByteArray("alt\r\n"));
    }

    void savesWithoutOpeningTheClosedWindow() {
        Global::AutoPreView = true;
        Documents::OpenFile(m_folder->Write(u"a.htm"_s, "<P>x\r\n"));
        QVERIFY(Shared<Frm_Code>().IsShown()); // behind the preview
        Commands::SetChecked(u"Menu_Tools_Option_2"_s, true);
        Windows::Unload(u"Frm_Code");
        Driver::Trigger(u"Menu_File_Save"_s);
        QVERIFY(!Loaded<Frm_Code>());
        QCOMPARE(m_folder->Read(u"a.htm"_s), QByteArray("<p>x\r\n"));
    }

    void keepsTheSettingsOfAStartThatIsClosed() {
        m_program.reset();
        Global::Reset();
        m_folder->Write(u"edit.ini"_s, "Assistant=False\r\nDontShowNewUpdate=False\r\nKey1=wertvoll\r\n");
        Wiring::WireWindows();
        Neighbours::CheckForUpdate.AnsweredBy([] { QVERIFY(!Shared<Frm_Main>().close()); });
        Shared<Frm_Main>();
        QVERIFY(!Shared<Frm_Main>().isVisible());
        QVERIFY(m_folder->Read(u"edit.ini"_s).contains("Key1=wertvoll\r\n"));
        m_program = std::make_unique<Driver::RunningProgram>(); // whose end puts the event loop right
    }

    void staysOpenWhereNoCopyCanBeWritten() {
        const SmallDisk disk;
        if (!disk.Mounted()) QSKIP("no file system may be mounted here");
        QVERIFY(Files::Write(disk.Path() + u"\\a.htm", "alt\r\n"));
        Documents::OpenFile(disk.Path() + u"\\a.htm");
        Driver::TypeCode(u"neu "_s);
        disk.Fill(0);
        Files::SetProgramDirectory(disk.Path());
        m_dialogs->ExpectUnsaved(u"Beenden"_s, Dialogs::Answer::Yes);
        m_dialogs->ExpectFailedSave();
        m_dialogs->ExpectMessage(
            u"Beenden"_s, u"Auch eine Sicherungskopie des Textes kann nicht geschrieben werden. Das Programm "
                          "bleibt geöffnet, damit der Text nicht verloren geht."_s);
        Shared<Frm_Main>().close();
        QVERIFY(Shared<Frm_Main>().isVisible() && Global::DocChanged);
        QCOMPARE(Files::Read(disk.Path() + u"\\a.htm").value_or(QByteArray()), QByteArray("alt\r\n"));
        disk.Empty();
        m_dialogs->ExpectUnsaved(u"Beenden"_s, Dialogs::Answer::Yes);
        m_dialogs->ExpectSaveFile(u"Speichern unter"_s, disk.Path() + u"\\b.htm");
        Shared<Frm_Main>().close();
        QCOMPARE(Files::Read(disk.Path() + u"\\b.htm").value_or(QByteArray()), QByteArray("neu alt\r\n"));
        m_program.reset(); // before its disk goes
    }

    void fitsTheWindowToItsScreen() {
        const QList<QRect> screens{QRect(0, 0, 1280, 800), QRect(1280, 0, 1024, 768)};
        for (const auto& [saved, shown] :
             {std::pair(QRect(40, 50, 900, 650), QRect(40, 50, 900, 650)),
              {QRect(900, 700, 900, 650), QRect(380, 150, 900, 650)}, // half outside
              {QRect(-20, -30, 3000, 2000), QRect(0, 0, 1280, 800)},  // from a larger screen
              {QRect(1500, 100, 600, 500), QRect(1500, 100, 600, 500)},
              {QRect(9000, 9000, 600, 500), QRect(680, 300, 600, 500)},
              {QRect(10, 10, 5, 5), QRect(10, 10, 480, 360)}})
            QCOMPARE(FittedToScreen(saved, screens, {480, 360}), shown);
    }

    // With "ü€" typed at the very start.
    void leavesExactlyTheExpectedBytes() {
        for (const auto& [before, after] :
             {std::pair<QByteArray, QByteArray>("gr\xFC\xDF\r\nab", "\xFC\x80gr\xFC\xDF\r\nab\r\n"),
              std::pair<QByteArray, QByteArray>("\xEF\xBB\xBF<p>\n",
                                                "\xEF\xBB\xBF\xC3\xBC\xE2\x82\xAC<p>\n")}) {
            m_dialogs->ExpectOpenFile(u"Öffnen"_s, m_folder->Write(u"seite.htm"_s, before));
            Driver::Trigger(u"ToolBar_OpenFile"_s);
            QVERIFY(!Global::DocChanged);
            Driver::TypeCode(u"ü€"_s);
            QCOMPARE(Shared<Frm_Main>().Status()->Panel(2), u"geändert"_s);
            for (int times = 0; times < 2; ++times) { // a second time changes nothing
                Driver::Trigger(u"Menu_File_Save"_s);
                QCOMPARE(m_folder->Read(u"seite.htm"_s), after);
            }
            Driver::Trigger(u"Menu_File_SaveBackUp"_s);
            QCOMPARE(m_folder->Read(u"seite.htm.bak"_s), after);
        }
    }

    void editsWithMenuAndKeys() {
        Driver::Trigger(u"ToolBar_NewXHTML_HTML"_s);
        QVERIFY(Driver::IsEnabled(u"Menu_File_Save"_s) && !Driver::IsEnabled(u"Menu_File_SaveBackUp"_s));
        QCOMPARE(Shared<Frm_Main>().windowTitle(), u"Sorvane HTML Editor 3.0 [HTML]"_s);
        Driver::Trigger(u"Menu_Edit_SelectAll"_s);
        Driver::Trigger(u"Menu_Edit_Delete"_s);
        QVERIFY(!Driver::IsEnabled(u"Menu_Edit_Cut"_s));
        Driver::TypeCode(u"<div><B>x"_s);
        Driver::Trigger(u"Menu_Insert_CloseTag"_s);
        QCOMPARE(Box().Text(), u"<div><B>x</B>"_s);
        Driver::Trigger(u"Menu_Edit_Undo"_s);
        QCOMPARE(Box().Text(), u"<div><B>x"_s);
        Driver::Trigger(u"Menu_Tools_UCaseTags"_s);
        m_dialogs->ExpectSaveFile(u"Speichern unter"_s, m_folder->Path(u"neu.htm"_s));
        Driver::Trigger(u"Menu_File_Save"_s);
        QCOMPARE(m_folder->Read(u"neu.htm"_s), QByteArray("<DIV><B>x\r\n"));
        Driver::Trigger(u"Menu_File_Close"_s);
        QVERIFY(!Loaded<Frm_Code>() && !Driver::IsEnabled(u"Menu_File_Save"_s));
        QCOMPARE(Shared<Frm_Main>().windowTitle(), Global::ProgramName);
    }

    // Keys that menu items have as shortcuts, and keys that belong to the box.
    void sharesKeysBetweenMenuAndBox() {
        Documents::OpenFile(m_folder->Write(u"a.txt"_s, "abcdef"));
        Shared<Frm_Main>().activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&Shared<Frm_Main>(), 30000));
        Box().setFocus();
        Driver::PressCode(Qt::Key_Delete); // without a selection the key is the box's
        QCOMPARE(Box().Text(), u"bcdef"_s);
        Select(1, 2);
        Driver::PressCode(Qt::Key_Delete); // with one the command acts, by a whole new text
        QCOMPARE(Box().Text(), u"bef"_s);
        QCOMPARE(Box().SelStart(), 1);
        Driver::PressCode(Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(Box().SelLength(), 3);
        Driver::PressCode(Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(m_folder->Read(u"a.txt"_s), QByteArray("bef\r\n"));
    }

    void findsEverythingAgain() {
        const QString page = m_folder->Write(u"a.htm"_s, "x");
        Documents::OpenFile(page);
        Driver::Trigger(u"Menu_File_Save"_s);
        Shared<Frm_Main>().showNormal();
        Shared<Frm_Main>().setGeometry(40, 50, 700, 600);
        QCoreApplication::processEvents();
        const QRect place = Shared<Frm_Main>().frameGeometry();
        Shared<Frm_Main>().close();
        m_program.reset();
        Global::Reset();
        m_program = std::make_unique<Driver::RunningProgram>();
        QCOMPARE(Shared<Frm_Main>().frameGeometry(), place);
        QCOMPARE(Global::LastFile, page);
        QVERIFY(!Global::AutoDebug);
    }
};

REGISTER_TEST(Promises);
#include "promises_test.moc"
