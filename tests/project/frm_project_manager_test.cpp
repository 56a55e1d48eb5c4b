// SPDX-License-Identifier: MIT
// The project window beside the code, in the real main window on the sample site.
#include "project/project_window.h"

class FrmProjectManager : public ProjectWindowTest {
    Q_OBJECT

private slots:
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
        m_dialogs->ExpectFailedSave();
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
};

REGISTER_TEST(FrmProjectManager);
#include "frm_project_manager_test.moc"
