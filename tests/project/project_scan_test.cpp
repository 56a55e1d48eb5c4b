// SPDX-License-Identifier: MIT
// What its user does to the project window while it scans.
#include "project/project_window.h"

class ProjectScan : public ProjectWindowTest {
    Q_OBJECT

    // Opens the window with a clock that makes it let events run behind each link, as `events` has them.
    static void RunWithEventsAtEachLink(const std::function<void()>& events) {
        double now = 1000;
        const auto before = Events::Replace({events, [&now] { return now += 1; }, {}});
        Driver::Trigger(u"Menu_Tools_ProjectManager"_s);
        Events::Replace(before);
    }
    // A site whose first page links to `count` others.
    QString WriteLargeSite(int count) const {
        QByteArray index = "<title>Viele</title>";
        for (int i = 0; i < count; ++i) {
            const QByteArray name = "s" + QByteArray::number(i) + ".htm";
            index += "<a href=\"" + name + "\">x</a>\r\n";
            m_folder->Write(u"viele/"_s + QString::fromLatin1(name), "<title>Seite</title>");
        }
        return m_folder->Write(u"viele/index.htm"_s, index);
    }

private slots:
    void staysUsableWhileRowsComeIn() {
        Documents::OpenFile(WriteLargeSite(100));
        Global::MaxLinkDeep = 1;
        int rowsSeen = 0;
        QString shown; // the caption as far as the frame has room for it
        const auto pick = [&] {
            QCoreApplication::processEvents();
            const Frm_ProjectManager& window = Shared<Frm_ProjectManager>();
            const int rows = FileList().model()->rowCount();
            if (window.ScanFinished || rowsSeen > 0 || rows < 10) return;
            rowsSeen = rows;
            QCOMPARE(Enabled(), QString());
            QCOMPARE(window.windowTitle(), u"ProjektManager wird aktualisiert..."_s);
            shown = window.parentWidget()->windowTitle();
            DoubleClickRow(FileList(), u"index.htm"_s); // opens nothing yet
            ClickRow(FileList(), u"s3.htm"_s);
        };
        RunWithEventsAtEachLink(pick);
        QCOMPARE(FileList().model()->rowCount(), 101);
        QVERIFY(rowsSeen > 0 && rowsSeen < 101);
        // the narrow title has room for the words that say what goes on, and they are what it shows
        QVERIFY2(shown.endsWith(u"aktualisiert..."), qPrintable(shown));
        const QFontMetrics metrics(QApplication::font("QMdiSubWindowTitleBar"));
        QVERIFY(metrics.horizontalAdvance(shown) < Shared<Frm_ProjectManager>().width() - 45);
        QCOMPARE(Shared<Frm_ProjectManager>().parentWidget()->windowTitle(), u"ProjektManager"_s);
        // the row picked meanwhile is the one that the buttons mean
        QCOMPARE(Enabled(), u"Open Delete GoTo New"_s);
        Press(u"Open"_s);
        QVERIFY(Global::CurrentFile.endsWith(u"\\s3.htm"));
    }

    void endsInTheMiddleOfAScan_data() {
        QTest::addColumn<QString>("how");
        for (const char* how : {"close", "close and reopen", "close document", "scan again", "exit"})
            QTest::newRow(how) << QString::fromLatin1(how);
    }
    void endsInTheMiddleOfAScan() {
        QFETCH(QString, how);
        Documents::OpenFile(WriteLargeSite(20));
        Global::MaxLinkDeep = 40;
        int runs = 0;
        const auto act = [&] {
            if (how == u"close and reopen") {
                Unload<Frm_ProjectManager>();
                QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
                Shared<Frm_ProjectManager>().ShowBeside();
            } else if (how == u"close document") {
                Driver::Trigger(u"Menu_File_Close"_s);
            } else if (how == u"scan again") {
                Global::CurrentFile = m_folder->Write(u"viele/klein.htm"_s, "<a href=\"s1.htm\">");
                Neighbours::SearchLinks();
            } else if (how == u"exit") {
                Shared<Frm_Main>().hide();
            } else {
                Shared<Frm_ProjectManager>().parentWidget()->close(); // its button
            }
            // its window goes while the scan still stands below
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        };
        RunWithEventsAtEachLink([&] {
            QCoreApplication::processEvents();
            if (++runs == 3) act();
        });
        // one that scans again goes on with the one link of its page
        QCOMPARE(runs, how == u"scan again" ? 4 : 3);
        const bool gone = how == u"close" || how == u"close document";
        QVERIFY(Loaded<Frm_ProjectManager>() == !gone && Global::ProjectWindowOpen == !gone);
        if (how == u"scan again") QCOMPARE(FileList().model()->rowCount(), 2);
        if (how == u"close and reopen") QCOMPARE(FileList().model()->rowCount(), 0);
        if (!gone) QVERIFY(Shared<Frm_ProjectManager>().ScanFinished);
    }
};

REGISTER_TEST(ProjectScan);
#include "project_scan_test.moc"
