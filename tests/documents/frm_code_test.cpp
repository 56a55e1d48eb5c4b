// SPDX-License-Identifier: MIT
#include "documents/frm_code.h"

#include "documents/undo.h"
#include "platform/mdi_child.h"
#include "support/test.h"

#include <QHash>
#include <QMdiArea>

class FrmCode : public QObject {
    Q_OBJECT

    std::unique_ptr<ProgramFolder> m_folder;
    std::unique_ptr<QMdiArea> m_area;
    QHash<int, QString> m_panels;

private slots:
    void init() {
        m_folder = std::make_unique<ProgramFolder>();
        m_area = std::make_unique<QMdiArea>();
        m_area->resize(800, 600);
        m_area->show();
        MdiChild::SetHost(m_area.get());
        Neighbours::MainSize.AnsweredBy([] { return Neighbours::Size{12180, 10370}; });
        Neighbours::SetStatusPanel.AnsweredBy(
            [this](int panel, const QString& text) { m_panels[panel] = text; });
        Neighbours::TheCodeBox.AnsweredBy([] { return Shared<Frm_Code>().TextBox; });
    }
    void cleanup() {
        Unload<Frm_Code>();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        MdiChild::SetHost(nullptr);
        m_area.reset();
        m_folder.reset();
    }

    void keepsTheTextOverItsClosing() {
        Global::HeldSource = u"<p>\r\n"_s;
        Shared<Frm_Code>().BringToFront();
        QVERIFY(Global::CodeWindowOpen);
        QCOMPARE(Shared<Frm_Code>().TextBox->Text(), u"<p>\r\n"_s);
        QVERIFY(!Shared<Frm_Code>().AttributeText.isEmpty() &&
                !Shared<Frm_Code>().ScriptObjectText.isEmpty());
        QCOMPARE(Undo::UndoRing(1), Undo::FreeMarker); // the text's coming back is no step
        Shared<Frm_Code>().TextBox->SetSelText(u"x"_s);
        QVERIFY(Global::DocChanged);
        QCOMPARE(m_panels.value(2), u"geändert"_s);
        Shared<Frm_Code>().parentWidget()->close(); // its own close button
        QVERIFY(!Loaded<Frm_Code>() && !Global::CodeWindowOpen);
        QCOMPARE(Global::HeldSource, u"x<p>\r\n"_s);
        QCOMPARE(m_panels.value(4), QString());
    }

    void fitsTheMainWindow() {
        Global::AutoMaximize = true;
        Frm_Code& code = Shared<Frm_Code>();
        code.BringToFront();
        QCOMPARE(code.parentWidget()->geometry(), QRect(0, 0, 800, 600));
        QCOMPARE(code.TextBox->geometry(), code.rect()); // nothing is left over inside
        Global::DebuggerOpen = Global::ProjectWindowOpen = Global::AssistantOpen = true;
        Neighbours::DebuggerHeight.AnsweredBy([] { return 1500; });
        Neighbours::ProjectManagerWidth.AnsweredBy([] { return 3000; });
        Neighbours::AssistantWidth.AnsweredBy([] { return 2250; });
        code.ActualizeSize();
        QCOMPARE(code.parentWidget()->geometry(), QRect(200, 0, 800 - 200 - 150, 600 - 100));
    }

    void returnsToItsFormerPlace() {
        Frm_Code& code = Shared<Frm_Code>();
        code.BringToFront();
        code.SetPlace(300, 450, 6000, 4500);
        const QRect place = code.parentWidget()->geometry();
        for (const QRect& next : {QRect(0, 0, 800, 600), place}) {
            code.ShowMaximizedState();
            QCOMPARE(code.State(), 0);
            QCOMPARE(code.parentWidget()->geometry(), next);
        }
    }

    void bringsItselfInLineWithTheType_data() {
        const auto row =
            Columns<QString, QString, bool, QString, int>("file", "type", "bar", "caption", "top");
        row("page", "\\a\\x.htm", "HTML", false, "HTML Code", 0);
        row("page with bar", "\\a\\x.htm", "HTML", true, "HTML Code", 330);
        row("script", "\\a\\x.Js", "JS", false, "JavaScript Code", 330);
        row("new script", "", "JS", false, "JavaScript Code", 330);
        row("style sheet with bar", "\\a\\x.CSS", "CSS", true, "StyleSheet Code", 330);
    }
    void bringsItselfInLineWithTheType() {
        QFETCH(QString, file);
        QFETCH(QString, type);
        QFETCH(bool, bar);
        Frm_Code& code = Shared<Frm_Code>();
        Global::CurrentFile = file;
        Global::DocType = type;
        code.ScriptBarShown = bar;
        code.ActivateToolBar();
        QTEST(code.windowTitle(), "caption");
        QTEST(code.CodeTop(), "top");
        QCOMPARE(code.TextBox->y(), code.CodeTop() / 15);
        QCOMPARE(Commands::StateOf(u"ToolBar_Browser_Temp"_s).enabled, code.windowTitle() == u"HTML Code");
    }

    void showsLineAndColumn() {
        Frm_Code& code = Shared<Frm_Code>();
        code.BringToFront();
        code.TextBox->SetText(u"a\r\nbc\r\n"_s);
        for (const auto& [caret, line, column] :
             {std::tuple(0, u"Ze 1"_s, u"Sp 1"_s), std::tuple(4, u"Ze 2"_s, u"Sp 2"_s),
              std::tuple(7, u"Ze 3"_s, u"Sp 1"_s)}) {
            code.TextBox->SetSelStart(caret);
            QCOMPARE(m_panels.value(4), line);
            QCOMPARE(m_panels.value(5), column);
        }
    }

    void checksOnceBehindAChange() {
        Frm_Code& code = Shared<Frm_Code>();
        code.BringToFront();
        int checks = 0;
        Neighbours::CheckSyntax.AnsweredBy([&] { ++checks; });
        Global::DebuggerOpen = true;
        code.TextBox->SetText(u"x"_s);
        for (int times = 0; times < 2; ++times) QTest::mouseClick(code.TextBox->viewport(), Qt::LeftButton);
        QCOMPARE(checks, 1);
    }

    void takesACopyBeforeEachKey() {
        Frm_Code& code = Shared<Frm_Code>();
        code.BringToFront();
        code.TextBox->SetText(u"alt"_s);
        Undo::UndoClear();
        QTest::keyClick(code.TextBox, Qt::Key_X);
        QTest::keyClick(code.TextBox, Qt::Key_Right); // also for keys that change nothing
        QCOMPARE(Undo::UndoRing(1), u"xalt"_s);
        QCOMPARE(Undo::UndoRing(3), u"alt"_s);
    }
};

REGISTER_TEST(FrmCode);
#include "frm_code_test.moc"
