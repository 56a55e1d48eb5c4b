// SPDX-License-Identifier: MIT
#include "documents/undo.h"
#include "support/program_test.h"

class FrmCode : public ProgramTest {
    Q_OBJECT

    static QString Panel(int number) { return Shared<Frm_Main>().Status()->Panel(number); }
    void Open(const QByteArray& text) { Documents::OpenFile(m_folder->Write(u"a.htm"_s, text)); }

private slots:
    void keepsTheTextOverItsClosing() {
        Open("<p>\r\n");
        Shared<Frm_Code>().parentWidget()->close(); // its own close button
        QVERIFY(!Loaded<Frm_Code>() && !Global::CodeWindowOpen);
        QCOMPARE(Global::HeldSource, u"<p>\r\n"_s);
        QCOMPARE(Panel(4), QString());
        Driver::Trigger(u"Menu_View_Code"_s);
        QCOMPARE(Box().Text(), u"<p>\r\n"_s);
        QVERIFY(Global::CodeWindowOpen && !Global::DocChanged);
        QCOMPARE(Panel(2), u"gespeichert"_s);
        QCOMPARE(Undo::UndoRing(2), Undo::FreeMarker); // the text's coming back is no step
        Box().SetSelText(u"x"_s);
        QVERIFY(Global::DocChanged);
        QCOMPARE(Panel(2), u"geändert"_s);
    }

    void returnsToItsFormerPlace() {
        Global::AutoMaximize = false;
        Open("x");
        Frm_Code& code = Shared<Frm_Code>();
        code.SetPlace(300, 450, 6000, 4500);
        const QRect place = code.parentWidget()->geometry();
        for (const bool former : {false, true}) {
            code.ShowMaximizedState();
            QCOMPARE(code.State(), 0);
            QCOMPARE(code.parentWidget()->geometry() == place, former);
            QCOMPARE(Box().geometry(), code.rect()); // nothing is left over inside
        }
    }

    void bringsItselfInLineWithTheType() {
        Open("x");
        Frm_Code& code = Shared<Frm_Code>();
        for (const auto& [file, type, bar, caption, top] :
             {std::tuple(u"\\a\\x.htm"_s, u"HTML"_s, false, u"HTML Code"_s, 0),
              {u"\\a\\x.htm"_s, u"HTML"_s, true, u"HTML Code"_s, 330},
              {u"\\a\\x.Js"_s, u"JS"_s, false, u"JavaScript Code"_s, 330},
              {u""_s, u"JS"_s, false, u"JavaScript Code"_s, 330},
              {u"\\a\\x.CSS"_s, u"CSS"_s, true, u"StyleSheet Code"_s, 330}}) {
            Global::CurrentFile = file;
            Global::DocType = type;
            code.ScriptBarShown = bar;
            code.ActivateToolBar();
            QCOMPARE(code.windowTitle(), caption);
            QVERIFY2(code.CodeTop() == top && Box().y() == top / 15, qPrintable(file));
            QCOMPARE(Commands::StateOf(u"ToolBar_Browser_Temp"_s).enabled, caption == u"HTML Code");
        }
    }

    void showsLineAndColumn() {
        Open("a\r\nbc\r\n");
        for (const auto& [caret, place] :
             {std::pair(0, u"Ze 1 Sp 1"_s), std::pair(4, u"Ze 2 Sp 2"_s), std::pair(7, u"Ze 3 Sp 1"_s)}) {
            Select(caret);
            QCOMPARE(Panel(4) + u' ' + Panel(5), place);
        }
    }

    void takesACopyBeforeEachKey() {
        Open("alt");
        Driver::PressCode(Qt::Key_X);
        Driver::PressCode(Qt::Key_Right); // also for keys that change nothing
        QCOMPARE(Undo::UndoRing(1), u"xalt"_s);
        QCOMPARE(Undo::UndoRing(3), u"alt"_s);
    }
};

REGISTER_TEST(FrmCode);
#include "frm_code_test.moc"
