// SPDX-License-Identifier: MIT
#include "assistant/frm_assistant.h"

#include "documents/document_commands.h"
#include "documents/frm_code.h"
#include "documents/new_documents.h"
#include "platform/events.h"
#include "platform/literals.h"
#include "shell/frm_main.h"
#include "state/commands.h"
#include "state/global.h"
#include "state/neighbours.h"
#include "support/driver.h"
#include "support/program_folder.h"
#include "support/scripted_dialogs.h"
#include "support/test_registry.h"

#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMovie>
#include <QPlainTextEdit>
#include <QScrollBar>

class FrmAssistant : public QObject {
    Q_OBJECT

    std::unique_ptr<ProgramFolder> m_folder;
    std::unique_ptr<ScriptedDialogs> m_dialogs;
    std::unique_ptr<Driver::RunningProgram> m_program;

    static constexpr int Patience = 30000; // milliseconds

    void Start() { m_program = std::make_unique<Driver::RunningProgram>(); }
    static QString Said() { return Driver::Find<QPlainTextEdit>(u"Lbl_HelpText"_s)->toPlainText(); }
    static QMovie* Player() { return Driver::Find<QLabel>(u"Gif_AssistantAnimation"_s)->movie(); }
    static QString Figure() { return QFileInfo(Player()->fileName()).fileName(); }
    static QWidget* Frame() { return Shared<Frm_Assistant>().parentWidget(); }
    static QSize Client() { return Shared<Frm_Main>().Area()->viewport()->size(); }
    static void RightClick(QWidget* control) { QTest::mouseClick(control, Qt::RightButton); }

private slots:
    void init() {
        m_folder = std::make_unique<ProgramFolder>();
        m_dialogs = std::make_unique<ScriptedDialogs>();
    }
    void cleanup() {
        m_program.reset();
        m_dialogs.reset();
        m_folder.reset();
    }

    void standsAtTheRightEdgeAndGivesRoom() {
        Global::AutoMaximize = true;
        Start();
        QVERIFY(Global::AssistantOpen); // the settings say so from the start
        Documents::CreateNewTextFile();
        QCoreApplication::processEvents();
        Shared<Frm_Code>().FitMode = 2;
        Shared<Frm_Main>().resize(1000, 640);
        const auto atTheEdge = [](int width) {
            const QRect place = Frame()->geometry();
            return place.topRight() == QPoint(Client().width() - 1, 0) && place.width() == width &&
                   qAbs(place.height() - Client().height()) <= 1;
        };
        QTRY_VERIFY_WITH_TIMEOUT(atTheEdge(155), Patience);
        QCOMPARE(Neighbours::AssistantWidth(), 2325);
        const QWidget* code = Shared<Frm_Code>().parentWidget();
        QVERIFY(code->geometry().right() <= Frame()->geometry().left());

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
        QCOMPARE(Neighbours::AssistantWidth(), 0);
        QCOMPARE(code->geometry().right() + 1, Client().width());
        Driver::Trigger(u"Menu_Help_Assistant"_s);
        QVERIFY(Global::AssistantOpen && Frame()->isVisible());
        QVERIFY(Shared<Frm_Code>().IsActiveChild());
        Frame()->close();
        QVERIFY(!Global::AssistantOpen);
        QVERIFY(!Commands::IsChecked(u"Menu_Help_Assistant"_s));
    }

    void speaksAndMoves() {
        Start();
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
        Neighbours::RunAnimation(1, {});
        QCOMPARE(Player()->state(), QMovie::Running);
    }

    void gesturesWhenIdle() {
        double now = 40000;
        const auto restore = qScopeGuard(
            [before = Events::Replace({{}, [&now] { return now; }, {}})] { Events::Replace(before); });
        Start();
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
        Start();
        Documents::CreateNewTextFile();
        auto* search = Driver::Find<QLineEdit>(u"Txt_SearchText"_s);
        Driver::Click(u"Cmd_UserHelp_2"_s);
        QVERIFY(Said().startsWith(u"Bitte markieren Sie einen Tag ohne die Klammern"));
        QTest::keyClicks(search, u"table"_s);
        QTest::keyClick(search, Qt::Key_Return);
        const QString table = Said();
        QVERIFY(table.contains(u"Tabelle"));
        // a marked tag goes before the typed one
        Shared<Frm_Code>().TextBox->SetText(u"<IMG>"_s);
        Shared<Frm_Code>().TextBox->SetSelStart(1);
        Shared<Frm_Code>().TextBox->SetSelLength(3);
        Driver::Click(u"Cmd_UserHelp_2"_s);
        QVERIFY(Said() != table && !Said().isEmpty());
        QCOMPARE(Figure(), u"anim3.anm"_s);
        Shared<Frm_Code>().TextBox->SetSelStart(0);
        Shared<Frm_Code>().TextBox->SetSelLength(5);
        Driver::Click(u"Cmd_UserHelp_2"_s);
        QVERIFY(Said().endsWith(u"Falscher Tag: <<IMG>>"));
        QCOMPARE(Figure(), u"anim4.anm"_s);
    }

    void showsTips() {
        Start();
        Global::CurrentTip = 0;
        auto* tip = Driver::FindControl(u"Cmd_UserHelp_0"_s);
        QTest::mouseClick(tip, Qt::LeftButton);
        QCOMPARE(Said(), Global::TipList[1]);
        RightClick(tip);
        QCOMPARE(Said(), Global::TipList[Global::TipList[0].toUInt()]);
        QTest::mouseClick(tip, Qt::LeftButton);
        QTest::keyClick(tip, Qt::Key_Space);
        QCOMPARE(Said(), Global::TipList[2]);
        QCOMPARE(Global::CurrentTip, 2);
    }

    void aLongTextScrollsInASmallWindow() {
        Start();
        Shared<Frm_Main>().resize(700, 460);
        const auto* text = Driver::Find<QPlainTextEdit>(u"Lbl_HelpText"_s);
        const QWidget* tip = Driver::FindControl(u"Cmd_UserHelp_0"_s);
        const QWidget* help = Driver::FindControl(u"Cmd_UserHelp_2"_s);
        Neighbours::RunAnimation(2, u"Ein sehr langer Text. "_s.repeated(60) + QString(500, u'x'));
        QTRY_VERIFY_WITH_TIMEOUT(text->verticalScrollBar()->maximum() > 0, Patience);
        QCOMPARE(text->horizontalScrollBar()->maximum(), 0);
        QVERIFY(text->height() > 40);
        QCOMPARE(text->geometry().bottom() + 1, tip->geometry().top());
        QCOMPARE(tip->height(), 30);
        const int width = Shared<Frm_Assistant>().width();
        QVERIFY(qAbs(tip->width() - width * 22 / 100) <= 1);
        QVERIFY(qAbs(help->width() - width * 37 / 100) <= 1);
        QCOMPARE(help->geometry().right() + 1, width);
    }

    void aMissingHelpFileIsToldOnce() {
        QFile::remove(m_folder->System(u"assistant.hlp"_s));
        m_dialogs->ExpectMessage(
            u"Fehler"_s,
            u"Die Datei 'assistant.hlp' kann nicht gefunden werden oder enthält einen Fehler."_s);
        Start();
        QVERIFY(m_dialogs->Finished());
        QTest::keyClicks(Driver::FindControl(u"Txt_SearchText"_s), u"table"_s);
        Driver::Click(u"Cmd_UserHelp_2"_s);
        QVERIFY(Said().isEmpty());
        QFile::remove(m_folder->System(u"anim4.anm"_s));
        Neighbours::RunAnimation(2, u"ohne Figur"_s); // the present figure does instead
        QCOMPARE(Said(), u"ohne Figur"_s);
        QVERIFY(Player()->isValid());
    }
};

REGISTER_TEST(FrmAssistant);
#include "frm_assistant_test.moc"
