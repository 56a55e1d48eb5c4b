// SPDX-License-Identifier: MIT
// Typing in the real document window, with all its aids.
#include "documents/document_commands.h"
#include "documents/frm_code.h"
#include "documents/undo.h"
#include "editing/popup_list.h"
#include "platform/drop_down_list.h"
#include "platform/literals.h"
#include "shell/frm_main.h"
#include "shell/main_menu.h"
#include "state/commands.h"
#include "state/global.h"
#include "support/driver.h"
#include "support/program_folder.h"
#include "support/scripted_dialogs.h"
#include "support/test_registry.h"

#include <QClipboard>
#include <QMenu>

class Typing : public QObject {
    Q_OBJECT

    std::unique_ptr<ProgramFolder> m_folder;
    std::unique_ptr<ScriptedDialogs> m_dialogs;
    std::unique_ptr<Driver::RunningProgram> m_program;

    static Txt_Code& Box() { return *Shared<Frm_Code>().TextBox; }
    static PopupList& List() { return *Shared<Frm_Code>().findChild<PopupList*>(u"Lvw_Attributes"_s); }
    void Open(const QString& name, const QByteArray& text, qsizetype caret = 0) {
        Documents::OpenFile(m_folder->Write(name, text));
        Box().SetSelStart(caret);
    }
    static QPoint PlaceOf(qsizetype position) {
        Box().SetSelStart(position);
        return Box().cursorRect().center();
    }
    static void RightClick(qsizetype position) {
        const QPoint place = PlaceOf(position);
        QTest::mouseClick(Box().viewport(), Qt::RightButton, {}, place);
    }
    static QStringList MenuEntries() {
        QStringList entries;
        QMenu* menu = Shared<Frm_Main>().Commands()->CodeMenu();
        for (const QAction* action : menu->actions()) {
            if (action->objectName().startsWith(u"Menu_Menu_Code_Attribute_") && action->isVisible())
                entries << action->text();
        }
        menu->close();
        return entries;
    }

private slots:
    void init() {
        m_folder = std::make_unique<ProgramFolder>();
        m_dialogs = std::make_unique<ScriptedDialogs>();
        m_program = std::make_unique<Driver::RunningProgram>();
        Global::AutoDebug = Global::AutoProjectManager = false;
    }
    void cleanup() {
        m_program.reset();
        m_dialogs.reset();
        m_folder.reset();
    }

    void insertsKeyCombinations() {
        Open(u"a.htm"_s, "abc");
        Global::KeyCombos[5] = u"<p>\r\n</p>"_s;
        Driver::PressCode(Qt::Key_5, Qt::ControlModifier);
        QCOMPARE(Box().Text(), u"<p>\r\n</p>abc"_s);
        Box().SetSelStart(9);
        Box().SetSelLength(3);
        Driver::PressCode(Qt::Key_6, Qt::ControlModifier); // an empty one deletes the selection
        QCOMPARE(Box().Text(), u"<p>\r\n</p>"_s);
        Global::DocChanged = false;
        Driver::PressCode(Qt::Key_7, Qt::ControlModifier);
        QVERIFY(!Global::DocChanged); // nothing over nothing
    }

    void servesTheClipboardKeys() {
        Open(u"a.htm"_s, "abcdef");
        Box().SetSelLength(3);
        Driver::PressCode(Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(Box().Text(), u"abcdef"_s);
        QCOMPARE(Box().SelStart(), 3);
        QCOMPARE(Box().SelLength(), 0);
        QCOMPARE(QGuiApplication::clipboard()->text(), u"abc"_s);
        Box().SetSelLength(2);
        Driver::PressCode(Qt::Key_X, Qt::ControlModifier);
        QCOMPARE(Box().Text(), u"abcf"_s);
        QCOMPARE(QGuiApplication::clipboard()->text(), u"de"_s);
        Driver::PressCode(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(Box().Text(), u"abcdef"_s);
        Driver::PressCode(Qt::Key_C, Qt::ControlModifier); // nothing selected: the clipboard stays
        QCOMPARE(QGuiApplication::clipboard()->text(), u"de"_s);
        Box().SetSelStart(0);
        Box().SetSelLength(3);
        Driver::PressCode(Qt::Key_Tab); // does not replace the selection
        QCOMPARE(Box().Text(), u"\tabcdef"_s);
    }

    void substitutesUmlautsAndTakesThemBack() {
        Open(u"a.htm"_s, "");
        Driver::Trigger(u"Menu_Tools_AutoUml"_s);
        Driver::TypeCode(u"ä&Ö"_s);
        QCOMPARE(Box().Text(), u"ae&Ouml;"_s);
        QGuiApplication::clipboard()->setText(u"ü"_s);
        Driver::PressCode(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(Box().Text(), u"ae&Ouml;ue"_s);
        QStringList seen;
        while (seen.size() < 4) {
            Driver::Trigger(u"Menu_Edit_Undo"_s);
            if (seen.isEmpty() || seen.last() != Box().Text()) seen << Box().Text();
        }
        QVERIFY(seen.contains(u"ae&Ouml;"_s));
    }

    void leavesUndoneUmlautsAlone() {
        Open(u"a.htm"_s, "");
        Driver::Trigger(u"Menu_Tools_AutoUml"_s);
        Driver::TypeCode(u"Grü"_s);
        QCOMPARE(Box().Text(), u"Grue"_s);
        Driver::PressCode(Qt::Key_Z, Qt::ControlModifier); // one step takes the substitution back
        QCOMPARE(Box().Text(), u"Grü"_s);
        Driver::PressCode(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(Box().Text(), QString());
        QTest::keySequence(&Box(), QKeySequence::Redo);
        QCOMPARE(Box().Text(), u"Grü"_s);
        QTest::keySequence(&Box(), QKeySequence::Redo);
        QCOMPARE(Box().Text(), u"Grue"_s);
        Driver::PressCode(Qt::Key_Z, Qt::ControlModifier);
        Driver::TypeCode(u"n"_s);
        QCOMPARE(Box().Text(), u"Grün"_s);
        Driver::TypeCode(u"ö"_s); // what is typed from then on is substituted
        QCOMPARE(Box().Text(), u"Grünoe"_s);
        QStringList seen;
        for (int i = 0; i < Undo::Depth; ++i) {
            Driver::Trigger(u"Menu_Edit_Undo"_s);
            seen << Box().Text();
        }
        QVERIFY(seen.contains(u"Grü"_s) && seen.last().isEmpty());
    }

    void offersAttributesInTheMenu() {
        Open(u"a.htm"_s, "<table border=1><b>x</b></table>");
        RightClick(3);
        QVERIFY(MenuEntries().contains(u"width"_s));
        for (QAction* action : Shared<Frm_Main>().Commands()->CodeMenu()->actions()) {
            if (action->text() == u"width") action->trigger();
        }
        QCOMPARE(Box().Text(), u"<table width=\"\" border=1><b>x</b></table>"_s);
        QCOMPARE(Box().SelStart(), 14); // between the quotes
        RightClick(29);                 // between two tags
        QCOMPARE(MenuEntries(), QStringList());
        QVERIFY(!List().isVisible());
    }

    void offersAttributesInTheList() {
        Global::UseWindowsMenu = false;
        Open(u"a.htm"_s, QByteArray(40, '\n') + "<td align=left>x</td>");
        Shared<Frm_Code>().BringToFront();
        RightClick(82);
        QVERIFY(List().isVisible());
        QVERIFY(!MenuEntries().contains(u"colspan"_s)); // the menu that is not shown gets none
        QVERIFY(Shared<Frm_Code>().TextBox->geometry().contains(List().geometry()));
        QCOMPARE(List().height(), 150); // ten rows and more scroll
        const QRect item = List().visualItemRect(List().findItems(u"colspan"_s, Qt::MatchExactly).value(0));
        QTest::mouseClick(List().viewport(), Qt::LeftButton, {}, item.center());
        QVERIFY(Box().Text().endsWith(u"<td colspan=\"\" align=left>x</td>"));
        QVERIFY(!List().isVisible());
        // a selected word offers its kin
        const qsizetype at = Box().Text().indexOf(u"left");
        const QPoint place = PlaceOf(at + 2);
        Box().SetSelStart(at);
        Box().SetSelLength(4);
        QTest::mouseClick(Box().viewport(), Qt::RightButton, {}, place);
        QVERIFY(List().isVisible() && !List().findItems(u"right"_s, Qt::MatchExactly).isEmpty());
        QTest::mouseClick(Box().viewport(), Qt::LeftButton, {}, QPoint(2, 2));
        QVERIFY(!List().isVisible());
    }

    void showsMembersBehindADot() {
        Open(u"a.js"_s, "x;\r\n", 4);
        Shared<Frm_Code>().BringToFront();
        Driver::TypeCode(u"document"_s);
        Driver::PressCode(Qt::Key_Period);
        QVERIFY(List().isVisible());
        QCOMPARE(List().currentRow(), 0);
        List().setCurrentItem(List().findItems(u"write"_s, Qt::MatchExactly).value(0));
        QTest::keyClick(&List(), Qt::Key_Return);
        QCOMPARE(Box().Text(), u"x;\r\ndocument.write()"_s);
        QCOMPARE(Box().SelStart(), 19); // between the parentheses
        Driver::TypeCode(u"Math"_s);
        Driver::PressCode(Qt::Key_Period);
        QVERIFY(List().isVisible());
        QTest::keyClick(&List(), Qt::Key_A); // types on in the code
        QVERIFY(!List().isVisible());
        QVERIFY(Box().Text().contains(u"(Math.a)"));
        Driver::PressCode(Qt::Key_Backspace);
        Driver::PressCode(Qt::Key_Backspace);
        QTest::keyClick(&Box(), Qt::Key_Period,
                        Qt::KeypadModifier); // the number block's types a sign, no more
        QVERIFY(Box().Text().contains(u"(Math.)") && !List().isVisible());
        Open(u"b.htm"_s, "");
        Driver::TypeCode(u"document"_s);
        Driver::PressCode(Qt::Key_Period); // no bar, no list
        QVERIFY(!List().isVisible());
    }

    void completesWordsByKey() {
        Open(u"a.htm"_s, " Vereinsheim abend abfahrt ver", 30);
        Shared<Frm_Code>().BringToFront();
        Driver::PressCode(Qt::Key_Space, Qt::ControlModifier);
        QCOMPARE(Box().Text(), u" Vereinsheim abend abfahrt Vereinsheim "_s);
        Box().SetSelStart(Box().Text().size());
        Driver::TypeCode(u"ab"_s);
        Driver::PressCode(Qt::Key_Space, Qt::ControlModifier);
        QVERIFY(List().isVisible());
        Undo::UndoClear();
        QTest::keyClick(&List(), Qt::Key_Down);
        QCOMPARE(Undo::UndoRing(1), Box().Text()); // a key in the list counts like any other
        QTest::keyClick(&List(), Qt::Key_Return);
        QCOMPARE(Box().Text(), u" Vereinsheim abend abfahrt Vereinsheim abfahrt "_s);
        QCOMPARE(Box().SelStart(), Box().Text().size() - 1);
        QVERIFY(!List().isVisible());
    }

    void servesTheScriptBar() {
        Open(u"a.js"_s, "function eins() {}\r\nvar zahl = 1;\r\nfunction zwei(a) {}\r\n");
        auto& code = Shared<Frm_Code>();
        code.Cmb_Functions->Fill();
        QCOMPARE(code.Cmb_Functions->count(), 2);
        emit code.Cmb_Functions->textActivated(u"zwei"_s);
        QCOMPARE(Box().SelStart(), 35);
        Box().SetSelLength(8);
        emit code.Cmb_Functions->textActivated(u"fehlt"_s);
        QCOMPARE(Box().SelStart(), 35);
        QCOMPARE(Box().SelLength(), 0);
        code.Cmb_Variables->Fill();
        code.Cmb_Variables->setCurrentText(u"zahl"_s);
        code.Cmb_Variables->setCurrentIndex(0);
        Driver::Trigger(u"Menu_Insert_JavaScript_CurrentVar"_s);
        QVERIFY(Box().Text().contains(u"zahlfunction zwei"));
        Box().SetSelStart(Box().Text().size());
        Driver::FindControl(u"Tlb_JavaScript"_s)
            ->findChild<QAction*>(u"Tlb_JavaScript_NewFunction"_s)
            ->trigger();
        QVERIFY(Box().Text().endsWith(u"function NeueFunktion()\r\n{\r\n\t\r\n\t\r\n}"));
        QCOMPARE(Box().SelStart(), Box().Text().size() - 3); // behind the second tab
    }

    void uncoversTheScriptBarByCommand() {
        Open(u"a.htm"_s, "x");
        QCOMPARE(Box().y(), 0);
        QVERIFY(!Driver::IsEnabled(u"Menu_Insert_JavaScript_CurrentVar"_s));
        Driver::Trigger(u"Menu_View_ShowJavaScriptBar"_s);
        QCOMPARE(Box().y(), 22);
        QVERIFY(Commands::IsChecked(u"Menu_View_ShowJavaScriptBar"_s));
        QVERIFY(Driver::IsEnabled(u"Menu_Insert_JavaScript_CurrentVar"_s));
        Unload<Frm_Code>();
        Shared<Frm_Code>().BringToFront(); // the new window has the bar as its command says
        QCoreApplication::processEvents();
        QCOMPARE(Box().y(), 22);
        QVERIFY(Commands::IsChecked(u"Menu_View_ShowJavaScriptBar"_s));
        Driver::Trigger(u"Menu_View_ShowJavaScriptBar"_s);
        QCOMPARE(Box().y(), 0);
    }
};

REGISTER_TEST(Typing);
#include "typing_test.moc"
