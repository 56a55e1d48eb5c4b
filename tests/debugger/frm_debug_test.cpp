// SPDX-License-Identifier: MIT
#include "debugger/frm_debug.h"

#include "debugger/error_list.h"
#include "documents/document_commands.h"
#include "documents/frm_code.h"
#include "documents/new_documents.h"
#include "platform/literals.h"
#include "shell/frm_main.h"
#include "state/commands.h"
#include "state/global.h"
#include "state/neighbours.h"
#include "support/driver.h"
#include "support/program_folder.h"
#include "support/scripted_dialogs.h"
#include "support/test_registry.h"

#include <QDirIterator>
#include <QHelpEvent>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QScrollBar>
#include <QSignalSpy>
#include <QToolTip>

class FrmDebug : public QObject {
    Q_OBJECT

    std::unique_ptr<ProgramFolder> m_folder;
    std::unique_ptr<ScriptedDialogs> m_dialogs;
    std::unique_ptr<Driver::RunningProgram> m_program;

    static constexpr int Patience = 30000; // milliseconds

    static Txt_Code& Box() { return *Shared<Frm_Code>().TextBox; }
    static ErrorList* List() { return Driver::Find<ErrorList>(u"Lvw_Errors"_s); }
    static QWidget* Frame() { return Shared<Frm_DeBug>().parentWidget(); }
    static QSize Client() { return Shared<Frm_Main>().Area()->viewport()->size(); }
    static QString Cell(int row, int column = 0) {
        return List()->model()->index(row, column).data().toString();
    }
    static QString Icon(int row) {
        return List()->model()->index(row, 0).data(Debugger::ReportModel::IconRole).toString();
    }
    static int Rows() { return List()->model()->rowCount(); }
    static QStringList Texts() {
        QStringList texts;
        for (int row = 0; row < Rows(); ++row) texts << Cell(row).trimmed();
        return texts;
    }
    static void ClickRow(int row) {
        List()->scrollTo(List()->model()->index(row, 0));
        QTest::mouseClick(List()->viewport(), Qt::LeftButton, {}, List()->RowRect(row).center());
        QCoreApplication::processEvents();
    }
    // A page of that text, with the debugger beside it.
    static void Open(const QString& text) {
        Documents::CreateNewTextFile();
        Box().SetText(text);
        Driver::Trigger(u"Menu_Debug_Start"_s);
    }
    void OpenSample(const QString& name) const {
        Documents::OpenFile(m_folder->Path(u"verein\\"_s + QString(name).replace(u'/', u'\\')));
        QCoreApplication::processEvents();
    }

private slots:
    void init() {
        m_folder = std::make_unique<ProgramFolder>();
        m_dialogs = std::make_unique<ScriptedDialogs>();
        m_program = std::make_unique<Driver::RunningProgram>();
        Global::AutoDebug = Global::AutoProjectManager = Global::AutoPreView = false;
        Global::AutoMaximize = true;
        Global::ShowDebugReport = true;
        Shared<Frm_Main>().resize(1000, 700);
        QCoreApplication::processEvents();
    }
    void cleanup() {
        m_program.reset();
        m_dialogs.reset();
        m_folder.reset();
    }

    void reportsThePageWithFaults() {
        CopyFolder(SourceFile(u"examples/verein"_s), m_folder->System(u"verein"_s));
        Global::AutoDebug = true;
        OpenSample(u"aktuell/baustelle.htm"_s);
        QVERIFY(Global::DebuggerOpen);
        QCOMPARE(Frame()->windowTitle(), u"Debugger 3.2 - 4 Fehler"_s);
        const QStringList expected{u"HTML-Code wurde geprüft."_s,
                                   u"unbekannter Tag: <glitzer>"_s,
                                   u"unbekannter Tag: </glitzer>"_s,
                                   u"Der Tag <b> wurde nicht geschlossen."_s,
                                   u"Im Dokument befindet sich eine ungerade Anzahl von Anführungszeichen."_s,
                                   u"CSS-Code wurde geprüft."_s,
                                   u"Es wurden keine Fehler gefunden."_s,
                                   u"Im gesamten Dokument wurde(n) 4 Fehler gefunden."_s,
                                   u"Falsche oder unbekannte Tags: 2"_s,
                                   u"Nicht geschlossenen Tags: 1"_s,
                                   u"Sonstige Fehler: 1"_s};
        QCOMPARE(Texts(), expected);
        const QStringList selected{{}, u"glitzer"_s, u"/glitzer"_s, u"b"_s};
        for (int row = 0; row < Rows(); ++row) {
            Box().SetSelStart(5);
            ClickRow(row);
            QCOMPARE(Box().SelText(), selected.value(row));
            if (selected.value(row).isEmpty()) QCOMPARE(Box().SelStart(), 5);
            QVERIFY(Shared<Frm_Code>().IsActiveChild());
        }
    }

    // Every row of every page selects what it speaks of, and the summary adds up.
    void followsAllPages() {
        CopyFolder(SourceFile(u"examples/verein"_s), m_folder->System(u"verein"_s));
        Global::AutoDebug = true;
        int pages = 0;
        int followed = 0;
        QDirIterator files(m_folder->System(u"verein"_s),
                           {u"*.htm"_s, u"*.html"_s, u"*.css"_s, u"*.js"_s, u"*.vbs"_s}, QDir::Files,
                           QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QString file = files.next();
            OpenSample(QDir(m_folder->System(u"verein"_s)).relativeFilePath(file));
            ++pages;
            int faults = 0;
            for (int row = 0; row < Rows(); ++row) {
                if (Icon(row) == u"Error3" || Icon(row) == u"Alert") ++faults;
                const qsizetype position = Cell(row, 2).toLongLong();
                if (position == 0) continue;
                ClickRow(row);
                ++followed;
                QCOMPARE(Box().SelStart(), position);
                const QChar before = Box().Text().at(position - 1);
                QVERIFY2(before == u'<' || before == u':', qPrintable(file + Cell(row)));
                QVERIFY2(Cell(row).contains(Box().SelText()) || Box().SelLength() == 1,
                         qPrintable(file + Cell(row)));
            }
            int summed = 0;
            int total = 0;
            static const QRegularExpression totalRow(u"wurde\\(n\\) (\\d+) Fehler"_s);
            static const QRegularExpression countRow(u"^ {5}[^:]+: (\\d+)$"_s);
            for (int row = 0; row < Rows(); ++row) {
                if (const auto match = totalRow.match(Cell(row)); match.hasMatch()) {
                    total = match.captured(1).toInt();
                }
                if (total > 0) summed += countRow.match(Cell(row)).captured(1).toInt();
            }
            QVERIFY2(summed == total && total == faults, qPrintable(file));
        }
        QVERIFY(pages > 15);
        QVERIFY(followed > 10);
    }

    void liesUnderTheCode() {
        Open(u"<b>"_s);
        const QWidget* code = Shared<Frm_Code>().parentWidget();
        const auto fits = [&](int height) {
            return Frame()->height() == height && Frame()->geometry().bottom() + 1 == Client().height() &&
                   Frame()->x() == 0 && qAbs(code->geometry().bottom() + 1 - Frame()->y()) <= 1 &&
                   Frame()->width() == Client().width() - Neighbours::AssistantWidth() / 15;
        };
        QVERIFY(Global::AssistantOpen);
        QTRY_VERIFY_WITH_TIMEOUT(fits(150), Patience);
        QCOMPARE(Neighbours::DebuggerHeight(), 2250);
        Driver::Trigger(u"Menu_Help_Assistant"_s);
        QVERIFY(fits(150));

        // by its upper edge, by its lower one, and pulled away by its title
        const QRect place = Frame()->geometry();
        Frame()->setGeometry(place.adjusted(0, -100, 0, 0));
        QTRY_VERIFY_WITH_TIMEOUT(fits(250), Patience);
        Frame()->setGeometry(Frame()->geometry().adjusted(0, 0, 0, -50));
        QTRY_VERIFY_WITH_TIMEOUT(fits(200), Patience);
        Frame()->move(40, 60);
        QTRY_VERIFY_WITH_TIMEOUT(fits(200), Patience);

        // a small main window leaves the code some room, and the strip its height for later
        Frame()->setGeometry(Frame()->geometry().adjusted(0, -200, 0, 0));
        QVERIFY(fits(400));
        Shared<Frm_Main>().resize(700, 460);
        QTRY_VERIFY_WITH_TIMEOUT(Frame()->height() < 400 && fits(Frame()->height()), Patience);
        QVERIFY(code->height() > 60);
        Shared<Frm_Main>().resize(1000, 700);
        QTRY_VERIFY_WITH_TIMEOUT(fits(400), Patience);

        Frame()->close();
        QVERIFY(!Global::DebuggerOpen);
        QCOMPARE(Neighbours::DebuggerHeight(), 0);
        QVERIFY(qAbs(code->height() - Client().height()) <= 1);
        QVERIFY(!Loaded<Frm_DeBug>());
        Driver::Trigger(u"ToolBar_Debug"_s);
        QVERIFY(fits(150));
        Global::DocChanged = false;
        Driver::Trigger(u"Menu_File_Close"_s);
        QVERIFY(!Global::DebuggerOpen);
    }

    void runsOncePerChange() {
        Open(u""_s);
        int runs = 0;
        Neighbours::CheckSyntax.AnsweredBy([&runs] {
            ++runs;
            Shared<Frm_DeBug>().CheckSyntax();
        });
        Neighbours::FocusCode();
        Driver::TypeCode(u"<qq>"_s);
        QCOMPARE(runs, 0);
        Driver::PressCode(Qt::Key_Left);
        Driver::PressCode(Qt::Key_Left);
        QCOMPARE(runs, 1);
        QCOMPARE(Texts().value(1), u"unbekannter Tag: <qq>"_s);
        Driver::TypeCode(u"\n"_s); // Enter looks before it acts, so its own change is new
        QCOMPARE(runs, 1);
        QTest::mouseClick(Box().viewport(), Qt::LeftButton);
        QCOMPARE(runs, 2);
        Driver::Trigger(u"Menu_Debug_Start"_s);
        QCOMPARE(runs, 3);
        Frame()->close();
        Driver::TypeCode(u"x"_s);
        Driver::PressCode(Qt::Key_Up);
        QCOMPARE(runs, 3);
    }

    void aClickMeetsTheTextAsItIs() {
        Open(u"<p><qq></qq></p>"_s);
        Neighbours::FocusCode();
        QCoreApplication::processEvents();
        Box().SetSelStart(0);
        Driver::TypeCode(u"eins zwei "_s);
        ClickRow(1);
        QCOMPARE(Box().SelText(), u"qq"_s);
        QCOMPARE(Box().SelStart(), 14);
        // a report that has got shorter under the mouse
        Box().SetText(u"x"_s);
        ClickRow(7);
        QCOMPARE(Texts().last(), u"Im gesamten Dokument wurden keine Fehler gefunden."_s);
        QVERIFY(Shared<Frm_Code>().IsActiveChild());
        QTest::mouseDClick(List()->viewport(), Qt::LeftButton, {}, List()->RowRect(0).center());
        QTest::mouseRelease(List()->viewport(), Qt::LeftButton, {}, List()->RowRect(0).center());
        QVERIFY(Shared<Frm_Code>().IsActiveChild());
        // positions of a report that no click has renewed
        Box().SetText(u"<p>123456<qq>"_s);
        Neighbours::CheckSyntax();
        Box().SetText(u"<p>1"_s);
        emit List()->RowChosen(1);
        QCOMPARE(Box().SelStart(), 4);
        QCOMPARE(Box().SelLength(), 0);
    }

    void obeysMenuAndSettings() {
        Commands::SetChecked(u"Menu_Debug_JavaScript"_s, true);
        Open(u"<qq style=\"a:1\">"_s);
        QVERIFY(!Commands::IsChecked(u"Menu_Debug_JavaScript"_s));
        QCOMPARE(Frame()->windowTitle(), u"Debugger 3.2 - 3 Fehler"_s);
        Driver::Trigger(u"Menu_Debug_HTML"_s);
        QCOMPARE(Frame()->windowTitle(), u"Debugger 3.2 - 3 Fehler"_s); // the next run reads it
        Driver::Trigger(u"Menu_Debug_Start"_s);
        QCOMPARE(Texts(),
                 QStringList({u"CSS-Code wurde geprüft."_s,
                              u"Es wurde keine Einheit für den Wert '1' eingegeben."_s,
                              u"Im gesamten Dokument wurde(n) 1 Fehler gefunden."_s, u"CSS Warnungen: 1"_s}));
        QCOMPARE(Icon(1), u"Alert"_s);
        Driver::Trigger(u"Menu_Debug_CSS"_s);
        Driver::Trigger(u"Menu_Debug_Start"_s);
        QCOMPARE(Texts(), QStringList{u"Es ist keine Debugfunktion eingeschaltet."_s});
        QCOMPARE(Frame()->windowTitle(), u"Debugger 3.2"_s);
        Driver::Trigger(u"Menu_Debug_HTML"_s);
        Global::ShowDebugReport = false;
        Global::DebugAccuracy = 70;
        Driver::Trigger(u"Menu_Debug_Start"_s);
        QCOMPARE(Texts(),
                 QStringList({u"Die Debuggenauigkeit steht nicht auf 100%."_s, u"unbekannter Tag: <qq>"_s}));
        Box().SetSelStart(2);
        ClickRow(0);
        QCOMPARE(Box().SelStart(), 2);
        QCOMPARE(Box().SelLength(), 0);
    }

    void isWalkedByKeys() {
        Open(u"<q1><q2><q3>"_s);
        ErrorList* list = List();
        QVERIFY(!Shared<Frm_Code>().IsActiveChild());
        list->setFocus();
        QTest::keyClick(list, Qt::Key_Home);
        QTest::keyClick(list, Qt::Key_Down);
        QTest::keyClick(list, Qt::Key_Down);
        QTest::keyClick(list, Qt::Key_Right);
        QTest::keyClick(list, Qt::Key_Right);
        QCOMPARE(list->currentIndex(), list->model()->index(2, 0));
        QTest::keyClick(list, Qt::Key_Return);
        QCOMPARE(Box().SelText(), u"q2"_s);
        QVERIFY(Shared<Frm_Code>().IsActiveChild());

        // back in the list after an edit: the row keeps its place
        Box().SetText(u"<q1>12<q2><q3>"_s);
        Shared<Frm_DeBug>().BringToFront();
        QCoreApplication::processEvents();
        QCOMPARE(list->currentIndex().row(), 2);
        QTest::keyClick(list, Qt::Key_Down);
        QTest::keyClick(list, Qt::Key_Enter);
        QCOMPARE(Box().SelText(), u"q3"_s);
        QCOMPARE(Box().SelStart(), 11);

        Shared<Frm_DeBug>().BringToFront();
        QTest::keyClick(list, Qt::Key_End);
        QCOMPARE(list->currentIndex().row(), Rows() - 1);
        QTest::keyClick(list, Qt::Key_Escape);
        QVERIFY(Shared<Frm_Code>().IsActiveChild());
        QCOMPARE(Box().SelText(), u"q3"_s);
    }

    void longMessagesStayInTheirPlace() {
        const QString name = QString(3000, u'x');
        Open(u"<\r\nkurz><"_s + name + u">"_s);
        ErrorList* list = List();
        QCOMPARE(Cell(2).size(), name.size() + 24);
        QCOMPARE(list->columnWidth(0), Shared<Frm_DeBug>().Width() / 30);
        QCOMPARE(list->columnWidth(1), Shared<Frm_DeBug>().Width() / 15);
        for (const int row : {2, 0}) {
            ClickRow(row);
            list->horizontalScrollBar()->setValue(list->horizontalScrollBar()->maximum());
            QCOMPARE(list->columnViewportPosition(0), 0);
            QVERIFY(list->columnViewportPosition(2) > list->viewport()->width());
        }
        const auto hover = [&](int row) {
            const QPoint place = list->RowRect(row).center();
            QHelpEvent event(QEvent::ToolTip, place, list->viewport()->mapToGlobal(place));
            QCoreApplication::sendEvent(list->viewport(), &event);
        };
        hover(2);
        QVERIFY(QToolTip::text().startsWith(u"<p>unbekannter Tag: &lt;xxx"));
        hover(1); // fits, so the tip goes
        QTRY_VERIFY_WITH_TIMEOUT(!QToolTip::isVisible(), Patience);
        Box().SetText(u"<"_s + QString(150, u'y') + u">"_s);
        Neighbours::CheckSyntax();
        hover(1);
        QCOMPARE(QToolTip::text().count(u'y'), 150);
    }

    void holdsManyRows() {
        Open(u"<qq>\r\n"_s.repeated(100'000));
        QVERIFY(Rows() > 200'000);
        QTest::keyClick(List(), Qt::Key_End);
        for (int i = 0; i < 3; ++i) QTest::keyClick(List(), Qt::Key_Up);
        QCOMPARE(Cell(List()->currentIndex().row()).trimmed(), u"Es wurden keine Fehler gefunden."_s);
        QTest::keyClick(List(), Qt::Key_Up);
        QTest::keyClick(List(), Qt::Key_Up);
        QTest::keyClick(List(), Qt::Key_Return);
        QCOMPARE(Box().SelStart(), 599'995);
        QCOMPARE(Box().SelText(), u"qq"_s);
        // another document is shown from its start
        Box().SetText(u"<qq>\r\n"_s.repeated(50));
        const int scroll = List()->verticalScrollBar()->maximum();
        QVERIFY(scroll > 0);
        const QString other = m_folder->Write(u"andere.htm"_s, "<p><z></p>\r\n");
        Global::DocChanged = false;
        Documents::OpenFile(other);
        QCOMPARE(List()->verticalScrollBar()->value(), 0);
        QVERIFY(!List()->currentIndex().isValid());
        QCOMPARE(Texts().value(1), u"unbekannter Tag: <z>"_s);
    }

    void showsThePictureUnderTheRows_data() {
        QTest::addColumn<QColor>("picture");
        QTest::addColumn<QColor>("text");
        QTest::newRow("dark") << QColor(30, 40, 50) << QColor(Qt::white);
        QTest::newRow("light") << QColor(250, 240, 200) << QColor(Qt::black);
    }
    void showsThePictureUnderTheRows() {
        QFETCH(QColor, picture);
        QImage image(60, 40, QImage::Format_RGB32);
        image.fill(picture);
        QVERIFY(image.save(m_folder->System(u"skin.bmp"_s)));
        Global::SkinFileExists = true;
        Open(u"<p>"_s);
        const QImage shown = List()->viewport()->grab().toImage();
        QCOMPARE(shown.pixelColor(shown.width() - 20, shown.height() - 3), picture);
        QTEST(List()->palette().color(QPalette::Text), "text");
        Frame()->close();
        QFile::remove(m_folder->System(u"skin.bmp"_s));
        Driver::Trigger(u"Menu_Debug_Start"_s); // gone meanwhile: the plain background does
        QVERIFY(Rows() > 0);
    }

    void coloursTags() {
        const QString text = u"<a>\r\n\r\n x<b\r\nc>\r\n</b>"_s;
        Open(text);
        Shared<Frm_DeBug>().ActualizeSyntaxColors();
        QStringList coloured;
        for (const QTextEdit::ExtraSelection& selection : Box().extraSelections()) {
            coloured << selection.cursor.selectedText();
            QCOMPARE(selection.format.foreground().color(), QColor(50, 50, 100));
        }
        QCOMPARE(coloured, QStringList({u"<a"_s, u"<b\u2029c"_s, u"</b"_s}));
        QCOMPARE(Box().Text(), text);
    }
};

REGISTER_TEST(FrmDebug);
#include "frm_debug_test.moc"
