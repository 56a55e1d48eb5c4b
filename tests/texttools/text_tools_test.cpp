// SPDX-License-Identifier: MIT
// The text tools by their controls, in the real program.
#include "platform/events.h"
#include "platform/literals.h"
#include "state/commands.h"
#include "state/settings.h"
#include "support/program_test.h"
#include "texttools/frm_search.h"

#include <QLineEdit>
#include <QListWidget>

class TextToolsTest : public ProgramTest {
    Q_OBJECT

    const QString BackUpQuestion =
        u"Sie sollten von der aktuellen Datei ein Backup erstellen, um bei\r\neinem "
        "Codierungsfehler die Daten wiederherstellen zu können.\r\nMöchten Sie das jetzt tun?"_s;

    void Open(const QByteArray& text) {
        Documents::OpenFile(m_folder->Write(u"seite.htm"_s, "-//W3C//DTD HTML\r\n" + text));
    }
    static QString Text() { return Box().Text().sliced(18); } // without the first line
    static void In(const QString& command, const QString& dialog, std::function<void(QWidget*)> inside) {
        Driver::InModal(dialog, std::move(inside));
        Driver::Trigger(command);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    void ExpectEnd() { m_dialogs->ExpectMessage(u"Suchen"_s, u"Das Durchsuchen ist beendet."_s); }

private slots:
    void searchesAndReplaces() {
        Open("eins zwei eins");
        Box().SetSelStart(18);
        Box().SetSelLength(4);
        Driver::Trigger(u"Menu_Edit_Search"_s);
        auto* field = Driver::Find<QLineEdit>(u"Txt_Search_0"_s);
        QCOMPARE(field->text(), u"eins"_s); // the selection
        QVERIFY(!Driver::FindControl(u"Cmd_Control_1"_s)->isEnabled());
        QTest::keyClick(field, Qt::Key_Return);
        QCOMPARE(Box().SelStart(), 18);
        QTest::keyClick(field, Qt::Key_Return);
        QCOMPARE(Box().SelStart(), 28);
        ExpectEnd();
        QTest::keyClick(field, Qt::Key_Return);
        QVERIFY(!Driver::FindControl(u"Cmd_Control_1"_s)->isEnabled());
        Driver::Click(u"Cmd_Control_5"_s);
        QTest::keyClicks(field, u"x"_s);
        QVERIFY(!Driver::FindControl(u"Cmd_Control_1"_s)->isEnabled());

        QVERIFY(!Driver::FindControl(u"Cmd_Control_2"_s)->isEnabled());
        Driver::Click(u"Chk_Option_0"_s);
        Driver::Click(u"Chk_Option_2"_s);
        QCOMPARE(Driver::Find<QAbstractButton>(u"Cmd_Control_2"_s)->text(), u"Alles &ersetzen"_s);
        field->clear();
        m_dialogs->ExpectBeep();
        Driver::Click(u"Cmd_Control_2"_s); // an empty text is refused
        field->setText(u"eins"_s);
        Driver::Find<QLineEdit>(u"Txt_Search_1"_s)->setText(u"drei!"_s);
        ExpectEnd();
        Driver::Click(u"Cmd_Control_2"_s);
        QCOMPARE(Text(), u"drei! zwei drei!"_s);
        Driver::Trigger(u"Menu_Edit_Undo"_s);
        QCOMPARE(Text(), u"eins zwei eins"_s);
        Box().SetText(u"eins\r\nzwei"_s);
        field->setText(u"s\nz"_s); // as a paste leaves it
        ExpectEnd();
        Driver::Click(u"Cmd_Control_2"_s);
        QCOMPARE(Box().Text(), u"eindrei!wei"_s);
        QTest::keyClick(field, Qt::Key_Escape);
        QVERIFY(!Loaded<Frm_Search>());
    }

    void correctsUmlauts() {
        Open("\xE4 \xDF\r\n");
        In(u"Menu_Tools_Uml"_s, u"Frm_UmlCorrection"_s, [](QWidget*) { Driver::Click(u"Cmd_Control_0"_s); });
        QCOMPARE(Text(), u"&auml; &szlig;\r\n"_s);
        Driver::PressCode(Qt::Key_Z, Qt::ControlModifier); // the box's own history knows of it, too
        QCOMPARE(Text(), u"ä ß\r\n"_s);
        Driver::PressCode(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        In(u"Menu_Tools_Uml"_s, u"Frm_UmlCorrection"_s, [](QWidget*) {
            Driver::Click(u"Opt_UmlOptions_1"_s);
            Driver::Click(u"Cmd_Control_0"_s);
        });
        QCOMPARE(Text(), u"ä ß\r\n"_s);
        Driver::Trigger(u"Menu_Edit_Undo"_s);
        QCOMPARE(Text(), u"&auml; &szlig;\r\n"_s);
        Open("\xDCx");
        m_dialogs->ExpectMessage(u"Umlautkorrektur"_s,
                                 u"Der Text enthält ein großes Ü. Beim Codieren wird daraus keine gültige "
                                 "HTML-Schreibweise: An seiner Stelle kommen 10 Zeichen hinzu. Möchten Sie "
                                 "trotzdem fortfahren?"_s,
                                 Dialogs::Answer::No);
        In(u"Menu_Tools_Uml"_s, u"Frm_UmlCorrection"_s, [](QWidget*) {
            Driver::Click(u"Cmd_Control_0"_s);
            Driver::Click(u"Cmd_Control_1"_s);
        });
        QCOMPARE(m_dialogs->lastMessage.preset, Dialogs::Answer::No);
        QCOMPARE(Text(), u"Üx"_s);
        QVERIFY(!Global::DocChanged);
    }

    // A line without a blank in it, which would take the layout for ever if it looked for the ends of words.
    void goesOnWithLongWords() {
        Open("");
        Box().SetText(u'x' + QString(1'000'000, u'&'));
        QVERIFY(Box().LineFromChar(1'000'000) > 100);
        Box().SetText(u"x y"_s);
        Select(2);
        Box().SetSelText(QString(1'000'000, u'&'));
        QVERIFY(Box().LineFromChar(1'000'000) > 100);
    }

    void changesNothingWithoutNeed() {
        Open("<p>x</p>");
        for (const auto& [command, dialog] :
             {std::pair(u"Menu_Tools_Uml"_s, u"Frm_UmlCorrection"_s),
              std::pair(u"Menu_Tools_DeleteComment"_s, u"Frm_DeleteComments"_s)}) {
            In(command, dialog, [](QWidget*) { Driver::Click(u"Cmd_Control_0"_s); });
        }
        Driver::Trigger(u"Menu_Tools_LCaseTags"_s);
        QVERIFY(!Global::DocChanged);
    }

    // A copy that was asked for and cannot be written: nothing is deleted behind its user's back.
    void asksWithoutBackUp() {
        Open("<p><!--a-->");
        QDir(m_folder->System(u"."_s)).mkdir(u"seite.htm.bak"_s);
        const QString failed =
            u"Die Sicherheitskopie konnte nicht geschrieben werden. Möchten Sie trotzdem fortfahren?"_s;
        m_dialogs->ExpectMessage(u"Kommentare löschen"_s, failed, Dialogs::Answer::No);
        In(u"Menu_Tools_DeleteComment"_s, u"Frm_DeleteComments"_s, [](QWidget* dialog) {
            Driver::Click(u"Cmd_Control_0"_s);
            QVERIFY(dialog->isVisible());
            Driver::Click(u"Cmd_Control_1"_s);
        });
        m_dialogs->ExpectMessage(u"Code verschlüsseln"_s, BackUpQuestion, Dialogs::Answer::Yes);
        m_dialogs->ExpectMessage(u"Code verschlüsseln"_s, failed, Dialogs::Answer::No);
        Driver::Trigger(u"Menu_Tools_MadCode"_s);
        QCOMPARE(Text(), u"<p><!--a-->"_s);
        m_dialogs->ExpectMessage(u"Kommentare löschen"_s, failed, Dialogs::Answer::Yes);
        In(u"Menu_Tools_DeleteComment"_s, u"Frm_DeleteComments"_s,
           [](QWidget*) { Driver::Click(u"Cmd_Control_0"_s); });
        QCOMPARE(Text(), u"<p>"_s);
    }

    void deletesCommentsAndPacks() {
        Open("<p><!--a-->b\r\n\tc<!--d");
        const auto remove = [](QWidget*) { Driver::Click(u"Cmd_Control_0"_s); };
        const QString noEnd = u"Ein Kommentar hat kein Ende. Er wurde nicht gelöscht."_s;
        m_dialogs->ExpectMessage(u"Fehler"_s, noEnd);
        In(u"Menu_Tools_DeleteComment"_s, u"Frm_DeleteComments"_s, remove);
        QCOMPARE(Text(), u"<p>b\r\n\tc<!--d"_s);
        QVERIFY(m_folder->Read(u"seite.htm.bak"_s).contains("<!--a-->"));
        Driver::Trigger(u"Menu_Edit_Undo"_s);
        QVERIFY(Text().startsWith(u"<p><!--a-->b"));

        m_dialogs->ExpectMessage(u"Code verschlüsseln"_s, BackUpQuestion, Dialogs::Answer::Cancel);
        Driver::Trigger(u"Menu_Tools_MadCode"_s);
        QVERIFY(Text().contains(u"\r\n"));
        Box().SetText(u"<p>a\r\n\t b<!-- c -->"_s);
        m_dialogs->ExpectMessage(u"Code verschlüsseln"_s, BackUpQuestion, Dialogs::Answer::No);
        Driver::Trigger(u"Menu_Tools_MadCode"_s);
        QCOMPARE(Box().Text(), u"<p>a b"_s);
        Driver::Trigger(u"Menu_Edit_Undo"_s);
        QCOMPARE(Box().Text(), u"<p>a\r\n\t b<!-- c -->"_s);

        Global::DocChanged = false;
        Documents::CreateNewTextFile();
        Box().SetText(u"a\tb"_s);
        const QString notSaved = u"Die aktuelle Datei wurde noch nicht gespeichert. Sie sollten sie\r\n"
                                 "speichern, da Sie sonst keine Originalversion der Datei haben.\r\nMöchten "
                                 "Sie das jetzt tun?"_s;
        // A save that is cancelled leaves the text as it is.
        m_dialogs->ExpectMessage(u"Code verschlüsseln"_s, notSaved, Dialogs::Answer::Yes);
        m_dialogs->ExpectSaveFile(u"Speichern unter"_s, {});
        Driver::Trigger(u"Menu_Tools_MadCode"_s);
        QCOMPARE(Box().Text(), u"a\tb"_s);
        // While a save refreshes the project view another document can be opened; that one is not packed.
        const QString other = m_folder->Write(u"andere.txt"_s, "c\td");
        Neighbours::SearchLinks.AnsweredBy([&] {
            Global::ProjectWindowOpen = false;
            Documents::OpenFile(other);
        });
        Global::ProjectWindowOpen = true;
        m_dialogs->ExpectMessage(u"Code verschlüsseln"_s, notSaved, Dialogs::Answer::Yes);
        m_dialogs->ExpectSaveFile(u"Speichern unter"_s, m_folder->Path(u"neu.txt"_s));
        Driver::Trigger(u"Menu_Tools_MadCode"_s);
        QCOMPARE(Box().Text(), u"c\td"_s);
    }

    void checksSpelling() {
        Open("<p>Haus Hausx <b>Maus</b></p> <");
        m_folder->Write(u"german.wds"_s, " Haus ");
        m_folder->Write(u"edit.ini"_s, "SpellingMenu=True\r\n");
        Settings::LoadSettings();
        QVERIFY(Commands::StateOf(u"Menu_Tools_SpellingCheck"_s).visible);
        QVERIFY(Settings::WriteSettings());
        QVERIFY(m_folder->Read(u"edit.ini"_s).contains("SpellingMenu=True\r\n"));
        m_dialogs->ExpectMessage(u"Bereit"_s, u"2"_s);
        m_dialogs->ExpectMessage(u"Fehler"_s,
                                 u"Ein Tag hat kein Ende. Es wurde nur der Text vor ihm geprüft."_s);
        m_dialogs->ExpectMessage(u"Fertig"_s, u"3 Wörter hinzugefügt"_s);
        In(u"Menu_Tools_SpellingCheck"_s, u"Frm_SpellingCheck"_s, [](QWidget* dialog) {
            // Both buttons once more while the check lets events run.
            const Events::Source before = Events::Replace({[] {
                                                               Driver::Click(u"Cmd_Control_1"_s);
                                                               Driver::Click(u"Cmd_Control_0"_s);
                                                           },
                                                           {},
                                                           {}});
            Driver::Click(u"Cmd_Control_1"_s);
            Events::Replace(before);
            Driver::Click(u"Cmd_Control_0"_s);
            QTest::keyClick(dialog, Qt::Key_Escape);
        });
        QCOMPARE(m_folder->Read(u"german.wds"_s), " Haus HTML Hausx Maus ");
    }

    void listsClasses() {
        Open("<style>.rot{}</style>");
        Driver::Trigger(u"Menu_View_FormatSubClass"_s);
        auto* list = Driver::Find<QListWidget>(u"Lst_SubClass"_s);
        QCOMPARE(list->count(), 1);
        Box().SetText(u"<style>.rot{}#gr{}</style>"_s);
        Driver::Trigger(u"Menu_File_Save"_s);
        QCOMPARE(list->count(), 2);
        Box().SetSelStart(0);
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->item(1)).center());
        QVERIFY(Box().Text().startsWith(u"gr<style>"));
    }
};

REGISTER_TEST_AS(TextTools, TextToolsTest);
#include "text_tools_test.moc"
