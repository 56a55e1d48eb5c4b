// SPDX-License-Identifier: MIT
// Typing in the real document window, with all its aids.
#include "documents/undo.h"
#include "editing/frm_line_zoom.h"
#include "editing/popup_list.h"
#include "platform/drop_down_list.h"
#include "shell/main_menu.h"
#include "support/program_test.h"

#include <QClipboard>
#include <QMenu>
#include <QScrollBar>

class Typing : public ProgramTest {
    Q_OBJECT

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

    static Txt_Code* Zoom() { return Driver::Find<Txt_Code>(u"Txt_LineZoom"_s); }

    // Opens the zoom with the caret at `caret`, runs `inside` and closes it as its close button does.
    static void InZoom(const QString& command, qsizetype caret, std::function<void(QWidget*)> inside) {
        Box().SetSelStart(caret);
        Driver::InModal(u"Frm_LineZoom"_s, [inside](QWidget* window) {
            inside(window);
            if (Loaded<Frm_LineZoom>()) window->close();
        });
        Driver::Trigger(command);
        // as the program's event loop does: the window that has ended is no longer the active one
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

private slots:
    void insertsKeyCombinations() {
        Open(u"a.htm"_s, "abc");
        Global::KeyCombos[5] = u"<p>\r\n</p>"_s;
        Driver::PressCode(Qt::Key_5, Qt::ControlModifier);
        QCOMPARE(Box().Text(), u"<p>\r\n</p>abc"_s);
        Select(9, 3);
        Driver::PressCode(Qt::Key_6, Qt::ControlModifier); // an empty one deletes the selection
        QCOMPARE(Box().Text(), u"<p>\r\n</p>"_s);
        Global::DocChanged = false;
        Driver::PressCode(Qt::Key_7, Qt::ControlModifier);
        QVERIFY(!Global::DocChanged); // nothing over nothing
    }

    void servesTheClipboardKeys() {
        Open(u"a.htm"_s, "abcdef");
        Select(0, 3);
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
        Select(0, 3);
        Driver::PressCode(Qt::Key_Tab); // does not replace the selection
        QCOMPARE(Box().Text(), u"\tabcdef"_s);
        Driver::Trigger(u"Menu_Edit_SelectAll"_s);
        Driver::Trigger(u"Menu_Edit_Cut"_s);
        QCOMPARE(QGuiApplication::clipboard()->text(), u"\tabcdef"_s);
        QGuiApplication::clipboard()->setText(u"a\nb"_s);
        Driver::Trigger(u"Menu_Edit_Paste"_s);
        QCOMPARE(Box().Text(), u"a\r\nb"_s);
    }

    void leavesUndoneUmlautsAlone() {
        Open(u"a.htm"_s, "");
        Driver::Trigger(u"Menu_Tools_AutoUml"_s);
        Driver::TypeCode(u"Grü"_s);
        QCOMPARE(Box().Text(), u"Grue"_s);
        for (const auto& [back, text] : {std::pair(true, u"Grü"_s), // one step takes the substitution back
                                         {true, u""_s},
                                         {false, u"Grü"_s},
                                         {false, u"Grue"_s},
                                         {true, u"Grü"_s}}) {
            QTest::keySequence(&Box(), back ? QKeySequence::Undo : QKeySequence::Redo);
            QCOMPARE(Box().Text(), text);
        }
        Driver::TypeCode(u"n"_s);
        QCOMPARE(Box().Text(), u"Grün"_s);
        Driver::TypeCode(u"&ö"_s); // what is typed from then on is substituted
        QCOMPARE(Box().Text(), u"Grün&ouml;"_s);
        QGuiApplication::clipboard()->setText(u"ü"_s);
        Driver::PressCode(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(Box().Text(), u"Grün&ouml;ue"_s);
        QStringList seen;
        for (int i = 0; i < Undo::Depth; ++i) {
            Driver::Trigger(u"Menu_Edit_Undo"_s);
            seen << Box().Text();
        }
        QVERIFY(seen.contains(u"Grü"_s) && seen.contains(u"Grün&ouml;"_s) && seen.last().isEmpty());
    }

    void offersAttributesInTheMenu() {
        Open(u"a.htm"_s, "<table border=1><b>x</b></table>");
        RightClick(3);
        QVERIFY(MenuEntries().contains(u"width"_s));
        for (QAction* action : Shared<Frm_Main>().Commands()->CodeMenu()->actions())
            if (action->text() == u"width") action->trigger();
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
        Select(at, 4);
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
        auto* bar = Driver::FindControl(u"Tlb_JavaScript"_s);
        bar->findChild<QAction*>(u"Tlb_JavaScript_NewFunction"_s)->trigger();
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

    void showsALongLineUnwrapped() {
        const QString line = u"<p>\u00a0"_s + u"Wort "_s.repeated(400) + u"</p>"_s;
        Documents::CreateNewTextFile();
        Box().SetText(u"vorher\r\n"_s + line + u"\r\nnachher"_s);
        InZoom(u"Menu_View_Zoom"_s, 20, [&](QWidget* window) {
            QVERIFY(Global::LineZoomOpen);
            QCOMPARE(Zoom()->Text(), line);
            QCOMPARE(Zoom()->LineFromChar(line.size()), 0);
            QVERIFY(Zoom()->horizontalScrollBar()->maximum() > 0);
            QCOMPARE(Zoom()->font().toString(), Box().font().toString());
            QCOMPARE(Zoom()->size(), window->size());
            // the Enter that has chosen the menu item is let go in the zoom already
            QTest::keyRelease(Zoom(), Qt::Key_Return);
            QVERIFY(Loaded<Frm_LineZoom>());
        });
        QVERIFY(!Global::LineZoomOpen);
        QCOMPARE(Box().Text(), QString(u"vorher\r\n"_s + line + u"\r\nnachher"_s));
    }

    void everyWayOutSaves() {
        for (const auto& [command, key, result] :
             {std::tuple(u"Menu_View_Zoom"_s, int(Qt::Key_Return), u"ab\r\nX\r\ncd\r\nef"_s),
              {u"Menu_Menu_Code_Zoom"_s, int(Qt::Key_Enter), u"ab\r\nX\r\ncd\r\nef"_s},
              {u"Menu_View_Zoom"_s, int(Qt::Key_Escape), u"ab\r\nXcd\r\nef"_s},
              {u"Menu_Menu_Code_Zoom"_s, 0, u"ab\r\nXcd\r\nef"_s}}) { // 0: the close button
            Documents::CreateNewTextFile();
            Box().SetText(u"ab\r\ncd\r\nef"_s);
            Global::DocChanged = false;
            InZoom(command, 5, [key = key](QWidget*) {
                QTest::keyClicks(Zoom(), u"X"_s);
                if (key != 0) QTest::keyClick(Zoom(), static_cast<Qt::Key>(key));
            });
            QVERIFY2(!Loaded<Frm_LineZoom>() && Global::DocChanged, qPrintable(QKeySequence(key).toString()));
            QCOMPARE(Box().Text(), result);
            Undo::UndoStep();
            QCOMPARE(Box().Text(), u"ab\r\ncd\r\nef"_s);
        }
    }

    void remembersItsPlace() {
        Documents::CreateNewTextFile();
        Global::LineZoomPos = {QString(), u"600"_s, u"600"_s, QString(), QString()};
        InZoom(u"Menu_View_Zoom"_s, 0, [](QWidget* window) {
            window->move(45, 60);
            window->resize(400, 90);
        });
        const Global::ToolPos stored = Global::LineZoomPos;
        InZoom(u"Menu_View_Zoom"_s, 0, [](QWidget* window) {
            QCOMPARE(QRect(window->pos(), window->size()), QRect(45, 60, 400, 90));
        });
        QCOMPARE(Global::LineZoomPos, stored); // neither creeps nor grows from one time to the next
    }

    void comesBackToSightFromStrangePlaces() {
        Documents::CreateNewTextFile();
        for (const auto& [left, top, width, height] :
             {std::tuple(u"900000"_s, u"900000"_s, u"6000"_s, u"1500"_s),
              {u"0"_s, u"0"_s, u"9000000"_s, u"9000000"_s},
              {u"links"_s, u"oben"_s, u"breit"_s, u"hoch"_s},
              {u"-90000"_s, u"-90000"_s, u"-5"_s, u"-5"_s}}) {
            Global::LineZoomPos = {QString(), left, top, width, height};
            InZoom(u"Menu_View_Zoom"_s, 0, [name = left](QWidget* window) {
                const QRect screen = window->screen()->availableGeometry();
                QVERIFY2(screen.contains(window->pos()), qPrintable(name));
                QVERIFY2(window->width() >= 100 && window->width() <= screen.width(), qPrintable(name));
                QVERIFY2(window->height() >= 30 && window->height() <= screen.height(), qPrintable(name));
            });
        }
    }
};

REGISTER_TEST(Typing);
#include "typing_test.moc"
