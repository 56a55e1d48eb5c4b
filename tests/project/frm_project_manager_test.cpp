// SPDX-License-Identifier: MIT
// The project window beside the code, in the real main window on the sample site.
#include "project/frm_project_manager.h"

#include "platform/events.h"
#include "platform/files.h"
#include "project/file_list_model.h"
#include "support/main_window_test.h"

#include <QAction>
#include <QApplication>
#include <QMdiArea>
#include <QTreeView>

using Dialogs::Answer;

class FrmProjectManager : public MainWindowTest {
    Q_OBJECT

    enum Column { Name, Title, Folder, LinkedFrom, LinkName, Type };

    static QTreeView& FileList() { return *Driver::Find<QTreeView>(u"Lvw_Files"_s); }
    static QTreeView& AddedList() { return *Driver::Find<QTreeView>(u"Lvw_ExtendedFiles"_s); }
    static QAction* Button(const QString& key) {
        return Shared<Frm_ProjectManager>().findChild<QAction*>(QString(u"Tlb_Navigation_"_s + key));
    }
    // The enabled buttons by their keys.
    static QString Enabled() {
        QStringList keys;
        for (const QString& key : {u"Back"_s, u"Open"_s, u"Delete"_s, u"GoTo"_s, u"New"_s}) {
            if (Button(key)->isEnabled()) keys << key;
        }
        return keys.join(u' ');
    }
    static void Press(const QString& key) {
        QVERIFY2(Button(key)->isEnabled(), qPrintable(key));
        Button(key)->trigger();
        QCoreApplication::processEvents();
    }
    static QStringList Names(const QTreeView& list) {
        QStringList texts;
        for (int row = 0; row < list.model()->rowCount(); ++row) {
            texts << list.model()->index(row, Name).data().toString();
        }
        return texts;
    }
    // The row of that name, clicked as by the user.
    static QModelIndex ClickRow(QTreeView& list, const QString& name) {
        const qsizetype row = Names(list).indexOf(name);
        if (row < 0) {
            QTest::qFail(qPrintable(u"no row "_s + name), __FILE__, __LINE__);
            return {};
        }
        const QModelIndex index = list.model()->index(static_cast<int>(row), Name);
        list.scrollTo(index);
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualRect(index).center());
        return index;
    }
    static void Key(QTreeView& list, Qt::Key key) {
        QTest::keyClick(&list, key);
        QCoreApplication::processEvents();
    }
    static void DoubleClickRow(QTreeView& list, const QString& name) {
        const QModelIndex index = ClickRow(list, name);
        if (!index.isValid()) return;
        QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, list.visualRect(index).center());
        QCoreApplication::processEvents();
    }

    QString Page(const QString& name) const { return m_folder->Path(u"verein/"_s + name); }
    void OpenSite() {
        CopyFolder(SourceFile(u"examples/verein"_s), m_folder->System(u"verein"_s));
        Documents::OpenFile(Page(u"index.htm"_s));
        Driver::Trigger(u"Menu_Tools_ProjectManager"_s);
    }
    void ExpectQuestionOnSaving(Answer answer) const {
        m_dialogs->ExpectMessage(u"Öffnen"_s, u"Soll die aktuelle Datei gespeichert werden?"_s, answer,
                                 Dialogs::Icon::Exclamation);
    }
    void ExpectQuestionOnAFile(const QString& title, const QString& question, const QString& file,
                               Answer answer) const {
        m_dialogs->ExpectMessage(title, question + u"\r\n\r\n"_s + m_folder->System(u"verein/"_s + file),
                                 answer, Dialogs::Icon::Exclamation);
    }
    void ExpectRemoval(Answer answer) const {
        ExpectQuestionOnAFile(
            u"Entfernen"_s,
            u"Möchten Sie diese Datei aus dem Projekt entfernen? Sie wird dabei nicht gelöscht."_s,
            u"dateien/antrag.pdf"_s, answer);
    }
    void InsertFile(const QString& path) {
        m_dialogs->ExpectOpenFile(u"Projektdatei einfügen"_s, path);
        Press(u"New_InsertFile"_s);
    }
    void Start() {
        StartProgram();
        Global::ListLinkErrors = Global::ShowExternLinks = true;
        Global::MaxLinkDeep = 255;
        Neighbours::ShowAssistant(false);
        Shared<Frm_Main>().showNormal();
        Shared<Frm_Main>().resize(1000, 700);
        QCoreApplication::processEvents();
    }
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
    void init() {
        MakeFolder();
        Start();
    }
    void cleanup() { End(); }

    // Missing files first, each reached file once, external links last; the buttons mean the row.
    void listsWhatTheSiteReaches() {
        OpenSite();
        const QStringList names = Names(FileList());
        const QString link = names.last();
        QCOMPARE(names.first(), u"fotos.htm"_s);
        QVERIFY(link.contains(u':'));
        QCOMPARE(names.size(), 34);
        QCOMPARE(Enabled(), u"New"_s);
        ClickRow(FileList(), u"fotos.htm"_s);
        QCOMPARE(Enabled(), u"GoTo New"_s);
        const QModelIndex row = ClickRow(FileList(), u"termine.htm"_s);
        QCOMPARE(Enabled(), u"Open Delete GoTo New"_s);
        QVERIFY(row.siblingAtColumn(Title).data().toString().startsWith(u"Termine"));
        QCOMPARE(row.siblingAtColumn(LinkedFrom).data().toString(),
                 m_folder->System(u"verein/aktuell/neuigkeiten.html"_s));
        QCOMPARE(row.data(Qt::ToolTipRole).toString(), m_folder->System(u"verein/aktuell/termine.htm"_s));
        Key(FileList(), Qt::Key_End);
        QCOMPARE(Enabled(), u"Open GoTo New"_s);
        m_dialogs->ExpectAddress(link);
        DoubleClickRow(FileList(), link);
        m_dialogs->ExpectAddress(link);
        Press(u"Open"_s);
        DoubleClickRow(FileList(), u"fotos.htm"_s); // a missing file opens nothing
        QCOMPARE(Global::CurrentFile, Page(u"index.htm"_s));
    }

    void navigatesAndComesBack() {
        OpenSite();
        DoubleClickRow(FileList(), u"termine.htm"_s);
        DoubleClickRow(FileList(), u"vorstand.html"_s);
        ClickRow(FileList(), u"kontakt.htm"_s);
        Key(FileList(), Qt::Key_Return);
        QCOMPARE(Global::CurrentFile, Page(u"verein/kontakt.htm"_s));
        for (const QString& page : {u"vorstand.html"_s, u"termine.htm"_s, u"index.htm"_s}) {
            Press(u"Back"_s);
            QVERIFY2(Global::CurrentFile.endsWith(u'\\' + page), qPrintable(Global::CurrentFile));
        }
        QCOMPARE(Enabled(), u"New"_s);
        DoubleClickRow(FileList(), u"termine.htm"_s);
        m_dialogs->ExpectOpenFile(u"Öffnen"_s, Page(u"wap\\index.wml"_s));
        Driver::Trigger(u"Menu_File_Open"_s); // a project of its own
        QCOMPARE(Neighbours::ReturnIndexFile(), Page(u"wap\\index.wml"_s));
    }

    void asksToSave() {
        OpenSite();
        Driver::TypeCode(u"x"_s);
        ExpectQuestionOnSaving(Answer::Cancel);
        DoubleClickRow(FileList(), u"termine.htm"_s);
        QVERIFY(Global::DocChanged && Global::CurrentFile == Page(u"index.htm"_s));
        ExpectQuestionOnSaving(Answer::Yes);
        DoubleClickRow(FileList(), u"termine.htm"_s);
        QVERIFY(m_folder->Read(u"verein/index.htm"_s).startsWith('x'));
        QVERIFY(Global::CurrentFile.endsWith(u"\\termine.htm"));
        // text that could not be saved stays
        Documents::OpenFile(m_folder->Write(u"verein/neu.htm"_s, "<a href=\"index.htm\">"));
        Driver::TypeCode(u"z"_s);
        QFile::remove(m_folder->System(u"verein/neu.htm"_s));
        QDir().mkdir(m_folder->System(u"verein/neu.htm"_s)); // nothing can be written there
        ExpectQuestionOnSaving(Answer::Yes);
        m_dialogs->ExpectMessage(u"Fehler"_s,
                                 u"Fehler beim Speichern der Datei. Stellen Sie sicher, dass die Datei nicht "
                                 "schreibgeschützt ist."_s);
        DoubleClickRow(FileList(), u"index.htm"_s);
        QVERIFY(Box().Text().startsWith(u'z') && Global::DocChanged);
    }

    void goesToTheLink() {
        OpenSite();
        ClickRow(FileList(), u"neuigkeiten.html"_s);
        Press(u"GoTo"_s);
        QCOMPARE(Box().SelText(), u"aktuell/neuigkeiten.html"_s);
        ClickRow(FileList(), u"index.htm"_s);
        m_dialogs->ExpectMessage(
            u"Öffnen"_s,
            u"In der Datei befindet sich kein Link zu dieser Seite, da die ausgewählte Seite die "
            "offene Datei ist."_s,
            Answer::Ok, Dialogs::Icon::Exclamation);
        Press(u"GoTo"_s);
        ClickRow(FileList(), u"termine.htm"_s); // linked from another page
        Driver::TypeCode(u"x"_s);
        m_dialogs->ExpectMessage(
            u"Öffnen"_s,
            u"Dieser Link befindet sich in einer anderen Datei.\rSoll die aktuelle Datei gespeichert werden?"_s,
            Answer::No, Dialogs::Icon::Exclamation);
        Press(u"GoTo"_s);
        QCOMPARE(Global::CurrentFile, Page(u"aktuell\\neuigkeiten.html"_s));
        QCOMPARE(Box().SelText(), u"termine.htm"_s);
        Press(u"Back"_s);
        QCOMPARE(Global::CurrentFile, Page(u"index.htm"_s));
    }

    void deletesAFile() {
        OpenSite();
        const auto expect = [&](Answer answer) {
            ExpectQuestionOnAFile(
                u"Löschen"_s, u"Sind Sie sicher, dass Sie die Datei in den Papierkorb verschieben möchten?"_s,
                u"aktuell/termine.htm"_s, answer);
        };
        ClickRow(FileList(), u"termine.htm"_s);
        expect(Answer::No);
        Press(u"Delete"_s);
        QVERIFY(m_folder->Has(u"verein/aktuell/termine.htm"_s));
        expect(Answer::Yes);
        Key(FileList(), Qt::Key_Delete);
        QVERIFY(!m_folder->Has(u"verein/aktuell/termine.htm"_s));
        // now it is missing, and can be deleted no more
        ClickRow(FileList(), u"termine.htm"_s);
        QCOMPARE(Enabled(), u"GoTo New"_s);
        Key(FileList(), Qt::Key_Delete);
    }

    // Keys and mouse mean the list that they go to, and there the selected row alone.
    void keysMeanTheirOwnList() {
        m_folder->Write(u"verein/index..prj"_s, m_folder->System(u"verein/dateien/antrag.pdf"_s).toUtf8());
        OpenSite();
        QCOMPARE(AddedList().model()->rowCount(), 1);
        ClickRow(FileList(), u"termine.htm"_s);
        for (const Qt::Key key : {Qt::Key_Delete, Qt::Key_Return, Qt::Key_Enter})
            Key(AddedList(), key); // nothing is selected there
        const QPoint nowhere(10, AddedList().viewport()->height() - 3);
        QTest::mouseDClick(AddedList().viewport(), Qt::LeftButton, {}, nowhere);
        QTest::mouseClick(AddedList().viewport(), Qt::RightButton, {}, nowhere);
        QCoreApplication::processEvents();
        QCOMPARE(Global::CurrentFile, Page(u"index.htm"_s));
        QVERIFY(m_folder->Has(u"verein/aktuell/termine.htm"_s));

        ClickRow(AddedList(), u"antrag.pdf"_s);
        QTest::keyClick(&FileList(), Qt::Key_Delete); // and the other way round
        Key(FileList(), Qt::Key_Return);
        ExpectRemoval(Answer::No);
        Key(AddedList(), Qt::Key_Delete);
        // a row that a click has deselected is none
        const QModelIndex row = ClickRow(FileList(), u"termine.htm"_s);
        QTest::mouseClick(FileList().viewport(), Qt::LeftButton, Qt::ControlModifier,
                          FileList().visualRect(row).center());
        Key(FileList(), Qt::Key_Delete);
    }

    void keepsAddedFiles() {
        OpenSite();
        InsertFile(Page(u"dateien/preisliste.txt"_s));
        InsertFile(Page(u"dateien/antrag.pdf"_s));
        InsertFile({});    // "Abbrechen"
        m_program.reset(); // a restart
        Start();
        OpenSite();
        QCOMPARE(Names(AddedList()), (QStringList{u"antrag.pdf"_s, u"preisliste.txt"_s}));
        ClickRow(AddedList(), u"antrag.pdf"_s);
        QCOMPARE(Enabled(), u"Open Delete New"_s);
        ExpectRemoval(Answer::Yes);
        Press(u"Delete"_s);
        QCOMPARE(Names(AddedList()), QStringList{u"preisliste.txt"_s});
        QVERIFY(m_folder->Has(u"verein/dateien/antrag.pdf"_s));
        QCOMPARE(m_folder->Read(u"verein/index..prj"_s).count("\r\n"), 1);

        // opened, they are not scanned
        DoubleClickRow(FileList(), u"satzung.htm"_s);
        DoubleClickRow(AddedList(), u"preisliste.txt"_s);
        QCOMPARE(Global::CurrentFile, Page(u"dateien/preisliste.txt"_s));
        QCOMPARE(FileList().model()->rowCount(), 0);
        QCOMPARE(AddedList().model()->rowCount(), 1); // still the project of the index page
        Press(u"Back"_s);
        QVERIFY(Global::CurrentFile.endsWith(u"\\satzung.htm") && FileList().model()->rowCount() > 0);
        // a file opened by the menu is listed, whatever was open before
        DoubleClickRow(AddedList(), u"preisliste.txt"_s);
        m_dialogs->ExpectOpenFile(u"Öffnen"_s, Page(u"rahmen.htm"_s));
        Driver::Trigger(u"Menu_File_Open"_s);
        QVERIFY(FileList().model()->rowCount() > 3);
    }

    void leavesABrokenProjectAlone() {
        const QByteArray bytes = QByteArray("/x/a.gif\n").repeated(1025);
        m_folder->Write(u"verein/index..prj"_s, bytes);
        const auto expect = [&] {
            m_dialogs->ExpectMessage(
                u"ProjektManager"_s,
                u"Die Projektdatei '%1' enthält mehr als 1024 Einträge und kann nicht geladen werden."_s.arg(
                    m_folder->System(u"verein/index..prj"_s)),
                Answer::Ok, Dialogs::Icon::Critical);
        };
        expect();
        OpenSite();
        Driver::Trigger(u"Menu_File_Save"_s); // scans again, and says nothing more
        expect();
        Press(u"New_InsertFile"_s); // without asking for a file
        DoubleClickRow(FileList(), u"termine.htm"_s);
        Unload<Frm_ProjectManager>();
        QCOMPARE(m_folder->Read(u"verein/index..prj"_s), bytes);
    }

    void tellsThatAProjectCannotBeSaved() {
        OpenSite();
        QVERIFY(QDir().mkpath(m_folder->System(u"verein/index..prj/x"_s)));
        m_dialogs->ExpectOpenFile(u"Projektdatei einfügen"_s, Page(u"index.htm"_s));
        m_dialogs->ExpectMessage(
            u"ProjektManager"_s,
            u"Die Projektdatei '%1' kann nicht gespeichert werden. Stellen Sie sicher, dass sie "
            "nicht schreibgeschützt ist."_s.arg(m_folder->System(u"verein/index..prj"_s)));
        Press(u"New_InsertFile"_s);
    }

    void makesNewPages() {
        OpenSite();
        for (const auto& [key, type] : {std::pair(u"New"_s, u"XHTML"_s),
                                        {u"New_XHTML"_s, u"XHTML"_s},
                                        {u"New_HTML"_s, u"HTML"_s},
                                        {u"New_WAP"_s, u"WML"_s},
                                        {u"New_Text"_s, u"Text"_s}}) {
            Press(key);
            QCOMPARE(Global::DocType, type);
            QVERIFY(Global::CurrentFile.isEmpty() && FileList().model()->rowCount() == 0);
            Global::DocChanged = false;
            Press(key); // a page without a name cannot be come back to
            Global::DocChanged = false;
            Press(u"Back"_s);
            QCOMPARE(Global::CurrentFile, Page(u"index.htm"_s));
            QVERIFY(!Button(u"Back"_s)->isEnabled());
        }
    }

    // The code has the room beside it, and it has that of the debugger's strip when the strip has gone.
    void standsAtTheLeftEdge() {
        OpenSite();
        auto& window = Shared<Frm_ProjectManager>();
        window.parentWidget()->resize(400, 300); // by its right border
        QCoreApplication::processEvents();
        const QSize client = Shared<Frm_Main>().Area()->viewport()->size();
        const auto fits = [&](bool strip) {
            const QRect place = window.parentWidget()->geometry();
            const int free = client.height() - place.height();
            return place.topLeft() == QPoint(0, 0) && (strip ? free > 100 : std::abs(free) <= 1);
        };
        QVERIFY(fits(false));
        const QRect code = Shared<Frm_Code>().parentWidget()->geometry();
        QVERIFY(std::abs(code.left() - 400) <= 1 && std::abs(code.right() + 1 - client.width()) <= 1);

        auto* divider = Driver::Find<QWidget>(u"Pic_Resize"_s);
        const int before = divider->y();
        const QPointF place(5, -99);
        QTest::mousePress(divider, Qt::LeftButton, {}, QPoint(5, 1));
        QMouseEvent move(QEvent::MouseMove, place, divider->mapToGlobal(place), Qt::NoButton, Qt::LeftButton,
                         {});
        QCoreApplication::sendEvent(divider, &move);
        QVERIFY(std::abs(divider->y() - (before - 100)) < 20); // the formulas differ a little

        Driver::Trigger(u"Menu_Debug_Start"_s);
        QVERIFY(fits(true));
        Unload<Frm_Code>(); // which takes the debugger along
        QVERIFY(!Global::DebuggerOpen && fits(false));
    }

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

REGISTER_TEST(FrmProjectManager);
#include "frm_project_manager_test.moc"
