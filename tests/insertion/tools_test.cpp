// SPDX-License-Identifier: MIT
// The insertion tools by their controls, in the real program.
#include "insertion/frm_tag_tools.h"
#include "support/program_test.h"

#include <QCheckBox>
#include <QListWidget>
#include <QTableView>

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
    }

    void dialogsInsert() {
        In(u"Menu_Insert_Frames"_s, u"Frm_Frames"_s, [](QWidget*) { Driver::Click(u"Cmd_Control_0"_s); });
        QVERIFY(Box().Text().endsWith(u"\t</frameset>\r\n"));
        In(u"Menu_Insert_List"_s, u"Frm_List"_s, [](QWidget*) {
            Driver::Find<QLineEdit>(u"Txt_Start"_s)->setText(u"5"_s);
            Driver::Click(u"Opt_ListType_1"_s); // empties the start
            Driver::Click(u"Cmd_Control_0"_s);
        });
        QVERIFY(Box().Text().endsWith(u"\t<ul type=\"disc\">\r\n\t\t<li></li>\r\n\t</ul>"));
        In(u"Menu_Insert_MetaTags"_s, u"Frm_MetaTags"_s, [](QWidget*) {
            auto* list = Driver::Find<QListWidget>(u"Lst_Attributes"_s);
            list->setCurrentRow(0);
            list->item(0)->setCheckState(Qt::Checked);
            QTest::keyClicks(Driver::FindControl(u"Txt_AttributeValue"_s), u"ich"_s);
            Driver::Click(u"Cmd_Control_0"_s);
        });
        QVERIFY(Box().Text().endsWith(u"\t\t<meta name=\"author\" content=\"ich\">\r\n"));
        In(u"Menu_Insert_Style"_s, u"Frm_InsertStyle"_s, [](QWidget* dialog) {
            Driver::Click(u"Chk_Option_0"_s);
            Driver::Click(u"Chk_Option_1"_s);
            QVERIFY(!Driver::Find<QCheckBox>(u"Chk_Option_0"_s)->isChecked());
            Driver::Click(u"Chk_Option_1"_s);
            Driver::Click(u"Cmd_Control_0"_s);
            QVERIFY(dialog->isVisible());
            Driver::Click(u"Cmd_Control_1"_s);
        });
        QVERIFY(Box().Text().endsWith(u"\t\t\tbody {\r\n\t\t\t}\r\n"));
    }

    void tableGoesToAFileAndBack() {
        m_dialogs->ExpectSaveFile(u"Tabelle speichern"_s, m_folder->Path(u"a.tbl"_s));
        In(u"Menu_Insert_Table_Insert"_s, u"Frm_Table"_s, [](QWidget*) {
            auto* grid = Driver::Find<QTableView>(u"Flx_Table"_s);
            Driver::Find<QLineEdit>(u"Txt_Cols"_s)->setText(u"3"_s);
            Driver::Find<QLineEdit>(u"Txt_Cols"_s)->setText(u"viele"_s); // stays as it was
            grid->setCurrentIndex(grid->model()->index(0, 0));
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
