// SPDX-License-Identifier: MIT
// The project window beside the code, in the real main window on the sample site.
#include "project/frm_project_manager.h"

#include "documents/document_commands.h"
#include "documents/frm_code.h"
#include "platform/events.h"
#include "platform/files.h"
#include "platform/literals.h"
#include "platform/twips.h"
#include "project/file_list_model.h"
#include "shell/frm_main.h"
#include "state/global.h"
#include "state/neighbours.h"
#include "support/driver.h"
#include "support/program_folder.h"
#include "support/scripted_dialogs.h"
#include "support/test_registry.h"

#include <QAction>
#include <QApplication>
#include <QMdiArea>
#include <QToolBar>
#include <QToolButton>
#include <QTreeView>

using Dialogs::Answer;

class FrmProjectManager : public QObject {
    Q_OBJECT

    std::unique_ptr<ProgramFolder> m_folder;
    std::unique_ptr<ScriptedDialogs> m_dialogs;
    std::unique_ptr<Driver::RunningProgram> m_program;

    enum Column { Name, Title, Folder, LinkedFrom, LinkName, Type };

    static QTreeView& FileList() { return *Driver::Find<QTreeView>(u"Lvw_Files"_s); }
    static QTreeView& AddedList() { return *Driver::Find<QTreeView>(u"Lvw_ExtendedFiles"_s); }
    static Txt_Code& Box() { return *Shared<Frm_Code>().TextBox; }
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
    static QStringList ColumnOf(const QTreeView& list, int column) {
        QStringList texts;
        for (int row = 0; row < list.model()->rowCount(); ++row) {
            texts << list.model()->index(row, column).data().toString();
        }
        return texts;
    }
    static QString Cell(const QModelIndex& row, int column) {
        return row.siblingAtColumn(column).data().toString();
    }
    // The row of that name, clicked as by the user.
    static QModelIndex ClickRow(QTreeView& list, const QString& name) {
        const qsizetype row = ColumnOf(list, Name).indexOf(name);
        if (row < 0) {
            QTest::qFail(qPrintable(u"no row "_s + name), __FILE__, __LINE__);
            return {};
        }
        const QModelIndex index = list.model()->index(static_cast<int>(row), Name);
        list.scrollTo(index);
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualRect(index).center());
        return index;
    }
    static void DoubleClickRow(QTreeView& list, const QString& name) {
        const QModelIndex index = ClickRow(list, name);
        if (!index.isValid()) return;
        QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, list.visualRect(index).center());
        QCoreApplication::processEvents();
    }

    QString Page(const QString& name) const { return m_folder->Path(u"verein/"_s + name); }
    void OpenSite(const QString& page = u"index.htm"_s) {
        CopyFolder(SourceFile(u"examples/verein"_s), m_folder->System(u"verein"_s));
        Documents::OpenFile(Page(page));
        Driver::Trigger(u"Menu_Tools_ProjectManager"_s);
    }
    void StartProgram() {
        m_program = std::make_unique<Driver::RunningProgram>();
        Global::AutoDebug = Global::AutoProjectManager = Global::AutoPreView = false;
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
        m_folder = std::make_unique<ProgramFolder>();
        m_dialogs = std::make_unique<ScriptedDialogs>();
        StartProgram();
    }
    void cleanup() {
        m_program.reset();
        m_dialogs.reset();
        m_folder.reset();
    }

    void listsWhatTheSiteReaches() {
        OpenSite();
        const QStringList names = ColumnOf(FileList(), Name);
        QStringList keys = ColumnOf(FileList(), Type);
        QVERIFY(std::is_sorted(keys.cbegin(), keys.cend()));
        // missing files first, each reached file once, external links last
        QCOMPARE(names.first(), u"fotos.htm"_s);
        QCOMPARE(keys.count(u"aaa"_s), 1);
        for (const QString& page :
             {u"index.htm"_s, u"neuigkeiten.html"_s, u"termine.htm"_s, u"vorstand.html"_s, u"satzung.htm"_s,
              u"beitrag.htm"_s, u"lageplan.htm"_s, u"geschichte.htm"_s, u"kontakt.htm"_s, u"rahmen.htm"_s,
              u"kopf.htm"_s, u"navi.htm"_s, u"inhalt.htm"_s, u"gartenjahr.html"_s, u"baustelle.htm"_s,
              u"verein.css"_s, u"verein.js"_s, u"rechner.vbs"_s, u"index.wml"_s}) {
            QVERIFY2(names.count(page) == 1, qPrintable(page));
        }
        QVERIFY(!names.contains(u"logo.gif"_s)); // a picture that is there is no part of the list
        const qsizetype external = keys.indexOf(u"zzz"_s);
        QVERIFY(external > 0 && names.last().contains(u':'));

        const QModelIndex row = ClickRow(FileList(), u"termine.htm"_s);
        QVERIFY(Cell(row, Title).startsWith(u"Termine"));
        QCOMPARE(Cell(row, LinkName), u"termine.htm"_s);
        QCOMPARE(Cell(row, LinkedFrom), m_folder->System(u"verein/aktuell/neuigkeiten.html"_s));
        QCOMPARE(row.data(Qt::ToolTipRole).toString(), m_folder->System(u"verein/aktuell/termine.htm"_s));
        QVERIFY(!row.data(Qt::DecorationRole).value<QIcon>().isNull());
        QCOMPARE(Shared<Frm_ProjectManager>().windowTitle(), u"ProjektManager"_s);
    }

    void activatesItsButtonsByTheRow() {
        OpenSite();
        QCOMPARE(Enabled(), u"New"_s);
        ClickRow(FileList(), u"fotos.htm"_s);
        QCOMPARE(Enabled(), u"GoTo New"_s);
        ClickRow(FileList(), u"termine.htm"_s);
        QCOMPARE(Enabled(), u"Open Delete GoTo New"_s);
        const QString link = ColumnOf(FileList(), Name).last();
        ClickRow(FileList(), link);
        QCOMPARE(Enabled(), u"Open GoTo New"_s);
        m_dialogs->ExpectAddress(link);
        m_dialogs->ExpectAddress(link);
        Press(u"Open"_s);
        DoubleClickRow(FileList(), link);
        // a missing file opens nothing
        DoubleClickRow(FileList(), u"fotos.htm"_s);
        QCOMPARE(Global::CurrentFile, Page(u"index.htm"_s));
        // the keyboard selects, too
        QTest::keyClick(&FileList(), Qt::Key_Home);
        QTest::keyClick(&FileList(), Qt::Key_End);
        QCOMPARE(Enabled(), u"Open GoTo New"_s);
    }

    void navigatesAndComesBack() {
        OpenSite();
        DoubleClickRow(FileList(), u"termine.htm"_s);
        QCOMPARE(Shared<Frm_Main>().windowTitle(), u"Sorvane HTML Editor 3.0 [termine.htm]"_s);
        DoubleClickRow(FileList(), u"vorstand.html"_s);
        ClickRow(FileList(), u"kontakt.htm"_s);
        QTest::keyClick(&FileList(), Qt::Key_Return);
        QCoreApplication::processEvents();
        QCOMPARE(Global::CurrentFile, Page(u"verein/kontakt.htm"_s));
        QCOMPARE(Neighbours::ReturnIndexFile(), Page(u"index.htm"_s));
        for (const QString& page : {u"vorstand.html"_s, u"termine.htm"_s, u"index.htm"_s}) {
            Press(u"Back"_s);
            QVERIFY2(Global::CurrentFile.endsWith(u'\\' + page), qPrintable(Global::CurrentFile));
        }
        QCOMPARE(Enabled(), u"New"_s);
        QCOMPARE(Neighbours::ReturnIndexFile(), Page(u"index.htm"_s));
        DoubleClickRow(FileList(), u"termine.htm"_s);
        m_dialogs->ExpectOpenFile(u"Öffnen"_s, Page(u"wap\\index.wml"_s));
        Driver::Trigger(u"Menu_File_Open"_s); // a project of its own
        QCOMPARE(Neighbours::ReturnIndexFile(), Page(u"wap\\index.wml"_s));
        QCOMPARE(Enabled(), u"New"_s);
    }

    void asksToSave() {
        OpenSite();
        const QString question = u"Soll die aktuelle Datei gespeichert werden?"_s;
        const auto expect = [&](Answer answer) {
            m_dialogs->ExpectMessage(u"Öffnen"_s, question, answer, Dialogs::Icon::Exclamation);
        };
        Driver::TypeCode(u"x"_s);
        expect(Answer::Cancel);
        DoubleClickRow(FileList(), u"termine.htm"_s);
        QVERIFY(Global::DocChanged && Global::CurrentFile == Page(u"index.htm"_s));
        expect(Answer::Yes);
        DoubleClickRow(FileList(), u"termine.htm"_s);
        QVERIFY(m_folder->Read(u"verein/index.htm"_s).startsWith('x'));
        QVERIFY(Global::CurrentFile.endsWith(u"\\termine.htm"));
        Driver::TypeCode(u"y"_s);
        expect(Answer::No);
        Press(u"Back"_s);
        QVERIFY(!m_folder->Read(u"verein/aktuell/termine.htm"_s).startsWith('y'));
        // text that could not be saved stays
        Documents::OpenFile(m_folder->Write(u"verein/neu.htm"_s, "<a href=\"index.htm\">"));
        Driver::TypeCode(u"z"_s);
        QFile::remove(m_folder->System(u"verein/neu.htm"_s));
        QDir().mkdir(m_folder->System(u"verein/neu.htm"_s)); // nothing can be written there
        expect(Answer::Yes);
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
        // a missing file that another page links to
        QFile::remove(m_folder->System(u"verein/bilder/gruendung1951.jpg"_s));
        Shared<Frm_ProjectManager>().SearchLinks();
        const QModelIndex missing = ClickRow(FileList(), u"gruendung1951.jpg"_s);
        const QString holder = Cell(missing, LinkedFrom);
        const QString link = Cell(missing, LinkName);
        QVERIFY(holder.endsWith(u"geschichte.htm"));
        Driver::TypeCode(u"x"_s);
        m_dialogs->ExpectMessage(
            u"Öffnen"_s,
            u"Dieser Link befindet sich in einer anderen Datei.\rSoll die aktuelle Datei gespeichert werden?"_s,
            Answer::No, Dialogs::Icon::Exclamation);
        Press(u"GoTo"_s);
        QCOMPARE(Files::ToSystem(Global::CurrentFile), holder);
        QCOMPARE(Box().SelText(), link);
        Press(u"Back"_s);
        QCOMPARE(Global::CurrentFile, Page(u"index.htm"_s));
    }

    void deletesAFile() {
        OpenSite();
        const auto expect = [&](Answer answer) {
            m_dialogs->ExpectMessage(
                u"Löschen"_s,
                u"Sind Sie sicher, dass Sie die Datei in den Papierkorb verschieben möchten?\r\n\r\n"_s +
                    m_folder->System(u"verein/aktuell/termine.htm"_s),
                answer, Dialogs::Icon::Exclamation);
        };
        ClickRow(FileList(), u"termine.htm"_s);
        expect(Answer::No);
        Press(u"Delete"_s);
        QVERIFY(m_folder->Has(u"verein/aktuell/termine.htm"_s));
        expect(Answer::Yes);
        QTest::keyClick(&FileList(), Qt::Key_Delete);
        QCoreApplication::processEvents();
        QVERIFY(!m_folder->Has(u"verein/aktuell/termine.htm"_s));
        // now it is missing, and can be deleted no more
        const QModelIndex row = ClickRow(FileList(), u"termine.htm"_s);
        QCOMPARE(Cell(row, Type), u"aaa"_s);
        QCOMPARE(Enabled(), u"GoTo New"_s);
        QTest::keyClick(&FileList(), Qt::Key_Delete);
        QCoreApplication::processEvents();
    }

    // Keys and mouse mean the list that they go to, and there the selected row alone.
    void keysMeanTheirOwnList() {
        m_folder->Write(u"verein/index..prj"_s, m_folder->System(u"verein/dateien/antrag.pdf"_s).toUtf8());
        OpenSite();
        QCOMPARE(AddedList().model()->rowCount(), 1);
        ClickRow(FileList(), u"termine.htm"_s);
        for (const Qt::Key key : {Qt::Key_Delete, Qt::Key_Return, Qt::Key_Enter}) {
            QTest::keyClick(&AddedList(), key); // nothing is selected there
            QCoreApplication::processEvents();
        }
        const QPoint nowhere(10, AddedList().viewport()->height() - 3);
        QTest::mouseDClick(AddedList().viewport(), Qt::LeftButton, {}, nowhere);
        QTest::mouseClick(AddedList().viewport(), Qt::RightButton, {}, nowhere);
        QCoreApplication::processEvents();
        QCOMPARE(Global::CurrentFile, Page(u"index.htm"_s));
        QVERIFY(m_folder->Has(u"verein/aktuell/termine.htm"_s));

        ClickRow(AddedList(), u"antrag.pdf"_s);
        QTest::keyClick(&FileList(), Qt::Key_Delete); // and the other way round
        QTest::keyClick(&FileList(), Qt::Key_Return);
        QCoreApplication::processEvents();
        m_dialogs->ExpectMessage(
            u"Entfernen"_s,
            u"Möchten Sie diese Datei aus dem Projekt entfernen? Sie wird dabei nicht gelöscht.\r\n\r\n"_s +
                m_folder->System(u"verein/dateien/antrag.pdf"_s),
            Answer::No);
        QTest::keyClick(&AddedList(), Qt::Key_Delete);
        QCoreApplication::processEvents();
        QVERIFY(m_dialogs->Finished());
        // a row that a click has deselected is none
        const QModelIndex row = ClickRow(FileList(), u"termine.htm"_s);
        QTest::mouseClick(FileList().viewport(), Qt::LeftButton, Qt::ControlModifier,
                          FileList().visualRect(row).center());
        QTest::keyClick(&FileList(), Qt::Key_Delete);
        QCoreApplication::processEvents();
    }

    void keepsAddedFiles() {
        OpenSite();
        for (const QString& file : {u"preisliste.txt"_s, u"antrag.pdf"_s}) {
            m_dialogs->ExpectOpenFile(u"Projektdatei einfügen"_s, Page(u"dateien/"_s + file));
            Press(u"New_InsertFile"_s);
        }
        QVERIFY(
            m_dialogs->lastFileQuestion.filter.contains(u"|Archive (*.zip)|*.zip|Alle Dateien (*.*)|*.*"));
        QCOMPARE(ColumnOf(AddedList(), Name), (QStringList{u"antrag.pdf"_s, u"preisliste.txt"_s}));
        m_dialogs->ExpectOpenFile(u"Projektdatei einfügen"_s, {});
        Press(u"New_InsertFile"_s);
        const QByteArray project = m_folder->Read(u"verein/index..prj"_s);
        QCOMPARE(project.count("\r\n"), 2);
        QVERIFY(project.startsWith(m_folder->System(u"verein/dateien/preisliste.txt"_s).toLocal8Bit()));

        m_program.reset(); // a restart
        StartProgram();
        OpenSite();
        QCOMPARE(ColumnOf(AddedList(), Name), (QStringList{u"antrag.pdf"_s, u"preisliste.txt"_s}));
        ClickRow(AddedList(), u"antrag.pdf"_s);
        QCOMPARE(Enabled(), u"Open Delete New"_s);
        m_dialogs->ExpectMessage(
            u"Entfernen"_s,
            u"Möchten Sie diese Datei aus dem Projekt entfernen? Sie wird dabei nicht gelöscht.\r\n\r\n"_s +
                m_folder->System(u"verein/dateien/antrag.pdf"_s),
            Answer::Yes, Dialogs::Icon::Exclamation);
        Press(u"Delete"_s);
        QCOMPARE(ColumnOf(AddedList(), Name), QStringList{u"preisliste.txt"_s});
        QVERIFY(m_folder->Has(u"verein/dateien/antrag.pdf"_s));
        QCOMPARE(Enabled(), u"New"_s);
        QCOMPARE(m_folder->Read(u"verein/index..prj"_s).count("\r\n"), 1);
    }

    void opensAddedFilesWithoutAScan() {
        OpenSite();
        m_dialogs->ExpectOpenFile(u"Projektdatei einfügen"_s, Page(u"dateien/preisliste.txt"_s));
        Press(u"New_InsertFile"_s);
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

    void leavesABrokenProjectAlone_data() {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("message");
        QTest::newRow("too long")
            << QByteArray("/x/a.gif\n").repeated(1025)
            << u"Die Projektdatei '%1' enthält mehr als 1024 Einträge und kann nicht geladen werden."_s;
        QTest::newRow("binary")
            << QByteArray("/x\\a.gif\n\0", 10)
            << u"Die Projektdatei '%1' kann nicht gelesen werden. Sie bleibt unverändert."_s;
    }
    void leavesABrokenProjectAlone() {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, message);
        m_folder->Write(u"verein/index..prj"_s, bytes);
        const auto expect = [&] {
            m_dialogs->ExpectMessage(u"ProjektManager"_s,
                                     message.arg(m_folder->System(u"verein/index..prj"_s)), Answer::Ok,
                                     Dialogs::Icon::Critical);
        };
        expect();
        OpenSite();
        Driver::Trigger(u"Menu_File_Save"_s); // scans again, and says nothing more
        expect();
        Press(u"New_InsertFile"_s); // without asking for a file
        QVERIFY(m_dialogs->Finished());
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

    void makesNewPages_data() {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("type");
        for (const auto& [key, type] : {std::pair{"New", "XHTML"},
                                        {"New_XHTML", "XHTML"},
                                        {"New_HTML", "HTML"},
                                        {"New_WAP", "WML"},
                                        {"New_Text", "Text"}}) {
            QTest::newRow(key) << QString::fromLatin1(key) << QString::fromLatin1(type);
        }
    }
    void makesNewPages() {
        QFETCH(QString, key);
        OpenSite();
        Press(key);
        QTEST(Global::DocType, "type");
        QVERIFY(Global::CurrentFile.isEmpty() && FileList().model()->rowCount() == 0);
        QVERIFY(Button(u"Back"_s)->isEnabled());
        Global::DocChanged = false;
        Press(key); // a page without a name cannot be come back to
        Global::DocChanged = false;
        Press(u"Back"_s);
        QCOMPARE(Global::CurrentFile, Page(u"index.htm"_s));
        QVERIFY(!Button(u"Back"_s)->isEnabled());
    }

    // Closing the document window takes the debugger along; the room of its strip is the project window's.
    void takesTheRoomOfTheStrip() {
        OpenSite();
        Driver::Trigger(u"Menu_Debug_Start"_s);
        const auto bottom = [] { return Shared<Frm_ProjectManager>().parentWidget()->geometry().bottom(); };
        const int client = Shared<Frm_Main>().Area()->viewport()->height();
        QVERIFY(bottom() < client - 100);
        Unload<Frm_Code>();
        QVERIFY(!Global::DebuggerOpen && Global::ProjectWindowOpen);
        QVERIFY(std::abs(bottom() + 1 - client) <= 1);
    }

    void standsAtTheLeftEdge() {
        OpenSite();
        auto& window = Shared<Frm_ProjectManager>();
        const QSize client = Shared<Frm_Main>().Area()->viewport()->size();
        QVERIFY(std::abs(window.Width() - 2200) < Twips::PerPixel);
        const auto check = [&] {
            const QRect place = window.parentWidget()->geometry();
            const QRect code = Shared<Frm_Code>().parentWidget()->geometry();
            QCOMPARE(place.topLeft(), QPoint(0, 0));
            QVERIFY(std::abs(place.height() - client.height()) <= 1);
            QVERIFY(std::abs(code.left() - place.width()) <= 1);
            QVERIFY(std::abs(code.right() + 1 - client.width()) <= 1);
        };
        check();
        window.parentWidget()->resize(400, 300); // by its right border
        QCoreApplication::processEvents();
        QCOMPARE(window.Width(), 6000);
        check();
        const double share = double(FileList().height()) / (FileList().height() + AddedList().height());
        QVERIFY(share > 0.69 && share < 0.71);

        auto* divider = Driver::Find<QWidget>(u"Pic_Resize"_s);
        const auto drag = [&](int by) {
            QTest::mousePress(divider, Qt::LeftButton, {}, QPoint(5, 1));
            QMouseEvent move(QEvent::MouseMove, QPointF(5, 1 + by), divider->mapToGlobal(QPointF(5, 1 + by)),
                             Qt::NoButton, Qt::LeftButton, {});
            QCoreApplication::sendEvent(divider, &move);
            QTest::mouseRelease(divider, Qt::LeftButton, {}, QPoint(5, 1));
        };
        const int before = divider->y();
        drag(-100);
        QVERIFY(std::abs(divider->y() - (before - 100)) < 20); // the formulas differ a little
        QVERIFY(std::abs(FileList().geometry().bottom() - divider->y()) <= 1);
        const int after = divider->y();
        drag(-2000); // too near to the edge
        QCOMPARE(divider->y(), after);
        Unload<Frm_ProjectManager>();
        QVERIFY(Shared<Frm_Code>().parentWidget()->x() <= 1);
        QCOMPARE(Neighbours::ProjectManagerWidth(), 0);
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
        QCOMPARE(FileList().selectionModel()->selectedIndexes().constFirst().data().toString(), u"s3.htm"_s);
        Press(u"Open"_s);
        QVERIFY(Global::CurrentFile.endsWith(u"\\s3.htm"));
    }

    void endsInTheMiddleOfAScan_data() {
        QTest::addColumn<QString>("how");
        for (const char* how : {"close", "close and reopen", "close document", "scan again", "exit"}) {
            QTest::newRow(how) << QString::fromLatin1(how);
        }
    }
    void endsInTheMiddleOfAScan() {
        QFETCH(QString, how);
        Documents::OpenFile(WriteLargeSite(20));
        Global::MaxLinkDeep = 40;
        int runs = 0;
        int runsBehind = 0; // event runs of scans behind the end
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
            if (++runs == 3) {
                act();
            } else if (runs > 3) {
                ++runsBehind;
            }
        });
        QVERIFY(runs >= 3);
        // one that scans again goes on with the one link of its page
        QCOMPARE(runsBehind, how == u"scan again" ? 1 : 0);
        const bool gone = how == u"close" || how == u"close document";
        QCOMPARE(Loaded<Frm_ProjectManager>(), !gone);
        QCOMPARE(Global::ProjectWindowOpen, !gone);
        if (how == u"scan again") QCOMPARE(FileList().model()->rowCount(), 2);
        if (how == u"close and reopen") QCOMPARE(FileList().model()->rowCount(), 0);
        if (!gone) QVERIFY(Shared<Frm_ProjectManager>().ScanFinished);
        if (gone && Loaded<Frm_Code>()) QVERIFY(Shared<Frm_Code>().parentWidget()->x() <= 1);
    }
};

REGISTER_TEST(FrmProjectManager);
#include "frm_project_manager_test.moc"
