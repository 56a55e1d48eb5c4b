// SPDX-License-Identifier: MIT
#include "assistant/frm_help.h"

#include "platform/literals.h"
#include "shell/wiring.h"
#include "support/driver.h"
#include "support/program_folder.h"
#include "support/scripted_dialogs.h"
#include "support/test_registry.h"

#include <QWebEnginePage>
#include <QWebEngineView>

class FrmHelp : public QObject {
    Q_OBJECT

private slots:
    void showsItsPagesAndSendsTheRestOutside() {
        const ProgramFolder folder;
        const QByteArray style = "<style>body { margin: 0 } a { display: block; height: 100px }</style>";
        folder.Write(u"support/index.htm"_s, "<title>Hilfe</title>" + style +
                                                 "<a href=zwei.htm>2</a>"
                                                 "<a href='http://www.example.org/a?b=c%20d'>web</a>");
        folder.Write(u"support/zwei.htm"_s, "<title>Zwei</title>" + style +
                                                "<a target=_blank href=index.htm>1</a>"
                                                "<a href='mailto:a@example.org'>mail</a>"
                                                "<a target=_blank href='http://www.example.org/'>web</a>");
        ScriptedDialogs dialogs;
        Driver::RunningProgram program;
        Driver::Trigger(u"Menu_Help_Index"_s);
        QVERIFY(Shared<Frm_Help>().isVisible());
        QCOMPARE(Shared<Frm_Help>().windowTitle(), u"Sorvane HTML Editor 3.0 Hilfe"_s);
        auto* view = Driver::Find<QWebEngineView>(u"Browser"_s);
        const auto shows = [view](const QString& title) {
            return QTest::qWaitFor([&] { return view->title() == title; }, 30000) &&
                   Driver::FeelsTheMouse(view);
        };
        const auto follow = [view](int band) { // into the band of the page that the link fills
            QTest::mouseClick(view->focusProxy(), Qt::LeftButton, {}, QPoint(60, 50 + 100 * band));
        };
        const auto sends = [&](int band, const QString& address) {
            dialogs.ExpectAddress(address);
            follow(band);
            return QTest::qWaitFor([&] { return dialogs.Finished(); }, 30000);
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

REGISTER_TEST(FrmHelp);
#include "frm_help_test.moc"
