// SPDX-License-Identifier: MIT
#include "preview/frm_browser.h"

#include "platform/events.h"
#include "platform/mdi_child.h"
#include "preview/frm_navigation.h"
#include "support/program_test.h"
#include "support/web_server.h"

#include <QApplication>
#include <QComboBox>
#include <QDragEnterEvent>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QMessageBox>
#include <QMimeData>
#include <QScopeGuard>
#include <QWebEngineView>
#include <csignal>

// The real view, in the real main window.
class FrmBrowser : public ProgramTest {
    Q_OBJECT

    // Writes a page, opens it and shows it.
    void Preview(const QByteArray& page, const QString& name = u"seite.htm"_s) {
        Documents::OpenFile(m_folder->Write(name, page));
        Driver::Trigger(u"Menu_View_Browser_Once"_s);
    }
    QString Caption() const { return Shared<Frm_Browser>().windowTitle(); }
    QWebEnginePage* Page() const { return Driver::Find<QWebEngineView>(u"Browser"_s)->page(); }
    // What an expression of the page's script comes to.
    QString Evaluate(const QString& script) const {
        QString result;
        bool answered = false;
        Page()->runJavaScript(script, [&](const QVariant& value) {
            result = value.toString();
            answered = true;
        });
        if (!QTest::qWaitFor([&] { return answered; }, Patience)) return u"no answer"_s;
        return result;
    }
    bool WaitForTitle(const QString& title) const {
        const QString wanted = u"HTML Vorschau - "_s + title;
        return QTest::qWaitFor(
            [&] { return Caption() == wanted || Caption().startsWith(wanted + u" - Nicht geladen: "); },
            Patience);
    }

private slots:
    void init() override {
        ProgramTest::init();
        Neighbours::ShowAssistant(false);
    }

    void showsPagesAndGoesBack() {
        Shared<Frm_Navigation>().Present();
        Driver::Click(u"Tlb_Navigation_Back_Button"_s); // without a preview nothing happens
        Unload<Frm_Navigation>();
        QVERIFY(!Loaded<Frm_Browser>()); // the engine starts with the first preview
        Preview("<title>Eins</title><a id=l href='zwei.htm'>x</a>");
        m_folder->Write(u"zwei.htm"_s, "<title>Zwei</title>");
        QVERIFY2(WaitForTitle(u"Eins"_s), qPrintable(Caption()));
        QVERIFY(Global::BrowserOpen && Driver::IsEnabled(u"Menu_View_Navigation"_s));

        Driver::Trigger(u"Menu_View_Navigation"_s);
        QVERIFY(Global::NavigationBarOpen);
        auto* url = Driver::Find<QComboBox>(u"Cmb_Url"_s);
        Evaluate(u"document.getElementById('l').click()"_s);
        QVERIFY(WaitForTitle(u"Zwei"_s));
        QTRY_COMPARE_WITH_TIMEOUT(url->currentText(), m_folder->System(u"zwei.htm"_s), Patience);
        Driver::Click(u"Tlb_Navigation_Back_Button"_s);
        QVERIFY(WaitForTitle(u"Eins"_s));
        Driver::Click(u"Tlb_Navigation_Next_Button"_s);
        QVERIFY(WaitForTitle(u"Zwei"_s));

        // unsaved text shows in a copy, encoded as the document
        Neighbours::FocusCode();
        Box().SetSelText(u"<title>Größe</title>"_s);
        Driver::Trigger(u"Menu_View_Browser_Temp"_s);
        QVERIFY(WaitForTitle(u"Größe"_s));
        QVERIFY(!m_folder->Read(u"seite.htm"_s).contains("Gr"));

        Shared<Frm_Browser>().parentWidget()->close();
        QVERIFY(!Global::BrowserOpen && !Global::NavigationBarOpen && !Loaded<Frm_Navigation>());
    }

    void refusesTheNetworkUntilTheUserAsksForIt() {
        WebServer server({"HTTP/1.1 200 OK\r\nContent-Type: text/html\r\nConnection: close\r\n\r\n"
                          "<title>Netz</title>"});
        const QString page =
            u"<title>Eins</title><link rel=preconnect href='%1'><link rel=stylesheet href='%1'><link "
            u"rel=icon href='%1'>"
            "<link rel=prefetch href='%1'><img src='%1'><iframe src='%1'></iframe><a id=l href='%1'>x</a>"
            "<script src='%1'></script><script>fetch('%1'); navigator.sendBeacon('%1', 'x'); new "
            "EventSource('%1');"
            "new WebSocket('%1'.replace('http', 'ws'));</script>"_s;
        Preview(page.arg(server.Address()).toLatin1());
        QVERIFY(WaitForTitle(u"Eins"_s));
        Driver::Trigger(u"Menu_View_Navigation"_s);
        Evaluate(u"document.getElementById('l').click()"_s);
        QVERIFY(WaitForTitle(u"Nicht geladen"_s));
        QTRY_COMPARE_WITH_TIMEOUT(Driver::Find<QComboBox>(u"Cmb_Url"_s)->currentText(), server.Address(),
                                  Patience);
        m_dialogs->ExpectAddress(server.Address());
        Evaluate(u"document.getElementById('open').click()"_s);
        QTRY_VERIFY_WITH_TIMEOUT(m_dialogs->Finished(), Patience);
        Driver::Click(u"Tlb_Navigation_Back_Button"_s);
        QVERIFY(WaitForTitle(u"Eins"_s));
        Evaluate(u"location = '%1'"_s.arg(server.Address())); // a script gets no further than a link
        QVERIFY(WaitForTitle(u"Nicht geladen"_s));
        QCOMPARE(server.requests, 0);

        auto* url = Driver::Find<QComboBox>(u"Cmb_Url"_s);
        url->setEditText(server.Address());
        QTest::keyClick(url, Qt::Key_Return);
        QVERIFY(WaitForTitle(u"Netz"_s));
        QVERIFY(server.requests > 0);
    }

    void browsesWithoutADocument() {
        WebServer server({"HTTP/1.1 200 OK\r\nContent-Type: text/html\r\nConnection: close\r\n\r\n"
                          "<title>Netz</title>"});
        Driver::Trigger(u"Menu_File_Browser"_s);
        QCOMPARE(Shared<Frm_Main>().windowTitle(), u"Sorvane HTML Editor 3.0 [Browser]"_s);
        QVERIFY(Global::BrowserOpen && Global::NavigationBarOpen);
        Shared<Frm_Browser>().Navigate(server.Address());
        QVERIFY(WaitForTitle(u"Netz"_s));
        Neighbours::StartWAPBrowser();
        QCOMPARE(Shared<Frm_Main>().windowTitle(), u"Sorvane HTML Editor 3.0 [WAP Browser]"_s);
        // a document closes the network again
        Preview("<title>Lokal</title>");
        QVERIFY(WaitForTitle(u"Lokal"_s));
        Shared<Frm_Browser>().Navigate(u"http://localhost:%1/"_s.arg(server.Port()));
        QVERIFY(WaitForTitle(u"Nicht geladen"_s));
    }

    void keepsScriptsInTheirPage() {
        m_folder->Write(u"geheim.txt"_s, "geheim");
        m_folder->Write(u"site/wert.js"_s, "var wert = 7;");
        Preview(
            "<title>Leer</title><script src=wert.js></script><iframe id=f src=../geheim.txt></iframe><script>"
            "var x = new XMLHttpRequest; var r = 'nichts';"
            "try { x.open('GET', 'wert.js', false); x.send(); r = x.responseText; } catch (e) {}"
            "onload = function () { var t = ''; try { t = document.getElementById('f').contentDocument.body"
            ".innerText; } catch (e) {} document.title = wert + r + t.indexOf('geheim'); };</script>",
            u"site/seite.htm"_s);
        QVERIFY2(WaitForTitle(u"7nichts-1"_s), qPrintable(Caption()));
        QCOMPARE(Evaluate(u"typeof RTCPeerConnection"_s), u"undefined"_s);
        QVERIFY(Page()->profile()->isOffTheRecord());
    }

    void showsTextsInFramesAndNamesWhatItDoesNot() {
        m_folder->Write(u"geheim.txt"_s, "geheim");
        m_folder->Write(u"site/sub/liesmich.txt"_s, "Guten Tag");
        m_folder->Write(u"site/LIESMICH"_s, "Ohne Endung");
        Preview("<title>Eins</title><iframe src=sub/liesmich.txt></iframe><iframe src=LIESMICH></iframe>"
                "<iframe src=../geheim.txt></iframe><iframe src=http://127.0.0.1:9/></iframe>",
                u"site/rahmen.htm"_s);
        QVERIFY(WaitForTitle(u"Eins"_s));
        const auto frame = [this](int number) {
            return Evaluate(
                u"try { frames[%1].document.body.innerText } catch (e) { 'fremd' }"_s.arg(number));
        };
        QTRY_COMPARE_WITH_TIMEOUT(frame(0), u"Guten Tag"_s, Patience);
        QTRY_COMPARE_WITH_TIMEOUT(frame(1), u"Ohne Endung"_s, Patience);
        const auto status = [] { return Shared<Frm_Browser>().Status(); };
        QTRY_VERIFY_WITH_TIMEOUT(status().startsWith(u"Nicht geladen: "), Patience);
        QVERIFY2(status().endsWith(u" und 1 weitere"), qPrintable(status()));
        // notices stand in the other two, which no script of the page can look into
        for (const int number : {2, 3}) QTRY_COMPARE_WITH_TIMEOUT(frame(number), u"fremd"_s, Patience);
        QCOMPARE(Evaluate(u"document.querySelectorAll('iframe')[2].getAttribute('src')"_s),
                 u"../geheim.txt"_s); // the page itself is as it was
        Driver::Trigger(u"Menu_View_Navigation"_s);
        QCOMPARE(Shared<Frm_Navigation>().windowTitle(), u"Navigation - "_s + status());
    }

    // A file from outside is opened in the editor; what the page's reader drags about in it stays there.
    void leavesDroppedFilesToTheEditor() {
        Preview("<title>Eins</title>");
        QVERIFY(WaitForTitle(u"Eins"_s));
        auto* view = Driver::Find<QWebEngineView>(u"Browser"_s);
        QTRY_VERIFY_WITH_TIMEOUT(view->focusProxy(), Patience);
        int number = 0;
        for (QWidget* target : {static_cast<QWidget*>(view), view->focusProxy()}) {
            const QString path = m_folder->Write(u"neu%1.htm"_s.arg(++number), "<p>");
            QMimeData file;
            file.setUrls({QUrl::fromLocalFile(Files::ToSystem(path))});
            // as the application does: whoever takes the file as it enters gets it
            for (QWidget* widget = target; widget; widget = widget->parentWidget()) {
                if (!widget->acceptDrops()) continue;
                QDragEnterEvent enter({20, 20}, Qt::CopyAction, &file, Qt::LeftButton, {});
                enter.ignore();
                QCoreApplication::sendEvent(widget, &enter);
                if (!enter.isAccepted()) continue;
                QDropEvent drop({20, 20}, Qt::CopyAction, &file, Qt::LeftButton, {});
                QCoreApplication::sendEvent(widget, &drop);
                break;
            }
            QTRY_COMPARE_WITH_TIMEOUT(Global::CurrentFile, path, Patience);
        }
        QCOMPARE(Caption(), u"HTML Vorschau - Eins"_s);
    }

    void handsNewWindowsToTheUsersBrowser() {
        m_folder->Write(u"archiv.zip"_s, "PK");
        Preview(
            "<title>Eins</title><body style='margin:0'><a style='display:block;height:99px' target=_blank "
            "href='zwei.htm'>x</a><a style='display:block;height:99px' href='archiv.zip'>z</a>"
            "<script>onload = function () { window.open('drei.htm'); }</script>");
        QVERIFY(WaitForTitle(u"Eins"_s));
        auto* view = Driver::Find<QWebEngineView>(u"Browser"_s);
        QVERIFY(Driver::FeelsTheMouse(view));
        const QString question =
            u"Die Vorschau zeigt das nicht selbst. Soll es in Ihrem Browser geöffnet werden?\r\n\r\n"_s;
        m_dialogs->ExpectMessage(u"HTML Vorschau"_s, question + m_folder->System(u"zwei.htm"_s),
                                 Dialogs::Answer::Yes);
        m_dialogs->ExpectAddress(
            QString::fromLatin1(QUrl::fromLocalFile(m_folder->System(u"zwei.htm"_s)).toEncoded()));
        QTest::mouseClick(view->focusProxy(), Qt::LeftButton, {}, {30, 30});
        QTRY_VERIFY_WITH_TIMEOUT(m_dialogs->Finished(), Patience);
        m_dialogs->ExpectMessage(u"HTML Vorschau"_s, question + m_folder->System(u"archiv.zip"_s),
                                 Dialogs::Answer::No);
        QTest::mouseClick(view->focusProxy(), Qt::LeftButton, {}, {30, 130});
        QTRY_VERIFY_WITH_TIMEOUT(m_dialogs->Finished(), Patience);
        QCOMPARE(Caption(), u"HTML Vorschau - Eins"_s);
    }

    void outlivesItsPage() {
        Preview("<title>Eins</title>");
        QVERIFY(WaitForTitle(u"Eins"_s));
        auto* reload = Driver::Find<QAbstractButton>(u"Cmd_Reload"_s);
        QVERIFY(!reload->isVisible());
        ::kill(static_cast<pid_t>(Page()->renderProcessPid()), SIGKILL);
        QTRY_VERIFY_WITH_TIMEOUT(reload->isVisible(), Patience);
        m_folder->Write(u"seite.htm"_s, "<title>Wieder</title>");
        reload->click();
        QVERIFY(WaitForTitle(u"Wieder"_s));
        QVERIFY(!reload->isVisible());

        // a script without end is left behind by the next preview
        const auto status = [] { return Shared<Frm_Browser>().Status(); };
        QTRY_COMPARE_WITH_TIMEOUT(status(), u"Fertig"_s, Patience);
        double now = 1000;
        const auto restore = qScopeGuard(
            [before = Events::Replace({{}, [&now] { return now; }, {}})] { Events::Replace(before); });
        m_folder->Write(u"seite.htm"_s, "<title>Ohne Ende</title><script>while (true) {}</script>");
        Shared<Frm_Browser>().Refresh();
        QVERIFY(WaitForTitle(u"Ohne Ende"_s));
        QCOMPARE(status(), u"Die Seite wird geladen..."_s);
        now += 3;
        m_folder->Write(u"seite.htm"_s, "<title>Heil</title>");
        Shared<Frm_Browser>().Refresh();
        QVERIFY(WaitForTitle(u"Heil"_s));
    }

    // Their menu items are closed, and yet their keys say what there is to say.
    void keysGoOnForStylesAndScripts() {
        Documents::OpenFile(m_folder->Write(u"stil.css"_s, "a{b:c}\r\n"));
        QStringList shown;
        Neighbours::Browse.AnsweredBy([&](const QString& file) { shown << file; });
        QVERIFY(!Driver::IsEnabled(u"Menu_View_Browser_Once"_s));
        Shared<Frm_Main>().activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&Shared<Frm_Main>(), Patience));
        Neighbours::FocusCode();
        Driver::TypeCode(u"x"_s);
        Driver::PressCode(Qt::Key_F, Qt::ControlModifier);
        QCOMPARE(m_folder->Read(u"temp.css"_s), "xa{b:c}\r\n");
        QVERIFY(Global::DocChanged);
        Driver::PressCode(Qt::Key_F5);
        QCOMPARE(m_folder->Read(u"stil.css"_s), "xa{b:c}\r\n");
        // a page has its keys from its items, and once only
        Documents::OpenFile(m_folder->Write(u"a.htm"_s, "<p>"));
        Driver::PressCode(Qt::Key_F5);
        QCOMPARE(shown, (QStringList{m_folder->Path(u"temp.css"_s), m_folder->Path(u"a.htm"_s)}));
    }

    // With all windows opening by themselves the caret stands in what can only be edited.
    void leavesTheFocusInTheCodeOfAStyleSheet() {
        Global::AutoPreView = Global::AutoDebug = Global::AutoProjectManager = true;
        Documents::OpenFile(m_folder->Write(u"stil.css"_s, "a{b:c}"));
        QCoreApplication::processEvents();
        QVERIFY(Global::DebuggerOpen && !Global::BrowserOpen);
        QVERIFY(Shared<Frm_Code>().IsActiveChild());
        QCOMPARE(QApplication::focusWidget(), Shared<Frm_Code>().TextBox);
    }

    void silencesARowOfMessages() {
        QStringList shown;
        const auto answer = [&](QWidget* box) {
            auto* message = qobject_cast<QMessageBox*>(box);
            shown << message->text();
            if (message->checkBox()) message->checkBox()->setChecked(true);
            message->button(QMessageBox::Ok)->click();
        };
        Driver::InModal(u"PageMessage"_s, [&](QWidget* box) {
            Driver::InModal(u"PageMessage"_s, answer);
            answer(box);
        });
        Preview("<script>for (var i = 0; i < 50; ++i) alert(i); document.title = 'Fertig';</script>");
        QVERIFY(WaitForTitle(u"Fertig"_s));
        QCOMPARE(shown, (QStringList{u"0"_s, u"1"_s}));
    }

    void fitsTheMainWindow() {
        Global::AutoMaximize = true;
        Preview("<title>Eins</title>");
        Frm_Browser& browser = Shared<Frm_Browser>();
        const auto fits = [&](int left) {
            const Neighbours::Size main = Shared<Frm_Main>().LayoutSize();
            return browser.Left() == left && browser.Width() == main.width - 180 - left &&
                   browser.Height() == main.height - 1370;
        };
        QVERIFY(fits(0));
        Driver::Trigger(u"Menu_Window_SetV"_s);
        const int left = browser.Left();
        QVERIFY(left > 0 && browser.Width() < left);
        browser.ShowMaximizedState(); // the button of its title bar, twice
        QTRY_VERIFY_WITH_TIMEOUT(fits(0), Patience);
        browser.ShowMaximizedState();
        QCOMPARE(browser.Left(), left);
        Driver::Trigger(u"Menu_Window_MaximizeAll"_s);
        Global::ProjectWindowOpen = true;
        Neighbours::ProjectManagerWidth.AnsweredBy([] { return 2200; });
        const Frm_Code& code = Shared<Frm_Code>();
        Driver::Trigger(u"Menu_Window_SetH"_s); // beside the project window neither lies over the other
        QCOMPARE(QPoint(browser.Left(), browser.Top()), QPoint(2200, code.Height()));
        Driver::Trigger(u"Menu_Window_SetV"_s);
        QCOMPARE(QPoint(code.Left(), browser.Left()), QPoint(2200, 2200 + code.Width()));
        Driver::Trigger(u"Menu_Window_MaximizeAll"_s);
        Neighbours::LayoutBrowser();
        QVERIFY(fits(2200));
    }
};

REGISTER_TEST(FrmBrowser);
#include "frm_browser_test.moc"
