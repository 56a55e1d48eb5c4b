// SPDX-License-Identifier: MIT
#include "editing/frm_line_zoom.h"

#include "documents/frm_code.h"
#include "documents/new_documents.h"
#include "documents/undo.h"
#include "platform/literals.h"
#include "state/global.h"
#include "support/driver.h"
#include "support/program_folder.h"
#include "support/scripted_dialogs.h"
#include "support/test_registry.h"

#include <QScrollBar>
#include <QTimer>

class FrmLineZoom : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<ProgramFolder> m_folder;
    std::unique_ptr<ScriptedDialogs> m_dialogs;
    std::unique_ptr<Driver::RunningProgram> m_program;

    static Txt_Code* Code() { return Shared<Frm_Code>().TextBox; }
    static Txt_Code* Zoom() { return Driver::Find<Txt_Code>(u"Txt_LineZoom"_s); }

    // Opens the zoom with the caret at `caret`, runs `inside` and closes it as its close button does.
    static void InZoom(const QString& command, qsizetype caret, std::function<void(QWidget*)> inside) {
        Code()->SetSelStart(caret);
        Driver::InModal(u"Frm_LineZoom"_s, [inside](QWidget* window) {
            inside(window);
            if (Loaded<Frm_LineZoom>()) window->close();
        });
        Driver::Trigger(command);
        // as the program's event loop does: the window that has ended is no longer the active one
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

private slots:
    void init() {
        m_folder = std::make_unique<ProgramFolder>();
        m_dialogs = std::make_unique<ScriptedDialogs>();
        m_program = std::make_unique<Driver::RunningProgram>();
        Documents::CreateNewTextFile();
    }
    void cleanup() {
        m_program.reset();
        m_dialogs.reset();
        m_folder.reset();
    }

    void showsALongLineUnwrapped() {
        const QString line = u"<p>\u00a0"_s + u"Wort "_s.repeated(400) + u"</p>"_s;
        Code()->SetText(u"vorher\r\n"_s + line + u"\r\nnachher"_s);
        InZoom(u"Menu_View_Zoom"_s, 20, [&](QWidget* window) {
            QCOMPARE(window->windowTitle(), u"Zoom"_s);
            QVERIFY(Global::LineZoomOpen);
            QCOMPARE(Zoom()->Text(), line);
            QCOMPARE(Zoom()->LineFromChar(line.size()), 0);
            QVERIFY(Zoom()->horizontalScrollBar()->maximum() > 0);
            QCOMPARE(Zoom()->font().family(), Code()->font().family());
            QCOMPARE(Zoom()->font().pointSize(), Code()->font().pointSize());
            QCOMPARE(Zoom()->size(), window->size());
        });
        QVERIFY(!Global::LineZoomOpen);
        QCOMPARE(Code()->Text(), QString(u"vorher\r\n"_s + line + u"\r\nnachher"_s));
    }

    void itsShortcutOpensIt() {
        Code()->SetText(u"ab\r\ncd"_s);
        bool opened = false;
        QTimer closer; // one that ends with the test, should the window never come
        connect(&closer, &QTimer::timeout, this, [&opened] {
            if (!Loaded<Frm_LineZoom>()) return;
            opened = true;
            Shared<Frm_LineZoom>().close();
        });
        closer.start(5);
        Driver::PressCode(Qt::Key_W, Qt::ControlModifier);
        QVERIFY(opened);
    }

    void everyWayOutSaves_data() {
        QTest::addColumn<QString>("command");
        QTest::addColumn<int>("key");
        QTest::addColumn<QString>("result");
        QTest::newRow("Enter") << u"Menu_View_Zoom"_s << int(Qt::Key_Return) << u"ab\r\nX\r\ncd\r\nef"_s;
        QTest::newRow("Enter of the number block")
            << u"Menu_Menu_Code_Zoom"_s << int(Qt::Key_Enter) << u"ab\r\nX\r\ncd\r\nef"_s;
        QTest::newRow("Escape") << u"Menu_View_Zoom"_s << int(Qt::Key_Escape) << u"ab\r\nXcd\r\nef"_s;
        QTest::newRow("close button") << u"Menu_Menu_Code_Zoom"_s << 0 << u"ab\r\nXcd\r\nef"_s;
    }
    void everyWayOutSaves() {
        QFETCH(QString, command);
        QFETCH(int, key);
        Code()->SetText(u"ab\r\ncd\r\nef"_s);
        Global::DocChanged = false;
        InZoom(command, 5, [key](QWidget*) {
            QTest::keyClicks(Zoom(), u"X"_s);
            if (key != 0) QTest::keyClick(Zoom(), static_cast<Qt::Key>(key));
        });
        QVERIFY(!Loaded<Frm_LineZoom>());
        QTEST(Code()->Text(), "result");
        QVERIFY(Global::DocChanged);
        Undo::UndoStep();
        QCOMPARE(Code()->Text(), u"ab\r\ncd\r\nef"_s);
    }

    // The Enter that has chosen the menu item is let go in the zoom already.
    void strayReleaseOfEnterDoesNotClose() {
        Code()->SetText(u"ab\r\ncd"_s);
        InZoom(u"Menu_View_Zoom"_s, 0, [](QWidget*) {
            QTest::keyRelease(Zoom(), Qt::Key_Return);
            QVERIFY(Loaded<Frm_LineZoom>());
        });
        QCOMPARE(Code()->Text(), u"ab\r\ncd"_s);
    }

    void remembersItsPlace() {
        Code()->SetText(u"ab\r\ncd"_s);
        Global::LineZoomPos = {QString(), u"600"_s, u"600"_s, QString(), QString()};
        InZoom(u"Menu_View_Zoom"_s, 0, [](QWidget* window) {
            QCOMPARE(window->size(), QSize(505, 57)); // 7680 by 1200 twips less the borders
            window->move(45, 60);
            window->resize(400, 90);
        });
        const Global::ToolPos stored{QString(), u"675"_s, u"900"_s, u"6105"_s, u"1695"_s};
        QCOMPARE(Global::LineZoomPos, stored);
        InZoom(u"Menu_View_Zoom"_s, 0, [](QWidget* window) {
            QCOMPARE(window->pos(), QPoint(45, 60));
            QCOMPARE(window->size(), QSize(400, 90));
        });
        QCOMPARE(Global::LineZoomPos, stored);
    }

    void comesBackToSightFromStrangePlaces_data() {
        QTest::addColumn<QStringList>("place");
        QTest::newRow("beyond the screen") << QStringList{u"900000"_s, u"900000"_s, u"6000"_s, u"1500"_s};
        QTest::newRow("huge") << QStringList{u"0"_s, u"0"_s, u"9000000"_s, u"9000000"_s};
        QTest::newRow("no numbers") << QStringList{u"links"_s, u"oben"_s, u"breit"_s, u"hoch"_s};
        QTest::newRow("negative") << QStringList{u"-90000"_s, u"-90000"_s, u"-5"_s, u"-5"_s};
    }
    void comesBackToSightFromStrangePlaces() {
        QFETCH(QStringList, place);
        for (int i = 0; i < 4; ++i) Global::LineZoomPos[static_cast<size_t>(i + 1)] = place[i];
        InZoom(u"Menu_View_Zoom"_s, 0, [](QWidget* window) {
            QVERIFY(window->screen()->availableGeometry().contains(window->pos()));
            QVERIFY(window->width() >= 100 && window->width() <= window->screen()->size().width());
            QVERIFY(window->height() >= 30 && window->height() <= window->screen()->size().height());
        });
    }
};

REGISTER_TEST(FrmLineZoom);
#include "frm_line_zoom_test.moc"
