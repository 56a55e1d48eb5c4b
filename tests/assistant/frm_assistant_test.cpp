// SPDX-License-Identifier: MIT
#include "assistant/frm_assistant.h"

#include "assistant/frm_help.h"
#include "platform/events.h"
#include "support/program_test.h"

#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMovie>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QWebEnginePage>
#include <QWebEngineView>

class FrmAssistant : public ProgramTest {
    Q_OBJECT

    static QString Said() { return Driver::Find<QPlainTextEdit>(u"Lbl_HelpText"_s)->toPlainText(); }
    static QMovie* Player() { return Driver::Find<QLabel>(u"Gif_AssistantAnimation"_s)->movie(); }
    static QString Figure() { return QFileInfo(Player()->fileName()).fileName(); }
    static QWidget* Frame() { return Shared<Frm_Assistant>().parentWidget(); }

private slots:
    void standsAtTheRightEdgeAndGivesRoom() {
        m_program.reset();
        Global::AutoMaximize = true;
        StartProgram();
        QVERIFY(Global::AssistantOpen); // the settings say so from the start
        Documents::CreateNewTextFile();
        QCoreApplication::processEvents();
        Shared<Frm_Code>().FitMode = 2;
        Shared<Frm_Main>().resize(1000, 640);
        const auto atTheEdge = [](int width) {
            const QRect place = Frame()->geometry();
            const QSize client = Shared<Frm_Main>().Area()->viewport()->size();
            return place.topRight() == QPoint(client.width() - 1, 0) && place.width() == width &&
                   qAbs(place.height() - client.height()) <= 1;
        };
        QTRY_VERIFY_WITH_TIMEOUT(atTheEdge(155), Patience);
        const QWidget* code = Shared<Frm_Code>().parentWidget();

        // wider by its left edge, within its bounds
        for (const int wanted : {300, 900, 20}) {
            const QRect place = Frame()->geometry();
            Frame()->setGeometry(place.right() + 1 - wanted, 0, wanted, place.height());
            QTRY_VERIFY_WITH_TIMEOUT(atTheEdge(std::clamp(wanted, 155, 400)), Patience);
            QTRY_COMPARE_WITH_TIMEOUT(code->geometry().right() + 1, Frame()->geometry().left(), Patience);
        }
        Frame()->move(50, 60);
        QTRY_VERIFY_WITH_TIMEOUT(atTheEdge(155), Patience);

        Driver::Trigger(u"Menu_Help_Assistant"_s);
        QVERIFY(!Global::AssistantOpen);
        QCOMPARE(code->geometry().right() + 1, Shared<Frm_Main>().Area()->viewport()->width());
        Driver::Trigger(u"Menu_Help_Assistant"_s);
        QVERIFY(Global::AssistantOpen && Shared<Frm_Code>().IsActiveChild());
        Frame()->close();
        QVERIFY(!Global::AssistantOpen && !Commands::IsChecked(u"Menu_Help_Assistant"_s));
    }

    void speaksAndMoves() {
        Neighbours::RunAnimation(1, u"Erste Zeile\r\n\r\n<b>kein Markup</b> &amp;"_s);
        QCOMPARE(Said(), u"Erste Zeile\n\n<b>kein Markup</b> &amp;"_s);
        QCOMPARE(Figure(), u"anim3.anm"_s);
        QCOMPARE(Player()->state(), QMovie::Running);
        Neighbours::RunAnimation(2, u"Achtung"_s);
        QCOMPARE(Figure(), u"anim4.anm"_s);
        Neighbours::RunAnimation(0, {});
        QVERIFY(Said().isEmpty());
        QCOMPARE(Figure(), u"anim4.anm"_s);
        QTRY_COMPARE_WITH_TIMEOUT(Player()->state(), QMovie::NotRunning, Patience);
    }

    void gesturesWhenIdle() {
        double now = 40000;
        const auto restore = qScopeGuard(
            [before = Events::Replace({{}, [&now] { return now; }, {}})] { Events::Replace(before); });
        m_program.reset();
        StartProgram();
        QCOMPARE(Player()->state(), QMovie::NotRunning);
        now += 4;
        Driver::Click(u"Cmd_UserHelp_1"_s); // needs no waiting
        QTRY_COMPARE_WITH_TIMEOUT(Player()->state(), QMovie::Running, Patience);
        now += 1;
        // two tools that close, one behind the other, cut no gesture short and start no new one
        const QString gesture = Figure();
        Neighbours::RunAnimation(0, {});
        Neighbours::RunAnimation(0, {});
        QCOMPARE(Figure(), gesture);
        now += 3.5;
        QTRY_COMPARE_WITH_TIMEOUT(Player()->state(), QMovie::NotRunning, Patience);
    }

    void explainsTags() {
        Documents::CreateNewTextFile();
        auto* search = Driver::Find<QLineEdit>(u"Txt_SearchText"_s);
        Driver::Click(u"Cmd_UserHelp_2"_s);
        QVERIFY(Said().startsWith(u"Bitte markieren Sie einen Tag ohne die Klammern"));
        QTest::keyClicks(search, u"table"_s);
        QTest::keyClick(search, Qt::Key_Return);
        const QString table = Said();
        QVERIFY(table.contains(u"Tabelle"));
        // a marked tag goes before the typed one
        Box().SetText(u"<IMG>"_s);
        Select(1, 3);
        Driver::Click(u"Cmd_UserHelp_2"_s);
        QVERIFY(Said() != table && !Said().isEmpty());
        QCOMPARE(Figure(), u"anim3.anm"_s);
    }

    void showsTips() {
        Global::CurrentTip = 0;
        auto* tip = Driver::FindControl(u"Cmd_UserHelp_0"_s);
        QTest::mouseClick(tip, Qt::LeftButton);
        QCOMPARE(Said(), Global::TipList[1]);
        QTest::mouseClick(tip, Qt::RightButton);
        QCOMPARE(Said(), Global::TipList[Global::TipList[0].toUInt()]);
        QTest::keyClick(tip, Qt::Key_Space);
        QCOMPARE(Said(), Global::TipList[1]);
    }

    void aLongTextScrollsInASmallWindow() {
        Shared<Frm_Main>().resize(700, 460);
        const auto* text = Driver::Find<QPlainTextEdit>(u"Lbl_HelpText"_s);
        Neighbours::RunAnimation(2, u"Ein sehr langer Text. "_s.repeated(60) + QString(500, u'x'));
        QTRY_VERIFY_WITH_TIMEOUT(text->verticalScrollBar()->maximum() > 0, Patience);
        QCOMPARE(text->horizontalScrollBar()->maximum(), 0);
        QVERIFY(text->height() > 40);
    }

    void aMissingHelpFileIsToldOnce() {
        m_program.reset();
        QFile::remove(m_folder->System(u"assistant.hlp"_s));
        m_dialogs->ExpectMessage(
            u"Fehler"_s,
            u"Die Datei 'assistant.hlp' kann nicht gefunden werden oder enthält einen Fehler."_s);
        StartProgram();
        QVERIFY(m_dialogs->Finished());
        QTest::keyClicks(Driver::FindControl(u"Txt_SearchText"_s), u"table"_s);
        Driver::Click(u"Cmd_UserHelp_2"_s);
        QVERIFY(Said().isEmpty());
        QFile::remove(m_folder->System(u"anim4.anm"_s));
        Neighbours::RunAnimation(2, u"ohne Figur"_s); // the present figure does instead
        QCOMPARE(Said(), u"ohne Figur"_s);
        QVERIFY(Player()->isValid());
    }

    void helpShowsItsPagesAndSendsTheRestOutside() {
        const QByteArray style = "<style>body { margin: 0 } a { display: block; height: 100px }</style>";
        m_folder->Write(u"support/index.htm"_s, "<title>Hilfe</title>" + style +
                                                    "<a href=zwei.htm>2</a>"
                                                    "<a href='http://www.example.org/a?b=c%20d'>web</a>");
        m_folder->Write(u"support/zwei.htm"_s, "<title>Zwei</title>" + style +
                                                   "<a target=_blank href=index.htm>1</a>"
                                                   "<a href='mailto:a@example.org'>mail</a>"
                                                   "<a target=_blank href='http://www.example.org/'>web</a>");
        Driver::Trigger(u"Menu_Help_Index"_s);
        QVERIFY(Shared<Frm_Help>().isVisible());
        QCOMPARE(Shared<Frm_Help>().windowTitle(), u"Sorvane HTML Editor 3.0 Hilfe"_s);
        auto* view = Driver::Find<QWebEngineView>(u"Browser"_s);
        const auto shows = [view](const QString& title) {
            return QTest::qWaitFor([&] { return view->title() == title; }, Patience) &&
                   Driver::FeelsTheMouse(view);
        };
        const auto follow = [view](int band) { // into the band of the page that the link fills
            QTest::mouseClick(view->focusProxy(), Qt::LeftButton, {}, QPoint(60, 50 + 100 * band));
        };
        const auto sends = [&](int band, const QString& address) {
            m_dialogs->ExpectAddress(address);
            follow(band);
            return QTest::qWaitFor([&] { return m_dialogs->Finished(); }, Patience);
        };
        QVERIFY(shows(u"Hilfe"_s));
        QVERIFY(sends(1, u"http://www.example.org/a?b=c%20d"_s));
        QCOMPARE(view->title(), u"Hilfe"_s);
        follow(0);
        QVERIFY(shows(u"Zwei"_s));
        QVERIFY(sends(1, u"mailto:a@example.org"_s));
        QVERIFY(sends(2, u"http://www.example.org/"_s));
        follow(0); // a link into a window of its own
        QVERIFY(shows(u"Hilfe"_s));
    }
};

REGISTER_TEST(FrmAssistant);
#include "frm_assistant_test.moc"
