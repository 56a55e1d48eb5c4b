// SPDX-License-Identifier: MIT
// The recovery copy, and what counts as unsaved, in the real program.
#include "documents/document_commands.h"
#include "documents/frm_code.h"
#include "documents/recovery.h"
#include "platform/literals.h"
#include "shell/frm_main.h"
#include "shell/status_bar.h"
#include "state/global.h"
#include "state/windows.h"
#include "support/driver.h"
#include "support/program_folder.h"
#include "support/scripted_dialogs.h"
#include "support/test_registry.h"

#include <QDir>

using Dialogs::Answer;

class RecoveryCopy : public QObject {
    Q_OBJECT

    std::unique_ptr<ProgramFolder> m_folder;
    std::unique_ptr<ScriptedDialogs> m_dialogs;
    std::unique_ptr<Driver::RunningProgram> m_program;

    static QString Text() { return Shared<Frm_Code>().TextBox->Text(); }
    static QString StatePanel() { return Shared<Frm_Main>().Status()->Panel(2); }

    void Ask(const QString& title, Answer answer) {
        m_dialogs->ExpectMessage(
            title, u"Die aktuelle Datei wurde noch nicht gespeichert. Möchten Sie das jetzt tun?"_s, answer);
    }
    // A page whose folder has gone, as when a stick is pulled.
    void OpenOnALostFolder() {
        Documents::OpenFile(m_folder->Write(u"weg/seite.htm"_s, "neu\r\n"));
        QVERIFY(QDir(m_folder->System(u"weg"_s)).removeRecursively());
    }
    void ExpectFailedSave() {
        m_dialogs->ExpectMessage(u"Fehler"_s,
                                 u"Fehler beim Speichern der Datei. Stellen Sie sicher, dass die Datei "
                                 "nicht schreibgeschützt ist."_s);
    }

private slots:
    void init() {
        m_folder = std::make_unique<ProgramFolder>();
        m_dialogs = std::make_unique<ScriptedDialogs>();
        m_folder->Write(u"bckup.tmp"_s, "gerettet\r\n");
        m_program = std::make_unique<Driver::RunningProgram>();
        Global::AutoDebug = Global::AutoProjectManager = false;
    }
    void cleanup() {
        m_program.reset();
        m_dialogs.reset();
        m_folder.reset();
    }

    void isTheFirstStepOfItsHistory() {
        Driver::Trigger(u"Menu_File_RestoreFile"_s);
        const QString text = Text();
        QVERIFY(text.startsWith(u"gerettet"));
        for (int times = 0; times < 3; ++times) {
            if (Driver::IsEnabled(u"Menu_Edit_Undo"_s)) Driver::Trigger(u"Menu_Edit_Undo"_s);
        }
        QCOMPARE(Text(), text);
    }

    void outlivesAnAnswerThatIsTakenBack() {
        Driver::Trigger(u"Menu_File_RestoreFile"_s);
        Ask(u"Datei öffnen"_s, Answer::No);
        m_dialogs->ExpectOpenFile(u"Öffnen"_s, {}); // left by Esc
        Driver::Trigger(u"Menu_File_Open"_s);
        QVERIFY(Global::DocChanged && Recovery::Exists());
        Ask(u"Schließen"_s, Answer::No);
        Driver::Trigger(u"Menu_File_Close"_s);
        QVERIFY(!Recovery::Exists());
    }

    void stepsBackForAnotherText() {
        OpenOnALostFolder();
        Driver::TypeCode(u"x"_s);
        Ask(u"Datei öffnen"_s, Answer::Yes);
        ExpectFailedSave();
        m_dialogs->ExpectOpenFile(u"Öffnen"_s, {});
        Driver::Trigger(u"Menu_File_Open"_s);
        QCOMPARE(m_folder->Read(u"bckup.tmp"_s), QByteArray("xneu\r\n\r\n"));
        QCOMPARE(m_folder->Read(u"bckup1.tmp"_s), QByteArray("gerettet\r\n"));
        m_dialogs->ExpectSaveFile(u"Speichern unter"_s, m_folder->Path(u"neu.htm"_s));
        Driver::Trigger(u"Menu_File_Save"_s);
        QCOMPARE(m_folder->Read(u"bckup.tmp"_s), QByteArray("gerettet\r\n"));
        QVERIFY(!m_folder->Has(u"bckup1.tmp"_s));
    }

    void failedSaveLeavesTheTextUnsaved() {
        OpenOnALostFolder();
        ExpectFailedSave();
        Driver::Trigger(u"Menu_File_Save"_s);
        QVERIFY(Global::DocChanged && !Driver::IsEnabled(u"Menu_File_SaveBackUp"_s));
        QCOMPARE(StatePanel(), u"geändert"_s);
    }

    void windowThatComesBackHasChangedNothing() {
        Documents::OpenFile(m_folder->Write(u"a.htm"_s, "x\r\n"));
        Windows::Unload(u"Frm_Code");
        Driver::Trigger(u"Menu_View_Code"_s);
        QCOMPARE(Text(), u"x\r\n"_s);
        QVERIFY(!Global::DocChanged);
        QCOMPARE(StatePanel(), u"gespeichert"_s);
    }
};

REGISTER_TEST_AS(Recovery, RecoveryCopy);
#include "recovery_test.moc"
