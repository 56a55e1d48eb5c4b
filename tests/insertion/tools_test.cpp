// SPDX-License-Identifier: MIT
// The insertion tools by their controls, in the real program.
#include "insertion/frm_tag_tools.h"
#include "support/program_test.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QListWidget>
#include <QScreen>
#include <QTableView>
#include <QWheelEvent>

class Tools : public ProgramTest {
    Q_OBJECT

    // Opens the dialog by its command and clicks what `inside` clicks.
    static void In(const QString& command, const QString& dialog, std::function<void(QWidget*)> inside) {
        Driver::InModal(dialog, std::move(inside));
        Driver::Trigger(command);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

private slots:
    void init() override {
        ProgramTest::init();
        Documents::OpenFile(m_folder->Write(u"seite.htm"_s, "-//W3C//DTD HTML <head>\r\nhier"));
        Select(Box().Text().size() - 4, 4);
    }
    void toolWindowsInsertAndComeBack() {
        Driver::Trigger(u"Menu_View_TagTools"_s);
        QVERIFY(Global::TagToolOpen);
        Driver::Click(u"Tlb_Tag_Bold"_s);
        QVERIFY(Box().Text().endsWith(u"<b>hier</b>"));
        Driver::Trigger(u"Menu_Edit_Undo"_s);
        Driver::Trigger(u"Menu_View_Character"_s);
        Driver::Click(u"Tlb_Characters_Copyright"_s);
        Driver::Trigger(u"Menu_View_ColorKCC"_s);
        Driver::Click(u"Cmd_Control"_s); // before a choice the mark alone
        Driver::Click(u"Img_ColorChoice_1"_s);
        Driver::Click(u"Cmd_Control"_s);
        QVERIFY(Box().Text().contains(u"&copy;##FF9900"));
        Shared<Frm_TagTools>().move(77, 88);
        Global::DocChanged = false;
        Driver::Trigger(u"Menu_File_Close"_s);
        QVERIFY(!Loaded<Frm_TagTools>() && !Global::TagToolOpen && !Global::KCCToolOpen);
        Documents::OpenFile(m_folder->Path(u"seite.htm"_s));
        QVERIFY(Loaded<Frm_TagTools>());
        QCOMPARE(Shared<Frm_TagTools>().pos(), QPoint(77, 88));
        const QSize preset = Shared<Frm_TagTools>().size();
        Unload<Frm_TagTools>();
        Global::TagToolPos =
            Global::ToolPos{u""_s, u"99999"_s, u"-99999"_s, u"10"_s, u"0"_s}; // nothing that could be seen
        Driver::Trigger(u"Menu_View_TagTools"_s);
        QCOMPARE(Shared<Frm_TagTools>().size(), preset);
        QVERIFY(Shared<Frm_TagTools>().screen()->geometry().contains(Shared<Frm_TagTools>().geometry()));
    }

    void keysStayWithTheCode() {
        for (const QString& tool : {u"Menu_View_Events"_s, u"Menu_View_ColorStandard"_s})
            Driver::Trigger(tool);
        QWidget* color = Driver::FindControl(u"Frm_Color"_s);
        QApplication::setActiveWindow(color);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_E,
                        Qt::AltModifier); // not the menu of that letter
        QVERIFY(Box().Text().endsWith(u"\r\n#000000"));
        QApplication::setActiveWindow(color); // the desktop was late to do what the click asked for
        QTRY_VERIFY(color->parentWidget()->isActiveWindow());
        QTest::keyClicks(color, u" x"_s); // nothing in the window wants them
        QVERIFY(Box().Text().endsWith(u"\r\n#000000 x"));
        QWidget* events = Driver::FindControl(u"Cmb_Event"_s);
        QWheelEvent wheel({5, 5}, {5, 5}, {}, {0, -120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                          false);
        QCoreApplication::sendEvent(events, &wheel);
        QTest::keyClick(events, Qt::Key_Down); // opens the list and chooses nothing
        QVERIFY(Box().Text().endsWith(u"\r\n#000000 x"));
    }

    void dialogsInsert() {
        Shared<Frm_Code>().parentWidget()->showMinimized(); // what is written comes to the front
        In(u"Menu_Insert_Frames"_s, u"Frm_Frames"_s, [](QWidget*) { Driver::Click(u"Cmd_Control_0"_s); });
        QVERIFY(Box().Text().endsWith(u"\t</frameset>\r\n") &&
                !Shared<Frm_Code>().parentWidget()->isMinimized());
        In(u"Menu_Insert_List"_s, u"Frm_List"_s, [](QWidget* dialog) {
            QVERIFY(QTest::qWaitForWindowActive(dialog)); // a field without the focus completes nothing
            QWidget* sign = Driver::FindControl(u"Cmb_ListType"_s);
            sign->setFocus();
            QTest::keyClick(sign, Qt::Key_A, Qt::ControlModifier);
            QTest::keyClicks(sign, u"A"_s); // not "a", which stands before it
            QTest::keyClick(sign, Qt::Key_Return);
        });
        QVERIFY(Box().Text().endsWith(u"\t<ol type=\"A\">\r\n\t\t<li></li>\r\n\t</ol>"));
        In(u"Menu_Insert_List"_s, u"Frm_List"_s, [](QWidget*) {
            Driver::Find<QLineEdit>(u"Txt_Start"_s)->setText(u"5"_s);
            Driver::Click(u"Opt_ListType_1"_s); // empties the start
            Driver::Click(u"Cmd_Control_0"_s);
        });
        QVERIFY(Box().Text().endsWith(u"\t<ul type=\"disc\">\r\n\t\t<li></li>\r\n\t</ul>"));
        In(u"Menu_Insert_MetaTags"_s, u"Frm_MetaTags"_s, [](QWidget*) {
            auto* list = Driver::Find<QListWidget>(u"Lst_Attributes"_s);
            list->setCurrentRow(0);
            const QRect row = list->visualItemRect(list->item(1));
            const QPoint box(row.left() + row.height() / 2, row.center().y());
            QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, box);
            QTest::keyClicks(Driver::FindControl(u"Txt_AttributeValue"_s), u"ich"_s);
            Driver::Click(u"Cmd_Control_0"_s);
        });
        QVERIFY(Box().Text().endsWith(u"\t\t<meta name=\"description\" content=\"ich\">\r\n"));
        In(u"Menu_Insert_Style"_s, u"Frm_InsertStyle"_s, [](QWidget* dialog) {
            Driver::Click(u"Chk_Option_0"_s);
            Driver::Click(u"Chk_Option_1"_s);
            QVERIFY(!Driver::Find<QCheckBox>(u"Chk_Option_0"_s)->isChecked());
            Driver::Click(u"Chk_Option_1"_s);
            QTest::keyClicks(Driver::FindControl(u"Cmb_Object"_s), u"b"_s); // takes the place of "body"
            Driver::Click(u"Cmd_Control_0"_s);
            QVERIFY(dialog->isVisible());
            Driver::Click(u"Cmd_Control_1"_s);
        });
        QVERIFY(Box().Text().endsWith(u"\t\t\tb {\r\n\t\t\t}\r\n"));
    }

    void tableGoesToAFileAndBack() {
        m_dialogs->ExpectSaveFile(u"Tabelle speichern"_s, m_folder->Path(u"a.tbl"_s));
        In(u"Menu_Insert_Table_Insert"_s, u"Frm_Table"_s, [](QWidget* dialog) {
            auto* grid = Driver::Find<QTableView>(u"Flx_Table"_s);
            QApplication::setActiveWindow(dialog);
            Driver::Find<QLineEdit>(u"Txt_Cols"_s)->setText(u"3"_s);
            Driver::Find<QLineEdit>(u"Txt_Cols"_s)->setText(u"viele"_s); // stays as it was
            Driver::FindControl(u"Txt_Cols"_s)->setFocus();
            QTest::keyClick(Driver::FindControl(u"Txt_Cols"_s), Qt::Key_Tab); // enters the first cell
            QVERIFY(grid->selectionModel()->isSelected(grid->model()->index(0, 0)));
            QWidget* field = Driver::FindControl(u"Txt_FieldText"_s);
            QTest::keyClicks(field, u"eins"_s);
            QTest::keyClick(field, Qt::Key_Tab);
            QKeyEvent foreign(QEvent::KeyPress, 0, Qt::NoModifier, u"\u0141"_s); // no byte in the code page
            QCoreApplication::sendEvent(field, &foreign);
            Driver::Click(u"Cmd_Control_3"_s);
            Driver::Click(u"Cmd_Control_1"_s);
        });
        m_dialogs->ExpectOpenFile(u"Tabelle öffnen"_s, m_folder->Path(u"a.tbl"_s));
        In(u"Menu_Insert_Table_Open"_s, u"Frm_Table"_s, [](QWidget*) { Driver::Click(u"Cmd_Control_0"_s); });
        QVERIFY(Box().Text().contains(
            u"<td>eins</td>\r\n\t\t<td>\u0141</td>\r\n\t\t<td></td>\r\n\t</tr>\r\n\t<tr>"));
    }

    void tableSurvivesEscAndOtherEditors() {
        const QString long1 = QString(40'000, u'ä'); // in UTF-8 without a mark
        m_dialogs->ExpectOpenFile(u"Tabelle öffnen"_s,
                                  m_folder->Write(u"b.tbl"_s, (long1 + u", b, <e-\n"_s).toUtf8()));
        m_dialogs->ExpectMessage(u"Tabelle"_s,
                                 u"Der Entwurf der Tabelle wurde noch nicht gespeichert. Möchten Sie das "
                                 u"jetzt tun?"_s,
                                 Dialogs::Answer::Cancel);
        In(u"Menu_Insert_Table_Open"_s, u"Frm_Table"_s, [](QWidget* dialog) {
            auto* grid = Driver::Find<QTableView>(u"Flx_Table"_s);
            QWidget* field = Driver::FindControl(u"Txt_FieldText"_s);
            grid->setCurrentIndex(grid->model()->index(0, 1));
            QTest::keyClick(grid, Qt::Key_Delete);
            QTest::keyClicks(grid, u"c"_s);
            QTest::keyClick(field, Qt::Key_Backtab);
            QTest::keyClick(grid, Qt::Key_F2);
            QTest::keyClicks(field, u"!"_s);
            Driver::Find<QLineEdit>(u"Txt_Rows"_s)->setText(u"2"_s); // the cell stays the current one
            QTest::keyClicks(field, u"?"_s);
            QTest::keyClick(field, Qt::Key_Escape);
            QVERIFY(dialog->isVisible());
            Driver::Click(u"Cmd_Control_0"_s);
        });
        QVERIFY(Box().Text().contains(u"<td>"_s + long1 + u"!?</td>\r\n\t\t<td>c</td>\r\n"_s));
    }

    void designIsCopiedAndLinked() {
        m_dialogs->ExpectSaveFile(u"Design speichern unter"_s, m_folder->Path(u"stil.css"_s));
        In(u"Menu_Insert_StyleDefault"_s, u"Frm_DefaultStyles"_s, [](QWidget*) {
            QVERIFY(!Driver::FindControl(u"Cmd_Control_0"_s)->isEnabled());
            Driver::Find<QListWidget>(u"Lst_Design"_s)->setCurrentRow(2);
            Driver::Click(u"Cmd_Control_0"_s);
            Driver::Click(u"Cmd_Control_1"_s);
        });
        QCOMPARE(m_folder->Read(u"stil.css"_s), m_folder->Read(u"defstyle3.css"_s));
        QVERIFY(Box().Text().contains(u"<head>\r\n\r\n\t\t<style> <!-- @import url(stil.css); --> </style>"));
    }
};

REGISTER_TEST(Tools);
#include "tools_test.moc"
