// SPDX-License-Identifier: MIT
#include "debugger/frm_debug.h"

#include "debugger/error_list.h"
#include "support/program_test.h"

#include <QHelpEvent>
#include <QMdiArea>
#include <QPixmapCache>
#include <QScrollBar>
#include <QToolTip>

class FrmDebug : public ProgramTest {
    Q_OBJECT

    static ErrorList* List() { return Driver::Find<ErrorList>(u"Lvw_Errors"_s); }
    static QWidget* Frame() { return Shared<Frm_DeBug>().parentWidget(); }
    static QSize Client() { return Shared<Frm_Main>().Area()->viewport()->size(); }
    static QString Cell(int row, int column = 0) {
        return List()->model()->index(row, column).data().toString();
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

private slots:
    void init() override {
        ProgramTest::init();
        Global::AutoMaximize = true;
        Global::ShowDebugReport = true;
        Shared<Frm_Main>().resize(1000, 700);
        QCoreApplication::processEvents();
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
        Driver::Trigger(u"Menu_Help_Assistant"_s);
        QVERIFY(fits(150));

        // pulled away by its title, and by its upper edge
        Frame()->move(40, 60);
        QTRY_VERIFY_WITH_TIMEOUT(fits(150), Patience);
        // a small main window leaves the code some room, and the strip its height for later
        Frame()->setGeometry(Frame()->geometry().adjusted(0, -250, 0, 0));
        QVERIFY(fits(400));
        Shared<Frm_Main>().resize(700, 460);
        QTRY_VERIFY_WITH_TIMEOUT(Frame()->height() < 400 && fits(Frame()->height()), Patience);
        QVERIFY(code->height() > 60);
        Shared<Frm_Main>().resize(1000, 700);
        QTRY_VERIFY_WITH_TIMEOUT(fits(400), Patience);

        Frame()->close();
        QVERIFY(!Global::DebuggerOpen && !Loaded<Frm_DeBug>());
        QVERIFY(qAbs(code->height() - Client().height()) <= 1);
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
        for (int times = 0; times < 2; ++times) Driver::PressCode(Qt::Key_Left);
        QCOMPARE(runs, 1);
        QCOMPARE(Texts().value(1), u"unbekannter Tag: <qq>"_s);
        Driver::TypeCode(u"\n"_s); // Enter looks before it acts, so its own change is new
        QCOMPARE(runs, 1);
        for (int times = 0; times < 2; ++times) QTest::mouseClick(Box().viewport(), Qt::LeftButton);
        QCOMPARE(runs, 2);
        for (const Qt::Key key : {Qt::Key_Up, Qt::Key_Right, Qt::Key_Down}) {
            const int before = runs;
            Driver::TypeCode(u"x"_s);
            Driver::PressCode(key);
            QVERIFY2(runs == before + 1, qPrintable(QKeySequence(key).toString()));
        }
        Frame()->close();
        Driver::TypeCode(u"x"_s);
        Driver::PressCode(Qt::Key_Up);
        QCOMPARE(runs, 5);
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
        Driver::Trigger(u"Menu_Debug_HTML"_s);
        QCOMPARE(Frame()->windowTitle(), u"Debugger 3.2 - 3 Fehler"_s); // the next run reads it
        Driver::Trigger(u"Menu_Debug_Start"_s);
        QCOMPARE(Texts().value(0), u"CSS-Code wurde geprüft."_s);
        Driver::Trigger(u"Menu_Debug_CSS"_s);
        Driver::Trigger(u"Menu_Debug_HTML"_s);
        Global::ShowDebugReport = false;
        Global::DebugAccuracy = 70;
        Driver::Trigger(u"Menu_Debug_Start"_s);
        QCOMPARE(Texts(),
                 QStringList({u"Die Debuggenauigkeit steht nicht auf 100%."_s, u"unbekannter Tag: <qq>"_s}));
        Select(2);
        ClickRow(0);
        QCOMPARE(Box().SelStart(), 2);
        QCOMPARE(Box().SelLength(), 0);
    }

    void isWalkedByKeys() {
        Open(u"<q1><q2><q3>"_s);
        ErrorList* list = List();
        QVERIFY(!Shared<Frm_Code>().IsActiveChild());
        list->setFocus();
        for (const Qt::Key key : {Qt::Key_Home, Qt::Key_Down, Qt::Key_Down, Qt::Key_Right})
            QTest::keyClick(list, key);
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
        QTest::keyClick(list, Qt::Key_Escape);
        QVERIFY(Shared<Frm_Code>().IsActiveChild());
    }

    void longMessagesStayInTheirPlace() {
        Open(u"<\r\nkurz><"_s + QString(3000, u'x') + u">"_s);
        ErrorList* list = List();
        ClickRow(2);
        list->horizontalScrollBar()->setValue(list->horizontalScrollBar()->maximum());
        QCOMPARE(list->columnViewportPosition(0), 0);
        const auto hover = [&](int row) {
            const QPoint place = list->RowRect(row).center();
            QHelpEvent event(QEvent::ToolTip, place, list->viewport()->mapToGlobal(place));
            QCoreApplication::sendEvent(list->viewport(), &event);
        };
        hover(2);
        QVERIFY(QToolTip::text().startsWith(u"<p>unbekannter Tag: &lt;xxx"));
        hover(1); // fits, so the tip goes
        QTRY_VERIFY_WITH_TIMEOUT(!QToolTip::isVisible(), Patience);
    }

    void holdsManyRows() {
        Open(u"<qq>\r\n"_s.repeated(100'000));
        QVERIFY(Rows() > 200'000);
        QTest::keyClick(List(), Qt::Key_End);
        for (int i = 0; i < 5; ++i) QTest::keyClick(List(), Qt::Key_Up);
        QTest::keyClick(List(), Qt::Key_Return);
        QCOMPARE(Box().SelStart(), 599'995);
        QCOMPARE(Box().SelText(), u"qq"_s);
        // another document is shown from its start
        Box().SetText(u"<qq>\r\n"_s.repeated(50));
        QVERIFY(List()->verticalScrollBar()->maximum() > 0);
        Global::DocChanged = false;
        Documents::OpenFile(m_folder->Write(u"andere.htm"_s, "<p><z></p>\r\n"));
        QCOMPARE(List()->verticalScrollBar()->value(), 0);
        QVERIFY(!List()->currentIndex().isValid());
        QCOMPARE(Texts().value(1), u"unbekannter Tag: <z>"_s);
    }

    void showsThePictureUnderTheRows() {
        Global::SkinFileExists = true;
        Documents::CreateNewTextFile();
        for (const auto& [picture, text] :
             {std::pair(QColor(30, 40, 50), Qt::white), {QColor(250, 240, 200), Qt::black}}) {
            QImage image(60, 40, QImage::Format_RGB32);
            image.fill(picture);
            QVERIFY(image.save(m_folder->System(u"skin.bmp"_s)));
            QPixmapCache::clear(); // which tells files apart by their second
            Driver::Trigger(u"Menu_Debug_Start"_s);
            const QImage shown = List()->viewport()->grab().toImage();
            QCOMPARE(shown.pixelColor(shown.width() - 20, shown.height() - 3), picture);
            QCOMPARE(List()->palette().color(QPalette::Text), QColor(text));
            Frame()->close();
        }
        QFile::remove(m_folder->System(u"skin.bmp"_s));
        Driver::Trigger(u"Menu_Debug_Start"_s); // gone meanwhile: the plain background does
        QVERIFY(Rows() > 0);
    }

    void coloursTags() {
        const QString text = u"a > b <a>\r\n\r\n x<b\r\nc =d>\r\n</b><a <i> c><a><b <c"_s;
        Open(text);
        Shared<Frm_DeBug>().ActualizeSyntaxColors();
        QStringList coloured;
        for (const QTextEdit::ExtraSelection& selection : Box().extraSelections())
            coloured << selection.cursor.selectedText();
        QCOMPARE(coloured, (QStringList{u"<a"_s, u"<b\u2029c =d"_s, u"</b"_s, u"<a <i"_s, u"<a"_s}));
        QCOMPARE(Box().Text(), text);
    }
};

REGISTER_TEST(FrmDebug);
#include "frm_debug_test.moc"
