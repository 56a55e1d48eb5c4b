// SPDX-License-Identifier: MIT
// The project backup by its menu item, in the real program.
#include "project/frm_project_back_up.h"

#include "project/folder_chooser.h"
#include "project/frm_page_info.h"
#include "support/program_test.h"

#include <QTreeView>
#include <QTreeWidget>

class ProjectBackUpTest : public ProgramTest {
    Q_OBJECT

    // Opens the window for a page of that text, and runs `inside` in it.
    void In(const QByteArray& page, std::function<void(QWidget*)> inside) {
        Documents::OpenFile(m_folder->Write(u"web/seite.htm"_s, "-//W3C//DTD HTML\r\n" + page));
        Driver::InModal(u"Frm_ProjectBackUp"_s, std::move(inside));
        Driver::Trigger(u"Menu_File_ProjectBackUp"_s);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!Loaded<Frm_ProjectBackUp>());
    }
    static bool IsOpen(const QString& button) { return Driver::Find<QAbstractButton>(button)->isEnabled(); }
    static int Rows() { return Driver::Find<QTreeView>(u"Lvw_Files"_s)->model()->rowCount(); }
    void Choose(QWidget* window, const QString& folder) {
        QDir().mkpath(m_folder->System(folder));
        window->findChild<FolderChooser*>()->SetPath(m_folder->Path(folder));
    }

private slots:
    void copiesTheSiteIntoANewFolder() {
        m_folder->Write(u"web/bilder/a.gif"_s, "GIF");
        m_folder->Write(u"web/b.min.js"_s, "x");
        m_dialogs->ExpectText(u"Neuer Ordner"_s, u"Sicherung"_s);
        In("<img src=\"bilder/a.gif\"><script src=\"b.min.js\">", [this](QWidget* window) {
            QTRY_VERIFY(IsOpen(u"Cmd_Control_0"_s) && IsOpen(u"Cmd_Control_2"_s));
            QCOMPARE(Rows(), 2);
            Driver::InModal(u"Frm_PageInfo"_s, [](QWidget* info) {
                const auto* list = info->findChild<QTreeWidget*>(u"Lvw_Files"_s);
                QCOMPARE(list->topLevelItemCount(), 8);
                QCOMPARE(list->topLevelItem(1)->text(1), u"1"_s);
                QCOMPARE(list->topLevelItem(7)->text(0), u"Gesamt"_s);
                QCOMPARE(list->topLevelItem(7)->text(1), u"3"_s);
                QTest::keyClick(info, Qt::Key_Escape);
            });
            Driver::Click(u"Cmd_Control_2"_s);
            Choose(window, u"ziel"_s);
            Driver::Find<QToolBar>(u"ToolBar"_s)->actions().first()->trigger();
            Driver::Click(u"Cmd_Control_0"_s);
        });
        QCOMPARE(m_folder->Read(u"ziel/Sicherung/seite.htm"_s), m_folder->Read(u"web/seite.htm"_s));
        QCOMPARE(m_folder->Read(u"ziel/Sicherung/bilder/a.gif"_s), "GIF");
        QCOMPARE(Driver::Find<QLabel>(u"StatusBar_Panel_Work"_s)->text(),
                 u"ProjektBackup: 1 Datei wurde nicht kopiert: "_s + m_folder->System(u"web/b.min.js"_s));
    }

    void mayBeLeftInTheMiddleOfScanAndCopy() {
        const auto leave = [](QWidget* window) { QTest::keyClick(window, Qt::Key_Escape); };
        QByteArray links;
        for (int i = 0; i < 20'000; ++i) links += "<img src=\"" + QByteArray::number(i) + ".gif\">";
        In(links, [&](QWidget* window) {
            QTRY_VERIFY(Rows() > 0);
            QVERIFY(!IsOpen(u"Cmd_Control_0"_s) && !IsOpen(u"Cmd_Control_2"_s) && IsOpen(u"Cmd_Control_1"_s));
            leave(window);
        });
        QFile large(m_folder->System(u"web/gross.zip"_s));
        QVERIFY(large.open(QIODevice::WriteOnly) && large.resize(400'000'000));
        In("<a href=\"gross.zip\">", [&](QWidget* window) {
            QTRY_VERIFY(IsOpen(u"Cmd_Control_0"_s));
            Choose(window, u"ziel2"_s);
            QTimer::singleShot(0, window, [&, window] {
                QVERIFY(!IsOpen(u"Cmd_Control_0"_s));
                leave(window);
            });
            Driver::Click(u"Cmd_Control_0"_s);
        });
        QVERIFY(m_folder->Has(u"ziel2/seite.htm"_s) && !m_folder->Has(u"ziel2/gross.zip"_s));
    }
};

REGISTER_TEST_AS(ProjectBackUp, ProjectBackUpTest);
#include "project_back_up_test.moc"
